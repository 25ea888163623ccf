#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

namespace Tool {

std::string printable(std::string_view text) {
    std::string line;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 0x20 || code == 0x7F) {
            fmt::format_to(std::back_inserter(line), "\\x{:02X}", code);
        } else {
            line += byte;
        }
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
