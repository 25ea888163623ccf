#include "faults/Hints.h"

#include "faults/Distance.h"
#include "faults/ExpectedSection.h"
#include "faults/FaultPlace.h"
#include "faults/Outline.h"

#include <fmt/format.h>

namespace Tool {

namespace {

/// Returns the constant that a message says is undefined; empty for other messages.
std::string_view undefinedConstant(std::string_view message) {
    constexpr std::string_view beginning = " has an undefined ";
    constexpr std::string_view end = " constant.";
    const std::size_t begin = message.rfind(beginning);
    if (begin == std::string_view::npos || message.size() < end.size() ||
        message.substr(message.size() - end.size()) != end) {
        return {};
    }
    const std::string_view rest = message.substr(begin + beginning.size());
    return rest.substr(0, rest.size() - end.size());
}

/// An undefined constant may be there under a misspelt name, or among the properties.
std::string forUndefined(const std::string& text, std::string_view id) {
    const Outline outline(text);
    for (const char* array : {"constants", "properties"}) {
        for (const Outline::Node* definition : outline.children(outline.member(&outline.root(), array))) {
            const Outline::Node* found = outline.member(definition, "id");
            if (found != nullptr && found->text == id) {
                return fmt::format("{} stands among the {}.", id, array);
            }
            if (found != nullptr && !nearest(found->text, {id}).empty()) {
                return fmt::format("the schema has a constant {}: {}", found->text, didYouMean(found->text, {id}));
            }
        }
    }
    return {};
}

} // namespace

std::string Hints::hintFor(const Source& source, const Heading& heading, const std::string& message) {
    const std::string_view mark = std::string_view(source.text).substr(0, 2);
    if (mark == "\xFF\xFE" || mark == "\xFE\xFF") {
        return "the text is in UTF-16, and must be in UTF-8.";
    }
    if (message == "Inheritance from an unrecognized base schema.") {
        return forBase(heading.base);
    }
    if (message == fmt::format("Schema with typeid {} is already registered.", heading.typeId)) {
        return forTakenTypeId(heading.typeId);
    }
    if (const std::string_view id = undefinedConstant(message); !id.empty()) {
        return forUndefined(source.text, id);
    }
    const std::string_view missing = missingIn(message, heading.typeId);
    return missing.empty() ? std::string() : forMissing(source, heading, std::string(missing));
}

std::string Hints::forBase(const std::string& base) const {
    if (entries_.contains(base)) {
        return "only built-in bases can be inherited, and this is another schema.";
    }
    std::vector<std::string_view> bases;
    for (const Section& section : sections()) {
        bases.insert(bases.end(), section.bases.begin(), section.bases.end());
    }
    return didYouMean(base, bases);
}

std::string Hints::forTakenTypeId(const std::string& typeId) const {
    const auto taken = entries_.find(typeId);
    return taken == entries_.end() ? "it contains a built-in identifier."
                                   : fmt::format("it is that of {}.", toString(beginningOf(taken->second.source)));
}

std::string Hints::forMissing(const Source& source, const Heading& heading, const std::string& typeId) {
    const Section* ofSchema = sectionOfBase(heading.base);
    const Section* expected = ofSchema == nullptr ? nullptr : expectedSection(*ofSchema, roleOf(source.text, typeId));
    const auto entry = entries_.find(typeId);
    if (entry == entries_.end()) {
        return expected == nullptr ? std::string() : similarTo(typeId, *expected);
    }
    const std::string place = toString(beginningOf(entry->second.source));
    if (!entry->second.isSound) {
        return fmt::format("it is in {}, and faulty.", place);
    }
    const Section* actual = sectionOfBase(entry->second.base);
    if (expected == nullptr || actual == nullptr || actual == expected) {
        return {};
    }
    return fmt::format("{} is of the kind {}, and the kind {} is expected.", place, actual->label, expected->label);
}

std::string Hints::similarTo(const std::string& typeId, const Section& section) {
    constexpr std::size_t mostSearches = 200; // each goes through all typeids of a section
    const auto [similar, isNew] = similar_.try_emplace({&section, typeId});
    if (!isNew || similar_.size() > mostSearches) {
        return similar->second;
    }
    std::vector<std::string_view>& typeIds = typeIds_[&section];
    if (typeIds.empty()) {
        for (const auto& [known, entry] : entries_) {
            if (sectionOfBase(entry.base) == &section) {
                typeIds.emplace_back(known);
            }
        }
    }
    return similar->second = didYouMean(typeId, typeIds);
}

} // namespace Tool
