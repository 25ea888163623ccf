#include "schema/JSONWriter.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace Ostra {

namespace {

/// True when a string may hold the character as it is. The loop over all characters has no way out before the end, so
/// that the compiler can look at many of them at a time.
bool isPlain(std::string_view string) {
    bool plain = true;
    for (const char character : string) {
        plain &= static_cast<unsigned char>(character) >= 0x20 && character != '"' && character != '\\';
    }
    return plain;
}

} // namespace

void JSONWriter::number(double value) {
    if (!std::isfinite(value)) {
        throw std::domain_error("A number that is not finite cannot be written as JSON.");
    }
    writer_.Double(value);
}

void JSONWriter::Writer::string(std::string_view value) {
    // The writer reserves six characters for each byte, and counts them in 32 bits.
    constexpr std::size_t maxLength = (std::numeric_limits<rapidjson::SizeType>::max() - 2) / 6;
    if (value.size() > maxLength) {
        throw std::length_error("A string is too long to be written as JSON.");
    }
    const auto length = static_cast<rapidjson::SizeType>(value.size());
    if (!isPlain(value)) {
        String(value.data(), length);
        return;
    }
    Prefix(rapidjson::kStringType);
    char* place = os_->Push(length + std::size_t{2});
    *place++ = '"';
    value.copy(place, length);
    place[length] = '"';
}

} // namespace Ostra
