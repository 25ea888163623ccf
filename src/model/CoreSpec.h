#pragma once

#include "model/MakeRef.h"
#include "model/SpecCore.h"
#include "model/Writing.h"
#include "schema/Schema.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The kind of a spec that is its core and nothing more; its class shares the core's data.
template <class P>
struct CoreSpecKind : DescribedKind<P> {
    using Spec = typename P::Value;
    using Names = KindList<DisciplineKind>;
    using Record = SpecRecord;
    using DescribedKind<P>::base;

    static std::optional<Record> read(const Ostra::Schema& schema) {
        if (!schema.inherits(base)) {
            return std::nullopt;
        }
        return Record(schema.typeId(), SpecConstants::read(Ostra::Constants(schema)));
    }

    static Record recordOf(const Spec& spec) { return Record(Access::data(spec)); }

    static Spec build(const Record& record, const Finder& finder, const Spec* given) {
        return of(buildSpecCore(record, finder, given != nullptr ? &Access::data(*given) : nullptr));
    }

    static std::string write(const Spec& spec) {
        const SpecCoreData& core = Access::data(spec);
        Ostra::SchemaWriter writer = schemaWriter(core.typeId(), base);
        writeSpecConstants(writer, core);
        return std::move(writer).finish();
    }

    static Spec standIn(std::string_view typeId) requires DescribedKind<P>::hasBuiltIn {
        return of(commonSpecCore(typeId, P::info.builtInName()));
    }

private:
    static Spec of(SpecCoreData core) { return Access::make<Spec>(makeRef<SpecCoreData>(std::move(core))); }
};

} // namespace Parameters::Internal
