#include "schema/Numbers.h"

#ifdef OSTRA_FAST_FLOAT // where the standard library reads no doubles
#include <fast_float/fast_float.h>
#endif

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Ostra {

namespace {

/// Returns the exponent that a number writes, or one that is as far out for any number that memory holds.
std::int64_t writtenExponent(std::string_view number) {
    const std::size_t mark = number.find_first_of("eE");
    if (mark == std::string_view::npos) {
        return 0;
    }
    std::string_view digits = number.substr(mark + 1);
    if (digits.front() == '+') {
        digits.remove_prefix(1);
    }
    constexpr std::int64_t far = INT64_MAX / 2;                 // which leaves room for a sum
    std::int64_t exponent = digits.front() == '-' ? -far : far; // stays when 64 bits do not hold what is written
    std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    return std::clamp(exponent, -far, far);
}

/// Tells which end of the doubles a number is beyond. The place of its first digit that counts decides, shifted by its
/// exponent: either may be far out and the other bring it back.
bool isBelowOne(std::string_view number) {
    const std::string_view significand = number.substr(0, number.find_first_of("eE"));
    const auto point = static_cast<std::int64_t>(std::min(significand.find('.'), significand.size()));
    const auto leading = static_cast<std::int64_t>(significand.find_first_of("123456789"));
    return point - leading + writtenExponent(number) < 0;
}

#ifdef OSTRA_FAST_FLOAT
using fast_float::from_chars;
#else
using std::from_chars;
#endif

} // namespace

std::optional<double> toDouble(std::string_view number) {
    double nearest = 0;
    const auto error = from_chars(number.data(), number.data() + number.size(), nearest).ec;
    if (error == std::errc() && std::isfinite(nearest)) { // some versions of fast_float take infinity for a result
        return nearest;
    }
    // The standard library reports both ends alike and leaves the result alone.
    if (isBelowOne(number)) {
        return number.front() == '-' ? -0.0 : 0.0;
    }
    return std::nullopt;
}

} // namespace Ostra
