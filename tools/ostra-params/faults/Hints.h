#pragma once

#include "catalogue/Input.h"

#include <parameters/Fault.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// Returns for each fault what may help to mend it; empty when there is nothing to say.
std::vector<std::string> hintsFor(const Input& input, const Headings& headings,
                                  const std::vector<Parameters::Fault>& faults);

/// Returns what is probably the matter where a text ceases to be JSON; empty when it is none of the usual slips.
std::string_view slipAt(std::string_view text, std::size_t offset);

} // namespace Tool
