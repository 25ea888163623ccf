#include "verbs/DiffFormats.h"

#include "catalogue/Describe.h"
#include "catalogue/Sections.h"
#include "output/Json.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

using namespace Compare;

/// A property as people read it, with its values on both sides; those of one that is not there are none.
struct PropertyChange {
    std::string_view name;
    std::vector<std::string> before = {};
    std::vector<std::string> after = {};
};

/// Adds what an object says, its kind and name among it, to one side. What other objects say changes there, not here.
void addSide(std::vector<PropertyChange>& changes, std::vector<std::string> PropertyChange::*side,
             const Object& object) {
    const auto valuesOf = [&](std::string_view name) -> std::vector<std::string>& {
        const auto found = std::find_if(changes.begin(), changes.end(),
                                        [&](const PropertyChange& change) { return change.name == name; });
        return (found == changes.end() ? changes.emplace_back(PropertyChange{name}) : *found).*side;
    };
    valuesOf("kind") = {std::string(object.section->label)};
    valuesOf("name") = {object.name};
    for (const Property& property : object.properties) {
        if (property.isOwn) {
            std::vector<std::string>& values = valuesOf(property.name);
            for (const Tool::Value& value : property.values) {
                values.push_back(value.identity());
            }
        }
    }
}

std::vector<PropertyChange> propertiesOf(const Change& change) {
    std::vector<PropertyChange> changes;
    if (change.before != nullptr && change.after != nullptr) {
        addSide(changes, &PropertyChange::after, *change.after);
        addSide(changes, &PropertyChange::before, *change.before);
        std::erase_if(changes, [](const PropertyChange& each) { return each.before == each.after; });
    }
    return changes;
}

std::string textOf(const std::vector<std::string>& values) {
    std::string text;
    for (const std::string& value : values) {
        text += (text.empty() ? "" : ", ") + value;
    }
    return values.empty() ? "none" : text;
}

/// Writes a value for people.
struct ValueText {
    std::string operator()(std::monostate) const { return "none"; }
    std::string operator()(bool value) const { return value ? "yes" : "no"; }
    std::string operator()(std::int64_t value) const { return fmt::format("{}", value); }
    std::string operator()(double value) const { return fmt::format("{}", value); }
    std::string operator()(const std::string& value) const { return value.empty() ? "\"\"" : value; }
    std::string operator()(const Reference& value) const { return value.typeId; }
    std::string operator()(const Choice& value) const { return fmt::format("{} = {}", value.id, value.integer); }
    template <class Element>
    std::string operator()(const std::vector<Element>& list) const {
        std::vector<std::string> texts;
        std::transform(list.begin(), list.end(), std::back_inserter(texts), *this);
        return Tool::textOf(texts);
    }
};

std::string textOf(const Compare::Value& value) { return std::visit(ValueText(), value); }

std::string textOf(const Compare::Value& before, const Compare::Value& after) {
    return fmt::format("{} -> {}", textOf(before), textOf(after));
}

std::string textOf(const ElementChange& element) {
    return isNothing(element.before)  ? "+ " + textOf(element.after)
           : isNothing(element.after) ? "- " + textOf(element.before)
                                      : textOf(element.before, element.after);
}

/// Returns what differs between two lists, the first of it when that is much.
std::string elementsOf(const ConstantChange& list) {
    constexpr std::size_t most = 10;
    std::vector<std::string> parts;
    for (std::size_t i = 0; i < std::min(list.elements.size(), most); ++i) {
        parts.push_back(textOf(list.elements[i]));
    }
    if (list.elements.size() > most) {
        parts.push_back(fmt::format("{} more", list.elements.size() - most));
    }
    if (list.isReordered) {
        parts.emplace_back("another order");
    }
    return textOf(parts);
}

