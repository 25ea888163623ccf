#include "schema/JSONWriter.h"

#include "schema/Messages.h"
#include "schema/PlainCharacters.h"

#include <rapidjson/internal/dtoa.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace Ostra {

void JSONWriter::enlarge(std::size_t count) {
    const std::size_t used = size();
    const std::size_t capacity = std::max(used + count, static_cast<std::size_t>(end_ - begin_) * 2);
    std::unique_ptr<char[]> larger(new char[capacity]); // NOLINT(*-avoid-c-arrays)
    std::copy(begin_, free_, larger.get());
    more_ = std::move(larger);
    begin_ = more_.get();
    free_ = begin_ + used;
    end_ = begin_ + capacity;
}

template <class Integer>
void JSONWriter::decimal(Integer value) {
    constexpr std::size_t maxSize = 20;
    beginValue(maxSize);
    free_ = std::to_chars(free_, end_, value).ptr;
}

void JSONWriter::integer(std::int64_t value) { decimal(value); }
void JSONWriter::unsignedInteger(std::uint64_t value) { decimal(value); }

void JSONWriter::number(double value) {
    if (!std::isfinite(value)) {
        throw std::domain_error(messages("json-number-not-finite").with({}));
    }
    constexpr std::size_t maxSize = 25;
    beginValue(maxSize);
    free_ = rapidjson::internal::dtoa(value, free_);
}

void JSONWriter::string(std::string_view value) {
    // Each byte may become six characters, and what holds a text counts 32 bits of them.
    constexpr std::size_t maxLength = (std::numeric_limits<std::uint32_t>::max() - 2) / 6;
    if (value.size() > maxLength) {
        throw std::length_error(messages("json-string-too-long").with({}));
    }
    beginValue(value.size() + 2);
    *free_++ = '"';
    if (PlainCharacters::copyAll(value, free_)) {
        free_ += value.size();
    } else {
        escaped(value);
    }
    *free_++ = '"';
}

void JSONWriter::escaped(std::string_view value) {
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    constexpr std::string_view digits = "0123456789ABCDEF";
    for (const char character : value) {
        reserve(6);
        const auto byte = static_cast<unsigned char>(character);
        if (PlainCharacters::isPlain(character)) {
            *free_++ = character;
        } else if (const std::size_t place = named.find(character); place != std::string_view::npos) {
            *free_++ = '\\';
            *free_++ = names[place];
        } else {
            free_ += std::string_view("\\u00").copy(free_, 4);
            *free_++ = digits[byte / 16];
            *free_++ = digits[byte % 16];
        }
    }
}

} // namespace Ostra
