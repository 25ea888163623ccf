#include "catalogue/Sections.h"

#include "output/Text.h"

#include <parameters/Kinds.h>

#include <algorithm>
#include <string>

namespace Tool {

namespace {

constexpr std::string_view unitBase = "norvex.unit:unit-1.0.0"; // the units library has no list of its own

std::vector<Section> makeSections() {
    std::vector<Section> made{{"unit", "unit", "units", {unitBase}}};
    Parameters::forEachKind([&](auto kind) {
        constexpr auto info = kind.info;
        const auto bases = info.bases();
        made.push_back({info.id(), info.word(), info.plural(), {bases.begin(), bases.end()}, info.isParameter()});
    });
    return made;
}

/// Returns a word in small letters, with hyphens between its parts.
std::string normal(std::string_view word) {
    std::string result = lower(word);
    const auto isBlank = [](char character) { return character == ' ' || character == '_'; };
    std::replace_if(result.begin(), result.end(), isBlank, '-');
    return result;
}

} // namespace

const std::vector<Section>& sections() {
    static const std::vector<Section> all = makeSections();
    return all;
}

std::size_t indexOf(const Section& section) { return static_cast<std::size_t>(&section - sections().data()); }

const Section& sectionOfUnits() { return sections().front(); }

const Section& sectionOf(Parameters::KindInfo kind) { return *findSection(&Section::id, kind.id()); }

const Section* sectionOfBase(std::string_view inherited) {
    if (const auto kind = Parameters::findKindOfBase(inherited)) {
        return &sectionOf(*kind);
    }
    const std::string_view anyMinor = unitBase.substr(0, unitBase.size() - std::string_view("0.0").size());
    return inherited.find(anyMinor) == std::string_view::npos ? nullptr : &sectionOfUnits();
}

const Section* findSection(std::string_view Section::*name, std::string_view wanted) {
    const auto found = std::find_if(sections().begin(), sections().end(),
                                    [&](const Section& section) { return section.*name == wanted; });
    return found == sections().end() ? nullptr : &*found;
}

bool isMeant(const Section& section, std::string_view word) {
    const std::string wanted = normal(word);
    const auto isName = [&](std::string_view name) {
        return wanted == normal(name) || wanted == normal(name.substr(name.rfind(' ') + 1));
    };
    return isName(section.id) || isName(section.label) || isName(section.plural);
}

} // namespace Tool
