#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace Tool::Lsp {

/// In which units the characters of a line are counted.
enum class Encoding { utf8, utf16 };

/// A place between two characters, as the protocol has it: lines and characters begin with 0.
struct Position {
    std::size_t line = 0;
    std::size_t character = 0;

    friend bool operator==(const Position&, const Position&) = default;
};

/// Tells where the bytes of a text stand. A line ends in "\n", "\r\n" or "\r". A byte that is no UTF-8 counts as the
/// replacement character that editors show. The text must outlive it.
class Lines {
public:
    Lines(std::string_view text, Encoding encoding);

    Position positionOf(std::size_t offset) const;
    /// Returns the offset of a position; of one behind the end of its line, that end; of one behind the last line, that
    /// of the text; of one within a character, that of the character.
    std::size_t offsetOf(Position position) const;

private:
    std::string_view text_;
    Encoding encoding_;
    std::vector<std::size_t> begins_{0};
};

/// Returns how many bytes the character at an offset takes: 1 where there is no UTF-8.
std::size_t bytesOfCharacter(std::string_view text, std::size_t offset);

} // namespace Tool::Lsp
