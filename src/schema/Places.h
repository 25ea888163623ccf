#pragma once

#include "schema/JSONValue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Ostra {

/// Where a value stands in the text of its document.
struct Spot {
    std::string pointer;   ///< The JSON Pointer (RFC 6901).
    std::size_t begin = 0; ///< The offset of its first byte.
    std::size_t end = 0;   ///< The offset behind its last byte.
    std::string label{};   ///< The constant, property or member that it belongs to; empty where it belongs to none.
};

/// Values of one document, and where each of them stands.
using Places = std::unordered_map<const JSONValue*, Spot>;

/// Fills in the spots of the values that are keys of the table. Costs time in proportion to the text; does not recurse
/// with its depth.
void locate(std::string_view text, const JSONValue& root, Places& places);

} // namespace Ostra
