#include "schema/AllocationWatch.h"
#include "schema/SmallStack.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"
#include "support/Tally.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>

// Texts that were written to break a reader. Each is read, resolved and exported twice: on the usual stack, and in a
// thread with 128 KiB of it. What the engine asks of memory stays in proportion to the text; what takes more time than
// in proportion takes hours here, and runs into the time limit of the test.

namespace {

using namespace std::string_literals;

using Ostra::AllocationWatch;
using Parameters::ParametersEngine;
using Support::constant;
using Support::disciplineText;
using Support::schemaText;

constexpr std::size_t million = 1'000'000;

Support::Tally& texts = Support::addTally("hostile texts");

std::string repeated(const std::string& part, std::size_t count) {
    std::string text;
    text.reserve(part.size() * count);
    for (; count > 0; --count) {
        text += part;
    }
    return text;
}

/// Returns the parts 0, 1, 2 ... with commas between them; a part is what stands before and after its number.
std::string numbered(const std::string& before, const std::string& after, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += (i == 0 ? "" : ",") + before + std::to_string(i) + after;
    }
    return text;
}

std::string deepArray() { return repeated("[", million) + repeated("]", million); }

std::string deepObject() { return repeated("{\"a\":", million) + "1" + repeated("}", million); }

/// Returns the text of a discipline, with more among its constants.
std::string disciplineWith(const std::string& constants) {
    return schemaText("x", "norvex.spec:discipline-1.0.0", constant("name", "\"Name\"") + "," + constants);
}

/// Returns the text of an integer range whose lower boundary is given as JSON.
std::string rangeFrom(const std::string& boundary) {
    return schemaText("x", "norvex.range:range.int64.bounded.static-1.0.0",
                      constant("fromBottom", "true") + "," + constant("fromTop", "false") + "," +
                          constant("bottomBoundary", boundary));
}

/// Returns the text of a floating-point range whose lower boundary is given as JSON.
std::string floatRangeFrom(const std::string& boundary) {
    return schemaText("x", "norvex.range:range.float64.bounded.static-1.0.0",
                      constant("fromBottom", "true") + "," + constant("fromTop", "false") + "," +
                          constant("bottomBoundary", boundary));
}

/// Returns the text of an integer parameter, with more among its constants.
std::string parameterWith(const std::string& constants) {
    return schemaText("x", "norvex.parameter:parameter.int64-3.0.0", constant("name", "\"Name\"") + "," + constants);
}

std::string referenceParameterOf(const std::string& spec) {
    return schemaText("x", "norvex.parameter:parameter.reference-2.0.0",
                      constant("name", "\"Name\"") + R"(,{"id":"spec","typedValue":)" + spec + "}");
}

std::string enumerationOf(const std::string& properties) {
    return R"({"typeid":"x","inherits":["Enum"],"properties":[)" + properties + "]}";
}

std::string stringRangeOf(const std::string& values) {
    return schemaText("x", "norvex.range:range.string.set.static-1.0.0", constant("allowedValues", "[" + values + "]"));
}

} // namespace

struct HostileInput {
    const char* name;
    std::string (*text)();
    std::string message; // none when the text is accepted
};

