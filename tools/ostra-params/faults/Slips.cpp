#include "faults/Hints.h"

#include "output/Text.h"

#include <algorithm>
#include <cctype>

namespace Tool {

namespace {

struct Slip {
    std::vector<std::string_view> beginnings;
    std::string_view hint;
};

/// What begins there, and what to say of it.
const std::vector<Slip> slips{
    {{"//", "/*", "#"}, "JSON has no comments."},
    {{"'", "`", "\u2018", "\u2019", "\u201A", "\u201C", "\u201D", "\u201E", "\u00AB", "\u00BB"},
     "strings stand between \" and nothing else."},
    {{"\u00A0", "\u200B", "\u202F", "\u3000"}, "this is no plain blank, though it looks like one or like nothing."},
    {{"\uFEFF"}, "this is a second byte order mark."},
    {{"True", "TRUE", "False", "FALSE"}, "true and false are written in small letters."},
    {{"None", "NULL", "Null", "undefined"}, "leave out what has no value."},
    {{"NaN", "nan", "Infinity", "inf"}, "JSON has no such number; a range without a limit has a flag that says so."},
    {{"+"}, "a number has no plus sign."},
    {{".", "-."}, "a number begins with a digit."},
    {{"<<<<<<<", "=======", ">>>>>>>", "|||||||"}, "this is left from a merge: keep one of its sides."},
    {{"="}, "a colon stands between a name and its value."},
    {{";"}, "commas stand between members and between elements."},
};

bool beginsWithOneOf(std::string_view text, const std::vector<std::string_view>& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](std::string_view each) { return text.starts_with(each); });
}

bool isLetter(char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; }
bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Returns how many brackets are open at an offset of a text that is JSON up to there.
std::size_t depthAt(std::string_view text, std::size_t offset) {
    std::size_t depth = 0;
    bool isInString = false;
    for (std::size_t i = 0; i < offset; ++i) {
        const char character = text[i];
        if (isInString && character == '\\') {
            ++i;
        } else if (character == '"') {
            isInString = !isInString;
        } else if (!isInString) {
            depth += character == '{' || character == '[' ? 1 : 0;
            depth -= character == '}' || character == ']' ? 1 : 0;
        }
    }
    return depth;
}

/// Returns where the word or number at an offset begins, of which the parser may have taken a part.
std::size_t beginOfWord(std::string_view text, std::size_t offset) {
    while (offset > 0 && isLetter(text[offset - 1])) {
        --offset;
    }
    return offset;
}

/// Returns whether a name without quotation marks stands at an offset.
bool isBareName(std::string_view text, std::size_t offset) {
    const auto* const end = std::find_if_not(text.begin() + offset, text.end(), [](char character) {
        return isLetter(character) || isDigit(character) || character == '_';
    });
    const auto rest = text.substr(static_cast<std::size_t>(end - text.begin()));
    const std::size_t colon = rest.find_first_not_of(" \t");
    return isLetter(text[offset]) && colon != std::string_view::npos && rest[colon] == ':';
}

} // namespace

std::string_view slipAt(std::string_view text, std::size_t offset) {
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        return "the text is in UTF-16, and must be in UTF-8.";
    }
    if (offset >= text.size()) {
        return text.find_first_not_of(blanks) == std::string_view::npos ? "" : "the text ends too early.";
    }
    const char at = text[offset];
    if (at == '\n' || at == '\r') {
        return "the string is not closed in its line.";
    }
    if (at == '\t' || at == '\\') {
        return at == '\t' ? "a tab within a string is written as \\t."
                          : "a backslash within a string is written as \\\\.";
    }
    const std::size_t last = offset == 0 ? std::string_view::npos : text.find_last_not_of(blanks, offset - 1);
    const char before = last == std::string_view::npos ? '\0' : text[last];
    if ((at == '}' || at == ']') && before == ',') {
        return "no comma stands before a closing bracket.";
    }
    for (const auto& [beginnings, hint] : slips) {
        if (beginsWithOneOf(text.substr(beginOfWord(text, offset)), beginnings) ||
            beginsWithOneOf(text.substr(offset), beginnings)) {
            return hint;
        }
    }
    if (depthAt(text, offset) == 0 && (at == '{' || at == ',')) {
        return "a .json file holds one schema; a .ndjson file holds one a line.";
    }
    if ((before == '{' || before == ',') && isBareName(text, offset)) {
        return "names stand in quotation marks, too.";
    }
    if (isDigit(at) && text[offset - (offset > 0 ? 1 : 0)] == '0') {
        return "a number does not begin with zeros.";
    }
    const bool isInNextLine =
        last != std::string_view::npos && text.substr(last, offset - last).find('\n') != std::string_view::npos;
    return at == '"' && isInNextLine && before != '{' && before != '[' && before != ':'
               ? "a comma is missing before it."
               : "";
}

} // namespace Tool
