#include "RandomTexts.h"

#include <iterator>

namespace Ostra {

using namespace std::string_literals;

namespace {

const std::string validTexts[] = {
    R"({"typeid":"plant.pumps:parameter.flowRate-1.0.0","inherits":["base.measurable-3.0.0"],"constants":[]})",
    R"({"constants":[{"id":"name","value":"Flow"},{"id":"spec","typedValue":{"typeid":"plant:spec.flow-1.0.0"}}]})",
    R"({"typeid": "a:b-1.0.0", "inherits": [], "properties": [{"id": "x", "type": "Float64", "value": -12.5e-3}]})",
    R"([1, -0, 2147483648, -2147483649, 18446744073709551615, 18446744073709551616, 1e308, 4.9e-324, 0.1])",
    R"(["\"\\\/\b\f\n\r\t", "\u0041\u00e9\u20ac\ud83d\ude00", "\u0000", "", {"": {"": [[], {}]}}, true, false, null])",
    " \t\r\n{ \"a\" :\n[ 1 ,\t2 , { \"b\" : \"\xC3\xA9\xE2\x82\xAC\" } ] }\r\n ",
};

const std::string pieces[] = {
    "{",    "}",   "[",       "]",       ",",    ":",     "\"",   "\"a\"",        "\"\"",     "\"\\u0041\"",
    "\"\\", "\\u", "\\ud800", "\\udc00", "true", "false", "null", "nul",          "tru",      "0",
    "-",    "-1",  "1.",      ".5",      "1e",   "e5",    "E+",   "1e5",          "1.5e-3",   "00",
    " ",    "\n",  "\t",      "\r",      "\f",   "\0"s,   "\xEF", "\xEF\xBB\xBF", "\xC3\xA9", "\xFF",
    "{}",   "[]",  "{\"a\":", "[1,",     "/*",   "//",    "NaN",  "Infinity",
};

} // namespace

std::string RandomTexts::valid() { return blanks() + value(4) + blanks(); }

std::string RandomTexts::mutated() {
    std::string text = chance(2) ? valid() : validTexts[below(std::size(validTexts))];
    for (std::size_t count = 1 + below(3); count > 0; --count) {
        const std::size_t place = below(text.size() + 1);
        switch (below(5)) {
        case 0:
            text.insert(place, 1, byte());
            break;
        case 1:
            text.insert(place, pieces[below(std::size(pieces))]);
            break;
        case 2:
            text.erase(place, 1 + below(3));
            break;
        case 3:
            text.resize(place);
            break;
        default:
            text.replace(place, 1, 1, byte());
        }
    }
    return text;
}

std::string RandomTexts::tokens() {
    std::string text;
    for (std::size_t count = below(12); count > 0; --count) {
        text += chance(4) ? number() : pieces[below(std::size(pieces))];
    }
    return text;
}

std::string RandomTexts::bytes() {
    std::string text = chance(2) ? std::string(1, "[{\"-1"[below(5)]) : "";
    for (std::size_t count = below(10); count > 0; --count) {
        text += byte();
    }
    return text;
}

std::string RandomTexts::number() {
    std::string number = chance(3) ? "-" : "";
    number += chance(4) ? "0" : digits(chance(8) ? 400 : 22);
    if (chance(2)) {
        number += '.';
        number += digits(chance(8) ? 400 : 20);
    }
    if (chance(2)) {
        number += chance(2) ? "e" : "E";
        number += chance(2) ? "-" : chance(2) ? "+" : "";
        number += std::to_string(below(chance(4) ? 100'000 : 330));
    }
    return number;
}

char RandomTexts::byte() { return static_cast<char>(chance(4) ? below(256) : 0x20 + below(0x60)); }

std::string RandomTexts::blanks() {
    std::string text;
    for (std::size_t count = chance(2) ? 0 : below(3); count > 0; --count) {
        text += " \t\r\n"[below(4)];
    }
    return text;
}

std::string RandomTexts::digits(std::size_t maxCount) {
    std::string text;
    for (std::size_t count = 1 + below(maxCount); count > 0; --count) {
        text += static_cast<char>('0' + below(10));
    }
    return text;
}

std::string RandomTexts::string() {
    std::string text = "\"";
    for (std::size_t count = below(6); count > 0; --count) {
        text += stringPart();
    }
    return text + "\"";
}

std::string RandomTexts::stringPart() {
    static const std::string parts[] = {
        "\\\"",     "\\\\", "\\/",  "\\n",  "\\u0000", "\\u00E9", "\\uD83D\\uDE00",
        "\xC3\xA9", "\x7F", "\xFF", "name", "value",   "typeid",  "a longer part of it"};
    return parts[below(std::size(parts))];
}

std::string RandomTexts::value(int depth) {
    switch (below(depth > 0 ? 9 : 6)) {
    case 0:
        return "true";
    case 1:
        return "false";
    case 2:
        return "null";
    case 3:
        return number();
    case 4:
        return std::to_string(static_cast<std::int64_t>(random_()) >> below(64));
    case 5:
        return string();
    default:
        return container(depth - 1, chance(2));
    }
}

std::string RandomTexts::container(int depth, bool object) {
    std::string text = object ? "{" : "[";
    text += blanks();
    for (std::size_t count = below(5), index = 0; index < count; ++index) {
        text += index > 0 ? "," : "";
        text += blanks();
        text += object ? string() + blanks() + ":" + blanks() : "";
        text += value(depth) + blanks();
    }
    return text + (object ? "}" : "]");
}

} // namespace Ostra
