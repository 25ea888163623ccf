#include "schema/Constants.h"

#include "schema/Messages.h"

#include <algorithm>
#include <map>
#include <utility>

namespace Ostra {

namespace {

/// Warns of typeids that stand twice in a list.
void tellRepeated(std::vector<JSONView> typeIds) {
    const auto key = [](JSONView typeId) { return std::pair(typeId.string().size(), typeId.string()); };
    const auto isBefore = [key](JSONView one, JSONView other) { return key(one) < key(other); };
    std::stable_sort(typeIds.begin(), typeIds.end(), isBefore);
    for (std::size_t place = 1; place < typeIds.size(); ++place) {
        if (!isBefore(typeIds[place - 1], typeIds[place])) {
            typeIds[place].reportBeside(typeIds[place - 1], messages("typeid-repeated"), {typeIds[place].string()});
        }
    }
}

/// Returns the member "typeid" of a typedValue, or nothing where faults are kept and it has one.
MaybeView readOnlyTypeId(JSONView typedValue) {
    if (!typedValue.isObject()) {
        return typedValue.fail(messages("typed-value-object-expected")).none();
    }
    if (typedValue.size() != 1) {
        return typedValue.fail(messages("typed-value-typeid-only")).none();
    }
    const auto typeId = typedValue.member("typeid");
    if (!typeId) {
        return typedValue.failLacking({"typeid"}, messages("typed-value-typeid-missing")).none();
    }
    if (!typeId->isString() || typeId->string().empty()) {
        return typeId->fail(messages("typed-value-typeid-empty")).none();
    }
    typeId->noteReference();
    return typeId;
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
    const auto typeId = readOnlyTypeId(value);
    return typeId ? typeId->string() : std::string_view();
}

std::vector<std::string_view> TypedValues::read(JSONView value) {
    if (!value.isArray()) {
        return value.fail(messages("array-of-typed-values-expected"));
    }
    std::vector<std::string_view> typeIds;
    typeIds.reserve(value.size());
    std::vector<JSONView> inspected;
    value.forEachElement([&](JSONView element) {
        if (const auto typeId = readOnlyTypeId(element)) {
            typeIds.push_back(typeId->string());
            if (value.isInspected()) [[unlikely]] {
                inspected.push_back(*typeId);
            }
        }
    });
    tellRepeated(std::move(inspected));
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

MaybeView Constants::find(std::string_view id) const {
    const auto definition = schema_.constants().find(id);
    return definition ? Schema::valueOf(*definition) : std::nullopt;
}

Nothing Constants::failUndefined(std::string_view id) const {
    if (schema_.constants().find(id)) {
        return {}; // it is defined, and what its definition lacks has been told
    }
    return schema_.failUndefinedConstant(id, messages("constant-undefined"), {schema_.typeId(), id});
}

} // namespace Ostra
