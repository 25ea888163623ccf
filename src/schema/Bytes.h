#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Short texts, looked at in words.
namespace Ostra {

/// Returns the bytes there as a word, in the order that the machine has.
template <class Word = std::uint64_t>
Word wordAt(const char* bytes) noexcept {
    Word word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// Whether two texts are the same. For names and typeids, which are short, this is done before a call of std::memcmp
/// would have begun.
inline bool isSame(std::string_view one, std::string_view other) noexcept {
    if (one.size() != other.size()) {
        return false;
    }
    const std::size_t size = other.size(); // which is often known when this is compiled
    const char* const a = one.data();
    const char* const b = other.data();
    const auto differ = [a, b]<class Word>(Word, std::size_t at) {
        return wordAt<Word>(a + at) ^ wordAt<Word>(b + at);
    };
    // The last word overlaps the one before, rather than depend on the number of bytes that are left.
    if (size >= 8) {
        for (std::size_t at = 0; at < size - 8; at += 8) {
            if (differ(std::uint64_t{}, at) != 0) {
                return false;
            }
        }
        return differ(std::uint64_t{}, size - 8) == 0;
    }
    if (size >= 4) {
        return (differ(std::uint32_t{}, 0) | differ(std::uint32_t{}, size - 4)) == 0;
    }
    return size == 0 || (a[0] == b[0] && a[size / 2] == b[size / 2] && a[size - 1] == b[size - 1]);
}

} // namespace Ostra
