#pragma once

#include "model/ParameterCore.h"
#include "model/ReferenceSpec.h"
#include "schema/Message.h"
#include "schema/Schema.h"

#include <parameters/ReferenceParameter.h>

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace Parameters::Internal {

struct ReferenceParameterData : ParameterCoreData {
    bool ranged; // before the spec, where the core leaves room
    ReferenceSpec spec;

    auto links() { return std::tie(group, spec); }
};

struct ReferenceParameterKind
    : ParameterKind<ReferenceParameterKind, Kinds::ReferenceParameter, ReferenceParameterData> {
    using Names = KindList<GroupKind, ReferenceSpecKind, CategoryKind>;

    static constexpr auto messages = Ostra::Messages({
        {"reference-spec-typeid-missing",
         "Parameter schema <schema> must specify a typeid string attribute in its spec constant typedValue."},
        {"inline-spec-misplaced", "Inline value override for spec <typeid> is not permitted."},
        {"family-type-inline-missing", "Inline typedValue override is required when specifying the family type base "
                                       "schema <typeid> in spec constant typedValue."},
        {"family-type-object-expected", "Inline typedValue override in spec constant typedValue must be an object."},
        {"family-type-category-missing",
         "Inline typedValue override in spec constant typedValue must specify an object "
         "with a typeid string attribute for constant category."},
        {"given-category-missing", "Family Type parameter must specify a category."},
    });

    static constexpr Ostra::Identifier plainBase{Public::info.bases()[0]};
    static constexpr Ostra::Identifier rangedBase{Public::info.bases()[1]};

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const ReferenceParameter& parameter);
    static Links find(const Data& data, const References& named, const Finder& finder, const ReferenceParameter* given);
    static std::string write(const ReferenceParameter& parameter);
};

} // namespace Parameters::Internal
