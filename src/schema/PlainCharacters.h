#pragma once

#include "schema/Bytes.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64) // as every x86 of 64 bits has it
#define OSTRA_HAS_SSE2
#include <emmintrin.h>
#endif

/// Which characters a JSON string may hold as they are, looked at eight or sixteen at a time.
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

/// Returns 0 for eight plain characters. Else the lowest bit that is set is in the least significant byte that is a
/// quotation mark, a backslash or a control character.
constexpr std::uint64_t othersIn(std::uint64_t word) {
    return Detail::below(word, 0x20) | Detail::equal(word, '"') | Detail::equal(word, '\\');
}

constexpr bool isPlain(char character) {
    return static_cast<unsigned char>(character) >= 0x20 && character != '"' && character != '\\';
}

#ifdef OSTRA_HAS_SSE2
/// Returns a bit for each of sixteen characters, set if it is not plain.
inline unsigned othersAt(const char* bytes) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const __m128i isControl = _mm_cmpeq_epi8(_mm_min_epu8(block, _mm_set1_epi8(0x1F)), block);
    const __m128i isMark =
        _mm_or_si128(_mm_cmpeq_epi8(block, _mm_set1_epi8('"')), _mm_cmpeq_epi8(block, _mm_set1_epi8('\\')));
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(isControl, isMark)));
}
#endif

/// Returns the first character that is not plain, or the end.
inline const char* endOf(const char* at, const char* end) {
#ifdef OSTRA_HAS_SSE2
    for (; end - at >= 16; at += 16) {
        if (const unsigned others = othersAt(at)) {
            return at + std::countr_zero(others);
        }
    }
#else
    if constexpr (std::endian::native == std::endian::little) {
        for (; static_cast<std::size_t>(end - at) >= wordSize; at += wordSize) {
            if (const std::uint64_t others = othersIn(wordAt(at))) {
                return at + std::countr_zero(others) / 8;
            }
        }
    }
#endif
    while (at != end && isPlain(*at)) {
        ++at;
    }
    return at;
}

/// Copies a string to where there is room for it; returns whether all its characters are plain.
inline bool copyAll(std::string_view string, char* to) {
    const char* const from = string.data();
    const std::size_t size = string.size();
    // The last step overlaps the one before, rather than depend on the number of bytes that are left.
    const auto inSteps = [size](std::size_t step, auto copy) {
        for (std::size_t at = 0; at < size - step; at += step) {
            copy(at);
        }
        copy(size - step);
    };
#ifdef OSTRA_HAS_SSE2
    if (size >= 16) {
        unsigned others = 0;
        inSteps(16, [&](std::size_t at) {
            std::memcpy(to + at, from + at, 16);
            others |= othersAt(from + at);
        });
        return others == 0;
    }
#endif
    if (size >= wordSize) {
        std::uint64_t others = 0;
        inSteps(wordSize, [&](std::size_t at) {
            const std::uint64_t word = wordAt(from + at);
            std::memcpy(to + at, &word, wordSize);
            others |= othersIn(word);
        });
        return others == 0;
    }
    bool arePlain = true;
    for (std::size_t at = 0; at < size; ++at) {
        to[at] = from[at];
        arePlain = arePlain && isPlain(from[at]);
    }
    return arePlain;
}

} // namespace Ostra::PlainCharacters
