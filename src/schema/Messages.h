#pragma once

#include "schema/Message.h"

namespace Ostra {

/// What is said of documents, whichever library they are read or written for.
inline constexpr Messages messages({
    // The text is no JSON.
    {"json-syntax", "JSON parsing error at offset <offset>: <reason>"},

    // The text is no schema.
    {"typeid-missing", "Schema must specify a typeid string."},
    {"typeid-empty", "The typeid string may not be empty."},
    {"inherits-missing", "Schema must specify an inheritance array."},
    {"single-base-expected", "Inheritance clause must specify exactly one base schema."},
    {"definitions-array-expected", "Expected schema <constants or properties> to be an array."},
    {"definition-object-expected", "Expected an object describing a property."},
    {"definition-id-missing", "A property definition must have an id attribute."},
    {"definition-id-string-expected", "A property's id attribute must be a string."},
    {"definition-duplicate", "Item <id> in <constants or properties> array must be defined only once."},
    {"definition-value-missing", "A property definition must contain either a value or a typedValue."},

    // A value is wrong.
    {"constant-undefined", "Schema <schema> has an undefined <constant> constant."},
    {"string-expected", "Expected a string."},
    {"non-empty-string-expected", "Expected a non-empty string."},
    {"boolean-expected", "Expected a Boolean value."},
    {"integer-expected", "Expected an integer."},
    {"number-expected", "Expected a number."},
    {"array-expected", "Expected an array."},
    {"array-of-strings-expected", "Expected an array of strings."},
    {"array-of-non-empty-strings-expected", "Expected an array of non-empty strings."},
    {"array-of-unique-strings-expected", "Expected an array of unique strings."},
    {"array-of-typed-values-expected", "Expected an array of typedValue objects."},
    {"typed-value-object-expected", "A typedValue must be an object."},
    {"typed-value-typeid-only", "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"typed-value-typeid-missing", "A typedValue did not contain a typeid attribute."},
    {"typed-value-typeid-empty", "A typeid attribute in a typedValue object may not be empty."},
    {"number-not-finite", "Schema <schema> has a number that is not finite."},

    // What no reader looks at, or cannot be meant.
    {"member-unknown", "Nothing reads member <member> here.", Severity::warning},
    {"constant-unknown", "Nothing reads constant <constant> in a schema of this base.", Severity::warning},
    {"property-unknown", "Nothing reads property <property> in a schema of this base.", Severity::warning},
    {"member-duplicate", "Member <member> stands here more than once: the first one counts.", Severity::warning},
    {"value-ignored", "Of value and typedValue only the other one is read here, not <member>.", Severity::warning},
    {"typeid-repeated", "Typeid <typeid> stands more than once in this list.", Severity::warning},

    // A limit is exceeded.
    {"json-text-too-long", "A JSON text is too long."},
    {"json-string-too-long", "A string is too long to be written as JSON."},

    // What guards the inside of the library.
    {"map-key-string-expected", "Expected a map with string keys and values, but key was not a string."},
    {"map-value-string-expected", "Expected a map with string keys and values, but value was not a string."},
    {"json-number-not-finite", "A number that is not finite cannot be written as JSON."},
    {"constants-after-properties", "A schema's constants are written before its properties."},
});

} // namespace Ostra
