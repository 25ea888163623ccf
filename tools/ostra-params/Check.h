#pragma once

#include <string>
#include <vector>

namespace Tool {

/// Checks the catalogue in the given files and folders, and prints its faults and the number of its objects by kind.
/// Returns true when it is sound.
/// @throws InputError if a path cannot be read or is no schema file, or a folder holds none.
bool check(const std::vector<std::string>& paths);

} // namespace Tool
