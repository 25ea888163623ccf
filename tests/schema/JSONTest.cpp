#include "schema/JSON.h"

#include "AllocationWatch.h"
#include "SmallStack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <ostream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Ostra {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::Pair;
using testing::ThrowsMessage;

/// The exception of a library that reads documents.
struct Refusal : std::logic_error {
    using std::logic_error::logic_error;
};

JSON parse(std::string_view text) { return JSON::parse(text, ExceptionFactoryOf<Refusal>::shared()); }

template <class... Elements>
JSON arrayOf(const JSONBuilder& json, Elements&&... elements) {
    JSON moved[] = {std::forward<Elements>(elements)...};
    return json.array({std::make_move_iterator(std::begin(moved)), std::make_move_iterator(std::end(moved))});
}

std::string refusalOfMap(const JSONView& view) {
    try {
        view.toStringMap();
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "accepted";
}

double randomFinite(std::mt19937_64& random) {
    double value = 0;
    do {
        value = std::bit_cast<double>(random());
    } while (!std::isfinite(value));
    return value;
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

void PrintTo(const Typed& row, std::ostream* stream) { *stream << row.name; }

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

INSTANTIATE_TEST_SUITE_P(JSONView, TypeOf, testing::ValuesIn(typedTexts),
                         [](const auto& test) { return test.param.name; });

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
    EXPECT_EQ(json.view().member("b").value().integer(), 2);
    EXPECT_TRUE(json.view().hasMember("a"));
}

TEST(JSONView, FindsNoMemberOfAnotherName) {
    const JSON json = parse(R"({"name": 1})");
    for (const std::string_view other : {""sv, "nam"sv, "names"sv, "Name"sv, "name\0"sv}) {
        EXPECT_FALSE(json.view().hasMember(other)) << other;
        EXPECT_FALSE(json.view().member(other).has_value()) << other;
    }
}

TEST(JSONView, FindsTheFirstOfTwoMembersOfOneName) {
    const JSON json = parse(R"({"x": 0, "a": 1, "a": 2})");
    EXPECT_EQ(json.view().member("a").value().integer(), 1);
    EXPECT_EQ(json.view().size(), 3U);
}

TEST(JSONView, ComparesNamesToTheLastByte) {
    const JSON json = parse(R"({"": 0, "a": 1, "a\u0000": 2, "a\u0000b": 3})");
    EXPECT_EQ(json.view().member("").value().integer(), 0);
    EXPECT_EQ(json.view().member("a").value().integer(), 1);
    EXPECT_EQ(json.view().member("a\0"sv).value().integer(), 2);
    EXPECT_EQ(json.view().member("a\0b"sv).value().integer(), 3);
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

TEST(JSONView, StaysValidInADocumentThatMoves) {
    JSON json = parse(R"({"a": {"b": "a string that is not short"}})");
    const JSONView inner = json.view().member("a").value();
    const JSON moved = std::move(json);
    EXPECT_EQ(inner.member("b").value().string(), "a string that is not short");
    EXPECT_EQ(moved.toText(), R"({"a":{"b":"a string that is not short"}})");
}

TEST(JSONView, FailsWithTheExceptionOfTheReadersLibrary) {
    const JSON json = parse(R"({"a": [1]})");
    EXPECT_THAT([&] { json.view().member("a")->fail("wrong"); }, ThrowsMessage<Refusal>("wrong"));
}

TEST(JSONView, FailsWithALogicErrorForABuiltValue) {
    const JSON json = JSONBuilder().integer(1);
    EXPECT_THAT([&] { json.view().fail("wrong"); }, ThrowsMessage<std::logic_error>("wrong"));
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

    JSONView view() const { return {object_, ExceptionFactoryOf<Refusal>::shared().get()}; }

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
    EXPECT_EQ(json.view().member("a").value().toText(), R"([1,{"b":"x"}])");
}

TEST(Writing, EscapesWhatAStringMustNotHold) {
    EXPECT_EQ(JSONBuilder().string("\"\\/\b\f\n\r\t\0\x1F\x7F"sv).toText(),
              "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0000\\u001F\x7F\"");
}

TEST(Writing, LeavesOtherBytesAsTheyAre) {
    EXPECT_EQ(JSONBuilder().string("\xC3\xA9\xE2\x82\xAC\xFF\x80").toText(), "\"\xC3\xA9\xE2\x82\xAC\xFF\x80\"");
}

TEST(Writing, EscapesNames) { EXPECT_EQ(parse(R"({"a\"\u0000": 1})").toText(), R"({"a\"\u0000":1})"); }

TEST(Writing, WritesIntegersInDecimal) {
    const char* const text = "[0,-1,2147483648,-2147483649,9223372036854775807,-9223372036854775808,"
                             "9223372036854775808,18446744073709551615]";
    EXPECT_EQ(parse(text).toText(), text);
}

TEST(Writing, WritesDoublesShort) {
    const JSONBuilder json;
    EXPECT_EQ(json.number(1).toText(), "1.0");
    EXPECT_EQ(json.number(-0.0).toText(), "-0.0");
    EXPECT_EQ(json.number(0.1).toText(), "0.1");
    EXPECT_EQ(json.number(1e20).toText(), "100000000000000000000.0");
    EXPECT_EQ(json.number(1e21).toText(), "1e21");
    EXPECT_EQ(json.number(1.5e-7).toText(), "1.5e-7");
    EXPECT_EQ(json.number(0x1p-1074).toText(), "5e-324");
    EXPECT_EQ(json.number(std::numeric_limits<double>::max()).toText(), "1.7976931348623157e308");
}

TEST(Writing, WritesDoublesThatReadBackAsTheSame) {
    constexpr std::uint64_t seed = 4711;
    std::mt19937_64 random(seed);
    const JSONBuilder builder;
    JSON array = builder.array();
    std::vector<double> doubles;
    for (int count = 0; count < 100'000; ++count) {
        doubles.push_back(randomFinite(random));
        array.append(builder.number(doubles.back()));
    }
    const JSON read = parse(array.toText());
    std::size_t index = 0;
    read.view().forEachElement([&](JSONView element) {
        const double expected = doubles.at(index++);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(element.number()), std::bit_cast<std::uint64_t>(expected))
            << expected << " (seed " << seed << ")";
    });
    EXPECT_EQ(index, doubles.size());
}

TEST(Writing, RefusesNumbersThatAreNotFinite) {
    const JSONBuilder json;
    for (const double value : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(json.number(value).toText(), std::domain_error) << value;
        EXPECT_THROW(arrayOf(json, json.integer(1), json.number(value)).toText(), std::domain_error) << value;
    }
}

TEST(Writing, RefusesAStringThatIsTooLongBeforeReadingIt) {
    const JSONValue value("", 715'827'883U);
    EXPECT_THROW(JSONView(value, nullptr).toText(), std::length_error);
}

TEST(Writing, DoesNotRecurseWithTheDepthOfTheValue) {
    runOnSmallStack([] {
        const JSONBuilder json;
        JSON value = json.integer(1);
        std::string expected = "1";
        for (int depth = 0; depth < 100'000; ++depth) {
            JSON object = json.object();
            object.add("a", std::move(value));
            value = arrayOf(json, std::move(object));
        }
        const std::string text = value.toText();
        EXPECT_EQ(text.size(), 100'000U * (R"([{"a":}])"sv.size()) + 1);
        EXPECT_EQ(text.substr(0, 12), R"([{"a":[{"a":)");
        EXPECT_TRUE(text.ends_with("}]}]"));
    });
}

TEST(Writing, LeaksNothingWhenMemoryEnds) {
    const JSON json = parse("[" + std::string(200, '[') + "\"" + std::string(2000, 'x') + "\", 1.5, {\"a\": null}" +
                            std::string(200, ']') + "]");
    expectNoLeakWhenMemoryEnds([&] { json.toText(); });
}

TEST(JSONBuilder, BuildsScalars) {
    const JSONBuilder json;
    EXPECT_EQ(json.boolean(true).toText(), "true");
    EXPECT_EQ(json.boolean(false).toText(), "false");
    EXPECT_EQ(json.integer(-5).toText(), "-5");
    EXPECT_EQ(json.string("text").toText(), "\"text\"");
}

TEST(JSONBuilder, StoresADoubleAsADouble) {
    const JSON json = JSONBuilder().number(1);
    EXPECT_FALSE(json.view().isInteger());
    EXPECT_TRUE(json.view().isNumber());
    EXPECT_EQ(json.view().number(), 1.0);
}

TEST(JSONBuilder, StoresAnIntegerAsAnInteger) {
    const JSON json = JSONBuilder().integer(std::numeric_limits<std::int64_t>::min());
    EXPECT_TRUE(json.view().isInteger());
    EXPECT_EQ(json.view().integer(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(json.view().number(), -0x1p63);
}

TEST(JSONBuilder, CopiesStrings) {
    std::string bytes = "short\0"s;
    std::string more = "a string\0that is not short"s;
    const JSONBuilder builder;
    const JSON json = arrayOf(builder, builder.string(bytes), builder.string(more));
    bytes.assign(bytes.size(), '?');
    more.assign(more.size(), '?');
    EXPECT_EQ(json.toText(), R"(["short\u0000","a string\u0000that is not short"])");
}

TEST(JSONBuilder, BuildsAStringFromAViewOfNothing) {
    EXPECT_EQ(JSONBuilder().string(std::string_view()).view().string(), "");
}

TEST(JSONBuilder, RefusesAStringThatIsTooLongBeforeReadingIt) {
    const std::string_view bytes("x", std::size_t{1} << 32);
    EXPECT_THROW(JSONBuilder().string(bytes), std::length_error);
}

TEST(JSONBuilder, PutsElementsInOrder) {
    const JSONBuilder json;
    EXPECT_EQ(arrayOf(json, json.integer(2), json.integer(1), json.array(), json.object()).toText(), "[2,1,[],{}]");
}

TEST(JSONBuilder, AppendsElementsAfterThoseThereAre) {
    const JSONBuilder json;
    JSON array = arrayOf(json, json.integer(2));
    array.append(json.integer(1));
    EXPECT_EQ(array.toText(), "[2,1]");
}

TEST(JSONBuilder, KeepsMembersInTheOrderOfAdding) {
    const JSONBuilder json;
    JSON object = json.object();
    object.add("b", json.integer(1));
    object.add("a\0"sv, json.integer(2));
    object.add("b", json.integer(3));
    object.add({}, json.integer(4));
    EXPECT_EQ(object.toText(), R"({"b":1,"a\u0000":2,"b":3,"":4})");
}

TEST(JSONBuilder, TakesAnyNumberOfMembers) {
    const JSONBuilder json;
    JSON object = json.object();
    std::string expected;
    for (int count = 0; count < 1000; ++count) {
        const std::string name = "a member of the number " + std::to_string(count);
        object.add(name, json.integer(count));
        expected += (count == 0 ? "{\"" : ",\"") + name + "\":" + std::to_string(count);
    }
    EXPECT_EQ(object.toText(), expected + "}");
}

TEST(JSONBuilder, IsOutlivedByItsValues) {
    const JSON json = [] {
        const JSONBuilder builder;
        return arrayOf(builder, builder.string("a string that is not short"));
    }();
    EXPECT_EQ(json.toText(), R"(["a string that is not short"])");
}

TEST(JSONBuilder, RefusesToJoinValuesOfDifferentBuilders) {
    const JSONBuilder json;
    const JSONBuilder other;
    JSON object = json.object();
    JSON array = json.array();
    EXPECT_THROW(object.add("a", other.integer(1)), std::invalid_argument);
    EXPECT_THROW(array.append(parse("1")), std::invalid_argument);
    EXPECT_EQ(object.toText(), "{}");
    EXPECT_EQ(array.toText(), "[]");
}

TEST(JSONBuilder, LeaksNothingWhenMemoryEnds) {
    expectNoLeakWhenMemoryEnds([] {
        const JSONBuilder json;
        JSON object = json.object();
        object.add("a name that is not short", json.string(std::string(10'000, 'x')));
        object.add("b", arrayOf(json, json.integer(1), json.number(2), json.boolean(true)));
    });
}

} // namespace Ostra
