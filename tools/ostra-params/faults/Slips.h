#pragma once

#include <cstddef>
#include <string_view>

namespace Tool {

/// Returns what is probably the matter where a text ceases to be JSON; empty when it is none of the usual slips.
std::string_view slipAt(std::string_view text, std::size_t offset);

} // namespace Tool
