#include "faults/FaultPlace.h"

#include "faults/Outline.h"
#include "faults/ReadingOrder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>
#include <vector>

namespace Tool {

namespace {

using Node = Outline::Node;
using Type = Outline::Type;

bool startsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

const Node* firstWhere(const std::vector<const Node*>& nodes, const auto& isWanted) {
    const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const Node* node) { return isWanted(*node); });
    return found == nodes.end() ? nullptr : *found;
}

/// Finds the parts of a schema text.
class Parts {
public:
    explicit Parts(const Outline& outline) : outline_(outline) {}

    const Node* member(const char* name) const { return outline_.member(&outline_.root(), name); }
    std::vector<const Node*> in(const char* array) const { return outline_.children(member(array)); }
    const Node* base() const {
        return firstWhere(in("inherits"), [](const Node&) { return true; });
    }
    const Node* emptyBase() const {
        return firstWhere(in("inherits"),
                          [](const Node& node) { return node.type == Type::string && node.text.empty(); });
    }
    const Node* id(const Node& definition) const { return outline_.member(&definition, "id"); }

    const Node* definition(const char* array, std::string_view idText) const {
        return firstWhere(in(array), [&](const Node& definition) {
            const Node* found = id(definition);
            return found != nullptr && found->text == idText;
        });
    }

    const Node* firstDefinition(const auto& isWanted) const {
        const Node* constant = firstWhere(in("constants"), isWanted);
        return constant != nullptr ? constant : firstWhere(in("properties"), isWanted);
    }

    const Node* repeatedDefinition() const {
        for (const char* array : {"constants", "properties"}) {
            std::set<std::string_view> seen;
            const Node* repeated = firstWhere(in(array), [&](const Node& definition) {
                const Node* found = id(definition);
                return found != nullptr && !seen.insert(found->text).second;
            });
            if (repeated != nullptr) {
                return repeated;
            }
        }
        return nullptr;
    }

    bool hasValue(const Node& definition) const {
        return outline_.member(&definition, "value") != nullptr ||
               outline_.member(&definition, "typedValue") != nullptr;
    }
    bool mentions(const Node& node, std::string_view text) const { return outline_.mentions(node, text); }

private:
    const Outline& outline_;
};

/// A message that tells which part is meant, and how that part is found.
struct PartRule {
    std::string_view beginning;
    const Node* (*find)(const Parts& parts);
};

constexpr std::array partRules{
    PartRule{"Schema must specify a typeid string.", [](const Parts& parts) { return parts.member("typeid"); }},
    PartRule{"The typeid string may not be empty.", [](const Parts& parts) { return parts.member("typeid"); }},
    PartRule{"Schema with typeid ", [](const Parts& parts) { return parts.member("typeid"); }},
    PartRule{"Inheritance clause must specify", [](const Parts& parts) { return parts.member("inherits"); }},
    PartRule{"Inheritance from an unrecognized base schema.", [](const Parts& parts) { return parts.base(); }},
    PartRule{"Expected an array of non-empty strings.", [](const Parts& parts) { return parts.emptyBase(); }},
    PartRule{"Expected schema constants to be an array.", [](const Parts& parts) { return parts.member("constants"); }},
    PartRule{"Expected schema properties to be an array.",
             [](const Parts& parts) { return parts.member("properties"); }},
    PartRule{"Expected an object describing a property.",
             [](const Parts& parts) {
                 return parts.firstDefinition([](const Node& node) { return node.type != Type::object; });
             }},
    PartRule{"A property definition must have an id attribute.",
             [](const Parts& parts) {
                 return parts.firstDefinition([&](const Node& node) { return parts.id(node) == nullptr; });
             }},
    PartRule{"A property's id attribute must be a string.",
             [](const Parts& parts) {
                 return parts.firstDefinition([&](const Node& node) {
                     const Node* id = parts.id(node);
                     return id != nullptr && id->type != Type::string;
                 });
             }},
    PartRule{"A property definition must contain either a value",
             [](const Parts& parts) {
                 return parts.firstDefinition([&](const Node& node) { return !parts.hasValue(node); });
             }},
    PartRule{"Item ", [](const Parts& parts) { return parts.repeatedDefinition(); }},
};

/// A message that tells which definition is meant.
struct DefinitionRule {
    std::string_view fragment;
    const char* array;
    std::string_view id;
};

