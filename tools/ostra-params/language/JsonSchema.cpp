#include "language/JsonSchema.h"

#include "language/Values.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tool::Language {

namespace {

// Names of members are those of the draft; "errorMessage", "defaultSnippets" and "enumDescriptions" are those of the
// editors that came to know them after it.

/// Returns the regular expression of the texts with a prefix anywhere in them; of what has no version, of it alone.
std::string expressionOf(std::string_view prefix) {
    std::string expression;
    for (const char character : prefix) {
        expression += character == '.' ? "\\." : std::string(1, character);
    }
    return prefix.back() == '.' ? expression : fmt::format("^{}$", expression);
}

std::string anyOf(const std::vector<std::string_view>& prefixes) {
    std::string expression;
    for (const std::string_view prefix : prefixes) {
        expression.append(expression.empty() ? "" : "|").append(expressionOf(prefix));
    }
    return expression;
}

std::vector<const Form*> formsOf(std::string_view sectionId) {
    std::vector<const Form*> found;
    for (const Form& form : forms()) {
        if (form.section->id == sectionId) {
            found.push_back(&form);
        }
    }
    return found;
}

std::string prefixesOf(const std::vector<const Form*>& choice) {
    std::vector<std::string_view> prefixes;
    prefixes.reserve(choice.size());
    for (const Form* form : choice) {
        prefixes.push_back(prefixOf(form->base));
    }
    return anyOf(prefixes);
}

std::string allPrefixes() {
    std::vector<const Form*> all;
    all.reserve(forms().size());
    for (const Form& form : forms()) {
        all.push_back(&form);
    }
    return prefixesOf(all);
}

Json object(Json properties, Json required) {
    return {{"type", "object"},
            {"required", std::move(required)},
            {"properties", std::move(properties)},
            {"additionalProperties", false}};
}

Json emptyObject() { return {{"type", "object"}, {"maxProperties", 0}}; }

/// What holds for an object with a member that is as the expression says.
Json whereMember(std::string_view name, std::string_view expression, Json then) {
    return {{"if", {{"properties", {{name, {{"pattern", expression}}}}}, {"required", {name}}}},
            {"then", std::move(then)}};
}

/// What may not be, with what is said of it.
Json refusing(Json refused, std::string_view message) {
    return {{"not", std::move(refused)}, {"errorMessage", message}};
}

// What snippets have in their places.

class Filler {
public:
    /// Returns a value for a definition, with places to be filled in.
    Json operator()(const Definition& definition) {
        switch (definition.type) {
        case Type::boolean:
            return raw("|true,false|");
        case Type::integer:
        case Type::number:
        case Type::choice:
            return raw(":0");
        case Type::texts:
            return Json::array({place(":text")});
        case Type::references:
            return Json::array({naming(definition)});
        case Type::text:
        case Type::nonEmptyText:
            return place(fmt::format(":{}", definition.id));
        default:
            return naming(definition);
        }
    }

    Json place(std::string_view what) { return fmt::format("${{{}{}}}", ++places_, what); }

private:
    Json raw(std::string_view what) { return fmt::format("^${{{}{}}}", ++places_, what); } // no text
    Json naming(const Definition& definition) {
        return {{"typeid", place(fmt::format(":{}", findForm(definition.named)->label))}};
    }

