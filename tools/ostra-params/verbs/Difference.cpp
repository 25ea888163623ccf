#include "verbs/Difference.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

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

} // namespace

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

} // namespace Tool
