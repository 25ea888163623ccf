#include "schema/Places.h"

#include "SmallStack.h"
#include "schema/JSONParser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

namespace {

using testing::ElementsAre;

/// All values of a text in its order.
class Text {
public:
    explicit Text(std::string_view text) : text_(text) {
        EXPECT_FALSE(parseText(text_, tape_, arena_).result.IsError());
        collect(tape_.root());
    }

    /// Returns the pointer and the bytes of each value.
    std::vector<std::string> spots() const {
        std::vector<std::string> lines;
        const Places places = all();
        for (const JSONValue* const value : values_) {
            const Spot& spot = places.at(value);
            lines.push_back(spot.pointer + " " + text_.substr(spot.begin, spot.end - spot.begin));
        }
        return lines;
    }

    std::vector<std::string> labels() const {
        std::vector<std::string> labels;
        const Places places = all();
        for (const JSONValue* const value : values_) {
            labels.push_back(places.at(value).label);
        }
        return labels;
    }

    /// Returns the spot of one value alone.
    Spot spotOf(std::size_t value) const {
        Places places{{values_.at(value), {}}};
        locate(text_, tape_.root(), places);
        return places.begin()->second;
    }
    std::size_t size() const { return values_.size(); }

private:
    void collect(const JSONValue& root) {
        std::vector<const JSONValue*> open; // which the value is in
        for (const JSONValue* value = &root; value != root.next();) {
            while (!open.empty() && open.back()->next() == value) {
                open.pop_back();
            }
            if (!open.empty() && open.back()->isObject()) {
                value = value->next(); // a name, which has no spot
            }
            values_.push_back(value);
            if (value->isContainer()) {
                open.push_back(value);
            }
            value = value->isContainer() ? value->first() : value->next();
        }
    }
    Places all() const {
        Places places;
        for (const JSONValue* const value : values_) {
            places.try_emplace(value);
        }
        locate(text_, tape_.root(), places);
        return places;
    }

    std::string text_;
    Arena arena_;
    JSONTape tape_{arena_};
    std::vector<const JSONValue*> values_;
};

std::vector<std::string> spotsIn(std::string_view text) { return Text(text).spots(); }

TEST(Places, AreThoseOfValuesOfEveryType) {
    EXPECT_THAT(spotsIn(R"({"a":[1,-2.5e3,true,false,null,"s",{},[]],"b":{"c":0}})"),
                ElementsAre(R"( {"a":[1,-2.5e3,true,false,null,"s",{},[]],"b":{"c":0}})",
                            R"(/a [1,-2.5e3,true,false,null,"s",{},[]])", "/a/0 1", "/a/1 -2.5e3", "/a/2 true",
                            "/a/3 false", "/a/4 null", R"(/a/5 "s")", "/a/6 {}", "/a/7 []", R"(/b {"c":0})", "/b/c 0"));
}

TEST(Places, LeaveOutBlanksOfEverySort) {
    EXPECT_THAT(spotsIn("\r\n\t {\r\n \"a\"\t:\r\n[ 1\r\n,\t2 ] \r\n,\"b\" : 3\r\n}\r\n "),
                ElementsAre(" {\r\n \"a\"\t:\r\n[ 1\r\n,\t2 ] \r\n,\"b\" : 3\r\n}", "/a [ 1\r\n,\t2 ]", "/a/0 1",
                            "/a/1 2", "/b 3"));
}

TEST(Places, OfAValueAloneAreItsOwn) {
    EXPECT_THAT(spotsIn(" 12.5"), ElementsAre(" 12.5"));
    EXPECT_THAT(spotsIn("-1"), ElementsAre(" -1"));
    EXPECT_THAT(spotsIn("\t\"a b\"\n"), ElementsAre(" \"a b\""));
    EXPECT_THAT(spotsIn("null"), ElementsAre(" null"));
}

TEST(Places, EndBehindNumbersWhateverFollows) {
    EXPECT_THAT(spotsIn("[1 ,2\t,3\n,4\r,5]"),
                ElementsAre(" [1 ,2\t,3\n,4\r,5]", "/0 1", "/1 2", "/2 3", "/3 4", "/4 5"));
    EXPECT_THAT(spotsIn(R"({"a":1e+5})"), ElementsAre(R"( {"a":1e+5})", "/a 1e+5"));
}

TEST(Places, AreNotMisledByWhatIsInStrings) {
    EXPECT_THAT(spotsIn(R"({"]}\",:":"\\","\\":["\"]",":",","],"\u0022":1})"),
                ElementsAre(R"( {"]}\",:":"\\","\\":["\"]",":",","],"\u0022":1})", R"(/]}",: "\\")",
                            R"(/\ ["\"]",":",","])", R"(/\/0 "\"]")", R"(/\/1 ":")", R"(/\/2 ",")", "/\" 1"));
}

