#include "schema/JSON.h"
#include "schema/ExceptionFactory.h"

#include "AllocationWatch.h"
#include "Parsed.h"
#include "schema/Messages.h"
#include "support/Messages.h"
#include "support/RowNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Ostra {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Support::messageOf;
using testing::ElementsAre;
using testing::Pair;
using testing::ThrowsMessage;

std::string refusalOfMap(const JSONView& view) {
    try {
        view.toStringMap();
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "accepted";
}

} // namespace

struct Typed {
    const char* name;
    const char* text;
    bool object;
    bool array;
    bool string;
    bool boolean;
    bool integer;
    bool number;
};

class TypeOf : public testing::TestWithParam<Typed> {};

TEST_P(TypeOf, IsWhatTheTextSays) {
    const Parsed json = parse(GetParam().text);
    EXPECT_EQ(json.view().isObject(), GetParam().object);
    EXPECT_EQ(json.view().isArray(), GetParam().array);
    EXPECT_EQ(json.view().isString(), GetParam().string);
    EXPECT_EQ(json.view().isBoolean(), GetParam().boolean);
    EXPECT_EQ(json.view().isInteger(), GetParam().integer);
    EXPECT_EQ(json.view().isNumber(), GetParam().number);
}

const Typed typedTexts[] = {
    {"Object", "{}", true, false, false, false, false, false},
    {"Array", "[]", false, true, false, false, false, false},
    {"String", "\"\"", false, false, true, false, false, false},
    {"True", "true", false, false, false, true, false, false},
    {"False", "false", false, false, false, true, false, false},
    {"Null", "null", false, false, false, false, false, false},
    {"Integer", "-1", false, false, false, false, true, true},
    {"MaxOf64Bits", "9223372036854775807", false, false, false, false, true, true},
    {"BeyondMaxOf64Bits", "9223372036854775808", false, false, false, false, false, true},
    {"Fraction", "1.0", false, false, false, false, false, true},
    {"Exponent", "1e2", false, false, false, false, false, true},
};

INSTANTIATE_TEST_SUITE_P(JSONView, TypeOf, testing::ValuesIn(typedTexts), Support::nameOfRow);

TEST(JSONView, ReadsBooleans) {
    EXPECT_TRUE(parse("true").view().boolean());
    EXPECT_FALSE(parse("false").view().boolean());
}

TEST(JSONView, ReadsAnyNumberAsADouble) {
    EXPECT_EQ(parse("-3").view().number(), -3.0);
    EXPECT_EQ(parse("2.5").view().number(), 2.5);
    EXPECT_EQ(parse("4294967295").view().number(), 4294967295.0);
    EXPECT_EQ(parse("18446744073709551615").view().number(), 0x1p64);
    EXPECT_EQ(parse("9007199254740993").view().number(), 9007199254740992.0);
}

TEST(JSONView, FindsAMemberByName) {
    const Parsed json = parse(R"({"a": 1, "b": 2})");
    EXPECT_EQ(json.view().member("b")->integer(), 2);
    EXPECT_TRUE(json.view().hasMember("a"));
}

TEST(JSONView, FindsNoMemberOfAnotherName) {
    const Parsed json = parse(R"({"name": 1})");
    for (const std::string_view other : {""sv, "nam"sv, "names"sv, "Name"sv, "name\0"sv}) {
        EXPECT_FALSE(json.view().hasMember(other)) << other;
        EXPECT_FALSE(json.view().member(other)) << other;
    }
}

TEST(JSONView, FindsTheFirstOfTwoMembersOfOneName) {
    const Parsed json = parse(R"({"x": 0, "a": 1, "a": 2})");
    EXPECT_EQ(json.view().member("a")->integer(), 1);
    EXPECT_EQ(json.view().size(), 3U);
}

TEST(JSONView, ComparesNamesToTheLastByte) {
    const Parsed json = parse(R"({"": 0, "a": 1, "a\u0000": 2, "a\u0000b": 3})");
    EXPECT_EQ(json.view().member("")->integer(), 0);
    EXPECT_EQ(json.view().member("a")->integer(), 1);
    EXPECT_EQ(json.view().member("a\0"sv)->integer(), 2);
    EXPECT_EQ(json.view().member("a\0b"sv)->integer(), 3);
}

TEST(JSONView, FindsNoMemberInAValueThatIsNoObject) {
    for (const char* text : {"[\"a\"]", "\"a\"", "1", "null", "true"}) {
        EXPECT_FALSE(parse(text).view().hasMember("a")) << text;
    }
}

TEST(JSONView, VisitsMembersInDocumentOrder) {
    const Parsed json = parse(R"({"b": 1, "a": 2, "b": 3})");
    std::vector<std::pair<std::string, std::int64_t>> members;
    json.view().forEachMember(
        [&](std::string_view name, JSONView value) { members.emplace_back(name, value.integer()); });
    EXPECT_THAT(members, ElementsAre(Pair("b", 1), Pair("a", 2), Pair("b", 3)));
}

