#include "ProjectFolder.h"
#include "output/Json.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string examples = OSTRA_SOURCE_DIR "/examples/catalogue";
const std::string discharge = "hydro.parameter:ratedDischarge-1.0.0";

std::string group(const std::string& typeId, const std::string& name) {
    return R"({"typeid":")" + typeId +
           R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":")" + name + "\"}]}\n";
}

std::string repeated(std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

std::string parameter(const std::string& typeId, const std::string& more) {
    return R"({"typeid":")" + typeId +
           R"(","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[{"id":"name","value":"P"})" + more +
           "]}\n";
}

const std::string namesG = R"(,{"id":"group","typedValue":{"typeid":"g"}})";

TEST(Check, PrintsTheFaultsAloneWhenItIsToBeQuiet) {
    const Folder folder;
    folder.write("f.ndjson", group("g", "G"));
    EXPECT_EQ(folder.run({"check", "-q", "f.ndjson"}).out, "");
    folder.write("f.ndjson", "]\n");
    EXPECT_EQ(folder.run({"check", "--quiet", "f.ndjson"}).out,
              "f.ndjson:1:1: JSON parsing error at offset 0: Invalid value.\n");
}

TEST(List, ShowsTypeIdKindAndName) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", namesG) + group("g", "Safety"));
    const Outcome outcome = folder.run({"list"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "g  group              Safety\n"
                           "p  Boolean parameter  P\n");
}

TEST(List, SelectsByKind) {
    EXPECT_EQ(Folder().run({"list", "--kind", "domain,group", examples}).out,
              "hydro.group:identification-1.0.0  group   Identification\n"
              "hydro.group:maintenance-1.0.0     group   Maintenance\n"
              "hydro.group:operation-1.0.0       group   Operation\n"
              "hydro.group:safety-1.0.0          group   Dam Safety\n"
              "hydro.domain:powerhouse-1.0.0     domain  Powerhouse\n"
              "hydro.domain:switchyard-1.0.0     domain  Switchyard\n"
              "hydro.domain:waterway-1.0.0       domain  Dam and Waterway\n");
}

class KindWords : public testing::TestWithParam<const char*> {};

TEST_P(KindWords, MeanAKindAsPeopleCallIt) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", namesG) + group("g", "Safety"));
    EXPECT_EQ(folder.run({"list", "--kind", GetParam()}).out, "p  Boolean parameter  P\n");
}

INSTANTIATE_TEST_SUITE_P(List, KindWords,
                         testing::Values("bool-parameter", "BOOL_Parameter", "boolean parameter", "Boolean parameters",
                                         "boolean-parameters", "parameter", "Parameters", "spec,parameter"));

TEST(List, SelectsByAPartOfTheName) {
    EXPECT_EQ(Folder().run({"list", "--name", "SAFETY", "--kind", "group", examples}).out,
              "hydro.group:safety-1.0.0  group  Dam Safety\n");
}

TEST(List, SelectsByAPatternForTheWholeName) {
    EXPECT_EQ(Folder().run({"list", "--name", "rated d*e", examples}).out,
              discharge + "  measurable parameter  Rated Discharge\n");
}

TEST(List, KnowsTheCaseOfLettersBeyondAscii) {
    const Folder folder;
    folder.write("f.ndjson", group("g", "\u00c9cluse"));
    EXPECT_EQ(folder.run({"list", "--name", "\u00e9c"}).out, "g  group  \u00c9cluse\n");
    EXPECT_EQ(folder.run({"list", "--name", "?cluse"}).out, "g  group  \u00c9cluse\n");
}

TEST(List, ShowsWhatATerminalWouldObeyAsHexadecimalDigits) {
    const Folder folder;
    // NOLINTNEXTLINE(misc-misleading-bidirectional): what turns the text around is what is tested
    folder.write("f.ndjson", group("g", "\\u001b[2J \u009b2J \u202e \u2066 \u00e4 \u202f"));
    EXPECT_EQ(folder.run({"list"}).out,
              "g  group  \\x1B[2J \\xC2\\x9B2J \\xE2\\x80\\xAE \\xE2\\x81\\xA6 \u00e4 \u202f\n");
}

