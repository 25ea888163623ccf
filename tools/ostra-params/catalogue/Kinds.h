#pragma once

#include "catalogue/Object.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace Tool {

/// One of the kinds of object in a catalogue: the engine's twenty, and units.
struct Kind {
    std::string_view id;     ///< As options and files name it.
    std::string_view label;  ///< As it is called in a sentence.
    std::string_view plural; ///< As it heads a list.
    std::vector<std::string_view> bases;
    std::vector<Object> (*objects)(Parameters::ParametersEngine& engine); ///< All of them, by typeid.
};

/// Returns all kinds, in the order in which lists show them.
const std::vector<Kind>& kinds();

/// Returns where a kind stands among all kinds.
std::size_t indexOf(const Kind& kind);

/// Returns the kind whose schemas inherit this, which is a base in whatever minor version; nullptr if there is none.
const Kind* kindOfBase(std::string_view inherited);

/// Returns the kind of an identifier as options name it; nullptr if there is none.
const Kind* kindOfId(std::string_view id);

/// Tells whether a person means a kind by a word: its identifier or label, one or many, or the last word alone, which
/// all parameters have in common. Case does not matter.
bool isMeant(const Kind& kind, std::string_view word);

} // namespace Tool
