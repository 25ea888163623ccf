#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tool {

/// Returns the offset in a schema text of what the library complains about: the offset of a parse error, the beginning
/// of the definition of a faulty constant or property, or the beginning of the text for what is wrong as a whole.
std::size_t offsetOfFault(const std::string& text, const std::string& message);

/// Returns the typeid that a message of resolution says is missing or does not fit; empty for other messages.
std::string_view missingIn(std::string_view message, std::string_view schemaTypeId);

/// Returns in the place of what a schema text names a typeid: the id of the constant or property, or "category" for the
/// category in the spec of a family type; empty when it does not.
std::string roleOf(const std::string& text, std::string_view typeId);

} // namespace Tool
