#include "schema/Constants.h"

#include "schema/Messages.h"

#include <set>

namespace Ostra {

std::string_view String::read(JSONView value) {
    if (!value.isString()) {
        value.fail(messages("string-expected"));
    }
    return value.string();
}

std::string_view NonEmptyString::read(JSONView value) {
    if (!value.isString() || value.string().empty()) {
        value.fail(messages("non-empty-string-expected"));
    }
    return value.string();
}

bool Boolean::read(JSONView value) {
    if (!value.isBoolean()) {
        value.fail(messages("boolean-expected"));
    }
    return value.boolean();
}

std::int64_t Integer::read(JSONView value) {
    if (!value.isInteger()) {
        value.fail(messages("integer-expected"));
    }
    return value.integer();
}

double Number::read(JSONView value) {
    if (!value.isNumber()) {
        value.fail(messages("number-expected"));
    }
    return value.number();
}

std::string_view TypedValue::read(JSONView value) {
    if (!value.isObject()) {
        value.fail(messages("typed-value-object-expected"));
    }
    if (value.size() != 1) {
        value.fail(messages("typed-value-typeid-only"));
    }
    const auto typeId = value.member("typeid");
    if (!typeId) {
        value.fail(messages("typed-value-typeid-missing"));
    }
    if (!typeId->isString() || typeId->string().empty()) {
        value.fail(messages("typed-value-typeid-empty"));
    }
    return typeId->string();
}

std::vector<std::string_view> TypedValues::read(JSONView value) {
    if (!value.isArray()) {
        value.fail(messages("array-of-typed-values-expected"));
    }
    std::vector<std::string_view> typeIds;
    typeIds.reserve(value.size());
    value.forEachElement([&](JSONView element) { typeIds.push_back(TypedValue::read(element)); });
    return typeIds;
}

std::vector<std::string_view> UniqueStrings::read(JSONView value) {
    if (!value.isArray()) {
        value.fail(messages("array-expected"));
    }
    std::vector<std::string_view> strings;
    strings.reserve(value.size());
    std::set<std::string_view> seen;
    value.forEachElement([&](JSONView element) {
        if (!element.isString()) {
            value.fail(messages("array-of-strings-expected"));
        }
        if (!seen.insert(element.string()).second) {
            value.fail(messages("array-of-unique-strings-expected"));
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
    schema_.fail(messages("constant-undefined"), {schema_.typeId(), id});
}

} // namespace Ostra
