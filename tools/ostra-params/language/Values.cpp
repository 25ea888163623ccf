#include "language/Values.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <utility>

namespace Tool::Language {

namespace {

Json naming(std::string_view typeId) { return {{"typeid", typeId}}; }

/// Returns the first base of a range with the least that must stand beside it.
Json leastRange(std::string_view sectionId) {
    const Form& form = *findForm(sectionId);
    Json value = Json::object();
    for (const Definition& constant : form.constants) {
        if (constant.isRequired) {
            value[constant.id] = placeholderOf(constant);
        }
    }
    return {{"typeid", form.base}, {"value", std::move(value)}};
}

std::optional<Json> builtIn(std::string_view sectionId) {
    const auto kind = Parameters::findKindOfId(sectionId);
    return kind && !kind->builtInName().empty() ? std::optional(naming(kind->bases()[0])) : std::nullopt;
}

} // namespace

std::optional<Json> defaultOf(const Definition& definition) {
    if (definition.isRequired) {
        return std::nullopt;
    }
    switch (definition.type) {
    case Type::text:
        return "";
    case Type::reference:
    case Type::referenceSpec:
        return builtIn(definition.named);
    default:
        return placeholderOf(definition);
    }
}

Json placeholderOf(const Definition& definition) {
    switch (definition.type) {
    case Type::text:
    case Type::nonEmptyText:
        return fmt::format("<{}>", definition.id);
    case Type::boolean:
        return false;
    case Type::integer:
    case Type::number:
    case Type::choice:
        return 0;
    case Type::texts:
        return Json::array({"<text>"});
    case Type::references:
        return Json::array();
    case Type::range:
        return leastRange(definition.named);
    case Type::reference:
    case Type::referenceSpec:
    case Type::generalSpec:
    case Type::enumeration:
        break;
    }
    return naming(fmt::format("<{}>", findForm(definition.named)->label));
}

Json withValue(const Definition& definition, Json value) {
    const std::string_view id = definition.id.empty() ? "<choice>" : definition.id;
    return {{"id", id}, {isTyped(definition.type) ? "typedValue" : "value", std::move(value)}};
}

} // namespace Tool::Language
