#include "ProjectFolder.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace {

using Json = nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string examples = OSTRA_SOURCE_DIR "/examples/catalogue";

std::string group(const std::string& typeId, const std::string& name) {
    return R"({"typeid":")" + typeId + R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[)" +
           R"({"id":"name","value":")" + name + "\"}]}\n";
}

std::string choices(const std::string& list) {
    return R"({"typeid":"e","inherits":["Enum"],"properties":[)" + list + "]}\n";
}

std::string set(const std::string& list) {
    return R"({"typeid":"r","inherits":["norvex.range:range.string.set.static-1.0.0"],)"
           R"("constants":[{"id":"allowedValues","value":[)" +
           list + "]}]}\n";
}

/// A parameter that names a group.
std::string parameter(const std::string& typeId, const std::string& groupTypeId) {
    return R"({"typeid":")" + typeId + R"(","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)" +
           R"({"id":"name","value":"P"},{"id":"group","typedValue":{"typeid":")" + groupTypeId + "\"}}]}\n";
}

/// Compares two texts of lines.
Outcome diff(const Folder& folder, const std::string& before, const std::string& after,
             std::vector<std::string> options = {}) {
    folder.write("old.ndjson", before);
    folder.write("new.ndjson", after);
    options.insert(options.begin(), "diff");
    options.insert(options.end(), {"old.ndjson", "new.ndjson"});
    return folder.run(options);
}

