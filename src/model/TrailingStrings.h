#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Parameters::Internal {

/// So many strings, which lie behind the data that this is a member of, in the same block of memory: see makeRef.
///
/// A copy of the data has strings of its own, for which whoever makes the copy has to find room.
template <std::size_t count>
class TrailingStrings {
public:
    using Views = std::array<std::string_view, count>;

    std::string_view operator[](std::size_t index) const noexcept {
        return {bytes() + ends_[index], ends_[index + 1] - ends_[index]};
    }
    Views views() const noexcept {
        Views views;
        for (std::size_t index = 0; index < count; ++index) {
            views[index] = (*this)[index];
        }
        return views;
    }

    /// Copies the strings to where there is room for them, which is less than 4 GiB behind this.
    void put(const Views& strings, char* room) noexcept {
        ends_[0] = placeOf(room);
        for (std::size_t index = 0; index < count; ++index) {
            strings[index].copy(room, strings[index].size());
            room += strings[index].size();
            ends_[index + 1] = placeOf(room);
        }
    }

private:
    const char* bytes() const noexcept { return reinterpret_cast<const char*>(this); }
    std::uint32_t placeOf(const char* end) const noexcept { return static_cast<std::uint32_t>(end - bytes()); }

    std::array<std::uint32_t, count + 1> ends_{}; // each is the beginning of the next; the first one is that of all
};

} // namespace Parameters::Internal
