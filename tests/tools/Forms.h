#pragma once

#include "language/Values.h"
#include "support/Faults.h"

#include <cctype>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace Tool::Language {

inline void PrintTo(const Form& form, std::ostream* stream) { // NOLINT(readability-identifier-naming)
    *stream << form.id;
}

} // namespace Tool::Language

/// Schemas made of nothing but the description of the language.
namespace Forms {

using Tool::Json;
using Tool::Language::Definition;
using Tool::Language::Form;
using Tool::Language::Type;

/// Returns the constants and the properties of a form.
inline std::vector<Definition> definitionsOf(const Form& form) {
    std::vector<Definition> all(form.constants.begin(), form.constants.end());
    all.insert(all.end(), form.properties.begin(), form.properties.end());
    return all;
}

/// One definition of a form.
struct Entry {
    Form form;
    const Definition& definition; // which is a constant of the program

    friend void PrintTo(const Entry& entry, std::ostream* stream) { // NOLINT(readability-identifier-naming)
        *stream << entry.form.id << " " << entry.definition.id;
    }
};

inline std::vector<Entry> entries() {
    std::vector<Entry> all;
    for (const Form& form : Tool::Language::forms()) {
        for (const auto& definitions : {form.constants, form.properties}) {
            for (const Definition& definition : definitions) {
                all.push_back({form, definition});
            }
        }
    }
    return all;
}

/// Returns a sound value that is not what stands for one that is left out. The object of a section that it names has
/// that section's id.
inline std::optional<Json> otherThanDefault(const Definition& definition) {
    const Json named = {{"typeid", definition.named}};
    switch (definition.type) {
    case Type::text:
        return "other";
    case Type::boolean:
        return true;
    case Type::integer:
    case Type::number:
        return 7;
    case Type::references:
        return Json::array({named});
    default:
        return definition.named.empty() ? placeholderOf(definition) : named;
    }
}

inline std::optional<Json> whereRequired(const Definition& definition) {
    if (!definition.isRequired) {
        return std::nullopt;
    }
    return definition.named.empty() ? placeholderOf(definition) : otherThanDefault(definition);
}

/// Returns a schema of a typeid that no sound text has.
template <class ValueOf>
Json textOf(const Form& form, ValueOf valueOf, std::string_view typeId = "x") {
    return schemaOf(form, typeId, valueOf);
}

/// Returns an object of each section, under the section's id.
inline Support::Texts soundTexts() {
    Support::Texts texts;
    for (const Form& form : Tool::Language::forms()) {
        texts.emplace(form.section->id, textOf(form, &whereRequired, form.section->id).dump());
    }
    return texts;
}

/// Returns an identifier as a part of a test's name.
inline std::string wordOf(std::string_view id) {
    std::string word;
    bool begins = true;
    for (const char character : id) {
        if (std::isalnum(static_cast<unsigned char>(character)) != 0) {
            word += begins ? static_cast<char>(std::toupper(static_cast<unsigned char>(character))) : character;
        }
        begins = character == '-';
    }
    return word;
}

inline std::string nameOf(const Form& form) { return wordOf(form.id); }
inline std::string nameOf(const Entry& entry) {
    return nameOf(entry.form) + "_" + (entry.definition.id.empty() ? "AnyChoice" : wordOf(entry.definition.id));
}

} // namespace Forms