/// Returns the name of a constant as properties have it, in words.
std::string wordsOf(std::string_view id) {
    std::string words;
    for (const char letter : id) {
        if (std::isupper(static_cast<unsigned char>(letter)) != 0) {
            words += ' ';
        }
        words += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return words;
}

/// Returns the constant of a property that is a list on both sides; nullptr for other properties.
const ConstantChange* listOf(const Change& change, std::string_view property) {
    const auto found =
        std::find_if(change.constants.begin(), change.constants.end(), [&](const ConstantChange& constant) {
            return (!constant.elements.empty() || constant.isReordered) && wordsOf(constant.id) == property;
        });
    return found == change.constants.end() ? nullptr : &*found;
}

char signOf(Fate fate) {
    switch (fate) {
    case Fate::removed:
        return '-';
    case Fate::added:
        return '+';
    case Fate::succeeded:
        return '^';
    case Fate::renamed:
        return '=';
    case Fate::changed:
        return '~';
    case Fate::broken:
        return '!';
    case Fate::mended:
        break;
    }
    return '*';
}

/// Returns the typeid, and before it the one that the object had if that was another.
std::string typeIdsOf(const Change& change) {
    const std::string now = printable(change.object().typeId);
    const bool isAnother =
        change.before != nullptr && change.after != nullptr && change.before->typeId != change.after->typeId;
    return isAnother ? printable(change.before->typeId) + " -> " + now : now;
}

Json asJson(const Place& place) { return place.file == nullptr ? Json() : placeAsJson(place); }

/// Writes a value for programs.
struct ValueJson {
    Json operator()(std::monostate) const { return {}; }
    Json operator()(const Reference& value) const { return {{"typeid", value.typeId}}; }
    Json operator()(const Choice& value) const { return {{"id", value.id}, {"integer", value.integer}}; }
    template <class Element>
    Json operator()(const std::vector<Element>& list) const {
        Json array = Json::array();
        std::transform(list.begin(), list.end(), std::back_inserter(array), *this);
        return array;
    }
    Json operator()(const auto& value) const { return value; }
};

Json asJson(const Compare::Value& value) { return std::visit(ValueJson(), value); }

/// Both ConstantChange and ElementChange have these.
void addSides(Json& json, const auto& change) {
    json["before"] = asJson(change.before);
    json["after"] = asJson(change.after);
    json["placeBefore"] = asJson(change.placeBefore);
    json["placeAfter"] = asJson(change.placeAfter);
}

Json asJson(const ConstantChange& constant) {
    Json json{{"id", constant.id}};
    if (!constant.from.empty()) {
        json["from"] = constant.from;
    }
    addSides(json, constant);
    for (const auto& [name, isSo] :
         {std::pair("isFollowing", constant.isFollowing), std::pair("isInOtherUnit", constant.isInOtherUnit)}) {
        if (isSo) {
            json[name] = true;
        }
    }
    if (!constant.elements.empty() || constant.isReordered) {
        Json& elements = json["elements"] = Json::array();
        for (const ElementChange& each : constant.elements) {
            addSides(elements.emplace_back(Json::object()), each);
        }
        json["isReordered"] = constant.isReordered;
    }
    return json;
}

Json identityOf(const Object& object) {
    return {{"typeid", object.typeId}, {"kind", object.section->id}, {"name", object.name}};
}

Json asJson(const Change& change) {
    Json json = identityOf(change.object());
    for (const auto& [name, before, after] : propertiesOf(change)) {
        json["properties"].push_back({{"name", name}, {"before", textOf(before)}, {"after", textOf(after)}});
    }
    if (change.fate == Fate::succeeded || change.fate == Fate::renamed) {
        json["before"] = identityOf(*change.before);
    }
    json["placeBefore"] = asJson(change.placeBefore);
    json["placeAfter"] = asJson(change.placeAfter);
    for (const ConstantChange& constant : change.constants) {
        json["constants"].push_back(asJson(constant));
    }
    return json;
}

Json asJson(const Verdict& verdict) {
    const Change& change = *verdict.atom.change;
    Json json{{"code", verdict.rule->code},
              {"severity", wordOf(verdict.rule->severity)},
              {"isAccepted", verdict.isAccepted},
              {"isBreaking", verdict.isBreaking()},
              {"typeid", change.object().typeId}};
    json["constant"] = verdict.atom.constant == nullptr ? Json() : Json(verdict.atom.constant->id);
    json["reason"] = verdict.rule->why;
    json["place"] = asJson(verdict.place);
    if (verdict.rule->severity != Severity::safe) {
        json["dependents"] = {{"direct", verdict.dependents.direct},
                              {"total", verdict.dependents.total},
                              {"isMore", verdict.dependents.isMore}};
    }
    return json;
}

std::string fateOf(const Change& change) {
    const std::string& now = change.object().typeId;
    switch (change.fate) {
    case Fate::succeeded:
        return fmt::format("{} succeeded by {}", change.before->typeId, now);
    case Fate::renamed:
        return fmt::format("{} renamed to {}", change.before->typeId, now);
    default:
        return fmt::format("{} {}", now, wordOf(change.fate));
    }
}

/// Returns what a verdict is about, without an end.
std::string subjectOf(const Atom& atom) {
    const std::string_view label =
        (atom.change->before != nullptr ? atom.change->before : atom.change->after)->section->label;
    if (atom.constant == nullptr) {
        return fmt::format("{} {}", label, fateOf(*atom.change));
    }
    const std::string what = atom.element != nullptr      ? textOf(*atom.element)
                             : atom.constant->isReordered ? "another order"
                                                          : textOf(atom.constant->before, atom.constant->after);
    return fmt::format("{} {}: {}: {}", label, atom.change->object().typeId, atom.constant->id, what);
}

/// Returns what depends on the object; empty when nothing does.
std::string textOf(const Dependents& dependents) {
    if (dependents.total == 0) {
        return {};
    }
    constexpr std::size_t most = 3;
    std::string names;
    for (std::size_t i = 0; i < std::min(dependents.direct.size(), most); ++i) {
        names += (i == 0 ? "" : ", ") + std::string(dependents.direct[i]);
    }
    return fmt::format("{}{} on it: {}{}", dependents.isMore ? "more than " : "",
                       counted(dependents.total, "object") + (dependents.total == 1 ? " depends" : " depend"), names,
                       dependents.total > std::min(dependents.direct.size(), most) ? " ..." : "");
}

std::string asSentence(std::string text) { return capitalized(std::move(text)) + "."; }

bool isShown(const Verdict& verdict) { return verdict.rule->severity != Severity::safe && !verdict.isAccepted; }

} // namespace

