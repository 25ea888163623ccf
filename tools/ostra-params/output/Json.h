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

} // namespace Tool
