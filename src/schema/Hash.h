#pragma once

#include <cstdint>
#include <string_view>

namespace Ostra {

/// Returns a hash of the bytes that differs from process to process, so that no catalogue can be written whose typeids
/// all meet in one place of a table.
std::uint64_t hashOf(std::string_view bytes) noexcept;

} // namespace Ostra
