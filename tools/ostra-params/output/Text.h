#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tool {

/// Returns the text in one line that a terminal shows as it is, whatever bytes its author put into it.
std::string printable(std::string_view text);

/// Returns the text with %XX for all bytes but letters, digits and the plain ones.
std::string percentEncoded(std::string_view text, std::string_view plain);

/// Returns a number with its noun, in the plural where it must be.
std::string counted(std::size_t count, std::string_view noun);

/// Returns how many columns a text takes: its characters, wide ones and marks not told apart.
std::size_t widthOf(std::string_view text);

/// Returns the text with blanks behind it, so that it takes that many columns at least.
std::string padded(std::string text, std::size_t width);

} // namespace Tool
