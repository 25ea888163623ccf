#include "schema/JSONWriter.h"

#include "schema/Messages.h"
#include "schema/PlainCharacters.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace Ostra {

void JSONWriter::number(double value) {
    if (!std::isfinite(value)) {
        throw std::domain_error(messages("json-number-not-finite").with({}));
    }
    writer_.Double(value);
}

void JSONWriter::Writer::string(std::string_view value) {
    // The writer reserves six characters for each byte, and counts them in 32 bits.
    constexpr std::size_t maxLength = (std::numeric_limits<rapidjson::SizeType>::max() - 2) / 6;
    if (value.size() > maxLength) {
        throw std::length_error(messages("json-string-too-long").with({}));
    }
    const auto length = static_cast<rapidjson::SizeType>(value.size());
    if (!PlainCharacters::areAll(value)) {
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
