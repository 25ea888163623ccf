#pragma once

#include <string>

namespace Tool {

/// Returns a well-formed JSON text without the blanks between its parts; numbers stay as they are written.
std::string compact(const std::string& json);

/// Returns a well-formed JSON text with a line for each part, as people read it.
std::string indented(const std::string& json);

} // namespace Tool
