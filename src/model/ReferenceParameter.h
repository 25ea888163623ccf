#pragma once

#include "model/ParameterCore.h"
#include "model/ReferenceSpec.h"
#include "schema/Schema.h"

#include <parameters/ReferenceParameter.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

struct ReferenceParameterData {
    ParameterCoreData core;
    ReferenceSpec spec;
    bool ranged;

    std::string_view typeId() const { return core.typeId(); }
};

struct ReferenceParameterKind : DescribedKind<Kinds::ReferenceParameter> {
    using Names = KindList<GroupKind, ReferenceSpecKind, CategoryKind>;
    struct Record : ParameterRecord {
        bool ranged;

        template <class... Parts> // of a ParameterRecord; what it adds is the category of a family type
        explicit Record(bool isRanged, Parts&&... parts)
            : ParameterRecord(std::forward<Parts>(parts)...), ranged(isRanged) {}

        std::optional<std::string_view> category() const { return added(); }
    };

    static constexpr Ostra::Identifier plainBase{Public::info.bases()[0]};
    static constexpr Ostra::Identifier rangedBase{Public::info.bases()[1]};

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const ReferenceParameter& parameter);
    static ReferenceParameter build(const Record& record, const Finder& finder, const ReferenceParameter* given);
    static std::string write(const ReferenceParameter& parameter);
};

} // namespace Parameters::Internal
