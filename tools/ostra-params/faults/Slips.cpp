#include "faults/Hints.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <utility>

namespace Tool {

namespace {

using std::string_view;
using Mending = std::optional<Edit>;

bool isLetter(char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; }
bool isDigit(char character) { return character >= '0' && character <= '9'; }
bool isOfWord(char character) { return isLetter(character) || isDigit(character) || character == '_'; }

/// Returns the character at an offset; none behind the end.
char at(string_view text, std::size_t offset) { return offset < text.size() ? text[offset] : '\0'; }

/// Returns where the word or number at an offset begins, of which the parser may have taken a part.
std::size_t beginOfWord(string_view text, std::size_t offset) {
    while (offset > 0 && isLetter(text[offset - 1])) {
        --offset;
    }
    return offset;
}

std::size_t endOfWord(string_view text, std::size_t offset) {
    while (isOfWord(at(text, offset))) {
        ++offset;
    }
    return offset;
}

/// What the slips of the table below become, of which the sign stands at an offset.
/// @{

Mending nothing(string_view, std::size_t, string_view) { return std::nullopt; }

Mending removed(string_view, std::size_t begin, string_view sign) { return Edit{begin, begin + sign.size(), ""}; }

Mending blank(string_view, std::size_t begin, string_view sign) { return Edit{begin, begin + sign.size(), " "}; }

Mending inSmallLetters(string_view text, std::size_t begin, string_view sign) {
    const std::size_t end = begin + sign.size();
    return endOfWord(text, begin) == end ? Mending({begin, end, lower(sign)}) : std::nullopt;
}

Mending withoutPlus(string_view text, std::size_t begin, string_view) {
    return isDigit(at(text, begin + 1)) ? Mending({begin, begin + 1, ""}) : std::nullopt;
}

Mending withDigitBefore(string_view text, std::size_t begin, string_view sign) {
    const std::size_t point = begin + sign.size() - 1;
    const bool isFirst = point == 0 || !isDigit(text[point - 1]);
    return isFirst && isDigit(at(text, point + 1)) ? Mending({point, point, "0"}) : std::nullopt;
}

Mending colon(string_view text, std::size_t begin, string_view) {
    constexpr string_view operators = "=>:";
    return operators.find(at(text, begin + 1)) == string_view::npos ? Mending({begin, begin + 1, ":"}) : std::nullopt;
}

Mending comma(string_view, std::size_t begin, string_view) { return Edit{begin, begin + 1, ","}; }

/// Only what ends in its line and needs no escapes is certain, and goes on as JSON does.
Mending inQuotes(string_view text, std::size_t begin, string_view sign) {
    static const std::map<string_view, std::vector<string_view>> closings{
        {"'", {"'"}},
        {"`", {"`", "'"}},
        {"\u2018", {"\u2019"}},
        {"\u2019", {"\u2019"}},
        {"\u201A", {"\u2018", "\u2019"}},
        {"\u201C", {"\u201D"}},
        {"\u201D", {"\u201D"}},
        {"\u201E", {"\u201C", "\u201D"}},
        {"\u00AB", {"\u00BB"}},
        {"\u00BB", {"\u00AB"}},
    };
    const std::size_t content = begin + sign.size();
    std::size_t end = string_view::npos;
    std::size_t size = 0;
    for (const string_view closing : closings.at(sign)) {
        if (const std::size_t found = text.find(closing, content); found < end) {
            end = found;
            size = closing.size();
        }
    }
    if (end == string_view::npos) {
        return std::nullopt;
    }
    const string_view said = text.substr(content, end - content);
    const std::size_t next = text.find_first_not_of(blanks, end + size);
    const bool isEnd = next != string_view::npos && string_view(",:]}").find(text[next]) != string_view::npos;
    const bool isPlain = std::none_of(said.begin(), said.end(), [](char character) {
        return character == '"' || character == '\\' || static_cast<unsigned char>(character) < ' ';
    });
    return isEnd && isPlain ? Mending({begin, end + size, fmt::format("\"{}\"", said)}) : std::nullopt;
}

/// @}

struct Sign {
    std::vector<string_view> beginnings;
    string_view hint;
    Mending (*mended)(string_view text, std::size_t begin, string_view sign) = nothing;
};

/// What begins there, and what to say of it.
const std::vector<Sign> signs{
    {{"//", "/*", "#"}, "JSON has no comments."},
    {{"'", "`", "\u2018", "\u2019", "\u201A", "\u201C", "\u201D", "\u201E", "\u00AB", "\u00BB"},
     "strings stand between \" and nothing else.",
     inQuotes},
    {{"\u00A0", "\u202F", "\u3000"}, "this is no plain blank, though it looks like one or like nothing.", blank},
    {{"\u200B"}, "this is no plain blank, though it looks like one or like nothing.", removed},
    {{"\uFEFF"}, "this is a second byte order mark.", removed},
    {{"True", "TRUE", "False", "FALSE"}, "true and false are written in small letters.", inSmallLetters},
    {{"None", "NULL", "Null", "undefined"}, "leave out what has no value."},
    {{"NaN", "nan", "Infinity", "inf"}, "JSON has no such number; a range without a limit has a flag that says so."},
    {{"+"}, "a number has no plus sign.", withoutPlus},
    {{".", "-."}, "a number begins with a digit.", withDigitBefore},
    {{"<<<<<<<", "=======", ">>>>>>>", "|||||||"}, "this is left from a merge: keep one of its sides."},
    {{"="}, "a colon stands between a name and its value.", colon},
    {{";"}, "commas stand between members and between elements.", comma},
};

/// Returns the slip that a sign is; nothing when none stands at one of these offsets.
std::optional<Slip> slipOfSign(string_view text, const std::array<std::size_t, 2>& offsets) {
    for (const Sign& sign : signs) {
        for (const std::size_t offset : offsets) {
            for (const string_view beginning : sign.beginnings) {
                if (text.substr(offset).starts_with(beginning)) {
                    return Slip{sign.hint, sign.mended(text, offset, beginning)};
                }
            }
        }
    }
    return std::nullopt;
}

/// Returns how many brackets are open at an offset of a text that is JSON up to there.
std::size_t depthAt(string_view text, std::size_t offset) {
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

/// Returns whether a name without quotation marks stands at an offset.
bool isBareName(string_view text, std::size_t offset) {
    const std::size_t colon = text.find_first_not_of(" \t", endOfWord(text, offset));
    return isLetter(text[offset]) && colon != string_view::npos && text[colon] == ':';
}

/// Doubles the backslashes of a string, the first of which stands at an offset. With an escape among them, nobody knows
/// which of them are meant to be some.
Mending withDoubledBackslashes(string_view text, std::size_t offset) {
    const std::size_t quote = text.rfind('"', offset);
    const std::size_t end = text.find_first_of("\"\r\n", offset);
    const bool isFirst = quote != string_view::npos && text.find('\\', quote) == offset && at(text, quote - 1) != '\\';
    if (!isFirst || end == string_view::npos) {
        return std::nullopt;
    }
    std::string doubled;
    for (std::size_t i = offset; i < end; ++i) {
        const bool isBackslash = text[i] == '\\';
        if (isBackslash && string_view("\"\\/bfnrtu").find(text[i + 1]) != string_view::npos) {
            return std::nullopt;
        }
        doubled.append(isBackslash ? 2 : 1, text[i]);
    }
    return Edit{offset, end, std::move(doubled)};
}

} // namespace

Slip slipAt(string_view text, std::size_t offset) {
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        return {"the text is in UTF-16, and must be in UTF-8."};
    }
    if (offset >= text.size()) {
        return {text.find_first_not_of(blanks) == string_view::npos ? "" : "the text ends too early."};
    }
    const char here = text[offset];
    if (here == '\n' || here == '\r') {
        return {"the string is not closed in its line."};
    }
    if (here == '\t') {
        return {"a tab within a string is written as \\t.", Edit{offset, offset + 1, "\\t"}};
    }
    if (here == '\\') {
        return {"a backslash within a string is written as \\\\.", withDoubledBackslashes(text, offset)};
    }
    const std::size_t last = offset == 0 ? string_view::npos : text.find_last_not_of(blanks, offset - 1);
    const char before = last == string_view::npos ? '\0' : text[last];
    if ((here == '}' || here == ']') && before == ',') {
        return {"no comma stands before a closing bracket.", Edit{last, last + 1, ""}};
    }
    if (auto slip = slipOfSign(text, {beginOfWord(text, offset), offset})) {
        return *std::move(slip);
    }
    if (depthAt(text, offset) == 0 && (here == '{' || here == ',')) {
        return {"a .json file holds one schema; a .ndjson file holds one a line."};
    }
    if ((before == '{' || before == ',') && isBareName(text, offset)) {
        const std::size_t end = endOfWord(text, offset);
        return {"names stand in quotation marks, too.",
                Edit{offset, end, fmt::format("\"{}\"", text.substr(offset, end - offset))}};
    }
    if (isDigit(here) && offset > 0 && text[offset - 1] == '0') { // which may be meant to be a text, or octal
        return {"a number does not begin with zeros."};
    }
    const bool isInNextLine =
        last != string_view::npos && text.substr(last, offset - last).find('\n') != string_view::npos;
    const bool isNext = (here == '"' && isInNextLine) || (here == '{' && (isInNextLine || before == '}'));
    return isNext && before != '{' && before != '[' && before != ':'
               ? Slip{"a comma is missing before it.", Edit{last + 1, last + 1, ","}}
               : Slip();
}

} // namespace Tool
