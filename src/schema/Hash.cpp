#include "schema/Hash.h"

#include "schema/Bytes.h"
#include "schema/Product.h"

#include <chrono>
#include <cstddef>

namespace Ostra {

namespace {

constexpr std::uint64_t oddA = 0x9E3779B97F4A7C15;
constexpr std::uint64_t oddB = 0xD6E8FEB86659FD93;

/// Folds the 128-bit product of two words: every bit of both reaches every bit of the result.
std::uint64_t mix(std::uint64_t a, std::uint64_t b) noexcept {
    const Product product = multiply(a, b);
    return product.low ^ product.high;
}

struct Words {
    std::uint64_t first;
    std::uint64_t second;
};

/// Returns up to sixteen bytes as two words. The reads overlap rather than depend on the number of bytes.
Words lastWords(const char* bytes, std::size_t count) noexcept {
    if (count >= 8) {
        return {wordAt<std::uint64_t>(bytes), wordAt<std::uint64_t>(bytes + count - 8)};
    }
    if (count >= 4) {
        return {wordAt<std::uint32_t>(bytes), wordAt<std::uint32_t>(bytes + count - 4)};
    }
    if (count > 0) {
        return {std::uint64_t{wordAt<std::uint8_t>(bytes)} << 8 | wordAt<std::uint8_t>(bytes + count / 2),
                wordAt<std::uint8_t>(bytes + count - 1)};
    }
    return {0, 0};
}

/// Two words that nobody can know. Were they one, two words of a text would meet the same unknown, and could be chosen
/// to change places.
Words makeSeed() noexcept {
    static const char anchor = 0; // where the loader put the library
    const auto now = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    const std::uint64_t first = mix(reinterpret_cast<std::uintptr_t>(&anchor) ^ oddA, now ^ oddB);
    return {first, mix(first ^ oddB, now ^ oddA)};
}

} // namespace

std::uint64_t hashOf(std::string_view bytes) noexcept {
    static const Words seed = makeSeed();
    std::uint64_t hash = seed.first ^ bytes.size();
    const char* byte = bytes.data();
    std::size_t left = bytes.size();
    for (; left > 16; byte += 16, left -= 16) {
        hash = mix(wordAt(byte) ^ hash, wordAt(byte + 8) ^ seed.second);
    }
    const auto [first, second] = lastWords(byte, left);
    hash = mix(first ^ hash, second ^ seed.second);
    return mix(hash ^ oddB, seed.first ^ oddA);
}

} // namespace Ostra
