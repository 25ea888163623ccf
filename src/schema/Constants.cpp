#include "schema/Constants.h"

#include "schema/Messages.h"

#include <algorithm>
#include <map>
#include <utility>

namespace Ostra {

namespace {

/// Warns of typeids that stand twice in a list of typedValues.
void tellRepeated(JSONView typedValues) {
    std::vector<JSONView> typeIds;
    typedValues.forEachElement([&](JSONView element) {
        const auto typeId = element.isObject() ? element.member("typeid") : std::nullopt;
        if (typeId && typeId->isString()) {
            typeIds.push_back(*typeId);
        }
    });
    const auto isBefore = [](JSONView one, JSONView other) {
        const std::string_view first = one.string();
        const std::string_view second = other.string();
        return std::pair(first.size(), first) < std::pair(second.size(), second);
    };
    std::stable_sort(typeIds.begin(), typeIds.end(), isBefore);
    for (std::size_t place = 1; place < typeIds.size(); ++place) {
        if (!isBefore(typeIds[place - 1], typeIds[place])) {
            typeIds[place].reportBeside(typeIds[place - 1], messages("typeid-repeated"), {typeIds[place].string()});
        }
    }
}

} // namespace

std::string_view String::read(JSONView value) {
    if (!value.isString()) {
        return value.fail(messages("string-expected"));
    }
    return value.string();
}

std::string_view NonEmptyString::read(JSONView value) {
    if (!value.isString() || value.string().empty()) {
        return value.fail(messages("non-empty-string-expected"));
    }
    return value.string();
}

bool Boolean::read(JSONView value) {
    if (!value.isBoolean()) {
        return value.fail(messages("boolean-expected"));
    }
    return value.boolean();
}

std::int64_t Integer::read(JSONView value) {
    if (!value.isInteger()) {
        return value.fail(messages("integer-expected"));
    }
    return value.integer();
}

double Number::read(JSONView value) {
    if (!value.isNumber()) {
        return value.fail(messages("number-expected"));
    }
    return value.number();
}

std::string_view TypedValue::read(JSONView value) {
    if (!value.isObject()) {
        return value.fail(messages("typed-value-object-expected"));
    }
    if (value.size() != 1) {
        return value.fail(messages("typed-value-typeid-only"));
    }
    const auto typeId = value.member("typeid");
    if (!typeId) {
        return value.failLacking({"typeid"}, messages("typed-value-typeid-missing"));
    }
    if (!typeId->isString() || typeId->string().empty()) {
        return typeId->fail(messages("typed-value-typeid-empty"));
    }
    typeId->noteReference();
    return typeId->string();
}

std::vector<std::string_view> TypedValues::read(JSONView value) {
    if (!value.isArray()) {
        return value.fail(messages("array-of-typed-values-expected"));
    }
    std::vector<std::string_view> typeIds;
    typeIds.reserve(value.size());
    value.forEachElement([&](JSONView element) { typeIds.push_back(TypedValue::read(element)); });
    if (value.isInspected()) [[unlikely]] {
        tellRepeated(value);
    }
    return typeIds;
}

std::vector<std::string_view> UniqueStrings::read(JSONView value) {
    if (!value.isArray()) {
        return value.fail(messages("array-expected"));
    }
    std::vector<std::string_view> strings;
    strings.reserve(value.size());
    std::map<std::string_view, JSONView> seen;
    value.forEachElement([&](JSONView element) {
        if (!element.isString()) {
            element.report(messages("array-of-strings-expected"));
            return;
        }
        const auto [first, isNew] = seen.try_emplace(element.string(), element);
        if (!isNew) {
            element.reportBeside(first->second, messages("array-of-unique-strings-expected"));
        }
        strings.push_back(element.string());
    });
    return strings;
}

std::string_view readTypeId(JSONView typeId) {
    if (!typeId.isString()) {
        return typeId.fail(messages("string-expected"));
    }
    if (typeId.string().empty()) {
        return typeId.fail(messages("non-empty-string-expected"));
    }
    typeId.noteReference();
    return typeId.string();
}

Nothing Constants::failUndefined(std::string_view id) const {
    if (schema_.constants().find(id)) {
        return {}; // it is defined, and what its definition lacks has been told
    }
    return schema_.failUndefinedConstant(id, messages("constant-undefined"), {schema_.typeId(), id});
}

} // namespace Ostra
