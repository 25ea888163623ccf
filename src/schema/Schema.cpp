#include "schema/Schema.h"

#include <utility>

namespace Ostra {

namespace {

std::string_view readTypeId(JSONView schema) {
    const auto typeId = schema.member("typeid");
    if (!typeId || !typeId->isString()) {
        schema.fail("Schema must specify a typeid string.");
    }
    if (typeId->string().empty()) {
        schema.fail("The typeid string may not be empty.");
    }
    return typeId->string();
}

std::string_view readBase(JSONView schema) {
    const auto inherits = schema.member("inherits");
    if (!inherits) {
        schema.fail("Schema must specify an inheritance array.");
    }
    if (!inherits->isArray()) {
        schema.fail("Expected an array.");
    }
    std::string_view base;
    inherits->forEachElement([&](JSONView element) {
        if (!element.isString()) {
            schema.fail("Expected an array of strings.");
        }
        if (element.string().empty()) {
            schema.fail("Expected an array of non-empty strings.");
        }
        base = element.string();
    });
    if (inherits->size() != 1) {
        schema.fail("Inheritance clause must specify exactly one base schema.");
    }
    return base;
}

std::string_view readId(JSONView definition) {
    if (!definition.isObject()) {
        definition.fail("Expected an object describing a property.");
    }
    const auto id = definition.member("id");
    if (!id) {
        definition.fail("A property definition must have an id attribute.");
    }
    if (!id->isString()) {
        definition.fail("A property's id attribute must be a string.");
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
        fail(std::string("Expected schema ") + name + " to be an array.");
    }
    definitions.reserve(array->size());
    array->forEachElement([&](JSONView definition) {
        const std::string_view id = readId(definition);
        if (!definitions.add(id, definition)) {
            fail("Item " + std::string(id) + " in " + name + " array must be defined only once.");
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
    definition.fail("A property definition must contain either a value or a typedValue.");
}

} // namespace Ostra
