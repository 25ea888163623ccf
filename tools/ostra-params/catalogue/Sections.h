#pragma once

#include <parameters/KindInfo.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace Tool {

/// A section of a catalogue: its units, or its objects of one of the library's kinds.
struct Section {
    std::string_view id;     ///< As options and files name it.
    std::string_view label;  ///< As one of its objects is called in a sentence.
    std::string_view plural; ///< As it heads a list.
    std::vector<std::string_view> bases;
    bool isParameter = false;
};

/// Returns all sections, in the order in which lists show them: units, then the library's kinds.
const std::vector<Section>& sections();

/// Returns where a section stands among all sections.
std::size_t indexOf(const Section& section);

const Section& sectionOfUnits();
const Section& sectionOf(Parameters::KindInfo kind);

/// Returns the section of the schemas that inherit this, which is a base in whatever minor version; nullptr if there is
/// none.
const Section* sectionOfBase(std::string_view inherited);

/// Returns the section of an identifier, label or plural; nullptr if there is none.
const Section* findSection(std::string_view Section::*name, std::string_view wanted);

/// Tells whether a person means a section by a word: its identifier or label, one or many, or the last word alone,
/// which all parameters have in common. Case does not matter.
bool isMeant(const Section& section, std::string_view word);

} // namespace Tool
