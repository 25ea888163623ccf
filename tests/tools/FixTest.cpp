#include "ProjectFolder.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

const std::string inheritsGroup = R"("inherits":["norvex.parameter:group-1.0.0"])";

std::string group(const std::string& typeId) {
    return R"({"typeid":")" + typeId + "\"," + inheritsGroup + R"(,"constants":[{"id":"name","value":"G"}]})" + "\n";
}

std::string parameter(const std::string& more) {
    return R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
           R"("constants":[{"id":"name","value":"P"})" +
           more + "]}\n";
}

std::string inGroup(const std::string& typeId) {
    return R"(,{"id":"group","typedValue":{"typeid":")" + typeId + "\"}}";
}

struct Case {
    const char* name;
    std::string before;
    std::string after;
    int exitCode = 0;
};

class Fixed : public testing::TestWithParam<Case> {};

TEST_P(Fixed, AsTheHintSays) {
    const Folder folder;
    folder.write("f.ndjson", GetParam().before);
    const Outcome dry = folder.run({"fix", "--dry-run", "f.ndjson"});
    EXPECT_EQ(folder.read("f.ndjson"), GetParam().before);
    const Outcome outcome = folder.run({"fix", "f.ndjson"});
    EXPECT_EQ(folder.read("f.ndjson"), GetParam().after);
    EXPECT_EQ(outcome.exitCode, GetParam().exitCode) << outcome.err;
    EXPECT_EQ(outcome.out.empty(), GetParam().before == GetParam().after);
    EXPECT_EQ(dry.out, outcome.out);
    EXPECT_EQ(dry.err, outcome.err);
    EXPECT_EQ(dry.exitCode, outcome.exitCode);
    EXPECT_EQ(folder.run({"fix", "f.ndjson"}).out, "");
}

const std::string safety = group("x:safety-1.0.0");
const std::string misspeltBase = R"({"typeid":"a", "inherits":["norvex.parameter:grup-1.0.0"])";
const std::string rightBase = R"({"typeid":"a", "inherits":["norvex.parameter:group-1.0.0"])";

const Case cases[] = {
    {"TypeIds", safety + parameter(inGroup("x:safty-1.0.0")), safety + parameter(inGroup("x:safety-1.0.0"))},
    {"TypeIdsWithoutVersion", safety + parameter(inGroup("x:safety")), safety + parameter(inGroup("x:safety-1.0.0"))},
    {"Bases", misspeltBase + R"(,"constants":[{"id":"name","value":"A"}]})",
     rightBase + R"(,"constants":[{"id":"name","value":"A"}]})"},
    {"Constants", R"({"typeid":"a",)" + inheritsGroup + R"(,"constants":[{"id" : "nmae","value":"nmae"}]})",
     R"({"typeid":"a",)" + inheritsGroup + R"(,"constants":[{"id" : "name","value":"nmae"}]})"},
    {"OptionalConstants", parameter(R"(,{"id":"decription","value":"D"})"),
     parameter(R"(,{"id":"description","value":"D"})")},
    {"Tables", R"({"typeid":"a",)" + inheritsGroup + R"(,"constant":[{"id":"name","value":"A"}]})",
     R"({"typeid":"a",)" + inheritsGroup + R"(,"constants":[{"id":"name","value":"A"}]})"},
    {"Members", R"({"typeId":"a",)" + inheritsGroup + R"(,"constants":[{"id":"name","value":"A"}]})",
     R"({"typeid":"a",)" + inheritsGroup + R"(,"constants":[{"id":"name","value":"A"}]})"},
    {"WhatIsSeenOnlyWhenOtherThingsAreMended",
     safety + R"({"typeId":"p","inherit":["norvex.parameter:parametr.bool-2.0.0"],"constants":[)" +
         R"({"id":"nam","value":"P"},{"id":"grup","typedvalue":{"typeid":"x:safety"}}]})",
     safety + R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)" +
         R"({"id":"name","value":"P"},{"id":"group","typedValue":{"typeid":"x:safety-1.0.0"}}]})"},
    {"NothingThatMayMeanTwoThings", safety + group("x:safely-1.0.0") + parameter(inGroup("x:safey-1.0.0")),
     safety + group("x:safely-1.0.0") + parameter(inGroup("x:safey-1.0.0")), 1},
    {"NoVersionOfSeveral", safety + group("x:safety-22.0.0") + parameter(inGroup("x:safety")),
     safety + group("x:safety-22.0.0") + parameter(inGroup("x:safety")), 1},
    {"NothingAloneForNoOtherReason", parameter(R"(,{"id":"group","typedValue":{"kind":"g"}})"),
     parameter(R"(,{"id":"group","typedValue":{"kind":"g"}})"), 1},
    {"NothingThatMakesItWorse", misspeltBase + R"(,"constants":[{"id":"name","value":1},{"id":"name"}]})",
     rightBase + R"(,"constants":[{"id":"name","value":1},{"id":"name"}]})", 1},
    {"NothingThatIsThereAlready", parameter(R"(,{"id":"description","value":"D"},{"id":"decription","value":"E"})"),
     parameter(R"(,{"id":"description","value":"D"},{"id":"decription","value":"E"})")},
    {"TheRestOfWhatIsNoJson", "{\"typeid\":}\n" + safety + parameter(inGroup("x:safty-1.0.0")),
     "{\"typeid\":}\n" + safety + parameter(inGroup("x:safety-1.0.0")), 1},
};

