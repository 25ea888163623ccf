#pragma once

#include "catalogue/Input.h"
#include "edit/Edit.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <optional>
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

/// What is probably the matter where a text ceases to be JSON.
struct Slip {
    std::string_view hint = {};       ///< Empty when it is none of the usual slips.
    std::optional<Edit> mending = {}; ///< Nothing where several things may be meant.
};

/// Returns the slip at the place where a text ceases to be JSON.
Slip slipAt(std::string_view text, std::size_t offset);

} // namespace Tool
