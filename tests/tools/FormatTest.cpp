#include "ProjectFolder.h"
#include "edit/Layout.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using testing::IsEmpty;

namespace fs = std::filesystem;

const std::string group = R"("typeid": "g", "inherits": ["norvex.parameter:group-1.0.0"])";

struct Case {
    const char* name;
    std::string before;
    std::string after;
};

class LaidOut : public testing::TestWithParam<Case> {};

TEST_P(LaidOut, AsAFileAndTheSameAgain) {
    const auto text = Tool::Layout::ofFile(GetParam().before);
    EXPECT_EQ(text, GetParam().after);
    EXPECT_EQ(Tool::Layout::ofFile(GetParam().after), GetParam().after);
}

const std::string longText(89, 'x');

const Case cases[] = {
    {"MembersInTheOrderOfTheReference",
     R"({"properties":[],"zeta":1,"constants":[],"alpha":2,"inherits":["Enum"],"typeid":"e"})",
     R"({
  "typeid": "e",
  "inherits": ["Enum"],
  "constants": [],
  "properties": [],
  "zeta": 1,
  "alpha": 2
}
)"},
    {"ConstantsInTheOrderOfReading",
     R"({"typeid":"u","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"zeta"},{"id":"symbol","value":"m"},)"
     R"({"value":"Metre","id":"name"},{"id":"alpha"},7]})",
     R"({
  "typeid": "u",
  "inherits": ["norvex.unit:unit-1.0.0"],
  "constants": [
    { "id": "name", "value": "Metre" },
    { "id": "symbol", "value": "m" },
    { "id": "zeta" },
    { "id": "alpha" },
    7
  ]
}
)"},
    {"PropertiesInTheOrderOfReading",
     R"({"typeid":"p","inherits":["norvex.parameter:parameter-2.0.0"],"properties":[{"id":"b"},)"
     R"({"id":"value","typedValue":{"typeid":"e"}}]})",
     R"({
  "typeid": "p",
  "inherits": ["norvex.parameter:parameter-2.0.0"],
  "properties": [
    { "id": "value", "typedValue": { "typeid": "e" } },
    { "id": "b" }
  ]
}
)"},
    {"TheChoicesOfAnEnumerationAsTheyAre",
     R"({"typeid":"e","inherits":["Enum"],"properties":[{"id":"b","value":1},{"id":"a","value":2}]})",
     R"({
  "typeid": "e",
  "inherits": ["Enum"],
  "properties": [
    { "id": "b", "value": 1 },
    { "id": "a", "value": 2 }
  ]
}
)"},
    {"TheRangeOfAParameter",
     R"({"typeid":"i","inherits":["norvex.parameter:parameter.int64-3.0.0"],"constants":[{"id":"range","typedValue":)"
     R"({"value":{"topBoundary":9,"fromTop":true,"fromBottom":false},)"
     R"("typeid":"norvex.range:range.int64.bounded.static-1.0.0"}}]})",
     R"({
  "typeid": "i",
  "inherits": ["norvex.parameter:parameter.int64-3.0.0"],
  "constants": [
    {
      "id": "range",
      "typedValue": {
        "typeid": "norvex.range:range.int64.bounded.static-1.0.0",
        "value": { "fromBottom": false, "fromTop": true, "topBoundary": 9 }
      }
    }
  ]
}
)"},
    {"WhatIsRepeatedInItsOrder",
     R"({"constants":[{"id":"name","value":"B"}],"typeid":"b","constants":[{"id":"x","id":"name"},{"id":"name"}],)"
     R"("typeid":"a","inherits":["norvex.parameter:group-1.0.0"]})",
     R"({
  "typeid": "b",
  "typeid": "a",
  "inherits": ["norvex.parameter:group-1.0.0"],
  "constants": [
    { "id": "name", "value": "B" }
  ],
  "constants": [
    { "id": "name" },
    { "id": "x", "id": "name" }
  ]
}
)"},
    {"NumbersAndStringsToTheByte", "{\"a\":[1.0e5,-0,0.10,1E+2,\"\\u0041\\/\",\"\xC3\xA9\xE4\",true,null]}",
     "{\n  \"a\": [1.0e5, -0, 0.10, 1E+2, \"\\u0041\\/\", \"\xC3\xA9\xE4\", true, null]\n}\n"},
    {"NamesThatAreEscaped", R"({"inherits":[],"\u0074ypeid":"a"})",
     "{\n  \"\\u0074ypeid\": \"a\",\n  \"inherits\": []\n}\n"},
    {"NullCharactersInNames", R"({"a\u0000":1,"a":2})", "{\n  \"a\\u0000\": 1,\n  \"a\": 2\n}\n"},
    {"UnknownBases", R"({"typeid":"a","inherits":["?"],"constants":[{"id":"b"},{"id":"a"}]})",
     "{\n  \"typeid\": \"a\",\n  \"inherits\": [\"?\"],\n  \"constants\": [\n    { \"id\": \"b\" },\n    { \"id\": "
     "\"a\" }\n  ]\n}\n"},
    {"ListsOfSchemas", R"([{"inherits":["Enum"],"typeid":"a"},[{"inherits":1,"typeid":2}]])",
     "[\n  {\n    \"typeid\": \"a\",\n    \"inherits\": [\"Enum\"]\n  },\n  [{ \"inherits\": 1, \"typeid\": 2 }]\n]\n"},
    {"WhatIsEmpty", " { \"a\" : [ ] , \"b\":{ }}\r\n", "{\n  \"a\": [],\n  \"b\": {}\n}\n"},
    {"ASingleValue", "\t\"a\" ", "\"a\"\n"},
    {"LinesOfAHundredCharacters", "{\"a\":[\"" + longText + "\"]}", "{\n  \"a\": [\"" + longText + "\"]\n}\n"},
    {"NoLongerLines", "{\"ab\":[\"" + longText + "\"]}", "{\n  \"ab\": [\n    \"" + longText + "\"\n  ]\n}\n"},
    {"NoMoreThanThreeLevelsInALine", R"({"a":[[[]]],"b":[[[[]]]]})",
     "{\n  \"a\": [[[]]],\n  \"b\": [\n    [[[]]]\n  ]\n}\n"},
};

