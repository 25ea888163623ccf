#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace Ostra {

/// Returns the integer that a number of JSON writes, or nothing when it has a fraction or an exponent or does not fit.
template <class Integer>
std::optional<Integer> toInteger(std::string_view number) {
    Integer integer = 0;
    const char* const last = number.data() + number.size();
    const auto [end, error] = std::from_chars(number.data(), last, integer);
    return error == std::errc() && end == last ? std::optional(integer) : std::nullopt;
}

/// Returns the double nearest to a number of JSON, or nothing when that would be infinite. The locale has no say.
std::optional<double> toDouble(std::string_view number);

} // namespace Ostra
