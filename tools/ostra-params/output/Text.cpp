#include "output/Text.h"

#include "schema/Spelling.h"

#include <fmt/format.h>
#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>

namespace Tool {

namespace {

/// Returns how many bytes at the start of a text are one character, and which; 0 when they are no UTF-8.
std::size_t lengthOfCharacter(std::string_view text, unsigned& character) {
    rapidjson::MemoryStream stream(text.data(), text.size());
    return !text.empty() && rapidjson::UTF8<>::Decode(stream, &character) ? stream.Tell() : 0;
}

/// Returns whether a terminal would obey a character: a control, or what turns the direction of writing.
bool isControl(unsigned character) {
    return character < 0x20 || (character >= 0x7F && character <= 0x9F) ||
           (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
}

} // namespace

std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isFirstOfCharacter));
}

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
        unsigned character = 0;
        const std::size_t length = lengthOfCharacter(text.substr(offset), character);
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

std::u32string charactersOf(std::string_view text) {
    constexpr char32_t beyondAll = 0x110000;
    std::u32string characters;
    while (!text.empty()) {
        unsigned character = 0;
        const std::size_t length = lengthOfCharacter(text, character);
        const unsigned invalid = beyondAll + static_cast<unsigned char>(text.front());
        characters += static_cast<char32_t>(length == 0 ? invalid : character);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return characters;
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
        unsigned character = 0;
        const std::size_t length = lengthOfCharacter(text, character);
        const std::string_view bytes = text.substr(0, std::max<std::size_t>(length, 1));
        if (length != 0 && !isControl(character)) {
            line += bytes;
        } else {
            line += encoded(
                bytes, [](char) { return false; }, "\\x{:02X}");
        }
        text.remove_prefix(bytes.size());
    }
    return line;
}

std::string encoded(std::string_view text, const std::function<bool(char)>& isPlain, const char* format) {
    std::string result;
    for (const char byte : text) {
        if (isPlain(byte)) {
            result += byte;
        } else {
            fmt::format_to(std::back_inserter(result), fmt::runtime(format), static_cast<unsigned char>(byte));
        }
    }
    return result;
}

std::string percentEncoded(std::string_view text, std::string_view plain) {
    return encoded(text, [&](char byte) {
        return std::isalnum(static_cast<unsigned char>(byte)) != 0 || plain.find(byte) != std::string_view::npos;
    });
}

std::string capitalized(std::string text) {
    if (text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return text;
}

std::string counted(std::size_t count, std::string_view noun) {
    return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

std::vector<std::string_view> nearest(std::string_view text, const std::vector<std::string_view>& candidates) {
    return Ostra::nearest(text, candidates);
}

std::string didYouMean(const std::vector<std::string_view>& near) {
    return near.empty() ? std::string() : fmt::format("did you mean {}?", fmt::join(near, " or "));
}

std::string didYouMean(std::string_view text, const std::vector<std::string_view>& candidates) {
    return didYouMean(nearest(text, candidates));
}

std::string thereIsNo(std::string_view kind, std::string_view name, const std::vector<std::string_view>& candidates) {
    const std::string question = didYouMean(name, candidates);
    return fmt::format("there is no {} {}{}{}", kind, printable(name), question.empty() ? "" : "; ", question);
}

std::string listed(const std::vector<std::string_view>& names) {
    constexpr std::size_t width = 50;
    std::string lines;
    for (const std::string_view name : names) {
        const std::size_t taken = lines.size() - (lines.rfind('\n') + 1) + 1; // with a comma
        lines += lines.empty() ? "" : taken + name.size() > width ? ",\n" : ", ";
        lines += name;
    }
    return lines;
}

std::vector<std::string> aligned(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::string> lines(rows.size());
    for (std::size_t column = 0; !rows.empty() && column < rows.front().size(); ++column) {
        std::size_t width = 0;
        for (const std::string& line : lines) {
            width = std::max(width, widthOf(line));
        }
        for (std::size_t row = 0; row < rows.size(); ++row) {
            lines[row] += std::string(width - widthOf(lines[row]), ' ') + (column == 0 ? "" : "  ") + rows[row][column];
        }
    }
    return lines;
}

} // namespace Tool
