#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

namespace Tool {

namespace {

/// Returns how many bytes at the start of a text are one character that a terminal would obey: controls, also those of
/// two bytes, and what turns the direction of writing.
std::size_t lengthOfControl(std::string_view text) {
    const auto byteAt = [&](std::size_t index) -> unsigned {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    if (byteAt(0) < 0x20 || byteAt(0) == 0x7F) {
        return 1;
    }
    if (byteAt(0) == 0xC2 && byteAt(1) >= 0x80 && byteAt(1) <= 0x9F) { // U+0080 to U+009F
        return 2;
    }
    const unsigned lastTwo = byteAt(0) == 0xE2 ? byteAt(1) * 0x100 + byteAt(2) : 0;
    const bool isTurning = (lastTwo >= 0x80AA && lastTwo <= 0x80AE) || // U+202A to U+202E
                           (lastTwo >= 0x81A6 && lastTwo <= 0x81A9);   // U+2066 to U+2069
    return isTurning ? 3 : 0;
}

} // namespace

std::string printable(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t controls = lengthOfControl(text);
        for (const char byte : text.substr(0, controls)) {
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", static_cast<unsigned char>(byte));
        }
        if (controls == 0) {
            line += text.front();
        }
        text.remove_prefix(controls == 0 ? 1 : controls);
    }
    return line;
}

std::string percentEncoded(std::string_view text, std::string_view plain) {
    std::string encoded;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (std::isalnum(code) != 0 || plain.find(byte) != std::string_view::npos) {
            encoded += byte;
        } else {
            fmt::format_to(std::back_inserter(encoded), "%{:02X}", code);
        }
    }
    return encoded;
}

std::string counted(std::size_t count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; // all but the later bytes of a character
    }));
}

std::string padded(std::string text, std::size_t width) {
    const std::size_t taken = widthOf(text);
    return taken < width ? std::move(text) + std::string(width - taken, ' ') : text;
}

} // namespace Tool
