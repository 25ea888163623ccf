#include "engine/Hash.h"

#include <chrono>
#include <cstddef>
#include <cstring>

namespace Parameters::Internal {

namespace {

__extension__ using Product = unsigned __int128;

constexpr std::uint64_t oddA = 0x9E3779B97F4A7C15;
constexpr std::uint64_t oddB = 0xD6E8FEB86659FD93;

/// Folds the 128-bit product of two words: every bit of both reaches every bit of the result.
std::uint64_t mix(std::uint64_t a, std::uint64_t b) noexcept {
    const Product product = static_cast<Product>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

std::uint64_t word(const char* bytes, std::size_t count) noexcept {
    std::uint64_t value = 0;
    std::memcpy(&value, bytes, count);
    return value;
}

std::uint64_t makeSeed() noexcept {
    static const char anchor = 0; // where the loader put the library
    const auto now = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    return mix(reinterpret_cast<std::uintptr_t>(&anchor) ^ oddA, now ^ oddB);
}

} // namespace

std::uint64_t hashOf(std::string_view bytes) noexcept {
    static const std::uint64_t seed = makeSeed();
    std::uint64_t hash = seed ^ mix(bytes.size() ^ oddA, oddB);
    const char* byte = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= 16; byte += 16, left -= 16) {
        hash = mix(word(byte, 8) ^ oddA ^ hash, word(byte + 8, 8) ^ oddB ^ seed);
    }
    if (left >= 8) {
        hash = mix(word(byte, 8) ^ oddA ^ hash, word(byte + 8, left - 8) ^ oddB ^ seed);
    } else if (left > 0) {
        hash = mix(word(byte, left) ^ oddA ^ hash, oddB ^ seed);
    }
    return mix(hash ^ oddB, seed ^ oddA);
}

} // namespace Parameters::Internal