TEST(List, WritesJson) {
    const Folder folder;
    folder.write("g.json", group("g", "Safety"));
    EXPECT_EQ(folder.run({"list", "--json", "g.json"}).out, R"([
  {
    "typeid": "g",
    "kind": "group",
    "name": "Safety"
  }
]
)");
}

TEST(List, LeavesOutWhatIsFaultyAndSaysSo) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", namesG) + group("other", "Other"));
    const Outcome outcome = folder.run({"list", "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "other  group  Other\n");
    EXPECT_EQ(outcome.err, "ostra-params: 1 faulty schema left out; \"ostra-params check\" tells more.\n");
}

TEST(Show, TellsAllOfAnObject) {
    const Outcome outcome = Folder().run({"show", discharge, examples});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "Rated Discharge\n"
                           "measurable parameter  hydro.parameter:ratedDischarge-1.0.0\n"
                           "\n"
                           "  description  Discharge through one turbine at its rated head and power.\n"
                           "  sample text  24.5 m\u00b3/s\n"
                           "  group        Operation  hydro.group:operation-1.0.0\n"
                           "  read-only    yes\n"
                           "  spec         Discharge  hydro.spec:discharge-1.0.0\n"
                           "  discipline   Civil Works  hydro.discipline:civil-1.0.0\n"
                           "  range        0 to 120.5\n"
                           "  stored in    m\u00b3/s\n"
                           "  shown in     m\u00b3/s\n"
                           "               L/s\n"
                           "  defined in   " +
                               examples +
                               "/measurable-parameters/rated-discharge.json:1:1\n"
                               "\n"
                               "depends on 2 objects\n"
                               "  group  hydro.group:operation-1.0.0  Operation\n"
                               "  spec   hydro.spec:discharge-1.0.0  Discharge\n"
                               "\n"
                               "named by nothing\n");
}

TEST(Show, TellsWhatNamesAnObject) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", namesG) + group("g", "Safety"));
    EXPECT_THAT(folder.run({"show", "g"}).out, HasSubstr("\nnamed by 1 object\n  group  p  P\n"));
}

TEST(Show, FindsAnObjectByAPartOfItsTypeId) {
    EXPECT_THAT(Folder().run({"show", "ratedDisch", examples}).out, StartsWith("Rated Discharge\n"));
}

TEST(Show, ListsTheTypeIdsThatMayBeMeant) {
    const Outcome outcome = Folder().run({"show", "hydro.domain", examples});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: 3 typeids have hydro.domain in them:\n"
                           "  hydro.domain:powerhouse-1.0.0\n"
                           "  hydro.domain:switchyard-1.0.0\n"
                           "  hydro.domain:waterway-1.0.0\n");
}

TEST(Show, OffersTheNearestTypeId) {
    const Outcome outcome = Folder().run({"show", "hydro.domain:powerhuose-1.0.0", examples});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: There is no object with typeid hydro.domain:powerhuose-1.0.0. Did you mean "
                           "hydro.domain:powerhouse-1.0.0?\n");
}

TEST(Show, SaysThatWhatIsLookedForMayBeFaulty) {
    const Folder folder;
    folder.write("f.ndjson", group("g", "Safety") + parameter("p", R"(,{"id":"readOnly","value":5})"));
    const Outcome outcome = folder.run({"show", "p"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: 1 faulty schema left out; \"ostra-params check\" tells more.\n"
                           "ostra-params: There is no object with typeid p. Did you mean g?\n");
}

TEST(Show, PrintsTheSchemaIndented) {
    const Folder folder;
    folder.write("g.json", group("g", "Safety"));
    EXPECT_EQ(folder.run({"show", "--schema", "g"}).out, R"({
    "typeid": "g",
    "inherits": [
        "norvex.parameter:group-1.0.0"
    ],
    "constants": [
        {
            "id": "name",
            "value": "Safety"
        }
    ]
}
)");
}

