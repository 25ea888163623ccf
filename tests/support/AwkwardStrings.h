#pragma once

#include <string>
#include <vector>

namespace Support {

/// Bytes that are easily lost or changed on their way through a text, and how a written schema has them.
struct AwkwardString {
    const char* name;
    std::string bytes;
    std::string escaped;
};

inline const std::vector<AwkwardString> awkwardStrings = {
    {"NulInTheMiddle", std::string("a\0b", 3), R"(a\u0000b)"},
    {"NulAlone", std::string(1, '\0'), R"(\u0000)"},
    {"NulAtTheEnd", std::string("a\0", 2), R"(a\u0000)"},
    {"QuotesAndBackslashes", R"("a\"b)", R"(\"a\\\"b)"},
    {"ControlCharacters", "\x01\x1f\b\f\n\r\t\x7f", "\\u0001\\u001F\\b\\f\\n\\r\\t\x7f"},
    {"Slash", "a/b", "a/b"},
    {"Blanks", "  ", "  "},
    {"Utf8", "\xc3\xa4 \xe2\x82\xac \xf0\x9f\x94\xa7", "\xc3\xa4 \xe2\x82\xac \xf0\x9f\x94\xa7"},
    {"InvalidUtf8", "\xff\xc3(\x80", "\xff\xc3(\x80"},
    {"Json", R"({"typeid": 5})", R"({\"typeid\": 5})"},
};

} // namespace Support