INSTANTIATE_TEST_SUITE_P(Format, LaidOut, testing::ValuesIn(cases), Support::nameOfRow);

TEST(Format, CountsCharactersAndNotBytes) {
    std::string text;
    for (int i = 0; i < 89; ++i) {
        text += "\u00E9";
    }
    EXPECT_EQ(Tool::Layout::ofFile("{\"a\":[\"" + text + "\"]}"), "{\n  \"a\": [\"" + text + "\"]\n}\n");
}

TEST(Format, TakesAMillionBrackets) {
    constexpr std::size_t depth = 1000000;
    const std::string text = std::string(depth, '[') + std::string(depth, ']');
    const auto laidOut = Tool::Layout::ofFile(text);
    ASSERT_TRUE(laidOut);
    EXPECT_LT(laidOut->size(), text.size() + 10000);
    EXPECT_EQ(Tool::Layout::ofFile(*laidOut), laidOut);
    EXPECT_EQ(Tool::Layout::ofLine(*laidOut), text);
}

TEST(Format, TellsLikeSchemasApart) { // which were taken for one, as what has no id was left out of account
    const std::string before =
        R"({"inherits":["norvex.unit:unit-1.0.0"],"constants":[{},{"id":"symbol"},{"id":"name"}]})";
    const std::string after =
        R"({"inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name"},{"id":"symbol"},{}]})";
    EXPECT_EQ(Tool::Layout::ofLine(before), after);
    EXPECT_EQ(Tool::Layout::ofLine(
                  R"({"inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"symbol"},{"id":"name"},{}]})"),
              after);
}

TEST(Format, RefusesNumbersThatNoDoubleHolds) { // as the library does, whatever their exponent
    const std::string most = "17976931348623157" + std::string(292, '0');
    for (const std::string number : {"1.7976931348623157e308", "17e307", most.c_str(), "1e-999"}) {
        EXPECT_EQ(Tool::Layout::ofLine(number), number);
    }
    const std::string more = "2" + std::string(308, '0');
    for (const std::string number : {"1.7976931348623159e308", "81e308", more.c_str(), "1E999"}) {
        EXPECT_EQ(Tool::Layout::ofLine(number), std::nullopt) << number;
        EXPECT_EQ(Tool::Layout::ofFile(number), std::nullopt) << number;
    }
}

TEST(Format, RefusesWhatIsNoJson) {
    for (const std::string& text : {std::string(), std::string("{"), std::string("{} {}"), std::string("{}\0", 3)}) {
        EXPECT_EQ(Tool::Layout::ofFile(text), std::nullopt) << text;
        EXPECT_EQ(Tool::Layout::ofLine(text), std::nullopt) << text;
    }
}

TEST(Format, ChangesFilesInPlaceAndNamesThem) {
    const Folder folder;
    folder.write("c/a.json", "\xEF\xBB\xBF{" + group + "}\r\n");
    folder.write("c/b.json", "{\n  \"typeid\": \"g\",\n  \"inherits\": []\n}\n");
    folder.write("c/d.ndjson", "{" + group + "}\r\n\n {\"b\": 1 }");
    const auto before = fs::last_write_time(folder.path() / "c/b.json");
    const Outcome outcome = folder.run({"fmt", "c"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "c/a.json\nc/d.ndjson\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(folder.read("c/a.json"),
              "{\n  \"typeid\": \"g\",\n  \"inherits\": [\"norvex.parameter:group-1.0.0\"]\n}\n");
    EXPECT_EQ(folder.read("c/d.ndjson"),
              "{\"typeid\":\"g\",\"inherits\":[\"norvex.parameter:group-1.0.0\"]}\n{\"b\":1}\n");
    EXPECT_EQ(fs::last_write_time(folder.path() / "c/b.json"), before);
    EXPECT_EQ(folder.run({"fmt", "c"}).out, "");
}

TEST(Format, OnlyTellsWhatDiffersWhenItIsToCheck) {
    const Folder folder;
    folder.write("a.json", "{}");
    folder.write("b.json", "{}\n");
    const Outcome outcome = folder.run({"fmt", "--check", "."});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "./a.json\n");
    EXPECT_EQ(folder.read("a.json"), "{}");
    EXPECT_EQ(folder.run({"fmt", "--check", "b.json"}).exitCode, 0);
}