TEST(Deps, DrawsATree) {
    EXPECT_EQ(Folder().run({"deps", "peltonTurbines", examples}).out,
              "hydro.category:peltonTurbines-1.0.0  Pelton Turbines\n"
              "\u2514\u2500 parent: hydro.category:turbines-1.0.0  Turbines\n"
              "   \u251c\u2500 domain: hydro.domain:powerhouse-1.0.0  Powerhouse\n"
              "   \u251c\u2500 disciplines: hydro.discipline:mechanical-1.0.0  Hydro-Mechanical\n"
              "   \u2514\u2500 disciplines: hydro.discipline:control-1.0.0  Instrumentation and Control\n");
}

TEST(Deps, GoesTheOtherWayToo) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", namesG) + parameter("q", namesG) + group("g", "Safety"));
    EXPECT_EQ(folder.run({"deps", "--reverse", "g"}).out, "g  Safety\n"
                                                          "\u251c\u2500 group: p  P\n"
                                                          "\u2514\u2500 group: q  P\n");
}

TEST(Deps, WritesAGraphForGraphviz) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", namesG) + group("g", R"(\"Safety\\N\")"));
    EXPECT_EQ(folder.run({"deps", "--dot", "p"}).out, R"(digraph dependencies {
    rankdir=LR
    node [shape=box, style=rounded, fontname="Helvetica", fontsize=11]
    edge [fontname="Helvetica", fontsize=9]
    "g" [label="\"Safety\\N\"\ngroup\ng"]
    "norvex.spec:spec.bool-1.0.0" [label="built in\nnorvex.spec:spec.bool-1.0.0"]
    "p" [label="P\nBoolean parameter\np"]
    "p" -> "g" [label="group"]
    "p" -> "norvex.spec:spec.bool-1.0.0" [label="spec"]
}
)");
}

/// Returns a JSON text without blanks between its parts.
std::string compacted(const std::string& json) { return Tool::compact(json); }

