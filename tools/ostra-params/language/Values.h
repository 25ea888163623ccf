#pragma once

#include "language/Language.h"
#include "output/Json.h"

#include <optional>
#include <string_view>

namespace Tool::Language {

/// Returns what stands for a definition's value when it is left out; nothing where no value does.
std::optional<Json> defaultOf(const Definition& definition);

/// Returns a value of the right type that says what is to be filled in.
Json placeholderOf(const Definition& definition);

/// Returns the definition with a value, as it stands in a schema.
Json withValue(const Definition& definition, Json value);

/// Returns a schema with a value for each of its definitions, or without those for which there is none.
template <class ValueOf>
Json schemaOf(const Form& form, std::string_view typeId, ValueOf valueOf) {
    Json schema{{"typeid", typeId}, {"inherits", Json::array({form.base})}};
    const auto add = [&](const char* name, std::span<const Definition> definitions) {
        for (const Definition& definition : definitions) {
            if (std::optional<Json> value = valueOf(definition)) {
                schema[name].push_back(withValue(definition, std::move(*value)));
            }
        }
    };
    add("constants", form.constants);
    add("properties", form.properties);
    return schema;
}

} // namespace Tool::Language