constexpr std::array definitionRules{
    DefinitionRule{"ID of value in enumeration schema ", "properties", ""},
    DefinitionRule{"Value property in enumeration parameter schema ", "properties", "value"},
    DefinitionRule{"pec constant in enumeration parameter schema ", "constants", "spec"},
    DefinitionRule{"A spec definition must contain", "constants", "spec"},
    DefinitionRule{" in spec constant typedValue", "constants", "spec"},
    DefinitionRule{" in its spec constant typedValue.", "constants", "spec"},
    DefinitionRule{"Inline value override for spec ", "constants", "spec"},
    DefinitionRule{" range constant typedValue", "constants", "range"},
    DefinitionRule{" for storageUnit constant in measurable spec schema ", "constants", "storageUnit"},
    DefinitionRule{" in applicableUnits constant in measurable spec schema ", "constants", "applicableUnits"},
};

/// What resolution says of a typeid in a schema.
struct MissingRule {
    std::string_view beginning;
    std::string_view middle;
};

constexpr std::array missingRules{
    MissingRule{"Dependency ", " in schema "},
    MissingRule{"Parent ", " of subcategory schema "},
    MissingRule{"Typeid ", " for storageUnit constant in measurable spec schema "},
    MissingRule{"Typeid ", " in applicableUnits constant in measurable spec schema "},
};

/// The messages that tell a type and not where it was expected.
constexpr std::array bareMessages{"Expected ", "A typedValue ", "A typeid attribute "};

const Node* choiceOf(const Parts& parts, std::string_view message) {
    constexpr std::string_view beginning = "Value ";
    const std::size_t end = message.find(" in enumeration schema ");
    if (!startsWith(message, beginning) || end == std::string_view::npos) {
        return nullptr;
    }
    return parts.definition("properties", message.substr(beginning.size(), end - beginning.size()));
}

const Node* definitionThatNames(const Parts& parts, std::string_view typeId) {
    return typeId.empty() ? nullptr
                          : parts.firstDefinition([&](const Node& node) { return parts.mentions(node, typeId); });
}

const Node* faultyPart(const Outline& outline, const std::string& text, const std::string& message) {
    const Parts parts(outline);
    for (const PartRule& rule : partRules) {
        if (startsWith(message, rule.beginning)) {
            return rule.find(parts);
        }
    }
    for (const DefinitionRule& rule : definitionRules) {
        if (message.find(rule.fragment) != std::string::npos) {
            return parts.definition(rule.array, rule.id);
        }
    }
    if (const Node* choice = choiceOf(parts, message)) {
        return choice;
    }
    const Node* typeId = parts.member("typeid");
    if (const Node* naming = definitionThatNames(parts, typeId == nullptr ? "" : missingIn(message, typeId->text))) {
        return naming;
    }
    const bool isBare = std::any_of(bareMessages.begin(), bareMessages.end(),
                                    [&](std::string_view beginning) { return startsWith(message, beginning); });
    if (!isBare) {
        return nullptr;
    }
    const Node* definition = lastDefinitionRead(outline, text, message);
    return definition != nullptr ? definition : parts.member("inherits");
}

} // namespace

std::string_view missingIn(std::string_view message, std::string_view schemaTypeId) {
    for (const MissingRule& rule : missingRules) {
        const std::size_t end = message.rfind(std::string(rule.middle).append(schemaTypeId));
        if (startsWith(message, rule.beginning) && end != std::string_view::npos && end >= rule.beginning.size()) {
            return message.substr(rule.beginning.size(), end - rule.beginning.size());
        }
    }
    return {};
}

std::string roleOf(const std::string& text, std::string_view typeId) {
    const Outline outline(text);
    const Parts parts(outline);
    const Node* definition = definitionThatNames(parts, typeId);
    if (definition == nullptr) {
        return {};
    }
    const Node* family = outline.member(outline.member(definition, "typedValue"), "typedValue");
    const Node* category = outline.member(family, "category");
    return category != nullptr && parts.mentions(*category, typeId) ? category->name : parts.id(*definition)->text;
}

std::size_t offsetOfFault(const std::string& text, const std::string& message) {
    constexpr std::string_view parseError = "JSON parsing error at offset ";
    std::size_t offset = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    if (startsWith(message, parseError)) {
        std::from_chars(message.data() + parseError.size(), message.data() + message.size(), offset);
        return std::min(offset, text.size());
    }
    const Outline outline(text);
    const Outline::Node* part = faultyPart(outline, text, message);
    return part == nullptr ? offset : part->begin;
}

} // namespace Tool