TEST(Show, PrintsJson) {
    const Folder folder;
    folder.write("f.ndjson", group("g", "Safety") + parameter("p", namesG) + parameter("q", namesG));
    const Outcome outcome = folder.run({"show", "--json", "p"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(
        compacted(outcome.out),
        R"({"typeid":"p","kind":"bool-parameter","name":"P","properties":[)"
        R"({"name":"group","own":true,"values":[{"typeid":"g","name":"Safety","builtIn":false}]},)"
        R"({"name":"read-only","own":true,"values":[{"text":"no"}]},)"
        R"({"name":"spec","own":true,"values":[{"typeid":"norvex.spec:spec.bool-1.0.0","name":"Yes/No","builtIn":true}]},)"
        R"({"name":"discipline","own":false,"values":[{"typeid":"norvex.spec:discipline-1.0.0","name":"Common","builtIn":true}]}],)"
        R"("file":"./f.ndjson","line":2,"column":1,"dependencies":[)"
        R"({"property":"group","typeid":"g","name":"Safety","builtIn":false},)"
        R"({"property":"spec","typeid":"norvex.spec:spec.bool-1.0.0","name":"","builtIn":true}],"dependents":[]})");
    EXPECT_THAT(
        compacted(folder.run({"show", "--json", "g"}).out),
        HasSubstr(R"("dependencies":[],"dependents":[{"property":"group","typeid":"p","name":"P","builtIn":false},)"
                  R"({"property":"group","typeid":"q","name":"P","builtIn":false}]})"));
    EXPECT_EQ(folder.run({"show", "--json", "--schema", "p"}).exitCode, 2);
}

TEST(Deps, PrintsTheGraphAsJsonWithEachObjectOnce) {
    const Folder folder;
    folder.write("f.ndjson", group("g", "Safety") + parameter("p", namesG) + parameter("q", namesG));
    const std::string head = R"({"root":"g","nodes":[{"typeid":"g","kind":"group","name":"Safety","builtIn":false},)";
    EXPECT_EQ(compacted(folder.run({"deps", "--json", "--reverse", "g"}).out),
              head + R"({"typeid":"p","kind":"bool-parameter","name":"P","builtIn":false},)"
                     R"({"typeid":"q","kind":"bool-parameter","name":"P","builtIn":false}],"edges":[)"
                     R"({"from":"p","to":"g","property":"group"},{"from":"q","to":"g","property":"group"}]})");
    const std::string out = compacted(folder.run({"deps", "--json", "peltonTurbines", examples}).out);
    EXPECT_THAT(out, HasSubstr(R"({"from":"hydro.category:turbines-1.0.0","to":"hydro.domain:powerhouse-1.0.0",)"
                               R"("property":"domain"})"));
    EXPECT_EQ(folder.run({"deps", "--json", "--dot", "p"}).exitCode, 2);
    EXPECT_EQ(folder.run({"deps", "--json", "--svg", "-", "p"}).exitCode, 2);
}

TEST(Deps, PrintsASharedObjectOnceAsJson) {
    const auto spec = [](const std::string& typeId) {
        return R"({"typeid":")" + typeId +
               R"(","inherits":["norvex.talmo.category:majorCategory-1.0.0"],"constants":[)" +
               R"({"id":"name","value":"C"},{"id":"domain","typedValue":{"typeid":"d"}},)" +
               R"({"id":"disciplines","typedValue":[{"typeid":"e"},{"typeid":"e"}]}]})" + "\n";
    };
    const Folder folder;
    folder.write("f.ndjson", spec("c") +
                                 R"({"typeid":"d","inherits":["norvex.talmo.category:domain-1.0.0"],"constants":[)"
                                 R"({"id":"name","value":"D"}]})"
                                 "\n"
                                 R"({"typeid":"e","inherits":["norvex.spec:discipline-1.0.0"],"constants":[)"
                                 R"({"id":"name","value":"E"}]})"
                                 "\n");
    EXPECT_EQ(compacted(folder.run({"deps", "--json", "c"}).out),
              R"({"root":"c","nodes":[{"typeid":"c","kind":"category","name":"C","builtIn":false},)"
              R"({"typeid":"d","kind":"domain","name":"D","builtIn":false},)"
              R"({"typeid":"e","kind":"discipline","name":"E","builtIn":false}],"edges":[)"
              R"({"from":"c","to":"d","property":"domain"},{"from":"c","to":"e","property":"disciplines"},)"
              R"({"from":"c","to":"e","property":"disciplines"}]})");
}

TEST(Deps, DrawsAPictureIntoAFile) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    const Outcome outcome = folder.run({"deps", "--svg", "picture.svg", discharge, examples});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(folder.read("picture.svg"), HasSubstr("<svg "));
    EXPECT_THAT(folder.read("picture.svg"), HasSubstr("Rated Discharge"));
    EXPECT_EQ(folder.files(), std::vector<std::string>{"picture.svg"});
}

