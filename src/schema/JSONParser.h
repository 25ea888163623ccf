#pragma once

#include "schema/Memory.h"

#include <rapidjson/document.h>

#include <cstddef>
#include <string_view>

namespace Ostra {

/// What came of parsing a text.
struct ParsedText {
    rapidjson::ParseResult result; ///< Where the text is no JSON and why.
    std::size_t members;           ///< How many members all objects have together.
    const char* copy; ///< Where the copy of the text begins. Strings begin in it where they do in the text.
};

/// Parses a whole text into a value. The value and a copy of the text, in which its strings lie, go into the pool.
/// Does not recurse with the depth of the text.
/// @throws std::length_error for a text of nearly 2 GiB or more.
ParsedText parseText(std::string_view text, JSONPool& pool, JSONValue& value);

} // namespace Ostra
