#pragma once

#include "model/Enumeration.h"
#include "model/GeneralSpec.h"
#include "model/ParameterCore.h"
#include "schema/Message.h"
#include "schema/Schema.h"

#include <parameters/EnumerationParameter.h>

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace Parameters::Internal {

struct EnumerationParameterData : ParameterCoreData {
    GeneralSpec spec;
    Enumeration enumeration;

    auto links() { return std::tie(group, spec, enumeration); }
};

struct EnumerationParameterKind
    : ParameterKind<EnumerationParameterKind, Kinds::EnumerationParameter, EnumerationParameterData> {
    using Names = KindList<GroupKind, GeneralSpecKind, EnumerationKind>;

    static constexpr auto messages = Ostra::Messages({
        {"spec-undefined", "Enumeration parameter schema <schema> has an undefined spec constant."},
        {"spec-value-missing", "A spec definition must contain either a value or a typedValue."},
        {"spec-typeid-missing",
         "Spec constant in enumeration parameter schema <schema> must specify a nonempty typeid string."},
        {"spec-value-misplaced",
         "Value of spec constant in enumeration parameter schema <schema> must be an empty object."},
        {"value-property-undefined", "Enumeration parameter schema <schema> has an undefined value property."},
        {"value-property-typeid-missing",
         "Value property in enumeration parameter schema <schema> must specify a nonempty typeid string."},
    });

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const EnumerationParameter& parameter);
    static Links find(const Data& data, const References& named, const Finder& finder,
                      const EnumerationParameter* given);
    static std::string write(const EnumerationParameter& parameter);
};

} // namespace Parameters::Internal
