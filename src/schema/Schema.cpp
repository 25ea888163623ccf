#include "schema/Schema.h"

#include "schema/Messages.h"

#include <utility>

namespace Ostra {

namespace {

std::string_view readTypeId(JSONView schema) {
    const auto typeId = schema.member("typeid");
    if (!typeId || !typeId->isString()) {
        schema.fail(messages("typeid-missing"));
    }
    if (typeId->string().empty()) {
        schema.fail(messages("typeid-empty"));
    }
    return typeId->string();
}

std::string_view readBase(JSONView schema) {
    const auto inherits = schema.member("inherits");
    if (!inherits) {
        schema.fail(messages("inherits-missing"));
    }
    if (!inherits->isArray()) {
        schema.fail(messages("array-expected"));
    }
    std::string_view base;
    inherits->forEachElement([&](JSONView element) {
        if (!element.isString()) {
            schema.fail(messages("array-of-strings-expected"));
        }
        if (element.string().empty()) {
            schema.fail(messages("array-of-non-empty-strings-expected"));
        }
        base = element.string();
    });
    if (inherits->size() != 1) {
        schema.fail(messages("single-base-expected"));
    }
    return base;
}

std::string_view readId(JSONView definition) {
    if (!definition.isObject()) {
        definition.fail(messages("definition-object-expected"));
    }
    const auto id = definition.member("id");
    if (!id) {
        definition.fail(messages("definition-id-missing"));
    }
    if (!id->isString()) {
        definition.fail(messages("definition-id-string-expected"));
    }
    return id->string();
}

} // namespace

Schema::Schema(std::string_view text, std::shared_ptr<const ExceptionFactory> factory)
    : document_(text, std::move(factory)), typeId_(readTypeId(document_.view())), base_(readBase(document_.view())),
      beginsOnly_(Identifier::findStart(base_, 1) == std::string_view::npos) {
    readDefinitions("constants", constants_);
    readDefinitions("properties", properties_);
}

void Schema::readDefinitions(const char* name, Definitions& definitions) {
    const auto array = document_.view().member(name);
    if (!array) {
        return;
    }
    if (!array->isArray()) {
        fail(messages("definitions-array-expected"), {name});
    }
    definitions.reserve(array->size());
    array->forEachElement([&](JSONView definition) {
        const std::string_view id = readId(definition);
        if (!definitions.add(id, definition)) {
            fail(messages("definition-duplicate"), {id, name});
        }
    });
}

JSONView Schema::valueOf(JSONView definition) {
    if (const auto value = definition.member("value")) {
        return *value;
    }
    if (const auto typedValue = definition.member("typedValue")) {
        return *typedValue;
    }
    definition.fail(messages("definition-value-missing"));
}

} // namespace Ostra
