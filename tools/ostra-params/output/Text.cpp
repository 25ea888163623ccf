#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

namespace Tool {

namespace {

bool isWithin(std::string_view character, std::string_view first, std::string_view last) {
    return first <= character && character <= last;
}

/// Returns how many bytes at the start of a text are one character that a terminal would obey: controls, also those of
/// two bytes, and what turns the direction of writing.
std::size_t lengthOfControl(std::string_view text) {
    const auto code = static_cast<unsigned char>(text.front());
    if (code < 0x20 || code == 0x7F) {
        return 1;
    }
    if (isWithin(text.substr(0, 2), "\u0080", "\u009F")) {
        return 2;
    }
    const std::string_view three = text.substr(0, 3);
    return isWithin(three, "\u202A", "\u202E") || isWithin(three, "\u2066", "\u2069") ? 3 : 0;
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
