#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace Tool {

/// JSON whose members stay in the order in which they are added.
using Json = nlohmann::ordered_json;

/// Returns a JSON text of lines for people and programs. Bytes that are no UTF-8 become replacement characters.
std::string toText(const Json& json);

/// Returns a JSON text of one line that may stand within an HTML element: it holds no markup, whatever it says.
std::string toTextInHtml(const Json& json);

/// Returns a well-formed JSON text without the blanks between its parts; numbers stay as they are written.
std::string compact(const std::string& json);

/// Returns a well-formed JSON text with a line for each part, as people read it.
std::string indented(const std::string& json);

} // namespace Tool
