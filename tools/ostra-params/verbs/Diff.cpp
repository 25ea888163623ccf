#include "catalogue/Catalogue.h"
#include "catalogue/Input.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace Tool {

namespace {

struct Options {
    std::string oldPath;
    std::string newPath;
    bool isJson = false;
};

constexpr const char* details = R"(Lists what was added (+), removed (-) and changed (~), by object and by property.
Objects are told apart by their typeids.

Exit codes:
  0  the catalogues are equal
  1  they differ
  2  one of them cannot be read, or has faults)";

/// A property with its values on both sides; those of one that is not there are none.
struct PropertyChange {
    std::string_view name;
    std::vector<std::string> before = {};
    std::vector<std::string> after = {};
};

struct Change {
    char sign;
    const Object* object; ///< As it is now, or was.
    std::vector<PropertyChange> properties = {};
};

/// What the signs of changes stand for.
const std::map<char, const char*> words{{'+', "added"}, {'-', "removed"}, {'~', "changed"}};

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
            for (const Value& value : property.values) {
                values.push_back(value.identity());
            }
        }
    }
}

std::vector<PropertyChange> changesBetween(const Object& before, const Object& after) {
    std::vector<PropertyChange> changes;
    addSide(changes, &PropertyChange::after, after);
    addSide(changes, &PropertyChange::before, before);
    std::erase_if(changes, [](const PropertyChange& change) { return change.before == change.after; });
    return changes;
}

/// Compares two catalogues, which must outlive the result: what was removed, added and changed, each in the order of
/// the objects.
std::vector<Change> compare(const Catalogue& before, const Catalogue& after) {
    std::vector<Change> changes;
    for (const Object& object : before.objects()) {
        if (after.find(object.typeId) == nullptr) {
            changes.push_back({'-', &object});
        }
    }
    std::vector<Change> changed;
    for (const Object& object : after.objects()) {
        const Object* old = before.find(object.typeId);
        if (old == nullptr) {
            changes.push_back({'+', &object});
        } else if (auto properties = changesBetween(*old, object); !properties.empty()) {
            changed.push_back({'~', &object, std::move(properties)});
        }
    }
    std::move(changed.begin(), changed.end(), std::back_inserter(changes));
    return changes;
}

std::string textOf(const std::vector<std::string>& values) {
    std::string text;
    for (const std::string& value : values) {
        text += (text.empty() ? "" : ", ") + value;
    }
    return values.empty() ? "none" : text;
}

std::string asText(const std::vector<Change>& changes) {
    std::string text;
    for (const auto& [sign, object, properties] : changes) {
        text += fmt::format("{} {}  {}{}\n", sign, printable(object->typeId), object->section->label,
                            object->name.empty() ? "" : "  " + printable(object->name));
        for (const auto& [name, before, after] : properties) {
            text += fmt::format("    {}: {} -> {}\n", name, printable(textOf(before)), printable(textOf(after)));
        }
    }
    const auto count = [&](char sign) {
        return std::count_if(changes.begin(), changes.end(), [&](const Change& change) { return change.sign == sign; });
    };
    return text + fmt::format("{} added, {} removed, {} changed\n", count('+'), count('-'), count('~'));
}

std::string asJson(const std::vector<Change>& changes) {
    Json json{{"added", Json::array()}, {"removed", Json::array()}, {"changed", Json::array()}};
    for (const auto& [sign, object, properties] : changes) {
        Json entry{{"typeid", object->typeId}, {"kind", object->section->id}, {"name", object->name}};
        for (const auto& [name, before, after] : properties) {
            entry["properties"].push_back({{"name", name}, {"before", textOf(before)}, {"after", textOf(after)}});
        }
        json[words.at(sign)].push_back(std::move(entry));
    }
    return toText(json);
}

ExitCode diff(const Options& options) {
    if (options.oldPath == standardInput && options.newPath == standardInput) {
        throw InputError("Standard input can be only one of the two catalogues.");
    }
    const Catalogue before({options.oldPath});
    const Catalogue after({options.newPath});
    const bool isOldFaulty = printFaults(before);
    if (printFaults(after) || isOldFaulty) { // what is left out as faulty would seem to be removed
        return Unusable;
    }
    const std::vector<Change> changes = compare(before, after);
    print(options.isJson ? asJson(changes) : asText(changes));
    return changes.empty() ? Good : Bad;
}

} // namespace

Action addDiff(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("diff", "Tell what changed from one catalogue to another");
    addRequired(*verb, "OLD", options->oldPath, "The one catalogue: a file, a folder, or - for standard input", "");
    addRequired(*verb, "NEW", options->newPath, "The other one", "");
    verb->add_flag("--json", options->isJson, "Print a JSON object");
    verb->footer(details);
    return [options] { return diff(*options); };
}

} // namespace Tool
