#include "schema/Constants.h"

#include <set>
#include <string>

namespace Ostra {

std::string_view String::read(JSONView value) {
    if (!value.isString()) {
        value.fail("Expected a string.");
    }
    return value.string();
}

std::string_view NonEmptyString::read(JSONView value) {
    if (!value.isString() || value.string().empty()) {
        value.fail("Expected a non-empty string.");
    }
    return value.string();
}

bool Boolean::read(JSONView value) {
    if (!value.isBoolean()) {
        value.fail("Expected a Boolean value.");
    }
    return value.boolean();
}

std::int64_t Integer::read(JSONView value) {
    if (!value.isInteger()) {
        value.fail("Expected an integer.");
    }
    return value.integer();
}

double Number::read(JSONView value) {
    if (!value.isNumber()) {
        value.fail("Expected a number.");
    }
    return value.number();
}

std::string_view TypedValue::read(JSONView value) {
    if (!value.isObject()) {
        value.fail("A typedValue must be an object.");
    }
    if (value.size() != 1) {
        value.fail("A typedValue object may not be empty and must contain a typeid attribute only.");
    }
    const auto typeId = value.member("typeid");
    if (!typeId) {
        value.fail("A typedValue did not contain a typeid attribute.");
    }
    if (!typeId->isString() || typeId->string().empty()) {
        value.fail("A typeid attribute in a typedValue object may not be empty.");
    }
    return typeId->string();
}

std::vector<std::string_view> TypedValues::read(JSONView value) {
    if (!value.isArray()) {
        value.fail("Expected an array of typedValue objects.");
    }
    std::vector<std::string_view> typeIds;
    typeIds.reserve(value.size());
    value.forEachElement([&](JSONView element) { typeIds.push_back(TypedValue::read(element)); });
    return typeIds;
}

std::vector<std::string_view> UniqueStrings::read(JSONView value) {
    if (!value.isArray()) {
        value.fail("Expected an array.");
    }
    std::vector<std::string_view> strings;
    strings.reserve(value.size());
    std::set<std::string_view> seen;
    value.forEachElement([&](JSONView element) {
        if (!element.isString()) {
            value.fail("Expected an array of strings.");
        }
        if (!seen.insert(element.string()).second) {
            value.fail("Expected an array of unique strings.");
        }
        strings.push_back(element.string());
    });
    return strings;
}

std::string_view readTypeId(JSONView typeId) {
    return String::read(typeId).empty() ? NonEmptyString::read(typeId) : typeId.string();
}

std::optional<JSONView> Constants::find(std::string_view id) const {
    const auto definition = schema_.constants().find(id);
    return definition ? std::optional(Schema::valueOf(*definition)) : std::nullopt;
}

void Constants::failUndefined(std::string_view id) const {
    schema_.fail("Schema " + std::string(schema_.typeId()) + " has an undefined " + std::string(id) + " constant.");
}

} // namespace Ostra
