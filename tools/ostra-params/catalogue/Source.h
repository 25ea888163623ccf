#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace Tool {

/// One schema text as it stands in a file.
struct Source {
    std::filesystem::path file;
    std::size_t line; ///< Where the text begins; the first line is 1.
    std::string text;
};

/// A character of a file. Lines and columns begin with 1; columns count characters, not bytes.
struct Place {
    std::filesystem::path file;
    std::size_t line;
    std::size_t column;
};

/// Returns where the byte at an offset of a text stands in its file.
Place placeOf(const Source& source, std::size_t offset);

/// Returns where a text begins, blanks apart.
Place beginningOf(const Source& source);

/// Returns the place as people and editors write it: "file:line:column".
std::string toString(const Place& place);

} // namespace Tool
