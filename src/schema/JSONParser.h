#pragma once

#include "schema/Memory.h"

#include <rapidjson/document.h>

#include <string_view>

namespace Ostra {

/// Parses a whole text into a value. The value and a copy of the text, in which its strings lie, go into the pool.
/// Returns where the text is no JSON and why. Does not recurse with the depth of the text.
/// @throws std::length_error for a text of nearly 2 GiB or more.
rapidjson::ParseResult parseText(std::string_view text, JSONPool& pool, JSONValue& value);

} // namespace Ostra
