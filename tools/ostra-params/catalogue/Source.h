#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Tool {

/// One schema text as it stands in a file.
struct Source {
    const std::string* file; ///< Its path, as it was given or found.
    std::size_t line;        ///< Where the text begins; the first line is 1.
    const std::string* text;
};

/// A stretch of a file; the file alone when the line is 0. Lines and columns begin with 1; columns count characters,
/// not bytes. The end is behind the last one.
struct Place {
    const std::string* file = nullptr;
    std::size_t line = 0;
    std::size_t column = 0;
    std::size_t endLine = 0;
    std::size_t endColumn = 0;
    std::string pointer = {}; ///< The JSON Pointer of the value.
};

/// Tells where the bytes of a text stand. Where many of one text are asked for, that costs little more than one.
class Positions {
public:
    Place placeOf(const Source& source, std::size_t begin, std::size_t end);

private:
    using Position = std::pair<std::size_t, std::size_t>; // line and column
    Position positionOf(std::size_t offset) const;

    static constexpr std::size_t markEvery = 4096; // bytes
    const std::string* text_ = nullptr;
    std::vector<Position> marks_; // of the text that was asked for last
};

/// Returns where a text begins, blanks apart.
Place beginningOf(const Source& source);

/// Returns a path as it is shown to people.
std::string nameOf(const std::string& file);

/// Returns the place as people and editors write it: "file:line:column".
std::string toString(const Place& place);

} // namespace Tool
