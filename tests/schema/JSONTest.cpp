#include "schema/JSON.h"
#include "schema/ExceptionFactory.h"

#include "AllocationWatch.h"
#include "schema/ExceptionFactory.h"
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

/// The exception of a library that reads documents.
struct Refusal : std::logic_error {
    using std::logic_error::logic_error;
};

JSON parse(std::string_view text) { return JSON(text, ExceptionFactoryOf<Refusal>::shared()); }

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
    const JSON json = parse(GetParam().text);
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
    const JSON json = parse(R"({"a": 1, "b": 2})");
    EXPECT_EQ(json.view().member("b")->integer(), 2);
    EXPECT_TRUE(json.view().hasMember("a"));
}

TEST(JSONView, FindsNoMemberOfAnotherName) {
    const JSON json = parse(R"({"name": 1})");
    for (const std::string_view other : {""sv, "nam"sv, "names"sv, "Name"sv, "name\0"sv}) {
        EXPECT_FALSE(json.view().hasMember(other)) << other;
        EXPECT_FALSE(json.view().member(other)) << other;
    }
}

TEST(JSONView, FindsTheFirstOfTwoMembersOfOneName) {
    const JSON json = parse(R"({"x": 0, "a": 1, "a": 2})");
    EXPECT_EQ(json.view().member("a")->integer(), 1);
    EXPECT_EQ(json.view().size(), 3U);
}

TEST(JSONView, ComparesNamesToTheLastByte) {
    const JSON json = parse(R"({"": 0, "a": 1, "a\u0000": 2, "a\u0000b": 3})");
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
    const JSON json = parse(R"({"b": 1, "a": 2, "b": 3})");
    std::vector<std::pair<std::string, std::int64_t>> members;
    json.view().forEachMember(
        [&](std::string_view name, JSONView value) { members.emplace_back(name, value.integer()); });
    EXPECT_THAT(members, ElementsAre(Pair("b", 1), Pair("a", 2), Pair("b", 3)));
}

TEST(JSONView, VisitsElementsInOrder) {
    const JSON json = parse(R"(["b", "a", "b"])");
    std::vector<std::string> elements;
    json.view().forEachElement([&](JSONView element) { elements.emplace_back(element.string()); });
    EXPECT_THAT(elements, ElementsAre("b", "a", "b"));
    EXPECT_EQ(json.view().size(), 3U);
}

TEST(JSONView, FailsWithTheExceptionOfTheReadersLibrary) {
    const JSON json = parse(R"({"a": [1]})");
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
        const JSON json = parse(R"({"a": "b", "c": )"s + value + "}");
        EXPECT_EQ(refusalOfMap(json.view()), "Expected a map with string keys and values, but value was not a string.")
            << value;
    }
}

TEST(StringMap, RefusesAValueThatIsNotAStringInASecondMemberOfOneName) {
    const JSON json = parse(R"({"a": "b", "a": 1})");
    EXPECT_EQ(refusalOfMap(json.view()), "Expected a map with string keys and values, but value was not a string.");
}

/// Objects with names that no text can give them: RapidJSON lets a program change a name to any value.
class StringMapOfUnnamedMembers : public testing::Test {
protected:
    StringMapOfUnnamedMembers() : object_(rapidjson::kObjectType) {
        object_.AddMember("first", "string", pool_);
        object_.AddMember("second", 2, pool_);
    }

    JSONView view() const { return {object_, ExceptionFactoryOf<Refusal>::shared()}; }

    JSONPool pool_;
    JSONValue object_;
};

TEST_F(StringMapOfUnnamedMembers, RefusesANameThatIsNotAString) {
    object_.MemberBegin()->name.SetInt(1);
    EXPECT_EQ(refusalOfMap(view()), "Expected a map with string keys and values, but key was not a string.");
}

TEST_F(StringMapOfUnnamedMembers, LooksAtTheNameBeforeTheValue) {
    object_.MemberBegin()[1].name.SetInt(1);
    EXPECT_EQ(refusalOfMap(view()), "Expected a map with string keys and values, but key was not a string.");
}

TEST_F(StringMapOfUnnamedMembers, LooksAtMembersInDocumentOrder) {
    object_.MemberBegin()->value.SetNull();
    object_.MemberBegin()[1].name.SetInt(1);
    EXPECT_EQ(refusalOfMap(view()), "Expected a map with string keys and values, but value was not a string.");
}

TEST(Writing, PutsNoBlankAnywhere) {
    EXPECT_EQ(
        parse("\n{ \"a\" : [ 1 , true , false , null , { } , [ ] ] ,\t\"b c\" : { \"d\" : \"e f\" } }\r").toText(),
        R"({"a":[1,true,false,null,{},[]],"b c":{"d":"e f"}})");
}

TEST(Writing, StartsAtAnyValueOfADocument) {
    const JSON json = parse(R"({"a": [1, {"b": "x"}]})");
    EXPECT_EQ(json.view().member("a")->toText(), R"([1,{"b":"x"}])");
}

TEST(Writing, EscapesNames) { EXPECT_EQ(parse(R"({"a\"\u0000": 1})").toText(), R"({"a\"\u0000":1})"); }

TEST(Writing, KeepsNumbersOfEveryType) {
    const char* const text = "[0,-1,2147483648,-2147483649,9223372036854775807,-9223372036854775808,"
                             "9223372036854775808,18446744073709551615,1.0,-0.0,0.1]";
    EXPECT_EQ(parse(text).toText(), text);
}

TEST(Writing, RefusesAStringThatIsTooLongBeforeReadingIt) {
    const JSONValue value("", 715'827'883U);
    EXPECT_EQ(messageOf<std::length_error>([&] { JSONView(value, ExceptionFactoryOf<Refusal>::shared()).toText(); }),
              "A string is too long to be written as JSON.");
}

TEST(Writing, LeaksNothingWhenMemoryEnds) {
    const JSON json = parse("[" + std::string(200, '[') + "\"" + std::string(20'000, 'x') + "\", 1.5, {\"a\": null}" +
                            std::string(200, ']') + "]");
    expectNoLeakWhenMemoryEnds([&] { json.toText(); });
}

} // namespace Ostra
