#pragma once

#include "output/Json.h"

#include <optional>
#include <string>
#include <string_view>

/// Lays schemas out in the one way in which a catalogue is kept. Nothing is lost but the order of members and of
/// definitions, and blanks: names, numbers and strings are as they were written, what is repeated stays in its order.
namespace Tool::Layout {

/// Returns a text as a file of its own has it, with a line for each part that is not short.
/// Nothing is returned when it is no JSON.
std::optional<std::string> ofFile(std::string_view text);

/// Returns JSON as a file has it, but in its own order.
std::string ofJson(const Json& json);

/// Returns a text as one line of a file, without blanks. Nothing is returned when it is no JSON.
std::optional<std::string> ofLine(std::string_view text);

} // namespace Tool::Layout