TEST(Format, ShowsWhatWouldChange) {
    const Folder folder;
    folder.write("a.json", "{\"a\": 1}");
    const Outcome outcome = folder.run({"fmt", "--diff", "a.json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "--- a.json\n+++ a.json\n@@ -1,1 +1,3 @@\n-{\"a\": 1}\n\\ No newline at end of file\n"
                           "+{\n+  \"a\": 1\n+}\n");
    EXPECT_EQ(folder.read("a.json"), "{\"a\": 1}");
}

TEST(Format, WritesStandardInputToStandardOutput) {
    const Folder folder;
    const Outcome outcome = folder.run({"fmt", "-"}, ".out", "{\"a\":1}");
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "{\n  \"a\": 1\n}\n");
    EXPECT_EQ(folder.run({"fmt", "-"}, ".out", "{\"a\": 1}\n{ }\n").out, "{\"a\":1}\n{}\n");
    EXPECT_EQ(folder.run({"fmt", "--check", "-"}, ".out", "{\"a\":1}").out, "<stdin>\n");
    EXPECT_EQ(folder.run({"fmt", "--check", "-"}, ".out", "{}\n").exitCode, 0);
}

TEST(Format, ReportsWhatIsNoJsonAndLaysOutTheRest) {
    const Folder folder;
    folder.write("a.json", "{\"a\": 1,}");
    folder.write("b.json", "{}");
    folder.write("c.ndjson", "{\"a\": 1}\n{\"b\": x}\n{\"c\": 1}\n");
    const Outcome outcome = folder.run({"fmt", "."});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "./b.json\n./c.ndjson\n");
    EXPECT_EQ(outcome.err, "./a.json:1:9: JSON parsing error at offset 8: Missing a name for object member.\n"
                           "    hint: no comma stands before a closing bracket.\n"
                           "./c.ndjson:2:7: JSON parsing error at offset 6: Invalid value.\n");
    EXPECT_EQ(folder.read("a.json"), "{\"a\": 1,}");
    EXPECT_EQ(folder.read("c.ndjson"), "{\"a\":1}\n{\"b\": x}\n{\"c\":1}\n");
}

TEST(Format, LosesNothingWhenTheDiskIsFull) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("a.json", "{}");
    folder.write("b.json", "{}");
    // Root may write everywhere, but a limit on the size of files holds for everybody.
    folder.write("run.sh", "trap '' XFSZ; ulimit -f 0; '" + pathOfTool() + "' fmt a.json b.json 2> /dev/null");
    EXPECT_NE(std::system(("cd '" + folder.path().string() + "' && bash run.sh").c_str()), 0);
    EXPECT_EQ(folder.read("a.json"), "{}");
    EXPECT_EQ(folder.read("b.json"), "{}");
    EXPECT_THAT(folder.files(), testing::ElementsAre("a.json", "b.json", "run.sh"));
}

struct CatalogueFolder {
    const char* name;
    const char* path; // null where there is none
};

class FormattedCatalogue : public testing::TestWithParam<CatalogueFolder> {};

TEST_P(FormattedCatalogue, HasTheSameObjectsAndIsNotChangedAgain) {
    if (GetParam().path == nullptr) {
        GTEST_SKIP() << "OSTRA_CATALOGUE names no folder.";
    }
    const Folder folder;
    const fs::path original = fs::absolute(GetParam().path);
    fs::copy(original, folder.path() / "c", fs::copy_options::recursive);
    EXPECT_EQ(folder.run({"fmt", "c"}).exitCode, 0);
    EXPECT_EQ(folder.run({"fmt", "--check", "c"}).exitCode, 0);
    EXPECT_EQ(folder.run({"diff", original.string(), "c"}).out, "0 added, 0 removed, 0 changed\n");
    EXPECT_THAT(folder.run({"check", "-q", "--severity", "error", "c"}).out, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Folders, FormattedCatalogue,
                         testing::Values(CatalogueFolder{"Examples", OSTRA_SOURCE_DIR "/examples/catalogue"},
                                         CatalogueFolder{"Large", std::getenv("OSTRA_CATALOGUE")}),
                         Support::nameOfRow);

} // namespace