TEST(Diff, WritesAllThatItKnowsAsJson) {
    const Folder folder;
    const Outcome outcome = diff(folder, group("g", "Safety"), group("g", "Security"), {"--json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, R"({
  "added": [],
  "removed": [],
  "changed": [
    {
      "typeid": "g",
      "kind": "group",
      "name": "Security",
      "properties": [
        {
          "name": "name",
          "before": "Safety",
          "after": "Security"
        }
      ],
      "placeBefore": {
        "file": "old.ndjson",
        "line": 1,
        "column": 11,
        "endLine": 1,
        "endColumn": 14,
        "pointer": "/typeid"
      },
      "placeAfter": {
        "file": "new.ndjson",
        "line": 1,
        "column": 11,
        "endLine": 1,
        "endColumn": 14,
        "pointer": "/typeid"
      },
      "constants": [
        {
          "id": "name",
          "before": "Safety",
          "after": "Security",
          "placeBefore": {
            "file": "old.ndjson",
            "line": 1,
            "column": 93,
            "endLine": 1,
            "endColumn": 101,
            "pointer": "/constants/0/value"
          },
          "placeAfter": {
            "file": "new.ndjson",
            "line": 1,
            "column": 93,
            "endLine": 1,
            "endColumn": 103,
            "pointer": "/constants/0/value"
          }
        }
      ]
    }
  ],
  "succeeded": [],
  "renamed": [],
  "broken": [],
  "mended": []
}
)");
    EXPECT_EQ(folder.run({"diff", "--format", "json", "old.ndjson", "new.ndjson"}).out, outcome.out);
}

TEST(Diff, MatchesVersionsAndRenamedObjects) {
    const Folder folder;
    const Outcome outcome =
        diff(folder, group("g-1.0.0", "G") + group("h", "H") + parameter("p", "h") + group("i-1.9.0", "I"),
             group("g-2.0.0", "New") + group("k", "H") + parameter("p", "k") + group("i-1.10.0", "I"));
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "^ g-1.0.0 -> g-2.0.0  group  New\n"
                           "    name: G -> New\n"
                           "^ i-1.9.0 -> i-1.10.0  group  I\n"
                           "= h -> k  group  H\n"
                           "~ p  Boolean parameter  P\n"
                           "    group: h -> k\n"
                           "0 added, 0 removed, 1 changed, 2 succeeded, 1 renamed\n");
}

TEST(Diff, TellsOfListsWhatDiffers) {
    const Folder folder;
    const Outcome outcome = diff(
        folder, choices(R"({"id":"A","value":1},{"id":"B","value":2},{"id":"C","value":3})") + set(R"("x","y","z")"),
        choices(R"({"id":"A","value":1},{"id":"B","value":5},{"id":"D","value":4})") + set(R"("z","w","x")"));
    EXPECT_EQ(outcome.out, "~ e  enumeration\n"
                           "    choices: B = 2 -> B = 5, - C = 3, + D = 4\n"
                           "~ r  string range\n"
                           "    allowed values: - y, + w, another order\n"
                           "0 added, 0 removed, 2 changed\n");
}

TEST(Diff, TellsTheFirstOfManyElements) {
    const Folder folder;
    std::string many = "\"x\"";
    for (int i = 10; i < 30; ++i) {
        many += ",\"" + std::to_string(i) + "\"";
    }
    EXPECT_THAT(diff(folder, set("\"x\""), set(many)).out, HasSubstr("+ 18, + 19, 10 more\n"));
}

TEST(Diff, HasTheElementsAndTheirPlacesInJson) {
    const Folder folder;
    const Outcome outcome =
        diff(folder, choices(R"({"id":"A","value":1})"), choices(R"({"id":"A","value":2})"), {"--json"});
    const Json constant = Json::parse(outcome.out)["changed"][0]["constants"][0];
    EXPECT_EQ(constant["before"], Json::parse(R"([{"id":"A","integer":1}])"));
    EXPECT_EQ(constant["isReordered"], false);
    const Json& element = constant["elements"][0];
    EXPECT_EQ(element["after"], Json::parse(R"({"id":"A","integer":2})"));
    EXPECT_EQ(element["placeAfter"]["pointer"], "/properties/0");
    EXPECT_EQ(element["placeAfter"]["column"], 49);
}

TEST(Diff, SaysInJsonWhatNamesAnObjectStillAndWhatSaysALimit) {
    const Folder folder;
    const std::string range =
        R"({"typeid":"r","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":true},{"id":"bottomBoundary","value":3},{"id":"fromTop","value":false}]})"
        "\n";
    const auto limited = [](const std::string& groupTypeId, const std::string& more) {
        return R"({"typeid":"p","inherits":["norvex.parameter:parameter.int64-3.0.0"],"constants":[)"
               R"({"id":"name","value":"P"},{"id":"group","typedValue":{"typeid":")" +
               groupTypeId + "\"}}" + more + "]}\n";
    };
    const Outcome outcome =
        diff(folder, group("g", "G") + range + limited("g", ""),
             group("h", "G") + range + limited("h", R"(,{"id":"range","typedValue":{"typeid":"r"}})"), {"--json"});
    const Json constants = Json::parse(outcome.out)["changed"][0]["constants"];
    ASSERT_EQ(constants.size(), 3U);
    EXPECT_EQ(constants[0]["isFollowing"], true);
    EXPECT_EQ(constants[1]["before"], Json());
    EXPECT_EQ(constants[1]["after"], Json({{"typeid", "r"}}));
    EXPECT_EQ(constants[2]["id"], "bottomBoundary");
    EXPECT_EQ(constants[2]["from"], "range");
    EXPECT_EQ(constants[2]["after"], 3);
    EXPECT_EQ(constants[2]["placeAfter"]["pointer"], "/constants/2/typedValue");
}

TEST(Diff, LeavesOutWhatIsFaultyAndSaysSo) {
    const Folder folder;
    const std::string faulty = R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"]})"
                               "\n";
    const Outcome outcome = diff(folder, group("g", "G") + group("h", "H"), faulty + group("h", "H"));
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "! g  group  G\n0 added, 0 removed, 0 changed, 1 broken\n");
    EXPECT_EQ(outcome.err, "new.ndjson:1:1: Schema g has an undefined name constant.\n");
    EXPECT_EQ(diff(folder, faulty, group("g", "G")).out, "* g  group  G\n0 added, 0 removed, 0 changed, 1 mended\n");
    const Outcome both = diff(folder, faulty + group("h", "H"), faulty + group("h", "H"));
    EXPECT_EQ(both.exitCode, 0);
    EXPECT_EQ(both.out, "0 added, 0 removed, 0 changed\n");
    EXPECT_EQ(both.err, "old.ndjson:1:1: Schema g has an undefined name constant.\n"
                        "new.ndjson:1:1: Schema g has an undefined name constant.\n");
}