TEST(Export, WritesNormalSchemasSortedByKindAndTypeId) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", R"(,{"id":"readOnly","value":false})" + namesG) + group("g", "Safety") +
                                 R"({ "typeid": "u", "inherits": ["norvex.unit:unit-1.0.0"],)"
                                 R"( "constants": [ {"id": "name", "value": "Metre"} ] })");
    const Outcome outcome = folder.run({"export", "f.ndjson", "-o", "out.ndjson"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(folder.read("out.ndjson"),
              R"({"typeid":"u","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name","value":"Metre"}]})"
              "\n" +
                  group("g", "Safety") + parameter("p", namesG));
}

TEST(Export, WritesAFileForEachSchema) {
    const Folder folder;
    folder.write("f.ndjson", group("x:g/1", "Safety"));
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out/"}).exitCode, 0);
    EXPECT_EQ(folder.read("out/group/x%3Ag%2F1.json"), group("x:g/1", "Safety"));
}

TEST(Export, NamesFilesOfLongTypeIdsTheSameEverywhere) {
    const Folder folder;
    folder.write("f.ndjson", group(std::string(200, 'x'), "A") + group(std::string(201, 'x'), "B") +
                                 group(std::string(201, 'X'), "C") + group("g:" + std::string(197, 'y'), "D") +
                                 group(repeated("\u00FC", 40), "E"));
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    EXPECT_EQ(folder.files(),
              (std::vector<std::string>{"f.ndjson", "out/group/" + repeated("%C3%BC", 33) + "%C%4BD4732601945065.json",
                                        "out/group/" + std::string(200, 'X') + "%F19EB4B4A9FA2FC7.json",
                                        "out/group/g%3A" + std::string(196, 'y') + "%E53CBD4407D7574B.json",
                                        "out/group/" + std::string(200, 'x') + "%3631500D06F3BBA7.json",
                                        "out/group/" + std::string(200, 'x') + ".json"}));
}

// Both texts have the 64-bit FNV-1a hash 9F393972590A7DC2.
TEST(Export, WritesAFileForEachOfTwoLongTypeIdsWithOneDigest) {
    const Folder folder;
    const std::string start(200, 'x');
    const std::string one = group(start + "oamozaagkvmczsbluhypcldqdfddpmmuznxfrrgkrikkuppuqqnjtqbk"
                                          "grzdqeyaoyrhaiglppgyeneouevaehbkkojcqvexwtiwqywan",
                                  "A");
    const std::string other = group(start + "oamozaagkvmczslfahfewjjelmqxbbmlnnhfrrgkriaaapcheqnjtqbk"
                                            "rcybgnqqewgnmxkmufeykneouevajfrnowpcqvexwtpcjllfy",
                                    "B");
    folder.write("f.ndjson", other + one);
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    EXPECT_EQ(folder.read("out/group/" + start + "%9F393972590A7DC2.json"), one);
    EXPECT_EQ(folder.read("out/group/" + start + "%9F393972590A7DC3.json"), other);
    EXPECT_EQ(folder.files().size(), 3U);
}

TEST(Export, ReplacesAnEarlierExportAsAWhole) {
    const Folder folder;
    folder.write("f.ndjson", group("a", "A"));
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    folder.write("f.ndjson", group("b", "B"));
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    EXPECT_EQ(folder.files(), (std::vector<std::string>{"f.ndjson", "out/group/b.json"}));
}

TEST(Export, KeepsFilesThatHaveTheRightContent) {
    const Folder folder;
    folder.write("f.ndjson", group("a", "A") + group("b", "B"));
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1000);
    const auto timeOf = [&](const char* name) {
        return std::filesystem::last_write_time(folder.path() / "out/group" / name);
    };
    for (const char* name : {"a.json", "b.json"}) {
        std::filesystem::last_write_time(folder.path() / "out/group" / name, longAgo);
    }
    const auto old = timeOf("a.json");
    folder.write("f.ndjson", group("a", "A") + group("b", "C") + group("c", "C"));
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    EXPECT_EQ(folder.read("out/group/a.json"), group("a", "A"));
    EXPECT_EQ(folder.read("out/group/b.json"), group("b", "C")); // as long as before
    EXPECT_EQ(timeOf("a.json"), old);
    EXPECT_NE(timeOf("b.json"), old);
    EXPECT_EQ(folder.files(),
              (std::vector<std::string>{"f.ndjson", "out/group/a.json", "out/group/b.json", "out/group/c.json"}));
}

TEST(Export, ReplacesAFolderOfManyFilesAndLeavesNothingBehind) {
    const Folder folder;
    std::string before;
    std::string after;
    for (int i = 0; i < 1500; ++i) {
        before += group("before" + std::to_string(i), "A");
        after += group("after" + std::to_string(i), "A");
    }
    folder.write("f.ndjson", before);
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    folder.write("f.ndjson", after);
    EXPECT_EQ(folder.run({"export", "f.ndjson", "-o", "out"}).exitCode, 0);
    const std::vector<std::string> files = folder.files();
    EXPECT_EQ(files.size(), 1501U);
    EXPECT_EQ(std::count_if(files.begin(), files.end(),
                            [](const std::string& file) { return file.starts_with("out/group/after"); }),
              1500);
}

