#include "catalogue/Catalogue.h"
#include "catalogue/Input.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
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

struct PropertyChange {
    std::string name;
    std::string before;
    std::string after;
};

struct Change {
    const Object* object; ///< As it is now.
    std::vector<PropertyChange> properties;
};

/// What changed from one catalogue to another, each list in the order of its objects.
struct Difference {
    std::vector<const Object*> added;
    std::vector<const Object*> removed;
    std::vector<Change> changed;

    bool isNone() const { return added.empty() && removed.empty() && changed.empty(); }
};

struct Entry {
    std::string_view name;
    std::vector<std::string> values;
};

/// What an object says, its kind and name among it. What other objects say changes there, not here.
std::vector<Entry> entriesOf(const Object& object) {
    std::vector<Entry> entries{{"kind", {std::string(object.section->label)}}, {"name", {object.name}}};
    for (const Property& property : object.properties) {
        Entry entry{property.name, {}};
        for (const Value& value : property.values) {
            entry.values.push_back(value.identity());
        }
        if (property.isOwn) {
            entries.push_back(std::move(entry));
        }
    }
    return entries;
}

/// Takes out the values of a property; there are none of one that is not there.
std::vector<std::string> take(std::vector<Entry>& entries, std::string_view name) {
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.name == name; });
    if (found == entries.end()) {
        return {};
    }
    std::vector<std::string> values = std::move(found->values);
    entries.erase(found);
    return values;
}

std::string textOf(const std::vector<std::string>& values) {
    std::string text;
    for (const std::string& value : values) {
        text += (text.empty() ? "" : ", ") + value;
    }
    return values.empty() ? "none" : text;
}

std::vector<PropertyChange> changesBetween(const Object& before, const Object& after) {
    std::vector<PropertyChange> changes;
    std::vector<Entry> olds = entriesOf(before);
    std::vector<Entry> news = entriesOf(after);
    const auto compareProperty = [&](std::string_view name) {
        const std::vector<std::string> oldValues = take(olds, name);
        const std::vector<std::string> newValues = take(news, name);
        if (oldValues != newValues) {
            changes.push_back({std::string(name), textOf(oldValues), textOf(newValues)});
        }
    };
    while (!news.empty()) {
        compareProperty(news.front().name);
    }
    while (!olds.empty()) {
        compareProperty(olds.front().name);
    }
    return changes;
}

/// Compares two catalogues, which must outlive the result.
Difference compare(const Catalogue& before, const Catalogue& after) {
    Difference difference;
    for (const Object& object : before.objects()) {
        if (after.find(object.typeId) == nullptr) {
            difference.removed.push_back(&object);
        }
    }
    for (const Object& object : after.objects()) {
        const Object* old = before.find(object.typeId);
        if (old == nullptr) {
            difference.added.push_back(&object);
        } else if (auto changes = changesBetween(*old, object); !changes.empty()) {
            difference.changed.push_back({&object, std::move(changes)});
        }
    }
    return difference;
}

std::string lineOf(char sign, const Object& object) {
    return fmt::format("{} {}  {}{}\n", sign, printable(object.typeId), object.section->label,
                       object.name.empty() ? "" : "  " + printable(object.name));
}

std::string asText(const Difference& difference) {
    std::string text;
    for (const Object* object : difference.removed) {
        text += lineOf('-', *object);
    }
    for (const Object* object : difference.added) {
        text += lineOf('+', *object);
    }
    for (const Change& change : difference.changed) {
        text += lineOf('~', *change.object);
        for (const PropertyChange& property : change.properties) {
            text +=
                fmt::format("    {}: {} -> {}\n", property.name, printable(property.before), printable(property.after));
        }
    }
    return text + fmt::format("{} added, {} removed, {} changed\n", difference.added.size(), difference.removed.size(),
                              difference.changed.size());
}

Json asJson(const Object& object) {
    return {{"typeid", object.typeId}, {"kind", object.section->id}, {"name", object.name}};
}

std::string asJson(const Difference& difference) {
    Json json{{"added", Json::array()}, {"removed", Json::array()}, {"changed", Json::array()}};
    for (const Object* object : difference.added) {
        json["added"].push_back(asJson(*object));
    }
    for (const Object* object : difference.removed) {
        json["removed"].push_back(asJson(*object));
    }
    for (const Change& change : difference.changed) {
        Json entry = asJson(*change.object);
        entry["properties"] = Json::array();
        for (const PropertyChange& property : change.properties) {
            entry["properties"].push_back(
                {{"name", property.name}, {"before", property.before}, {"after", property.after}});
        }
        json["changed"].push_back(std::move(entry));
    }
    return toText(json);
}

ExitCode diff(const Options& options) {
    if (options.oldPath == standardInput && options.newPath == standardInput) {
        throw InputError("Standard input can be only one of the two catalogues.");
    }
    const Catalogue before({options.oldPath});
    const Catalogue after({options.newPath});
    const bool isOldSound = !printFaults(before);
    const bool isNewSound = !printFaults(after);
    if (!isOldSound || !isNewSound) { // what is left out as faulty would seem to be removed
        return Unusable;
    }
    const Difference difference = compare(before, after);
    print(options.isJson ? asJson(difference) : asText(difference));
    return difference.isNone() ? Good : Bad;
}

} // namespace

Action addDiff(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("diff", "Tell what changed from one catalogue to another");
    verb->add_option("OLD", options->oldPath, "The one catalogue: a file, a folder, or - for standard input")
        ->required()
        ->check(refuseEmpty)
        ->type_name("");
    verb->add_option("NEW", options->newPath, "The other one")->required()->check(refuseEmpty)->type_name("");
    verb->add_flag("--json", options->isJson, "Print a JSON object");
    verb->footer(details);
    return [options] { return diff(*options); };
}

} // namespace Tool
