#pragma once

#include <string>
#include <string_view>

namespace Tool {

/// Returns what changed in a file in the form that the program patch takes, with three lines around each change; empty
/// when nothing did. It costs time in proportion to the texts, but for a logarithm.
std::string unifiedDiff(std::string_view file, std::string_view before, std::string_view after);

} // namespace Tool
