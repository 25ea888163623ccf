#pragma once

#include "catalogue/Input.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// What may help to mend a fault.
struct Hint {
    std::string text = {}; ///< Empty when there is nothing to say.
    /// What is misspelt at the place of the fault, or is the name of the member there, and the one text that can be
    /// meant by it; both empty when there are none or several.
    std::string misspelt = {};
    std::string meant = {};
};

/// Returns a hint for each fault.
std::vector<Hint> hintsFor(const Input& input, const Headings& headings, const std::vector<Parameters::Fault>& faults);

/// Returns what is probably the matter where a text ceases to be JSON; empty when it is none of the usual slips.
std::string_view slipAt(std::string_view text, std::size_t offset);

} // namespace Tool
