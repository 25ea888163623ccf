#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

/// Which characters a JSON string may hold as they are, looked at eight at a time.
namespace Ostra::PlainCharacters {

namespace Detail {

inline constexpr std::uint64_t each = 0x0101010101010101; // times a byte is a word of that byte

// Each of these marks the top bits of the bytes that it looks for. More significant bytes than a marked one may be
// marked wrongly: only the least significant counts.
constexpr std::uint64_t below(std::uint64_t word, std::uint64_t limit) {
    return (word - each * limit) & ~word & each << 7;
}
constexpr std::uint64_t equal(std::uint64_t word, unsigned char byte) { return below(word ^ each * byte, 1); }

} // namespace Detail

constexpr std::size_t wordSize = sizeof(std::uint64_t);

inline std::uint64_t wordAt(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, wordSize);
    return word;
}

/// Returns 0 for eight plain characters. Else the lowest bit that is set is in the least significant byte that is a
/// quotation mark, a backslash or a control character.
constexpr std::uint64_t othersIn(std::uint64_t word) {
    return Detail::below(word, 0x20) | Detail::equal(word, '"') | Detail::equal(word, '\\');
}

/// True when all characters are plain.
inline bool areAll(std::string_view string) {
    if (string.empty()) {
        return true; // perhaps a null pointer, which memcpy refuses
    }
    if (string.size() < wordSize) {
        std::uint64_t word = Detail::each * ' ';
        std::memcpy(&word, string.data(), string.size());
        return othersIn(word) == 0;
    }
    const char* const last = string.data() + string.size() - wordSize; // may overlap the word before
    for (const char* at = string.data(); at < last; at += wordSize) {
        if (othersIn(wordAt(at)) != 0) {
            return false;
        }
    }
    return othersIn(wordAt(last)) == 0;
}

} // namespace Ostra::PlainCharacters
