#pragma once

#include <cstdint>

namespace Bench {

/// A small generator (SplitMix64) whose numbers are the same everywhere, unlike the distributions of the standard
/// library.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// Returns a number from 0 to bound - 1.
    std::uint32_t below(std::uint32_t bound) {
        return static_cast<std::uint32_t>(((next() >> 32U) * std::uint64_t{bound}) >> 32U);
    }

    /// True in so many of a hundred cases.
    bool percent(std::uint32_t percentage) { return below(100) < percentage; }

private:
    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    std::uint64_t state_;
};

} // namespace Bench