TEST(Places, EscapeTildesAndSlashes) {
    EXPECT_THAT(spotsIn(R"({"~":{"/":{"~1/~0":{"\u002f":1}}}})"),
                ElementsAre(R"( {"~":{"/":{"~1/~0":{"\u002f":1}}}})", R"(/~0 {"/":{"~1/~0":{"\u002f":1}}})",
                            R"(/~0/~1 {"~1/~0":{"\u002f":1}})", R"(/~0/~1/~01~1~00 {"\u002f":1})",
                            "/~0/~1/~01~1~00/~1 1"));
}

TEST(Places, KeepBytesBeyondAsciiAndUnescapeOthers) {
    const std::string text = "{\"\xc3\xa4\":\"\xe2\x82\xac\",\"\\u00e4b\\ud83d\\ude00\":\"\\u20ac\",\"\xff\":1}";
    EXPECT_THAT(spotsIn(text), ElementsAre(" " + text, "/\xc3\xa4 \"\xe2\x82\xac\"",
                                           "/\xc3\xa4"
                                           "b\xf0\x9f\x98\x80 \"\\u20ac\"",
                                           "/\xff 1"));
}

TEST(Places, HaveEmptyNamesAndNuls) {
    EXPECT_THAT(spotsIn(R"({"":{"":1}})"), ElementsAre(R"( {"":{"":1}})", R"(/ {"":1})", "// 1"));
    EXPECT_EQ(Text(R"({"a\u0000b":1})").spotOf(1).pointer, std::string("/a\0b", 4));
}

TEST(Places, OfMembersOfOneNameAreEachTheirOwn) {
    EXPECT_THAT(spotsIn(R"({"a":1,"a":[2],"a":3})"),
                ElementsAre(R"( {"a":1,"a":[2],"a":3})", "/a 1", "/a [2]", "/a/0 2", "/a 3"));
}

TEST(Places, AreFoundForTheValuesThatAreAskedForAlone) {
    const Text text(R"({"a":[1,{"b":2}],"c":3})");
    EXPECT_EQ(text.spotOf(4).pointer, "/a/1/b");
    EXPECT_EQ(text.spotOf(4).begin, 13U);
    EXPECT_EQ(text.spotOf(4).end, 14U);
    EXPECT_EQ(text.spotOf(5).pointer, "/c");
}

TEST(Places, AreFoundAtAnyDepthWithoutRecursion) {
    constexpr std::size_t depth = 100'000;
    std::string text;
    for (std::size_t level = 0; level < depth; ++level) {
        text += "[0,";
    }
    text += "7" + std::string(depth, ']');
    runOnSmallStack([&] {
        const Text deep(text);
        const Spot spot = deep.spotOf(deep.size() - 1);
        EXPECT_EQ(text.substr(spot.begin, spot.end - spot.begin), "7");
        EXPECT_EQ(spot.pointer.size(), 2 * depth);
        EXPECT_EQ(deep.spotOf(0).end, text.size());
    });
}

TEST(Labels, AreTheIdsOfDefinitionsAndOtherNames) {
    EXPECT_THAT(Text(R"({"typeid":"x","constants":[{"id":"range","value":{"fromTop":1}}],"more":[2]})").labels(),
                ElementsAre("", "", "", "", "range", "range", "fromTop", "more", "more"));
}

TEST(Labels, AreNoneWhereADefinitionHasNoId) {
    EXPECT_THAT(Text(R"({"constants":[{"value":1},{"id":5},3],"properties":[{"id":"a","value":2}]})").labels(),
                ElementsAre("", "", "", "", "", "", "", "", "", "a", "a"));
}

} // namespace

} // namespace Ostra