TEST(Export, KeepsAFolderWithOtherFiles) {
    const Folder folder;
    folder.write("f.ndjson", group("a", "A"));
    folder.write("out/notes.txt", "kept");
    const Outcome outcome = folder.run({"export", "f.ndjson", "-o", "out"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: out is not replaced: out/notes.txt is not from an export.\n");
    EXPECT_EQ(folder.files(), (std::vector<std::string>{"f.ndjson", "out/notes.txt"}));
}

TEST(Export, WritesNothingOfAFaultyCatalogue) {
    const Folder folder;
    folder.write("f.ndjson", group("a", "A") + "]\n");
    folder.write("out.ndjson", "as it was");
    const Outcome outcome = folder.run({"export", "f.ndjson", "-o", "out.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "f.ndjson:2:1: JSON parsing error at offset 0: Invalid value.\n");
    EXPECT_EQ(folder.read("out.ndjson"), "as it was");
}

TEST(Export, OfAnExportIsTheSame) {
    const Folder folder;
    EXPECT_EQ(folder.run({"export", examples, "-o", "one.ndjson"}).exitCode, 0);
    EXPECT_EQ(folder.run({"export", "one.ndjson", "-o", "out"}).exitCode, 0);
    EXPECT_EQ(folder.run({"export", "out", "-o", "two.ndjson"}).exitCode, 0);
    EXPECT_THAT(folder.read("one.ndjson"), Not(IsEmpty()));
    EXPECT_EQ(folder.read("one.ndjson"), folder.read("two.ndjson"));
}

TEST(Diff, TellsWhatWasAddedRemovedAndChanged) {
    const Folder folder;
    folder.write("old.ndjson", group("g", "Safety") + group("h", "H") + parameter("p", namesG));
    folder.write("new.ndjson",
                 group("g", "Security") + group("i", "I") +
                     parameter("p", R"(,{"id":"description","value":"D"},{"id":"readOnly","value":true})"));
    const Outcome outcome = folder.run({"diff", "old.ndjson", "new.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "- h  group  H\n"
                           "+ i  group  I\n"
                           "~ g  group  Security\n"
                           "    name: Safety -> Security\n"
                           "~ p  Boolean parameter  P\n"
                           "    description: none -> D\n"
                           "    group: g -> norvex.parameter:group-1.0.0\n"
                           "    read-only: no -> yes\n"
                           "1 added, 1 removed, 2 changed\n");
}

TEST(Diff, IsZeroForEqualCatalogues) {
    const Outcome outcome = Folder().run({"diff", examples, examples});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "0 added, 0 removed, 0 changed\n");
}

TEST(Diff, RefusesAFaultyCatalogueWhenItIsToBeStrict) {
    const Folder folder;
    folder.write("bad.json", "]");
    const Outcome outcome = folder.run({"diff", "--strict", examples, "bad.json"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "bad.json:1:1: JSON parsing error at offset 0: Invalid value.\n");
}

TEST(Report, IsOnePageThatHoldsTheDataAsText) {
    const Folder folder;
    folder.write("g.json", group("g", "</script><script>alert(1)</script>"));
    const Outcome outcome = folder.run({"report", "g.json", "-o", "report.html"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    const std::string page = folder.read("report.html");
    EXPECT_THAT(page, StartsWith("<!doctype html>\n"));
    EXPECT_THAT(page, HasSubstr(R"(\u003c/script\u003e\u003cscript\u003ealert(1))"));
    EXPECT_THAT(page, Not(HasSubstr("<script>alert(1)")));
    EXPECT_THAT(page, Not(HasSubstr("@DATA@")));
}

TEST(Report, IsTheSameForTheSameInput) {
    const Folder folder;
    EXPECT_EQ(folder.run({"report", examples, "-o", "one.html"}).exitCode, 0);
    EXPECT_EQ(folder.run({"report", examples, "-o", "two.html"}).exitCode, 0);
    EXPECT_EQ(folder.read("one.html"), folder.read("two.html"));
}

TEST(Report, TellsWhatChangedSinceAnEarlierCatalogue) {
    const Folder folder;
    folder.write("old.ndjson", group("g", "Safety") + group("h", "H"));
    folder.write("new.ndjson", group("g", "Security"));
    EXPECT_EQ(folder.run({"report", "new.ndjson", "--against", "old.ndjson", "-o", "page.html"}).exitCode, 0);
    EXPECT_THAT(folder.read("page.html"), HasSubstr(R"("fate":"removed","typeId":"h")"));
    EXPECT_THAT(folder.read("page.html"), HasSubstr(R"("before":"Safety","after":"Security")"));
    EXPECT_EQ(folder.run({"report", "new.ndjson", "-o", "page.html"}).exitCode, 0);
    EXPECT_THAT(folder.read("page.html"), Not(HasSubstr(R"("review":{"name")")));
}

TEST(Report, ReadsOneOfTwoCataloguesFromStandardInput) {
    const Folder folder;
    folder.write("g.json", group("g", "Security"));
    const std::vector<std::string> arguments{"report", "g.json", "--against", "-", "-o", "-"};
    EXPECT_THAT(folder.run(arguments, ".out", group("g", "Safety")).out,
                HasSubstr(R"("review":{"name":"\u003cstdin\u003e")"));
    const Outcome outcome = folder.run({"report", "-", "--against", "-", "-o", "page.html"}, ".out", group("g", "G"));
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Standard input can be only one of the two catalogues.\n");
}

TEST(Report, RefusesAnEarlierCatalogueThatIsNotThere) {
    const Folder folder;
    folder.write("g.json", group("g", "G"));
    const Outcome outcome = folder.run({"report", "g.json", "--against", "none", "-o", "page.html"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, HasSubstr("none"));
    EXPECT_EQ(folder.read("page.html"), "");
}

struct Verb {
    const char* name;
    std::vector<std::string> arguments;
};

class StandardInput : public testing::TestWithParam<Verb> {};

TEST_P(StandardInput, IsReadByEachVerb) {
    const Folder folder;
    const Outcome outcome = folder.run(GetParam().arguments, ".out", group("g", "Safety") + parameter("p", namesG));
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr(GetParam().arguments.front() == "diff" ? "0 added" : "g"));
}

INSTANTIATE_TEST_SUITE_P(Tool, StandardInput,
                         testing::Values(Verb{"Check", {"check", "-"}}, Verb{"List", {"list", "-"}},
                                         Verb{"Show", {"show", "g", "-"}}, Verb{"Deps", {"deps", "p", "-"}},
                                         Verb{"Export", {"export", "-", "-o", "-"}},
                                         Verb{"Report", {"report", "-", "-o", "-"}}),
                         Support::nameOfRow);

TEST(Tool, ReadsOneSchemaOfManyLinesFromStandardInput) {
    const Folder folder;
    const Outcome outcome =
        folder.run({"check", "-q", "-"}, ".out", "{\n \"typeid\": \"a\",\n \"inherits\": [\"Enum\"]\n}\n");
    EXPECT_EQ(outcome.out, "<stdin>:1:1: Enumeration schema a must specify at least one value.\n");
}

/// Returns a part of a text; fails when it is not there.
std::string sectionOf(const std::string& text, const std::string& beginning, const std::string& end) {
    const std::size_t begin = text.find(beginning);
    EXPECT_NE(begin, std::string::npos) << beginning;
    return begin == std::string::npos ? "" : text.substr(begin, text.find(end, begin + beginning.size()) - begin);
}

class Help : public testing::TestWithParam<const char*> {};

TEST_P(Help, NamesTheOptionsThatAreInTheManPage) {
    const Outcome outcome = Folder().run({GetParam(), "--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr(std::string("Usage: ostra-params ") + GetParam() + " "));
    const std::string manual = sectionOf(contentOf(OSTRA_SOURCE_DIR "/tools/ostra-params/shell/ostra-params.1"),
                                         std::string("\n.SS ") + GetParam() + "\n", "\n.S");
    const std::regex option("--[a-z-]+");
    for (std::sregex_iterator match(outcome.out.begin(), outcome.out.end(), option), end; match != end; ++match) {
        const std::string name = match->str().substr(2);
        if (name != "help") {
            EXPECT_THAT(manual, HasSubstr("\\-\\-" + std::regex_replace(name, std::regex("-"), "\\-")));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tool, Help,
                         testing::Values("check", "list", "show", "deps", "export", "diff", "report", "fmt", "rename",
                                         "fix", "new", "json-schema"),
                         [](const auto& test) {
                             std::string name = test.param;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