namespace {

/// Registers, resolves and exports, and returns the message of a refusal, or nothing.
std::string outcomeOf(const std::string& text) {
    texts.add(1);
    ParametersEngine engine;
    const AllocationWatch watch;
    try {
        engine.registerSchema(text);
        engine.resolveSchemas();
    } catch (const Parameters::ValidationException& exception) {
        EXPECT_FALSE(engine.isRegistered("x"));
        return exception.what();
    }
    // A text of a million brackets becomes a million values of 16 bytes, in tables that were doubled as they grew.
    EXPECT_LE(watch.bytes(), 100 * text.size() + 100'000);
    EXPECT_NE(engine.getSchema("x"), "");
    return {};
}

/// Returns the message of the first error that is told of a text, or nothing.
std::string firstErrorIn(const std::string& text) {
    const std::map<std::string, std::string> batch{{"t", text}};
    const AllocationWatch watch;
    std::string message;
    for (const Parameters::Fault& fault : ParametersEngine().findFaults(batch)) {
        EXPECT_LE(fault.place().begin, fault.place().end);
        EXPECT_LE(fault.place().end, text.size());
        if (fault.isError()) {
            message = fault.message();
            break;
        }
    }
    EXPECT_LE(watch.bytes(), 400 * text.size() + 100'000); // a fault says more than the bytes that are wrong
    return message;
}

class HostileText : public testing::TestWithParam<HostileInput> {};

TEST_P(HostileText, GetsAClearAnswer) { EXPECT_EQ(outcomeOf(GetParam().text()), GetParam().message); }

TEST_P(HostileText, GetsAClearAnswerOnASmallStack) {
    const std::string text = GetParam().text();
    std::string message = "(none)";
    Ostra::runOnSmallStack([&] { message = outcomeOf(text); });
    EXPECT_EQ(message, GetParam().message);
}

std::string parsingErrorAt(std::size_t offset, const std::string& reason) {
    return "JSON parsing error at offset " + std::to_string(offset) + ": " + reason;
}

const HostileInput deepTexts[] = {
    {"IgnoredMember", [] { return R"({"other":)" + deepArray() + "," + disciplineText("x").substr(1); }, ""},
    {"IgnoredMemberOfObjects", [] { return R"({"other":)" + deepObject() + "," + disciplineText("x").substr(1); }, ""},
    {"IgnoredConstant", [] { return disciplineWith(constant("other", deepArray())); }, ""},
    {"IgnoredMemberOfAConstant",
     [] { return disciplineWith(R"({"id":"other","value":1,"more":)" + deepObject() + "}"); }, ""},
    {"IgnoredProperty",
     [] {
         return disciplineText("x").insert(disciplineText("x").size() - 1,
                                           R"(,"properties":[{"id":"a","value":)" + deepArray() + "}]");
     },
     ""},
    {"Root", deepArray, "Schema must specify a typeid string."},
    {"Typeid", [] { return R"({"typeid":)" + deepArray() + "}"; }, "Schema must specify a typeid string."},
    {"Base", [] { return R"({"typeid":"x","inherits":)" + deepArray() + "}"; }, "Expected an array of strings."},
    {"Constants", [] { return R"({"typeid":"x","inherits":["a"],"constants":)" + deepArray() + "}"; },
     "Expected an object describing a property."},
    {"ConstantValue", [] { return schemaText("x", "norvex.spec:discipline-1.0.0", constant("name", deepArray())); },
     "Expected a non-empty string."},
    {"ConstantId", [] { return disciplineWith(R"({"id":)" + deepObject() + "}"); },
     "A property's id attribute must be a string."},
    {"TypedValue", [] { return parameterWith(R"({"id":"group","typedValue":)" + deepArray() + "}"); },
     "A typedValue must be an object."},
    {"TypeidOfATypedValue",
     [] { return parameterWith(R"({"id":"group","typedValue":{"typeid":)" + deepObject() + "}}"); },
     "A typeid attribute in a typedValue object may not be empty."},
    {"InlineRange",
     [] {
         return parameterWith(
             R"({"id":"range","typedValue":{"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":)" +
             deepObject() + "}}");
     },
     "Inline value override in range constant typedValue must specify a Boolean value for constant fromBottom."},
    {"InlineValueOfARegisteredRange",
     [] { return parameterWith(R"({"id":"range","typedValue":{"typeid":"r","value":)" + deepObject() + "}}"); },
     "Inline value override for range schema r in range constant typedValue, if present, must be an empty object."},
    {"CategoryOfAFamilyType",
     [] {
         return referenceParameterOf(R"({"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":)" + deepObject() +
                                     "}");
     },
     "Inline typedValue override in spec constant typedValue must specify an object with a typeid string attribute for "
     "constant category."},
    {"AllowedValues", [] { return stringRangeOf(deepArray()); }, "Expected an array of strings."},
    {"Property", [] { return enumerationOf(R"({"id":"a","value":)" + deepArray() + "}"); },
     "Value a in enumeration schema x must specify an integer value."},
    {"UnterminatedArray", [] { return repeated("[", million); }, parsingErrorAt(million, "Invalid value.")},
    {"UnterminatedObject", [] { return repeated("{\"a\":", million); }, parsingErrorAt(5 * million, "Invalid value.")},
    {"UnterminatedArrayInASchema", [] { return R"({"typeid":"x","other":)" + repeated("[1,", million); },
     parsingErrorAt(22 + 3 * million, "Invalid value.")},
    {"WronglyTerminated", [] { return repeated("[", million) + "}"; }, parsingErrorAt(million, "Invalid value.")},
    {"ClosingBrackets", [] { return repeated("]", million); }, parsingErrorAt(0, "Invalid value.")},
};

INSTANTIATE_TEST_SUITE_P(Deep, HostileText, testing::ValuesIn(deepTexts), Support::nameOfRow);

const HostileInput longTexts[] = {
    {"MillionConstants", [] { return disciplineWith(numbered(R"({"id":"c)", R"(","value":0})", million)); }, ""},
    {"HundredThousandPropertiesOfAnEnumeration",
     [] { return enumerationOf(numbered(R"({"id":"p)", R"(","value":0})", 100'000)); }, ""},
    {"SameConstantAMillionTimes", [] { return disciplineWith(repeated(R"({"id":"a","value":0},)", million) + "0"); },
     "Item a in constants array must be defined only once."},
    {"SamePropertyAMillionTimes", [] { return enumerationOf(repeated(R"({"id":"a","value":0},)", million) + "0"); },
     "Item a in properties array must be defined only once."},
    {"SameMemberAMillionTimes",
     [] { return "{" + repeated(R"("typeid":"x",)", million) + disciplineText("y").substr(1); }, ""},
    {"MillionMembersBeforeTheTypeid",
     [] { return "{" + numbered("\"", "\":0", million) + "," + disciplineText("x").substr(1); }, ""},
    {"MillionAllowedValues", [] { return stringRangeOf(numbered("\"", "\"", million)); }, ""},
    {"SameAllowedValueAMillionTimes", [] { return stringRangeOf(repeated("\"a\",", million) + "\"a\""); },
     "Expected an array of unique strings."},
    {"MillionMembersOfAnInlineRange",
     [] {
         return parameterWith(
             R"({"id":"range","typedValue":{"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{)" +
             numbered("\"", "\":0", million) + "}}}");
     },
     "Inline value override in range constant typedValue must specify a Boolean value for constant fromBottom."},
    {"MillionBases", [] { return R"({"typeid":"x","inherits":[)" + numbered("\"", "\"", million) + "]}"; },
     "Inheritance clause must specify exactly one base schema."},
    {"TenMillionBlanks", [] { return disciplineText("x") + std::string(10 * million, ' '); }, ""},
    {"StringOfTenMillionEscapes",
     [] {
         return disciplineText("x", "").insert(disciplineText("x", "").size() - 4, repeated("\\u0000", 10 * million));
     },
     ""},
    {"UnterminatedStringOfTenMillionBytes", [] { return "\"" + std::string(10 * million, 'a'); },
     parsingErrorAt(10 * million + 1, "Missing a closing quotation mark in string.")},
};

INSTANTIATE_TEST_SUITE_P(Long, HostileText, testing::ValuesIn(longTexts), Support::nameOfRow);

const HostileInput brokenTexts[] = {
    {"InvalidUtf8", [] { return disciplineText("x", "\xff\xfe\xc3(\xe2\x82\xf0\x9f\x80\xc0\x80\xed\xa0\x80"); }, ""},
    {"LoneHighSurrogate", [] { return R"({"typeid":"\ud800"})"s; },
     parsingErrorAt(11, "The surrogate pair in string is invalid.")},
    {"LoneLowSurrogate",
     [] { return schemaText("x", "norvex.spec:discipline-1.0.0", constant("name", R"("\udc00")")); }, ""},
    {"TwoHighSurrogates", [] { return R"({"typeid":"\ud800\ud800"})"s; },
     parsingErrorAt(11, "The surrogate pair in string is invalid.")},
    {"ByteZeroInTheText", [] { return "{\0}"s; }, parsingErrorAt(1, "Missing a name for object member.")},
    {"ByteZeroInAString", [] { return "{\"typeid\":\"a\0b\"}"s; },
     parsingErrorAt(12, "Missing a closing quotation mark in string.")},
    {"ByteZeroBehindTheText", [] { return disciplineText("x") + "\0"s; },
     parsingErrorAt(disciplineText("x").size(), "The document root must not be followed by other values.")},
    {"MillionBytesZero", [] { return std::string(million, '\0'); }, parsingErrorAt(0, "Invalid value.")},
    {"ByteOrderMark", [] { return "\xEF\xBB\xBF" + disciplineText("x"); }, parsingErrorAt(0, "Invalid value.")},
    {"Utf16", [] { return "\xFF\xFE{\0}\0"s; }, parsingErrorAt(0, "Invalid value.")},
    {"IntegerOf100000Digits", [] { return rangeFrom("1" + std::string(99'999, '0')); },
     parsingErrorAt(197, "Number too big to be stored in double.")},
    {"FractionOf100000Digits", [] { return floatRangeFrom("0." + std::string(100'000, '3')); }, ""},
    {"ExponentOf100000Digits", [] { return floatRangeFrom("1e-" + std::string(100'000, '9')); }, ""},
    {"IntegerBeyond64Bits", [] { return rangeFrom("9223372036854775808"); }, "Expected an integer."},
    {"NumberBeyondAnyDouble", [] { return floatRangeFrom("1e400"); },
     parsingErrorAt(199, "Number too big to be stored in double.")},
    {"NumberBelowAnyDouble", [] { return floatRangeFrom("1e-400"); }, ""},
};

INSTANTIATE_TEST_SUITE_P(Broken, HostileText, testing::ValuesIn(brokenTexts), Support::nameOfRow);

// A fault is told with its place, so a text that is nothing but faults takes hundreds of times its bytes: the long
// texts of above are not read here.
class HostileFaults : public testing::TestWithParam<HostileInput> {};

TEST_P(HostileFaults, BeginWithTheOneThatIsThrownOnASmallStackToo) {
    const std::string text = GetParam().text();
    std::string message = "(none)";
    Ostra::runOnSmallStack([&] { message = firstErrorIn(text); });
    EXPECT_EQ(message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Deep, HostileFaults, testing::ValuesIn(deepTexts), Support::nameOfRow);
INSTANTIATE_TEST_SUITE_P(Broken, HostileFaults, testing::ValuesIn(brokenTexts), Support::nameOfRow);

TEST(HostileFaults, OfTenThousandsAreToldInProportion) {
    const std::string text = stringRangeOf(repeated("\"a\",", 20'000) + "\"a\"");
    const AllocationWatch watch;
    EXPECT_EQ(ParametersEngine().findFaults({{"t", text}}).size(), 20'000U);
    EXPECT_LE(watch.bytes(), 1000 * text.size());
}

TEST(HostileTexts, KeepInvalidUtf8ByteForByte) {
    const std::string name = "\xff\xfe\xc3(\xe2\x82\xf0\x9f\x80\xc0\x80\xed\xa0\x80";
    ParametersEngine engine;
    engine.registerSchema(disciplineText("x", name));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDiscipline("x").getName(), name);
}

/// Reads a name of 256 MiB, and returns how long it is in the object and in the exported schema.
std::pair<std::size_t, std::size_t> sizesOfAHugeName() {
    const std::size_t size = std::size_t{256} << 20;
    ParametersEngine engine;
    {
        std::string text = disciplineText("x", "N");
        text.insert(text.find("\"N\"") + 1, std::string(size - 1, 'n'));
        engine.registerSchema(text);
    }
    engine.resolveSchemas();
    const std::size_t nameSize = engine.getDiscipline("x").getName().size();
    return {nameSize, engine.getSchema("x").size()};
}

TEST(HostileTexts, MayHaveAStringOf256MiB) {
    std::pair<std::size_t, std::size_t> sizes;
    Ostra::runOnSmallStack([&] { sizes = sizesOfAHugeName(); });
    const std::string_view around =
        R"({"typeid":"x","inherits":["norvex.spec:discipline-1.0.0"],"constants":[{"id":"name","value":""}]})";
    EXPECT_EQ(sizes.first, std::size_t{256} << 20);
    EXPECT_EQ(sizes.second, sizes.first + around.size());
}

TEST(HostileTexts, MayIgnoreAStringOf256MiB) {
    std::string text = R"({"other":""})";
    text.insert(10, std::string(std::size_t{256} << 20, 'n'));
    text.replace(text.size() - 1, 1, "," + disciplineText("x").substr(1));
    EXPECT_EQ(outcomeOf(text), "");
}

} // namespace
