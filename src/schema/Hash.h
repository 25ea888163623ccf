#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Ostra {

/// Returns a hash of the bytes that differs from process to process, so that no catalogue can be written whose typeids
/// all meet in one place of a table.
std::uint64_t hashOf(std::string_view bytes) noexcept;

/// The hash of a table of texts. Not noexcept: standard tables then keep the hashes. Transparent: they can be asked for
/// a view.
struct TextHash {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the name that standard tables look for
    std::size_t operator()(std::string_view text) const {
        return static_cast<std::size_t>(hashOf(text)); // whose every bit is as good as any other
    }
};

} // namespace Ostra
