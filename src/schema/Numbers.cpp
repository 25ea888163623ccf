#include "schema/Numbers.h"

#include <algorithm>
#include <cstdint>

namespace Ostra {

namespace {

/// Returns the exponent that a number writes, or the nearest that 64 bits hold.
std::int64_t writtenExponent(std::string_view number) {
    const std::size_t mark = number.find_first_of("eE");
    if (mark == std::string_view::npos) {
        return 0;
    }
    std::string_view digits = number.substr(mark + 1);
    if (digits.front() == '+') {
        digits.remove_prefix(1);
    }
    std::int64_t exponent = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc()) {
        return digits.front() == '-' ? INT64_MIN / 2 : INT64_MAX / 2; // halves, to leave room for a sum
    }
    return exponent;
}

/// Tells which end of the doubles a number is beyond. The place of its first digit that counts decides, shifted by its
/// exponent: either may be far out and the other bring it back.
bool isBelowOne(std::string_view number) {
    const std::string_view significand = number.substr(0, number.find_first_of("eE"));
    const auto point = static_cast<std::int64_t>(std::min(significand.find('.'), significand.size()));
    const auto leading = static_cast<std::int64_t>(significand.find_first_of("123456789"));
    return point - leading + writtenExponent(number) < 0;
}

} // namespace

std::optional<double> toDouble(std::string_view number) {
    double nearest = 0;
    if (std::from_chars(number.data(), number.data() + number.size(), nearest).ec == std::errc()) {
        return nearest;
    }
    // The standard library reports both ends alike and leaves the result alone.
    if (isBelowOne(number)) {
        return number.front() == '-' ? -0.0 : 0.0;
    }
    return std::nullopt;
}

} // namespace Ostra