INSTANTIATE_TEST_SUITE_P(Fix, Fixed, testing::ValuesIn(cases), Support::nameOfRow);

struct Slip {
    const char* name;
    std::string before;
    std::string after; ///< Empty for what stays.
};

class FixedSlips : public testing::TestWithParam<Slip> {};

TEST_P(FixedSlips, WhereOneThingAloneCanBeMeant) {
    const Folder folder;
    folder.write("f.json", GetParam().before);
    folder.run({"fix", "f.json"});
    EXPECT_EQ(folder.read("f.json"), GetParam().after.empty() ? GetParam().before : GetParam().after);
}

const Slip slips[] = {
    {"CommaBehindTheLastMember", "{\"a\": 1,\n}", "{\"a\": 1\n}"},
    {"CommaBehindTheLastElement", "{\"a\": [1, ]}", "{\"a\": [1 ]}"},
    {"MissingCommaBeforeAName", "{\"a\": \"x\"\n\"b\": 1}", "{\"a\": \"x\",\n\"b\": 1}"},
    {"MissingCommaBeforeAnObject", "[{}\n{} {}]", "[{},\n{}, {}]"},
    {"Semicolon", "{\"a\": 1; \"b\": 2;}", "{\"a\": 1, \"b\": 2}"},
    {"EqualSign", "{\"a\" = 1}", "{\"a\" : 1}"},
    {"NameWithoutQuotes", "{\"b\": 1, typeid: 2, b_1 : 3}", "{\"b\": 1, \"typeid\": 2, \"b_1\" : 3}"},
    {"SingleQuotes", "{'a': ['b', '']}", "{\"a\": [\"b\", \"\"]}"},
    {"TypographicQuotes", "{\u201Ea\u201C: \u201Cb\u201D, \u00ABc\u00BB: \u2018d\u2019}",
     "{\"a\": \"b\", \"c\": \"d\"}"},
    {"Words", "{\"a\": [True, TRUE, False, FALSE]}", "{\"a\": [true, true, false, false]}"},
    {"Numbers", "[+1, .5, -.5]", "[1, 0.5, -0.5]"},
    {"Tabs", "{\"a\": \"b\tc\td\"}", "{\"a\": \"b\\tc\\td\"}"},
    {"Backslashes", R"({"a": "^\d+\.\d$"})", R"({"a": "^\\d+\\.\\d$"})"},
    {"Blanks", "{\"a\":\u00A01,\u3000\"b\u00A0\":\u200B2}", "{\"a\": 1, \"b\u00A0\":2}"},
    {"SecondByteOrderMark", "\uFEFF\uFEFF{}", "\uFEFF{}"},
    {"SeveralSlips", "{a: 'b',\n c: .5;}", "{\"a\": \"b\",\n \"c\": 0.5}"},
    {"NothingIfOneOfThemMayMeanSeveralThings", "{\"a\": [1,], \"b\": None}", ""},
    {"NoComment", "{\"a\": 1 // x\n}", ""},
    {"NoStringWithQuotesInIt", "{'a\"': 1}", ""},
    {"NoStringWithAnApostrophe", "{\"a\": 'it's'}", ""},
    {"NoStringOfSeveralLines", "{\"a\": 'b\n'}", ""},
    {"NoOpenString", "{\"a\": \"b\n}", ""},
    {"NoOpenObject", "{\"a\": 1\n", ""},
    {"NoEscapeBesidesABackslash", R"({"a": "C:\new\Users"})", ""},
    {"NoBackslashBehindAnEscape", R"({"a": "\"\d"})", ""},
    {"NoHexadecimalEscape", R"({"a": "C:\users"})", ""},
    {"NoZeros", "{\"a\": 007}", ""},
    {"NoNumberWithTwoPoints", "{\"a\": 1.2.3}", ""},
    {"NoLongerWord", "{\"a\": Trueish}", ""},
    {"NoComparison", "{\"a\" == 1}", ""},
    {"NoArrow", "{\"a\" => 1}", ""},
    {"NoMissingValue", "{\"a\"\n\"b\": 1}", ""},
    {"NoMergeMarker", "{\"a\": 1,\n<<<<<<< HEAD\n\"b\": 1}", ""},
    {"NoSecondSchema", "{}\n{}", ""},
};

