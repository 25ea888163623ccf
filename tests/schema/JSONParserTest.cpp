#include "schema/JSONParser.h"

#include "AllocationWatch.h"
#include "ParseOutcome.h"
#include "Parsed.h"
#include "SmallStack.h"
#include "schema/ExceptionFactory.h"
#include "schema/JSON.h"
#include "support/Messages.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Support::messageOf;

std::string refusalOf(const std::string& text) {
    try {
        parse(text);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "accepted";
}

std::string repeated(std::string_view part, std::size_t count) {
    std::string text;
    for (; count > 0; --count) {
        text += part;
    }
    return text;
}

std::string zeros(std::size_t count) { return std::string(count, '0'); }

} // namespace

struct Refused {
    const char* name;
    std::string text;
    const char* message;
};

class RefusedText : public testing::TestWithParam<Refused> {};

TEST_P(RefusedText, NamesThePlaceAndTheFault) { EXPECT_EQ(refusalOf(GetParam().text), GetParam().message); }

const Refused faults[] = {
    {"Empty", "", "JSON parsing error at offset 0: The document is empty."},
    {"BlanksAlone", " \t\r\n", "JSON parsing error at offset 4: The document is empty."},
    {"SecondRoot", "{} {}", "JSON parsing error at offset 3: The document root must not be followed by other values."},
    {"StrayBraceAfterRoot", "1 }",
     "JSON parsing error at offset 2: The document root must not be followed by other values."},
    {"UnknownWord", "[nul]", "JSON parsing error at offset 4: Invalid value."},
    {"MissingValue", "[1,]", "JSON parsing error at offset 3: Invalid value."},
    {"Plus", "+1", "JSON parsing error at offset 0: Invalid value."},
    {"NotANumber", "NaN", "JSON parsing error at offset 0: Invalid value."},
    {"Infinity", "-Infinity", "JSON parsing error at offset 1: Invalid value."},
    {"Comment", "/* */ 1", "JSON parsing error at offset 0: Invalid value."},
    {"MissingName", "{1:2}", "JSON parsing error at offset 1: Missing a name for object member."},
    {"CommaAtTheEndOfAnObject", "{\"a\":1,}", "JSON parsing error at offset 7: Missing a name for object member."},
    {"MissingColon", "{\"a\" 1}", "JSON parsing error at offset 5: Missing a colon after a name of object member."},
    {"MissingCommaInObject", "{\"a\":1 \"b\":2}",
     "JSON parsing error at offset 7: Missing a comma or '}' after an object member."},
    {"MissingCommaInArray", "[1 2]", "JSON parsing error at offset 3: Missing a comma or ']' after an array element."},
    {"HexadecimalOfAnEscape", "\"\\u00g0\"",
     "JSON parsing error at offset 1: Incorrect hex digit after \\u escape in string."},
    {"LoneHighSurrogate", "\"\\ud800\"", "JSON parsing error at offset 1: The surrogate pair in string is invalid."},
    {"UnknownEscape", "\"a\\x\"", "JSON parsing error at offset 2: Invalid escape character in string."},
    {"ControlCharacterInString", "\"a\nb\"", "JSON parsing error at offset 2: Invalid escape character in string."},
    {"UnclosedString", "[\"a", "JSON parsing error at offset 3: Missing a closing quotation mark in string."},
    {"UnclosedArray", "[[1]", "JSON parsing error at offset 4: Missing a comma or ']' after an array element."},
    {"UnclosedObject", "{", "JSON parsing error at offset 1: Missing a name for object member."},
    {"MissingFraction", "[1.]", "JSON parsing error at offset 3: Miss fraction part in number."},
    {"MissingExponent", "1e+", "JSON parsing error at offset 3: Miss exponent in number."},
    {"LeadingZero", "[01]", "JSON parsing error at offset 2: Missing a comma or ']' after an array element."},
    {"ByteOrderMark", "\xEF\xBB\xBF{}", "JSON parsing error at offset 0: Invalid value."},
    {"ByteOrderMarkAlone", "\xEF\xBB\xBF", "JSON parsing error at offset 0: Invalid value."},
    {"LeadingClosingBracket", "]", "JSON parsing error at offset 0: Invalid value."},
    {"LeadingClosingBrace", " }", "JSON parsing error at offset 1: Invalid value."},
    {"LeadingComma", "\n\t,1", "JSON parsing error at offset 2: Invalid value."},
    {"LeadingColon", ":", "JSON parsing error at offset 0: Invalid value."},
    {"ByteZeroAlone", "\0"s, "JSON parsing error at offset 0: Invalid value."},
    {"ByteZeroAfterBlanks", "  \0{}"s, "JSON parsing error at offset 2: Invalid value."},
    {"ByteZeroAfterRoot", "{}\0"s,
     "JSON parsing error at offset 2: The document root must not be followed by other values."},
    {"ByteZeroAfterRootAndBlanks", "12 \n\0 "s,
     "JSON parsing error at offset 4: The document root must not be followed by other values."},
    {"ByteZeroForAnElement", "[\0]"s, "JSON parsing error at offset 1: Invalid value."},
    {"ByteZeroAfterAnElement", "[1\0]"s,
     "JSON parsing error at offset 2: Missing a comma or ']' after an array element."},
    {"ByteZeroForAName", "{\0}"s, "JSON parsing error at offset 1: Missing a name for object member."},
    {"ByteZeroInAString", "\"a\0b\""s, "JSON parsing error at offset 2: Missing a closing quotation mark in string."},
    {"ByteZeroInANumber", "[1.\0]"s, "JSON parsing error at offset 3: Miss fraction part in number."},
    {"ByteZeroInAWord", "tru\0e"s, "JSON parsing error at offset 3: Invalid value."},
    {"NumberTooBigByItsExponent", "[1, 1e400]",
     "JSON parsing error at offset 4: Number too big to be stored in double."},
    {"NegativeNumberTooBig", "[1, -1e309]", "JSON parsing error at offset 4: Number too big to be stored in double."},
    {"NumberThatRoundsToInfinity", "{\"a\": 10e308}",
     "JSON parsing error at offset 6: Number too big to be stored in double."},
    {"NumberJustBeyondMax", " 1.797693134862315808e308",
     "JSON parsing error at offset 1: Number too big to be stored in double."},
    {"NumberBeforeALaterFault", "[10e308, x]",
     "JSON parsing error at offset 1: Number too big to be stored in double."},
    {"ZeroWithATooBigExponent", "0e309", "JSON parsing error at offset 0: Number too big to be stored in double."},
    {"IntegerTooLong", "1" + zeros(100'000), "JSON parsing error at offset 0: Number too big to be stored in double."},
    {"IntegerTooLongThoughItsExponentCancelsIt", "1" + zeros(400) + "e-400",
     "JSON parsing error at offset 0: Number too big to be stored in double."},
};

INSTANTIATE_TEST_SUITE_P(Parsing, RefusedText, testing::ValuesIn(faults), Support::nameOfRow);

/// As what a number is known.
enum class Type { integer, unsignedInteger, real };

struct Classified {
    const char* name;
    const char* text;
    Type type;
};

class NumberType : public testing::TestWithParam<Classified> {};

TEST_P(NumberType, IsThatOfTheDefaultFlags) {
    Arena arena;
    JSONTape tape(arena);
    ASSERT_FALSE(parseText(GetParam().text, tape, arena).result.IsError());
    EXPECT_TRUE(tape.root().isNumber());
    EXPECT_EQ(tape.root().isInteger(), GetParam().type == Type::integer);
    EXPECT_EQ(tape.root().isUnsignedInteger(), GetParam().type == Type::unsignedInteger);
    EXPECT_EQ(tape.root().isReal(), GetParam().type == Type::real);
}

const Classified classified[] = {
    {"Zero", "0", Type::integer},
    {"NegativeZero", "-0", Type::integer},
    {"EighteenDigits", "999999999999999999", Type::integer},
    {"NineteenDigits", "1000000000000000000", Type::integer},
    {"MaxOf64Bits", "9223372036854775807", Type::integer},
    {"BeyondMaxOf64Bits", "9223372036854775808", Type::unsignedInteger},
    {"UnsignedMaxOf64Bits", "18446744073709551615", Type::unsignedInteger},
    {"BeyondUnsignedMaxOf64Bits", "18446744073709551616", Type::real},
    {"MinOf64Bits", "-9223372036854775808", Type::integer},
    {"BelowMinOf64Bits", "-9223372036854775809", Type::real},
    {"Fraction", "1.0", Type::real},
    {"Exponent", "1e0", Type::real},
    {"NegativeZeroWithAFraction", "-0.0", Type::real},
};

INSTANTIATE_TEST_SUITE_P(Parsing, NumberType, testing::ValuesIn(classified), Support::nameOfRow);

struct ReadNumber {
    const char* name;
    std::string text;
    double expected;
};

class ExtremeNumber : public testing::TestWithParam<ReadNumber> {};

TEST_P(ExtremeNumber, IsRoundedToTheNearestDouble) {
    const Parsed json = parse(GetParam().text);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(json.view().number()), std::bit_cast<std::uint64_t>(GetParam().expected))
        << json.view().number();
}

const ReadNumber extremeNumbers[] = {
    {"BelowTheSmallestDenormal", "5e-325", 0.0},
    {"FarBelowTheSmallestDenormal", "1e-400", 0.0},
    {"NegativeFarBelowTheSmallestDenormal", "-1e-400", -0.0},
    {"SmallestDenormal", "5e-324", 0x1p-1074},
    {"LargestDenormal", "2.225073858507201e-308", 0x0.fffffffffffffp-1022},
    {"SmallestNormal", "2.2250738585072014e-308", DBL_MIN},
    {"PowerOfTenNearMax", "1e308", 1e308},
    {"Max", "1.7976931348623157e308", DBL_MAX},
    {"NegativeMax", "-1.7976931348623157e+308", -DBL_MAX},
    {"MaxAsAnInteger", "17976931348623157" + zeros(292), DBL_MAX},
    {"BetweenTwoDoubles", "9007199254740993.0", 9007199254740992.0},
    {"IntegerBeyond64Bits", "18446744073709551617", 0x1p64},
    {"NegativeIntegerBeyond64Bits", "-9223372036854775809", -0x1p63},
    {"FractionOf100000Digits", "0." + std::string(100'000, '3'), 1.0 / 3.0},
    {"ExponentThatCancelsAFraction", "0." + zeros(400) + "1e400", 0.1},
    {"ExponentBeyond32BitsAfterALongFraction", "0." + zeros(100'000) + "1e-2147483639", 0.0},
};

INSTANTIATE_TEST_SUITE_P(Parsing, ExtremeNumber, testing::ValuesIn(extremeNumbers), Support::nameOfRow);

TEST(Parsing, KeepsIntegersOf64BitsExact) {
    EXPECT_EQ(parse("9007199254740993").view().integer(), 9007199254740993);
    EXPECT_EQ(parse("9223372036854775807").view().integer(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(parse("-9223372036854775808").view().integer(), std::numeric_limits<std::int64_t>::min());
}

TEST(Parsing, DecodesEscapes) {
    EXPECT_EQ(parse(R"("\"\\\/\b\f\n\r\t\u0041\u00e9\u20ac\ud83d\ude00")").view().string(),
              "\"\\/\b\f\n\r\tA\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Parsing, KeepsEveryByteOfAString) {
    EXPECT_EQ(parse("\"a\\u0000b\x7F\xFF\xC0\x80\"").view().string(), "a\0b\x7F\xFF\xC0\x80"sv);
}

TEST(Parsing, CountsMembersWhoeverReadsThem) {
    for (const std::string number : {"1", "12345678901234567890"}) { // which not every reader reads
        const std::string text = R"({"a":)" + number + R"(,"b":{"c":[{"d":2}],"a":{}}})";
        Arena arena;
        JSONTape tape(arena);
        EXPECT_EQ(parseText(text, tape, arena).members, 5U) << text;
    }
}

TEST(Parsing, LeavesTheTextAlone) {
    const std::string text = R"({"a\n": ["\u0041", 1.5]})";
    const std::string before = text;
    EXPECT_EQ(parse(text).toText(), R"({"a\n":["A",1.5]})");
    EXPECT_EQ(text, before);
}

/// Returns whether all strings of an array lie in its text.
bool liesInItsText(const Parsed& json) {
    std::size_t inside = 0;
    json.view().forEachElement([&](JSONView element) {
        const char* const string = element.string().data();
        inside += !std::less<>()(string, json.text.data()) && std::less<>()(string, &json.text.back()) ? 1 : 0;
    });
    return inside == json.view().size();
}

TEST(Parsing, CopiesATextOnlyForItsEscapes) {
    EXPECT_TRUE(liesInItsText(parse(R"(["one", "another", "and one that is not short"])")));
    EXPECT_FALSE(liesInItsText(parse(R"(["one", "an\u006fther", "and one that is not short"])")));
}

TEST(Parsing, LeavesTheTextAsItIs) {
    const std::string text = R"(["one", "an\u006fther\n", "\\"])";
    const Parsed json = parse(text);
    EXPECT_EQ(json.text, text);
}

struct Escaped {
    const char* name;
    std::string text;
    std::string string;
};

class Escape : public testing::TestWithParam<Escaped> {};

TEST_P(Escape, StandsForItsCharacters) {
    const std::string text =
        "[\"before\",\"" + GetParam().text + "\",\"a" + GetParam().text + "b" + GetParam().text + "\",\"behind\"]";
    std::vector<std::string> strings;
    const Parsed json = parse(text);
    json.view().forEachElement([&](JSONView element) { strings.emplace_back(element.string()); });
    EXPECT_EQ(strings, (std::vector<std::string>{"before", GetParam().string,
                                                 "a" + GetParam().string + "b" + GetParam().string, "behind"}));
    EXPECT_EQ(outcomeOf(text), outcomeByDefaultFlags(text));
}

const Escaped escapes[] = {
    {"QuotationMark", "\\\"", "\""},
    {"Backslash", "\\\\", "\\"},
    {"Slash", "\\/", "/"},
    {"Backspace", "\\b", "\b"},
    {"FormFeed", "\\f", "\f"},
    {"LineFeed", "\\n", "\n"},
    {"CarriageReturn", "\\r", "\r"},
    {"Tab", "\\t", "\t"},
    {"ByteZero", "\\u0000", "\0"s},
    {"LastOfOneByte", "\\u007f", "\x7F"},
    {"FirstOfTwoBytes", "\\u0080", "\xC2\x80"},
    {"LastOfTwoBytes", "\\u07FF", "\xDF\xBF"},
    {"FirstOfThreeBytes", "\\u0800", "\xE0\xA0\x80"},
    {"LastBeforeSurrogates", "\\uD7FF", "\xED\x9F\xBF"},
    {"FirstBehindSurrogates", "\\uE000", "\xEE\x80\x80"},
    {"LastOfThreeBytes", "\\uffff", "\xEF\xBF\xBF"},
    {"FirstOfFourBytes", "\\uD800\\uDC00", "\xF0\x90\x80\x80"},
    {"LastOfFourBytes", "\\udbff\\udfff", "\xF4\x8F\xBF\xBF"},
    {"SeveralInARow", "\\\\\\\"\\u00e9", "\\\"\xC3\xA9"},
};

INSTANTIATE_TEST_SUITE_P(Parsing, Escape, testing::ValuesIn(escapes), Support::nameOfRow);

TEST(Parsing, RefusesATextThatIsTooLong) {
    EXPECT_NO_THROW(checkTextSize((std::size_t{1} << 31) - 1001));
    EXPECT_EQ(messageOf<std::length_error>([] { checkTextSize((std::size_t{1} << 31) - 1000); }),
              "A JSON text is too long.");
}

TEST(Parsing, AcceptsAnyRoot) {
    EXPECT_EQ(parse(" null ").toText(), "null");
    EXPECT_EQ(parse("true\n").toText(), "true");
    EXPECT_EQ(parse("\t\"x\"").toText(), "\"x\"");
    EXPECT_EQ(parse("\r-1").toText(), "-1");
}

TEST(Parsing, DoesNotRecurseWithTheDepthOfArrays) {
    const std::string text = repeated("[", 1'000'000) + repeated("]", 1'000'000);
    runOnSmallStack([&] { EXPECT_TRUE(parse(text).toText() == text); });
}

TEST(Parsing, DoesNotRecurseWithTheDepthOfObjects) {
    const std::string text = repeated("{\"a\":", 1'000'000) + "1" + repeated("}", 1'000'000);
    runOnSmallStack([&] { EXPECT_TRUE(parse(text).toText() == text); });
}

TEST(Parsing, DoesNotRecurseWithTheDepthOfAFaultyText) {
    const std::string text = repeated("[{\"a\":", 500'000);
    runOnSmallStack([&] { EXPECT_EQ(refusalOf(text), "JSON parsing error at offset 3000000: Invalid value."); });
}

TEST(Parsing, LeaksNothingWhenMemoryEnds) {
    const std::string text = R"({"a": [1, 2.5, "x"], "b": )" + repeated("[", 500) + repeated("]", 500) + "}";
    expectNoLeakWhenMemoryEnds([&] { parse(text); });
}

TEST(Parsing, LeaksNothingWhenMemoryEndsWithAFaultyText) {
    const std::string text = R"({"a": [1, 2.5, "x"], "b": )" + repeated("[", 500);
    expectNoLeakWhenMemoryEnds([&] { refusalOf(text); });
}

TEST(Parsing, AsksForNoMemoryForASchemaText) {
    const std::string text =
        R"({"typeid":"plant.pumps:parameter.flowRate-1.0.0","inherits":["base.measurable-3.0.0"],)"
        R"("constants":[{"id":"name","value":"Flow Rate"},{"id":"description","value":"Water that a pump moves."},)"
        R"({"id":"group","typedValue":{"typeid":"plant.group:hydraulics-1.0.0"}},)"
        R"({"id":"spec","typedValue":{"typeid":"plant.pumps:spec.flow-1.0.0"}},)"
        R"({"id":"range","typedValue":{"typeid":"plant.range:float.positive-1.0.0","value":{}}},{"id":"x","value":1.5}]})";
    if (!AllocationWatch::works()) {
        GTEST_SKIP() << "requests for memory are not seen in this build";
    }
    FaultHandler& handler = ExceptionFactoryOf<Refusal>::shared(); // which is made once
    for (const std::string& each : {text, text + " ", "[\"\\n\"," + text + "]"}) {
        const AllocationWatch watch;
        const JSON json(each, handler);
        EXPECT_EQ(watch.requests(), 0) << each;
    }
}

// Around the depth at which the reader of plain texts, which recurses, gives way to RapidJSON's iterative one.
TEST(Parsing, ReadsTextsOfAnyDepth) {
    for (std::size_t depth = 1; depth < 200; ++depth) {
        const std::string text = repeated("[{\"a\":", depth) + "1.5" + repeated("}]", depth);
        EXPECT_EQ(parse(text).toText(), text);
        EXPECT_EQ(refusalOf(text + "]"), "JSON parsing error at offset " + std::to_string(text.size()) +
                                             ": The document root must not be followed by other values.");
    }
}

TEST(Parsing, CountsTheDepthOfNestedValuesRatherThanOfTheirNumber) {
    std::string text = "[[]";
    for (int value = 0; value < 100; ++value) {
        text += ",[],{}";
    }
    text += "]";
    EXPECT_EQ(parse(text).toText(), text);
}

TEST(Parsing, FindsWhatEndsTheRunOfPlainCharactersInEveryPlace) {
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string plain(length, '\xFF');
        EXPECT_EQ(parse("\"" + plain + "\"").view().string(), plain);
        EXPECT_EQ(parse("[1,\"" + plain + "\\n~\",\"" + plain + "\"]").toText(),
                  "[1,\"" + plain + "\\n~\",\"" + plain + "\"]");
        EXPECT_EQ(refusalOf("\"" + plain + "\x1F\""), "JSON parsing error at offset " + std::to_string(length + 1) +
                                                          ": Invalid escape character in string.");
        EXPECT_EQ(refusalOf("\"" + plain), "JSON parsing error at offset " + std::to_string(length + 1) +
                                               ": Missing a closing quotation mark in string.");
    }
}

TEST(Parsing, TakesEveryByteThatNeedsNoEscapeForPlain) {
    for (int byte = 0x20; byte < 0x100; ++byte) {
        if (byte != '"' && byte != '\\') {
            const std::string string = "1234" + std::string(1, static_cast<char>(byte)) + "6789";
            EXPECT_EQ(parse("\"" + string + "\"").view().string(), string);
        }
    }
}

} // namespace Ostra
