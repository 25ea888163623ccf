#include "output/Text.h"

#include "schema/Spelling.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>
#include <utility>

namespace Tool {

namespace {

unsigned byteAt(std::string_view text, std::size_t index) {
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
}

/// Returns how many bytes at the start of a text are one character; 0 when they are no UTF-8.
std::size_t lengthOfCharacter(std::string_view text) {
    const unsigned first = byteAt(text, 0);
    const unsigned second = byteAt(text, 1);
    const auto isLater = [&](std::size_t index) { return (byteAt(text, index) & 0xC0U) == 0x80; };
    if (first < 0x80) {
        return text.empty() ? 0 : 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return isLater(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first <= 0xEF) { // neither longer than it need be nor half a pair of UTF-16
        const bool isRight = !(first == 0xE0 && second < 0xA0) && !(first == 0xED && second > 0x9F);
        return isRight && isLater(1) && isLater(2) ? 3 : 0;
    }
    const bool isRight = !(first == 0xF0 && second < 0x90) && !(first == 0xF4 && second > 0x8F);
    return first >= 0xF0 && first <= 0xF4 && isRight && isLater(1) && isLater(2) && isLater(3) ? 4 : 0;
}

/// Returns whether a terminal would obey the character at the start of a text: a control, also of two bytes, or what
/// turns the direction of writing.
bool isControl(std::string_view text) {
    const unsigned first = byteAt(text, 0);
    const unsigned lastTwo = first == 0xE2 ? byteAt(text, 1) * 0x100 + byteAt(text, 2) : 0;
    return first < 0x20 || first == 0x7F ||
           (first == 0xC2 && byteAt(text, 1) >= 0x80 && byteAt(text, 1) <= 0x9F) || // U+0080 to U+009F
           (lastTwo >= 0x80AA && lastTwo <= 0x80AE) ||                              // U+202A to U+202E
           (lastTwo >= 0x81A6 && lastTwo <= 0x81A9);                                // U+2066 to U+2069
}

} // namespace

std::size_t findInvalid(std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        if (std::uint64_t eight = 0; text.size() - offset >= sizeof eight) {
            std::memcpy(&eight, text.data() + offset, sizeof eight);
            if ((eight & 0x8080808080808080U) == 0) { // nearly all are ASCII
                offset += sizeof eight;
                continue;
            }
        }
        const std::size_t length = lengthOfCharacter(text.substr(offset));
        if (length == 0) {
            return offset;
        }
        offset += length;
    }
    return std::string_view::npos;
}

std::string readable(std::string_view text) {
    std::string result;
    for (std::size_t invalid = findInvalid(text); invalid != std::string_view::npos; invalid = findInvalid(text)) {
        result += text.substr(0, invalid);
        result += "\uFFFD";
        text.remove_prefix(invalid + 1);
    }
    return result += text;
}

std::string lower(std::string_view text) {
    std::string result(text);
    for (char& character : result) {
        character = character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return result;
}

std::uint64_t digestOf(std::string_view text) {
    std::uint64_t digest = 0xCBF29CE484222325U;
    for (const char byte : text) {
        digest = (digest ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    }
    return digest;
}

std::string printable(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t length = lengthOfCharacter(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
        if (length != 0 && !isControl(text)) {
            line += character;
        } else {
            for (const char byte : character) {
                fmt::format_to(std::back_inserter(line), "\\x{:02X}", static_cast<unsigned char>(byte));
            }
        }
        text.remove_prefix(character.size());
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

std::string didYouMean(std::string_view text, const std::vector<std::string_view>& candidates) {
    std::string question;
    for (const std::string_view candidate : Ostra::nearest(text, candidates)) {
        question += question.empty() ? "did you mean " : " or ";
        question += candidate;
    }
    return question.empty() ? question : question + "?";
}

std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isFirstOfCharacter));
}

std::string padded(std::string text, std::size_t width) {
    const std::size_t taken = widthOf(text);
    return taken < width ? std::move(text) + std::string(width - taken, ' ') : text;
}

} // namespace Tool
