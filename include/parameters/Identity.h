#pragma once

#include <parameters/KindInfo.h>

#include <iosfwd>
#include <string_view>

namespace Parameters {

/// What an object is known by, and of what kind it is: enough to show it in a list, or to look it up.
/// @ingroup values
struct Identity {
    std::string_view typeId; ///< The type identifier, good as long as the object or a copy of it.
    KindInfo kind;           ///< The kind.

    /// Compares both.
    /// @{
    friend constexpr bool operator==(const Identity& one, const Identity& other) noexcept {
        return one.typeId == other.typeId && one.kind == other.kind;
    }
    friend constexpr bool operator!=(const Identity& one, const Identity& other) noexcept { return !(one == other); }
    /// @}
};

/// Writes an identity, for tests and logs: "bool-parameter acme:isInsulated-1.0.0".
/// @ingroup values
template <class Traits>
std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& stream, const Identity& identity) {
    const auto& [typeId, kind] = identity;
    return stream << kind << ' ' << std::basic_string_view<char, Traits>(typeId.data(), typeId.size());
}

} // namespace Parameters
