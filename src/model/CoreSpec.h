#pragma once

#include "model/SpecCore.h"
#include "model/Writing.h"
#include "schema/BuiltIn.h"
#include "schema/Schema.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// The kind of a spec that is its core and nothing more; its class shares the core's data.
template <class Spec, const Ostra::BuiltIn::Identifier& base>
class CoreSpecKind {
public:
    using Object = Spec;
    using Record = SpecRecord;

    static std::optional<Record> read(const Ostra::Schema& schema) {
        if (!schema.inherits(base)) {
            return std::nullopt;
        }
        const auto constants = SpecConstants::read(Ostra::Constants(schema));
        return Record{{schema.typeId(), constants.name}, {constants.discipline}, std::nullopt};
    }

    static Record recordOf(const Spec& spec) {
        const SpecCoreData& core = Access::data(spec);
        return {core.texts, {typeIdOf(core.discipline)}, core.discipline};
    }

    static Spec build(const Record& record, const Finder& finder) { return of(buildSpecCore(record, finder)); }

    static std::string write(const Spec& spec) {
        const SpecCoreData& core = Access::data(spec);
        Ostra::SchemaWriter writer = schemaWriter(core.typeId(), base);
        writeSpecConstants(writer, core);
        return std::move(writer).finish();
    }

protected:
    static Spec of(SpecCoreData core) {
        return Access::make<Spec>(std::make_shared<const SpecCoreData>(std::move(core)));
    }
};

/// The kind of such a spec that has a built-in object.
template <class Spec, const Ostra::BuiltIn::Identifier& base>
class BuiltInCoreSpecKind : public CoreSpecKind<Spec, base> {
public:
    static constexpr const Ostra::BuiltIn::Identifier& builtIn = base;

    static Spec standIn(std::string_view typeId) {
        return CoreSpecKind<Spec, base>::of(commonSpecCore(typeId, base.displayName()));
    }
};

} // namespace Parameters::Internal