TEST(Diff, FindsNothingInAnExportButWhatIsNotWrittenBack) {
    const Folder folder;
    EXPECT_EQ(folder.run({"export", examples, "-o", "export.ndjson"}).exitCode, 0);
    EXPECT_EQ(folder.run({"diff", examples, "export.ndjson"}).out,
              "~ hydro.range:remark-1.0.0  string range\n"
              "    regular expression: none -> \n"
              "    range: any -> none\n"
              "~ hydro.parameter:elevationOfCrest-1.0.0  integer parameter  Elevation of the Crest\n"
              "    range: hydro.range:elevation-1.0.0 -> any\n"
              "0 added, 0 removed, 2 changed\n");
    const Outcome outcome = folder.run({"diff", "--breaking", examples, "export.ndjson"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "0 breaking documents, 0 breaking applications, 0 to review, 3 safe\n");
}

TEST(Diff, OfALargeCatalogueFindsNothingInItsExport) {
    const char* const catalogue = std::getenv("OSTRA_CATALOGUE");
    if (catalogue == nullptr) {
        GTEST_SKIP() << "OSTRA_CATALOGUE is not set.";
    }
    const Folder folder;
    const std::string path = std::filesystem::absolute(catalogue).string();
    EXPECT_EQ(folder.run({"export", path, "-o", "export.ndjson"}).exitCode, 0);
    const Outcome outcome = folder.run({"diff", path, "export.ndjson"});
    // Ranges of parameters without limits, and ranges of any text.
    EXPECT_THAT(outcome.out, testing::EndsWith("\n0 added, 0 removed, 10 changed\n"));
    EXPECT_EQ(folder.run({"diff", "--breaking", path, "export.ndjson"}).exitCode, 0);
}

/// What would take time with the square of their number does not end.
TEST(Diff, ComparesManyObjectsAndElements) {
    const Folder folder;
    std::string before;
    std::string after;
    std::string choicesBefore = R"({"id":"c","value":0})";
    std::string choicesAfter = choicesBefore;
    constexpr int many = 50000;
    for (int i = 0; i < many; ++i) {
        const std::string number = std::to_string(i);
        before += group("old" + number, "G");
        after += group("new" + number, "G");
        choicesBefore += R"(,{"id":"a)" + number + R"(","value":)" + number + "}";
        choicesAfter += R"(,{"id":"b)" + number + R"(","value":0})";
    }
    const Outcome outcome =
        diff(folder, before + choices(choicesBefore), after + choices(choicesAfter), {"--breaking"});
    EXPECT_THAT(outcome.out,
                testing::EndsWith("100000 breaking documents, 0 breaking applications, 50000 to review, 0 safe\n"));
}

TEST(Breaking, TellsWhatBreaksWhyAndWhatDependsOnIt) {
    const Folder folder;
    const Outcome outcome = diff(folder, group("g", "G") + parameter("p", "g") + choices(R"({"id":"A","value":1})"),
                                 group("g", "Group") + choices(R"({"id":"A","value":2})"), {"--breaking"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "old.ndjson:2:11: Boolean parameter p removed [object-removed]\n"
                           "    breaks documents: Documents hold its typeid, and nothing answers to it.\n"
                           "new.ndjson:2:49: enumeration e: choices: A = 1 -> A = 2 [choice-integer-changed]\n"
                           "    breaks documents: The integer that documents hold means something else, or nothing.\n"
                           "2 breaking documents, 0 breaking applications, 0 to review, 1 safe\n");
}

TEST(Breaking, NamesTheFirstOfWhatDependsOnAnObject) {
    const Folder folder;
    std::string before = group("g", "G");
    for (const char* typeId : {"a", "b", "c", "d"}) {
        before += parameter(typeId, "g");
    }
    EXPECT_THAT(diff(folder, before, group("h", "G"), {"--breaking"}).out,
                HasSubstr("group g renamed to h [object-renamed]\n"
                          "    breaks documents: Documents hold the old typeid, and nothing answers to it.\n"
                          "    4 objects depend on it: a, b, c ...\n"));
}

struct Acceptance {
    const char* name;
    std::vector<std::string> options;
    int exitCode;
    std::string count;
};

class Accepted : public testing::TestWithParam<Acceptance> {};

TEST_P(Accepted, IsNotBreaking) {
    const Folder folder;
    std::vector<std::string> options = GetParam().options;
    options.emplace_back("--breaking");
    const Outcome outcome = diff(folder, group("g", "G") + set("\"x\",\"y\""), set("\"x\""), options);
    EXPECT_EQ(outcome.exitCode, GetParam().exitCode);
    EXPECT_THAT(outcome.out, testing::EndsWith(GetParam().count + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Breaking, Accepted,
    testing::Values(Acceptance{"Nothing", {}, 1, "2 breaking documents, 0 breaking applications, 0 to review, 0 safe"},
                    Acceptance{"OneCode",
                               {"--accept", "object-removed"},
                               1,
                               "1 breaking documents, 0 breaking applications, 0 to review, 0 safe, 1 accepted"},
                    Acceptance{"BothCodes",
                               {"--accept", "object-removed,allowed-value-removed"},
                               0,
                               "0 breaking documents, 0 breaking applications, 0 to review, 0 safe, 2 accepted"},
                    Acceptance{"BothCodesOfObjects",
                               {"--accept", "object-removed:g", "--accept", "allowed-value-removed:r"},
                               0,
                               "0 breaking documents, 0 breaking applications, 0 to review, 0 safe, 2 accepted"},
                    Acceptance{"CodeOfAnotherObject",
                               {"--accept", "object-removed:r"},
                               1,
                               "2 breaking documents, 0 breaking applications, 0 to review, 0 safe"}),
    Support::nameOfRow);

TEST(Breaking, ShowsWhatIsSafeOrAcceptedWhenAskedForAll) {
    const Folder folder;
    const Outcome outcome = diff(folder, group("g", "G") + group("h", "H"), group("g", "Group"),
                                 {"--breaking", "--all", "--accept", "object-removed"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "old.ndjson:2:11: accepted: group h removed [object-removed]\n"
                           "    breaks documents: Documents hold its typeid, and nothing answers to it.\n"
                           "new.ndjson:1:93: safe: group g: name: G -> Group [name-changed]\n"
                           "0 breaking documents, 0 breaking applications, 0 to review, 1 safe, 1 accepted\n");
}

TEST(Breaking, AddsVerdictsToTheJson) {
    const Folder folder;
    const Outcome outcome = diff(folder, group("g", "G") + parameter("p", "g"), group("g", "G") + parameter("p2", "g"),
                                 {"--breaking", "--json"});
    EXPECT_EQ(outcome.exitCode, 1);
    const Json json = Json::parse(outcome.out);
    EXPECT_EQ(json["renamed"][0]["before"]["typeid"], "p");
    ASSERT_EQ(json["verdicts"].size(), 1U);
    const Json& verdict = json["verdicts"][0];
    EXPECT_EQ(verdict["code"], "object-renamed");
    EXPECT_EQ(verdict["severity"], "breaks documents");
    EXPECT_EQ(verdict["isBreaking"], true);
    EXPECT_EQ(verdict["dependents"]["total"], 0);
}

TEST(Breaking, WritesCommandsForTheLogOfAWorkflow) {
    const Folder folder;
    const Outcome outcome =
        diff(folder, set("\"x\",\"y\"") + group("g", "G"), set("\"x\""), {"--breaking", "--format", "github"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(
        outcome.out,
        "::error file=old.ndjson,title=object-removed::Group g removed. Documents hold its typeid, and nothing "
        "answers to it.\n"
        "::error file=new.ndjson,line=1,col=116,endLine=1,endColumn=121,title=allowed-value-removed::String range "
        "r: allowedValues: - y. Documents may hold it as a value.\n");
}

TEST(Breaking, WritesALogWithItsOwnRules) {
    const Folder folder;
    const Outcome outcome = diff(folder, set("\"x\",\"y\""), set("\"x\""), {"--breaking", "--format", "sarif"});
    const Json run = Json::parse(outcome.out)["runs"][0];
    const Json& result = run["results"][0];
    EXPECT_EQ(result["ruleId"], "allowed-value-removed");
    EXPECT_EQ(result["level"], "error");
    EXPECT_EQ(run["tool"]["driver"]["rules"][result["ruleIndex"].get<std::size_t>()]["id"], "allowed-value-removed");
    EXPECT_EQ(result["relatedLocations"][0]["physicalLocation"]["artifactLocation"]["uri"], "old.ndjson");
}

/// A git repository with a catalogue that has one commit.
class Repository : public Folder {
public:
    Repository() {
        git({"init", "-q", "-b", "main", "."});
        write("catalogue/a.ndjson", group("g", "G") + group("h", "H"));
        write("catalogue/.hidden/x.json", group("x", "X"));
        write("catalogue/notes.txt", "no schema");
        write("other/b.json", group("b", "B"));
        commit();
    }
    void git(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(),
                         {"-c", "user.name=A", "-c", "user.email=a@b", "-c", "commit.gpgsign=false"});
        const Outcome outcome = runProgram("git", arguments);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    }
    void commit() const {
        git({"add", "catalogue", "other"});
        git({"commit", "-q", "-m", "As it is"});
    }
};

TEST(DiffAgainst, ComparesARevisionWithWhatIsThereNow) {
    SKIP_FOR_WINDOWS(); // git is no program of it
    const Repository repository;
    EXPECT_EQ(repository.run({"diff", "--against", "HEAD", "catalogue"}).out, "0 added, 0 removed, 0 changed\n");
    repository.write("catalogue/a.ndjson", group("g", "Group"));
    repository.write("catalogue/new.json", group("n", "N"));
    const Outcome outcome = repository.run({"diff", "--against", "HEAD", "catalogue"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "- h  group  H\n"
                           "+ n  group  N\n"
                           "~ g  group  Group\n"
                           "    name: G -> Group\n"
                           "1 added, 1 removed, 1 changed\n");
    // The working folder, and several paths.
    EXPECT_EQ(repository.run({"diff", "--against", "main"}).out, outcome.out);
    EXPECT_EQ(repository.run({"diff", "--against", "HEAD", "other", "catalogue/a.ndjson"}).out,
              "- h  group  H\n~ g  group  Group\n    name: G -> Group\n0 added, 1 removed, 1 changed\n");
    repository.commit();
    EXPECT_EQ(repository.run({"diff", "--breaking", "--against", "HEAD~1", "--format", "github", "catalogue"}).out,
              "::error file=catalogue/a.ndjson,title=object-removed::Group h removed. Documents hold its typeid, and "
              "nothing answers to it.\n");
}

TEST(DiffAgainst, TakesWhatWasNotThereForEmpty) {
    SKIP_FOR_WINDOWS(); // git is no program of it
    const Repository repository;
    repository.write("later/c.json", group("c", "C"));
    EXPECT_EQ(repository.run({"diff", "--against", "HEAD", "later"}).out,
              "+ c  group  C\n1 added, 0 removed, 0 changed\n");
    EXPECT_EQ(repository.run({"diff", "--against", "HEAD", "later/c.json"}).out,
              "+ c  group  C\n1 added, 0 removed, 0 changed\n");
}

TEST(DiffAgainst, SaysOfWhichRevisionFaultsAre) {
    SKIP_FOR_WINDOWS(); // git is no program of it
    const Repository repository;
    repository.write("other/b.json", "]");
    repository.commit();
    repository.write("other/b.json", group("b", "B"));
    const Outcome outcome = repository.run({"diff", "--against", "HEAD", "other"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "ostra-params: HEAD has faults:\n"
                           "other/b.json:1:1: JSON parsing error at offset 0: Invalid value.\n");
}

TEST(DiffAgainst, SaysWhatIsNotThere) {
    SKIP_FOR_WINDOWS(); // git is no program of it
    const Repository repository;
    const auto complaint = [&](const std::string& revision, const std::string& path) {
        const Outcome outcome = repository.run({"diff", "--against=" + revision, path});
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_THAT(outcome.out, IsEmpty());
        return outcome.err;
    };
    EXPECT_EQ(complaint("nowhere", "catalogue"), "ostra-params: There is no revision nowhere.\n");
    EXPECT_EQ(complaint("--output=leak", "catalogue"), "ostra-params: There is no revision --output=leak.\n");
    EXPECT_EQ(repository.read("leak"), "");
    EXPECT_EQ(complaint("HEAD", "missing"), "ostra-params: Cannot read missing: No such file or directory.\n");
    const Folder elsewhere;
    elsewhere.write("g.json", group("g", "G"));
    EXPECT_THAT(
        complaint("HEAD", elsewhere.path().string()),
        StartsWith("ostra-params: Cannot read HEAD of " + elsewhere.path().string() + ": not a git repository"));
}

/// A hook is told where its repository is, and works at the top of the working tree.
TEST(DiffAgainst, ReadsItsFolderAloneInAHook) {
    SKIP_FOR_WINDOWS(); // git is no program of it
    const Repository repository;
    repository.git({"worktree", "add", "-q", "linked"});
    const auto outputOf = [&](const std::string& folder, const std::string& environment) {
        repository.write("run.sh", "cd " + folder + " && " + environment + " '" + pathOfTool() +
                                       "' diff --against HEAD catalogue");
        const Outcome outcome = repository.runProgram("sh", {"run.sh"});
        return outcome.err + outcome.out;
    };
    repository.write("linked/catalogue/a.ndjson", group("g", "Group") + group("h", "H"));
    const std::string changed = "~ g  group  Group\n    name: G -> Group\n0 added, 0 removed, 1 changed\n";
    const std::string top = repository.path().string();
    EXPECT_EQ(outputOf("linked", "GIT_DIR='" + top + "/.git/worktrees/linked'"), changed);
    EXPECT_EQ(outputOf("linked", "GIT_DIR=../.git/worktrees/linked GIT_WORK_TREE=."), changed);
    EXPECT_EQ(outputOf(".", "GIT_DIR=.git"), "0 added, 0 removed, 0 changed\n");
}

TEST(DiffAgainst, NeedsGit) {
    SKIP_FOR_WINDOWS();
    const Repository repository;
    repository.write("run.sh", "PATH=/nowhere exec '" + pathOfTool() + "' diff --against HEAD catalogue");
    const Outcome outcome = repository.runProgram("sh", {"run.sh"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Cannot run git, which is needed to read a revision.\n");
}

TEST(DiffAgainst, ReadsFilesOfAllNamesAndNoLinks) {
    SKIP_FOR_WINDOWS(); // git is no program of it
    const Repository repository;
    repository.write("catalogue/\u00fcber \"zwei\".json", group("z", "Z"));
    repository.write("catalogue/a b/c (copy).json", group("c", "Other"));
    repository.write("catalogue/a b/c.json", group("c", "C"));
    std::filesystem::create_symlink("a.ndjson", repository.path() / "catalogue/link.ndjson");
    repository.commit();
    const Outcome same = repository.run({"diff", "--against", "HEAD", "catalogue"});
    EXPECT_EQ(same.out, "0 added, 0 removed, 0 changed\n");
    EXPECT_THAT(same.err, HasSubstr("ostra-params: HEAD has faults:\ncatalogue/a b/c (copy).json:1:11: "));
    repository.write("catalogue/\u00fcber \"zwei\".json", group("z", "New"));
    EXPECT_THAT(repository.run({"diff", "--against", "HEAD", "catalogue"}).out, StartsWith("~ z  group  New\n"));
}

struct Misuse {
    const char* name;
    std::vector<std::string> arguments;
    std::string complaint;
};

class MisusedDiff : public testing::TestWithParam<Misuse> {};

TEST_P(MisusedDiff, IsRefused) {
    const Folder folder;
    const Outcome outcome = folder.run(GetParam().arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, StartsWith("ostra-params: " + GetParam().complaint + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Diff, MisusedDiff,
    testing::Values(Misuse{"Nothing", {"diff"}, "OLD is required"}, Misuse{"OnePath", {"diff", "a"}, "NEW is required"},
                    Misuse{"ThreePaths", {"diff", "a", "b", "c"}, "The following argument was not expected: c"},
                    Misuse{"Format", {"diff", "--format", "sarif", "a", "b"}, "--format sarif requires --breaking"},
                    Misuse{"Accept", {"diff", "--accept", "object-removed", "a", "b"}, "--accept requires --breaking"},
                    Misuse{"All", {"diff", "--all", "a", "b"}, "--all requires --breaking"},
                    Misuse{"UnknownCode",
                           {"diff", "--breaking", "--accept", "object-remove:x", "a", "b"},
                           "--accept: there is no code object-remove; did you mean object-removed?"},
                    Misuse{"StandardInput", {"diff", "--against", "HEAD", "-"}, "Standard input has no revisions."}),
    Support::nameOfRow);

} // namespace