    int places_ = 0;
};

Json snippet(std::string_view label, std::string_view description, Json body) {
    return {{"label", label}, {"description", description}, {"body", std::move(body)}};
}

/// Returns a range's value beside the typeid of its base.
Json inlineValue(const Form& range, Filler& filler) {
    Json value = Json::object();
    for (const Definition& constant : range.constants) {
        value[constant.id] = filler(constant);
    }
    return value;
}

Json bodyOf(const Definition& definition) {
    Filler filler;
    Json body = withValue(definition, filler(definition));
    if (definition.id.empty()) {
        body["id"] = filler.place(":choice");
    }
    return body;
}

/// Returns the snippets for a definition: one, and for a range one for each base as well.
std::vector<Json> snippetsOf(const Definition& definition) {
    std::vector<Json> snippets{
        snippet(definition.id.empty() ? "choice" : definition.id, definition.meaning, bodyOf(definition))};
    if (definition.type == Type::range) {
        for (const Form* form : formsOf(definition.named)) {
            Filler filler;
            Json body = withValue(definition, {{"typeid", form->base}, {"value", inlineValue(*form, filler)}});
            snippets.push_back(
                snippet(fmt::format("{}: {}", definition.id, form->label), form->meaning, std::move(body)));
        }
    }
    return snippets;
}

Json snippetsOf(std::span<const Definition> definitions) {
    Json snippets = Json::array();
    for (const Definition& definition : definitions) {
        for (Json& each : snippetsOf(definition)) {
            snippets.push_back(std::move(each));
        }
    }
    return snippets;
}

/// Returns a snippet of a schema with what it must have, and with bounds, which have no use without.
Json snippetOf(const Form& form) {
    Filler filler;
    const std::string typeId = filler.place(":typeid");
    return snippet(form.label, form.meaning, schemaOf(form, typeId, [&](const Definition& definition) {
                       const bool isBound = definition.type == Type::integer || definition.type == Type::number;
                       return definition.isRequired || isBound ? std::optional(filler(definition)) : std::nullopt;
                   }));
}

// What values are.

Json typeIdOf(std::string_view sectionId) {
    const std::string_view label = findForm(sectionId)->section->label;
    Json typeId{{"type", "string"}, {"minLength", 1}, {"description", fmt::format("The typeid of the {}.", label)}};
    const auto kind = Parameters::findKindOfId(sectionId);
    if (kind && !kind->builtInName().empty()) {
        typeId["default"] = kind->bases()[0];
    }
    return typeId;
}

Json reference(std::string_view sectionId) { return object({{"typeid", typeIdOf(sectionId)}}, {"typeid"}); }

Json valueOf(const Definition& definition);

/// What stands beside the typeid of a range's base.
Json inlineRange(const Form& range) {
    Json value = object(Json::object(), Json::array());
    for (const Definition& constant : range.constants) {
        Json& member = value["properties"][constant.id] = valueOf(constant);
        member["description"] = constant.meaning;
        if (constant.type == Type::texts) {
            member["minItems"] = 1;
        }
        if (constant.isRequired) {
            value["required"].push_back(constant.id);
        }
    }
    return value;
}

Json rangeOf(std::string_view sectionId) {
    const std::vector<const Form*> ranges = formsOf(sectionId);
    Json typeId = typeIdOf(sectionId);
    typeId["examples"] = Json::array();
    Json range;
    for (const Form* form : ranges) {
        typeId["examples"].push_back(form->base);
        range["allOf"].push_back(
            whereMember("typeid", expressionOf(prefixOf(form->base)),
                        {{"required", {"value"}}, {"properties", {{"value", inlineRange(*form)}}}}));
    }
    range["allOf"].push_back({{"if", {{"properties", {{"typeid", {{"pattern", prefixesOf(ranges)}}}}}}},
                              {"else", {{"properties", {{"value", emptyObject()}}}}}});
    range.update(object({{"typeid", std::move(typeId)}, {"value", Json::object()}}, {"typeid"}));
    return range;
}

Json referenceSpec(std::string_view sectionId) {
    Json spec = object({{"typeid", typeIdOf(sectionId)}, {"typedValue", Json::object()}}, {"typeid"});
    const std::string_view familyType = Parameters::Kinds::ReferenceSpec::familyType;
    spec["properties"]["typeid"]["examples"] = Json::array({familyType});
    spec.update(
        whereMember("typeid", expressionOf(prefixOf(familyType)),
                    {{"required", {"typedValue"}},
                     {"properties", {{"typedValue", object({{"category", reference("category")}}, {"category"})}}}}));
    spec["else"] = refusing({{"required", {"typedValue"}}}, "Only a family type has a typedValue beside the typeid.");
    return spec;
}

/// Returns what a definition's value must be.
Json valueOf(const Definition& definition) {
    switch (definition.type) {
    case Type::text:
        return {{"type", "string"}};
    case Type::nonEmptyText:
        return {{"type", "string"}, {"minLength", 1}};
    case Type::boolean:
        return {{"type", "boolean"}};
    case Type::integer:
    case Type::choice:
        return {{"type", "integer"},
                {"minimum", std::numeric_limits<std::int64_t>::min()},
                {"maximum", std::numeric_limits<std::int64_t>::max()}};
    case Type::number:
        return {{"type", "number"}};
    case Type::texts:
        return {{"type", "array"}, {"items", {{"type", "string"}}}, {"uniqueItems", true}};
    case Type::references:
        return {{"type", "array"}, {"items", reference(definition.named)}, {"uniqueItems", true}};
    case Type::range:
        return rangeOf(definition.named);
    case Type::referenceSpec:
        return referenceSpec(definition.named);
    case Type::generalSpec:
        return object({{"typeid", typeIdOf(definition.named)}, {"value", emptyObject()}}, {"typeid"});
    case Type::reference:
    case Type::enumeration:
        break;
    }
    return reference(definition.named);
}

Json described(Json schema, const Definition& definition) {
    schema["description"] = definition.meaning;
    if (const auto byDefault = defaultOf(definition)) {
        schema["default"] = *byDefault;
    }
    return schema;
}

/// Returns what the members of a definition with a known id must be.
Json definitionOf(const Definition& definition) {
    const Json value = described(valueOf(definition), definition);
    const std::string_view key = isTyped(definition.type) ? "typedValue" : "value";
    Json result;
    if (definition.type == Type::generalSpec) { // has both, as an empty object may stand beside it
        result["if"] = {{"required", {"typedValue"}}};
        result["then"] = {{"properties", {{"typedValue", value}, {"value", emptyObject()}}}};
        result["else"] = {{"properties", {{"value", value}}}};
    } else {
        result["properties"]["value"] = value;
        result["properties"]["typedValue"] = value;
        result["allOf"].push_back(
            refusing({{"required", {"value", "typedValue"}}},
                     fmt::format("Of value and typedValue only one is read: here it should be {}.", key)));
    }
    return result;
}

/// Returns what the definitions of an array of choices must be.
Json choices(const Definition& choice) {
    return {{"type", "array"},
            {"minItems", 1},
            {"items", object({{"id", {{"type", "string"}, {"minLength", 1}, {"description", choice.meaning}}},
                              {"value", valueOf(choice)}},
                             {"id", "value"})}};
}

Json arrayOf(const Form& form, const char* name, std::span<const Definition> definitions) {
    if (definitions.empty()) {
        return {{"items", refusing(Json::object(), fmt::format("The kind {} has no {}.", form.label, name))}};
    }
    Json array{{"type", "array"}};
    if (definitions.front().id.empty()) {
        array = choices(definitions.front());
    } else {
        Json ids{{"type", "string"}, {"enum", Json::array()}, {"enumDescriptions", Json::array()}};
        Json values = Json::array();
        for (const Definition& definition : definitions) {
            ids["enum"].push_back(definition.id);
            ids["enumDescriptions"].push_back(definition.meaning);
            const Json isIt{{"properties", {{"id", {{"const", definition.id}}}}}, {"required", {"id"}}};
            values.push_back({{"if", isIt}, {"then", definitionOf(definition)}});
            if (definition.isRequired) {
                array["allOf"].push_back(
                    {{"contains", isIt},
                     {"errorMessage", fmt::format("{} must stand among the {} of this kind.", definition.id, name)}});
            }
        }
        Json item = object({{"id", std::move(ids)}, {"value", Json::object()}, {"typedValue", Json::object()}}, {"id"});
        item["anyOf"] = {{{"required", {"value"}}}, {{"required", {"typedValue"}}}};
        item["allOf"] = std::move(values);
        array["items"] = std::move(item);
    }
    array["uniqueItems"] = true;
    array["items"]["defaultSnippets"] = snippetsOf(definitions);
    return array;
}

bool hasRequired(std::span<const Definition> definitions) {
    return std::any_of(definitions.begin(), definitions.end(), std::mem_fn(&Definition::isRequired));
}

Json schemaOfForm(const Form& form) {
    Json schema{{"title", form.label}, {"description", form.meaning}, {"required", Json::array()}};
    const auto add = [&](const char* name, std::span<const Definition> definitions) {
        schema["properties"][name] = arrayOf(form, name, definitions);
        if (hasRequired(definitions)) {
            schema["required"].push_back(name);
        }
    };
    add("constants", form.constants);
    add("properties", form.properties);
    return schema;
}

Json inherits() {
    Json base{{"type", "string"},
              {"pattern", allPrefixes()},
              {"errorMessage", "This is none of the bases that can be inherited."},
              {"defaultSnippets", Json::array()}};
    for (const Form& form : forms()) {
        base["defaultSnippets"].push_back(
            snippet(form.base, fmt::format("{}: {}", form.label, form.meaning), form.base));
        base["allOf"].push_back({{"if", {{"pattern", expressionOf(prefixOf(form.base))}}},
                                 {"then", {{"title", form.label}, {"description", form.meaning}}}});
    }
    return {{"description", "The one base, which decides the kind."},
            {"type", "array"},
            {"minItems", 1},
            {"maxItems", 1},
            {"items", std::move(base)}};
}

/// What holds for the schemas of a base.
Json whereInherited(const Form& form) {
    const Json one{{"type", "array"},
                   {"contains", {{"type", "string"}, {"pattern", expressionOf(prefixOf(form.base))}}}};
    return {{"if", {{"properties", {{"inherits", one}}}, {"required", {"inherits"}}}},
            {"then", {{"$ref", fmt::format("#/definitions/{}", form.id)}}}};
}

Json typeId() {
    const Json reserved = refusing({{"pattern", anyOf(reservedPrefixes())}}, "This contains a built-in identifier.");
    return {{"description", "The identifier of the schema and of its object, which no other has."},
            {"type", "string"},
            {"minLength", 1},
            {"allOf", Json::array({reserved})}};
}

} // namespace

Json jsonSchema() {
    Json schema{
        {"$schema", "http://json-schema.org/draft-07/schema#"},
        {"title", "A schema of a parameter catalogue"},
        {"description", "A parameter, or something that parameters need."},
        {"type", "object"},
        {"required", {"typeid", "inherits"}},
        {"properties",
         {{"typeid", typeId()},
          {"inherits", inherits()},
          {"constants", {{"description", "The settings of the kind."}, {"type", "array"}}},
          {"properties",
           {{"description", "The choices of an enumeration, or the enumeration of a parameter."}, {"type", "array"}}}}},
        {"additionalProperties", false}};
    for (const Form& form : forms()) {
        schema["allOf"].push_back(whereInherited(form));
        schema["defaultSnippets"].push_back(snippetOf(form));
        schema["definitions"][form.id] = schemaOfForm(form);
    }
    return schema;
}

} // namespace Tool::Language
