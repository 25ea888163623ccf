#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// What JSON takes for blank.
constexpr std::string_view blanks = " \t\r\n";

/// Returns whether a byte of a UTF-8 text is the first one of a character.
constexpr bool isFirstOfCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; }

/// Returns how many characters a text has, wide ones and marks not told apart.
std::size_t widthOf(std::string_view text);

/// Returns the offset of the first byte that is no UTF-8, or npos.
std::size_t findInvalid(std::string_view text);

/// Returns the text with a replacement character for each byte that is no UTF-8.
std::string readable(std::string_view text);

/// Returns the characters of a text; a byte that is no UTF-8 is a character of its own, which Unicode does not have.
std::u32string charactersOf(std::string_view text);

/// Returns the text with the letters of ASCII in lower case.
std::string lower(std::string_view text);

/// Returns the text, which is not empty, with a capital if it begins with a letter of ASCII.
std::string capitalized(std::string text);

/// Returns the 64-bit FNV-1a hash of a text. That of the standard library is another one elsewhere.
std::uint64_t digestOf(std::string_view text);

/// Returns the text in one line that a terminal shows as it is, whatever bytes its author put into it: UTF-8 without
/// controls.
std::string printable(std::string_view text);

/// Returns the text with the codes of the bytes that are not plain in their places, written as fmt's format says.
std::string encoded(std::string_view text, const std::function<bool(char)>& isPlain, const char* format = "%{:02X}");

/// Returns the text with %XX for all bytes but letters, digits and the plain ones.
std::string percentEncoded(std::string_view text, std::string_view plain);

/// Returns a number with its noun, in the plural where it must be.
std::string counted(std::size_t count, std::string_view noun);

/// Returns the candidates that may be meant by a text, those equally near to it; none when none is near.
std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view>& candidates);

/// Returns a question that offers some texts; empty when there are none.
std::string didYouMean(const std::vector<std::string_view>& near);

/// Returns a question that offers the candidates nearest to a text; empty when none is near.
std::string didYouMean(std::string_view text, const std::vector<std::string_view>& candidates);

/// Returns that there is none of a kind of things by a name, and the question that offers those which there are.
std::string thereIsNo(std::string_view kind, std::string_view name, const std::vector<std::string_view>& candidates);

/// Returns names with commas between them, in lines for the help of an option.
std::string listed(const std::vector<std::string_view>& names);

/// Returns a line for each row of cells, with two blanks between columns that are as wide as they must be: in
/// characters, wide ones and marks not told apart.
std::vector<std::string> aligned(const std::vector<std::vector<std::string>>& rows);

} // namespace Tool