TEST(JSONView, VisitsElementsInOrder) {
    const Parsed json = parse(R"(["b", "a", "b"])");
    std::vector<std::string> elements;
    json.view().forEachElement([&](JSONView element) { elements.emplace_back(element.string()); });
    EXPECT_THAT(elements, ElementsAre("b", "a", "b"));
    EXPECT_EQ(json.view().size(), 3U);
}

TEST(JSONView, FailsWithTheExceptionOfTheReadersLibrary) {
    const Parsed json = parse(R"({"a": [1]})");
    EXPECT_THAT([&] { static_cast<void>(json.view().member("a")->fail(messages("array-expected"))); },
                ThrowsMessage<Refusal>("Expected an array."));
}

TEST(StringMap, HoldsEachMember) {
    const auto map = parse(R"({"b": "x", "a": "", "n\u0000": "\u0000y"})").view().toStringMap();
    EXPECT_THAT(map, ElementsAre(Pair("a", ""), Pair("b", "x"), Pair("n\0"s, "\0y"s)));
}

TEST(StringMap, IsEmptyForAnObjectWithoutMembers) { EXPECT_TRUE(parse("{}").view().toStringMap().empty()); }

TEST(StringMap, HoldsTheFirstOfTwoMembersOfOneName) {
    EXPECT_THAT(parse(R"({"a": "1", "a": "2"})").view().toStringMap(), ElementsAre(Pair("a", "1")));
}

TEST(StringMap, RefusesAValueThatIsNotAString) {
    for (const char* value : {"1", "null", "true", "{}", "[\"x\"]", "1.5"}) {
        const Parsed json = parse(R"({"a": "b", "c": )"s + value + "}");
        EXPECT_EQ(refusalOfMap(json.view()), "Expected a map with string keys and values, but value was not a string.")
            << value;
    }
}

TEST(StringMap, RefusesAValueThatIsNotAStringInASecondMemberOfOneName) {
    const Parsed json = parse(R"({"a": "b", "a": 1})");
    EXPECT_EQ(refusalOfMap(json.view()), "Expected a map with string keys and values, but value was not a string.");
}

/// Objects with names that no text can give them.
class StringMapOfUnnamedMembers : public testing::Test {
protected:
    std::string refusal() {
        tape_.end(2);
        return refusalOfMap({tape_.root(), ExceptionFactoryOf<Refusal>::shared()});
    }

    Arena arena_;
    JSONTape tape_{arena_};
};

TEST_F(StringMapOfUnnamedMembers, RefusesANameThatIsNotAString) {
    tape_.beginObject();
    tape_.integer(1);
    tape_.string("x", 1);
    tape_.string("y", 1);
    tape_.string("z", 1);
    EXPECT_EQ(refusal(), "Expected a map with string keys and values, but key was not a string.");
}

TEST_F(StringMapOfUnnamedMembers, LooksAtTheNameBeforeTheValue) {
    tape_.beginObject();
    tape_.string("x", 1);
    tape_.string("y", 1);
    tape_.integer(1);
    tape_.integer(2);
    EXPECT_EQ(refusal(), "Expected a map with string keys and values, but key was not a string.");
}

TEST_F(StringMapOfUnnamedMembers, LooksAtMembersInDocumentOrder) {
    tape_.beginObject();
    tape_.string("x", 1);
    tape_.null();
    tape_.integer(1);
    tape_.string("y", 1);
    EXPECT_EQ(refusal(), "Expected a map with string keys and values, but value was not a string.");
}

TEST(Writing, PutsNoBlankAnywhere) {
    EXPECT_EQ(
        parse("\n{ \"a\" : [ 1 , true , false , null , { } , [ ] ] ,\t\"b c\" : { \"d\" : \"e f\" } }\r").toText(),
        R"({"a":[1,true,false,null,{},[]],"b c":{"d":"e f"}})");
}

TEST(Writing, StartsAtAnyValueOfADocument) {
    const Parsed json = parse(R"({"a": [1, {"b": "x"}]})");
    EXPECT_EQ(json.view().member("a")->toText(), R"([1,{"b":"x"}])");
}

TEST(Writing, EscapesNames) { EXPECT_EQ(parse(R"({"a\"\u0000": 1})").toText(), R"({"a\"\u0000":1})"); }

TEST(Writing, KeepsNumbersOfEveryType) {
    const char* const text = "[0,-1,2147483648,-2147483649,9223372036854775807,-9223372036854775808,"
                             "9223372036854775808,18446744073709551615,1.0,-0.0,0.1]";
    EXPECT_EQ(parse(text).toText(), text);
}

TEST(Writing, RefusesAStringThatIsTooLongBeforeReadingIt) {
    Arena arena;
    JSONTape tape(arena);
    tape.string("", 715'827'883U);
    const JSONView value(tape.root(), ExceptionFactoryOf<Refusal>::shared());
    EXPECT_EQ(messageOf<std::length_error>([&] { value.toText(); }), "A string is too long to be written as JSON.");
}

TEST(Writing, LeaksNothingWhenMemoryEnds) {
    const Parsed json = parse("[" + std::string(200, '[') + "\"" + std::string(20'000, 'x') + "\", 1.5, {\"a\": null}" +
                              std::string(200, ']') + "]");
    expectNoLeakWhenMemoryEnds([&] { json.toText(); });
}

} // namespace Ostra