INSTANTIATE_TEST_SUITE_P(Fix, FixedSlips, testing::ValuesIn(slips), Support::nameOfRow);

TEST(Fix, MendsSlipsThoughTheyHidMoreFaults) {
    const Folder folder;
    folder.write("f.ndjson", R"({"typeid":"s","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[{"id":"nmae",)"
                             R"("value":"S"},{"id":"discipline","typedValue":{"typeid":"nowhere"}},],})"
                             "\n" +
                                 parameter(R"(,{"id":"group","typedValue":{"typeid":"none"}},)"));
    const Outcome outcome = folder.run({"fix", "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(folder.read("f.ndjson"),
              R"({"typeid":"s","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[{"id":"name",)"
              R"("value":"S"},{"id":"discipline","typedValue":{"typeid":"nowhere"}}]})"
              "\n" +
                  parameter(R"(,{"id":"group","typedValue":{"typeid":"none"}})"));
    EXPECT_EQ(outcome.err, "ostra-params: 2 faults left; \"ostra-params check\" tells more.\n");
}

TEST(Fix, ShowsWhatItDidAndTellsWhatIsLeft) {
    const Folder folder;
    folder.write("g.json", safety);
    folder.write("p.json", parameter(inGroup("x:safty-1.0.0")));
    folder.write("q.json", "]");
    const Outcome outcome = folder.run({"fix", "."});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "--- ./p.json\n+++ ./p.json\n@@ -1,1 +1,1 @@\n-" + parameter(inGroup("x:safty-1.0.0")) +
                               "+" + parameter(inGroup("x:safety-1.0.0")));
    EXPECT_EQ(outcome.err, "ostra-params: 1 fault left; \"ostra-params check\" tells more.\n");
    EXPECT_EQ(folder.read("p.json"), parameter(inGroup("x:safety-1.0.0")));
}

TEST(Fix, TakesBackWhatLeadsToMoreFaultsAndKeepsTheRest) {
    // With its base mended, the schema would repeat a member of each definition, and name three things that are
    // missing.
    const std::string worse = R"({"typeid":"s","inherits":["norvex.talmo.category:majorCategry-1.0.0"],"constants":[)"
                              R"({"id":"domain","typedValue":{"typeid":"nowhere"}},{"id":"disciplines","typedValue":)"
                              R"([{"typeid":"none"},{"typeid":"neither"}]},{"id":"name","value":1}]})"
                              "\n";
    const Folder folder;
    folder.write("f.ndjson", worse + safety + parameter(inGroup("x:safty-1.0.0")) + worse);
    folder.run({"fix", "f.ndjson"});
    EXPECT_EQ(folder.read("f.ndjson"), worse + safety + parameter(inGroup("x:safety-1.0.0")) + worse);
}

TEST(Fix, RefusesStandardInput) {
    const Outcome outcome = Folder().run({"fix", "-"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Standard input cannot be changed in place.\n");
}

TEST(Fix, LeavesASoundCatalogueAlone) {
    const Folder folder;
    std::filesystem::copy(OSTRA_SOURCE_DIR "/examples/catalogue", folder.path() / "c",
                          std::filesystem::copy_options::recursive);
    const Outcome outcome = folder.run({"fix", "c"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out + outcome.err, "");
}

} // namespace