std::string changesAsText(const std::vector<Change>& changes) {
    std::string text;
    for (const Change& change : changes) {
        const Object& object = change.object();
        text += fmt::format("{} {}  {}{}\n", signOf(change.fate), typeIdsOf(change), object.section->label,
                            object.name.empty() ? "" : "  " + printable(object.name));
        for (const auto& [name, before, after] : propertiesOf(change)) {
            const ConstantChange* const list = listOf(change, name);
            text += fmt::format("    {}: {}\n", name,
                                list != nullptr ? printable(elementsOf(*list))
                                                : printable(textOf(before)) + " -> " + printable(textOf(after)));
        }
    }
    text += fmt::format("{} added, {} removed, {} changed", count(changes, Fate::added), count(changes, Fate::removed),
                        count(changes, Fate::changed));
    for (const Fate fate : {Fate::succeeded, Fate::renamed, Fate::broken, Fate::mended}) {
        if (const std::size_t number = count(changes, fate); number != 0) {
            text += fmt::format(", {} {}", number, wordOf(fate));
        }
    }
    return text + "\n";
}

std::string changesAsJson(const std::vector<Change>& changes, const std::vector<Verdict>* verdicts) {
    Json json{{"added", Json::array()}, {"removed", Json::array()}, {"changed", Json::array()}};
    for (const Fate fate : fates) {
        json[std::string(wordOf(fate))] = Json::array();
    }
    for (const Change& change : changes) {
        json[std::string(wordOf(change.fate))].push_back(asJson(change));
    }
    if (verdicts != nullptr) {
        Json& all = json["verdicts"] = Json::array();
        for (const Verdict& verdict : *verdicts) {
            all.push_back(asJson(verdict));
        }
    }
    return toText(json);
}

std::string verdictsAsText(const std::vector<Verdict>& verdicts, bool isAll) {
    std::string text;
    for (const Verdict& verdict : verdicts) {
        if (!isAll && !isShown(verdict)) {
            continue;
        }
        const std::string_view sign = verdict.isAccepted                           ? "accepted: "
                                      : verdict.isBreaking()                       ? ""
                                      : verdict.rule->severity == Severity::review ? "warning: "
                                                                                   : "safe: ";
        text += fmt::format("{}: {}{} [{}]\n", toString(verdict.place), sign, printable(subjectOf(verdict.atom)),
                            verdict.rule->code);
        if (verdict.rule->severity != Severity::safe) {
            text += fmt::format("    {}: {}\n", wordOf(verdict.rule->severity), verdict.rule->why);
        }
        if (const std::string names = textOf(verdict.dependents); !names.empty()) {
            text += "    " + printable(names) + "\n";
        }
    }
    const auto number = [&](const auto& isCounted) {
        return std::count_if(verdicts.begin(), verdicts.end(), isCounted);
    };
    const auto accepted = number([](const Verdict& verdict) { return verdict.isAccepted; });
    const auto of = [&](Severity severity) {
        return number(
            [&](const Verdict& verdict) { return verdict.rule->severity == severity && !verdict.isAccepted; });
    };
    return text + fmt::format("{} breaking documents, {} breaking applications, {} to review, {} safe{}\n",
                              of(Severity::documents), of(Severity::applications), of(Severity::review),
                              of(Severity::safe), accepted == 0 ? "" : fmt::format(", {} accepted", accepted));
}

std::vector<Finding> findingsOf(const std::vector<Verdict>& verdicts) {
    std::vector<Finding> findings;
    for (const Verdict& verdict : verdicts) {
        if (!isShown(verdict)) {
            continue;
        }
        const Change& change = *verdict.atom.change;
        Finding finding{.code = std::string(verdict.rule->code),
                        .isError = verdict.isBreaking(),
                        .message = fmt::format("{} {}", asSentence(subjectOf(verdict.atom)), verdict.rule->why),
                        .place = verdict.place,
                        .typeId = change.object().typeId,
                        .name = verdict.atom.constant == nullptr ? "" : std::string(verdict.atom.constant->id)};
        if (const std::string names = textOf(verdict.dependents); !names.empty()) {
            finding.message.append(" ").append(asSentence(names));
        }
        const Place& before = verdict.atom.element != nullptr    ? verdict.atom.element->placeBefore
                              : verdict.atom.constant != nullptr ? verdict.atom.constant->placeBefore
                                                                 : change.placeBefore;
        if (change.placeAfter.file == nullptr) { // hosts show the new side, on which the line is another
            finding.place = {before.file};
        }
        if (before.file != nullptr) {
            finding.other = before;
        }
        findings.push_back(std::move(finding));
    }
    return findings;
}

} // namespace Tool
