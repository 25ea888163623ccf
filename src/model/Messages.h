#pragma once

#include "schema/Message.h"

namespace Parameters::Internal {

/// What kinds have in common to say; what only one of them says stands beside it.
inline constexpr Ostra::Messages messages({
    // Something that is named is not there.
    {"dependency-missing",
     "Dependency <typeid> in schema <schema> is missing or does not represent an object of the expected type."},
    {"unit-missing",
     "Typeid <typeid> <constant> constant in measurable spec schema <schema> does not belong to a unit."},
    {"object-unknown", "Could not find <kind> with typeid <typeid>."},

    // The range of a parameter is wrong.
    {"range-typeid-missing",
     "Schema <schema> must specify a typeid string attribute in its range constant typedValue."},
    {"inline-range-missing",
     "Inline value override is required when specifying range schema <typeid> in range constant typedValue."},
    {"inline-range-object-expected", "Inline value override in range constant typedValue must be an object."},
    {"inline-range-misplaced", "Inline value override for range schema <typeid> in range constant typedValue, if "
                               "present, must be an empty object."},

    // An object made in code is wrong.
    {"value-duplicate", "Value <value> must appear only once."},

    // What a range says in vain.
    {"boundary-missing", "Flag <flag> is true without a <boundary>, which then is 0.", Ostra::Severity::warning},
    {"boundary-ignored", "Boundary <boundary> has no effect, since <flag> is false.", Ostra::Severity::warning},
    {"range-empty", "No value lies within this range.", Ostra::Severity::warning},

    // A limit is exceeded.
    {"texts-too-many", "One object has more than 2^32 - 1 texts."},
    {"texts-too-long", "The texts of one object are longer than 4 GiB."},
});

} // namespace Parameters::Internal
