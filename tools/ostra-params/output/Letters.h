#pragma once

namespace Tool {

/// Returns the small letter of a capital one, whatever the script; other characters as they are. The same on every
/// system, whatever languages it knows.
char32_t smallOf(char32_t character);

inline bool isCapital(char32_t character) { return smallOf(character) != character; }

/// Returns whether a character is the small letter of another one.
bool isSmall(char32_t character);

} // namespace Tool
