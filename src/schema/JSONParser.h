#pragma once

#include "schema/Arena.h"
#include "schema/JSONValue.h"

#include <rapidjson/error/error.h>

#include <cstddef>
#include <string>

namespace Ostra {

/// What came of parsing a text.
struct ParsedText {
    rapidjson::ParseResult result; ///< Where the text is no JSON and why.
    std::size_t members;           ///< How many members all objects have together.
    const char*
        origin; ///< The text, or a copy of it. Strings refer into it, and begin in it where they do in the text.
};

/// @throws std::length_error for the size of a text of nearly 2 GiB or more.
void checkTextSize(std::size_t size);

/// Parses a whole text onto a tape that is empty. What does not fit there, and a copy of the text where strings need
/// one, goes into the arena. Does not recurse with the depth of the text.
/// @throws std::length_error as checkTextSize.
ParsedText parseText(const std::string& text, JSONTape& tape, Arena& arena);

} // namespace Ostra
