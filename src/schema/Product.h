#pragma once

#include <cstdint>

#if defined(_MSC_VER) && defined(_M_X64)
#include <intrin.h>
#endif

namespace Ostra {

/// The product of two words.
struct Product {
    std::uint64_t low;
    std::uint64_t high;
};

/// Multiplies in halves of words, where nothing better is known.
constexpr Product multiplyHalves(std::uint64_t a, std::uint64_t b) noexcept {
    constexpr std::uint64_t half = 0xFFFFFFFF;
    const std::uint64_t lows = (a & half) * (b & half);
    const std::uint64_t cross = (a >> 32) * (b & half) + (lows >> 32); // which does not overflow
    const std::uint64_t otherCross = (a & half) * (b >> 32) + (cross & half);
    return {otherCross << 32 | (lows & half), (a >> 32) * (b >> 32) + (cross >> 32) + (otherCross >> 32)};
}

/// Multiplies as the machine does it best.
inline Product multiply(std::uint64_t a, std::uint64_t b) noexcept {
#if defined(__SIZEOF_INT128__)
    __extension__ using Whole = unsigned __int128;
    const Whole product = static_cast<Whole>(a) * b;
    return {static_cast<std::uint64_t>(product), static_cast<std::uint64_t>(product >> 64)};
#elif defined(_MSC_VER) && defined(_M_X64)
    Product product{};
    product.low = _umul128(a, b, &product.high);
    return product;
#else
    return multiplyHalves(a, b);
#endif
}

} // namespace Ostra
