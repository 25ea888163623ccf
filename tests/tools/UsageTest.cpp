#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace {

using testing::AnyOf;
using testing::HasSubstr;
using testing::StartsWith;

struct Misuse {
    const char* name;
    std::vector<std::string> arguments;
    const char* message;
};

class WrongUsage : public testing::TestWithParam<Misuse> {};

TEST_P(WrongUsage, SaysSoAndExitsWithTwo) {
    const Folder folder;
    folder.write("text.txt", "{}");
    folder.makeFolder("empty/below");
    const Outcome outcome = folder.run(GetParam().arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(
    Tool, WrongUsage,
    testing::Values(
        Misuse{"NoVerb", {}, "ostra-params: a verb is required\n\"ostra-params --help\" tells more.\n"},
        Misuse{"UnknownVerb", {"repair", "."}, "ostra-params: there is no verb repair\n\"ostra-params --help\" tells"},
        Misuse{"MisspeltVerb", {"chekc", "."}, "ostra-params: there is no verb chekc; did you mean check?\n"},
        Misuse{"NoPath", {"check"}, "ostra-params: PATH is required\n\"ostra-params check --help\" tells more.\n"},
        Misuse{"UnknownOption", {"check", "--fast", "empty"}, "was not expected: --fast\n"},
        Misuse{
            "UnknownFormat", {"check", "--format", "xml", "empty"}, "--format: xml not in {text,json,sarif,github}\n"},
        Misuse{"UnknownSeverity", {"check", "--severity", "x", "empty"}, "--severity: x not in {error,warning}\n"},
        Misuse{"UnknownCode", {"check", "--ignore", "xyz", "empty"}, "--ignore: there is no code xyz\n"},
        Misuse{"MisspeltCode",
               {"check", "--only", "json-syntax,constant-undefind", "empty"},
               "--only: there is no code constant-undefind; did you mean constant-undefined?\n"},
        Misuse{"NoLint", {"check", "--lint", "json-syntax", "empty"}, "--lint: json-syntax not in {content-shared,"},
        Misuse{"UnknownKind", {"list", "--kind", "pump", "empty"}, "--kind: there is no kind pump\n"},
        Misuse{"MisspeltKind",
               {"list", "--kind", "group,boolean paramter", "empty"},
               "--kind: there is no kind boolean paramter; did you mean Boolean parameter?\n"},
        Misuse{"NewOfNoKind", {"new", "pump", "x"}, "KIND: there is no kind pump\n"},
        Misuse{"NewOfMisspeltKind",
               {"new", "string-paramter", "x"},
               "KIND: there is no kind string-paramter; did you mean string-parameter?\n"},
        Misuse{"NewWithoutTypeId", {"new", "group"}, "TYPEID is required\n"},
        Misuse{"NewOfEmptyTypeId", {"new", "group", ""}, "TYPEID: must not be empty\n"},
        Misuse{"NewOfBuiltInTypeId",
               {"new", "group", "norvex.parameter:group-1.3.0"},
               "TYPEID: norvex.parameter:group-1.3.0 contains a built-in identifier\n"},
        Misuse{"NewWithoutFile", {"new", "group", "x", "-o", ""}, "--output: must not be empty\n"},
        Misuse{"NewInNoFolder", {"new", "group", "x", "-o", "no/x.json"}, "Cannot write no/x.json: No such file or"},
        Misuse{"JsonSchemaInNoFolder", {"json-schema", "-o", "no/x.json"}, "Cannot write no/x.json: No such file or"},
        Misuse{"EmptyPath", {"check", ""}, "ostra-params: PATH: must not be empty\n"},
        Misuse{"EmptyTypeId", {"show", "", "empty"}, "ostra-params: TYPEID: must not be empty\n"},
        Misuse{"EmptyOutput", {"report", "empty", "-o", ""}, "ostra-params: --output: must not be empty\n"},
        Misuse{"EmptyPicture", {"deps", "x", "empty", "--svg", ""}, "ostra-params: --svg: must not be empty\n"},
        Misuse{"PictureAndGraph", {"deps", "x", "empty", "--svg", "f", "--dot"}, "--dot excludes --svg\n"},
        Misuse{"TwiceStandardInput",
               {"diff", "-", "-"},
               "ostra-params: Standard input can be only one of the two catalogues.\n"},
        Misuse{"MissingPath", {"check", "nowhere"}, "ostra-params: Cannot read nowhere: No such file or directory.\n"},
        Misuse{"MissingFile",
               {"check", "nowhere.json"},
               "ostra-params: Cannot read nowhere.json: No such file or directory.\n"},
        Misuse{"FolderWithoutSchemas", {"check", "empty"}, "ostra-params: No .json or .ndjson file in empty.\n"},
        Misuse{"OtherFile",
               {"check", "text.txt"},
               "ostra-params: text.txt is neither a folder nor a .json or .ndjson file.\n"}),
    Support::nameOfRow);

TEST(Tool, ChecksNothingWhenOneOfThePathsIsMissing) {
    const Folder folder;
    folder.write("f.json", "]");
    const Outcome outcome = folder.run({"check", "f.json", "nowhere.json"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
}

class BrokenFile : public testing::TestWithParam<const char*> {};

TEST_P(BrokenFile, IsFaultyAndNotTakenForAShortOne) {
    SKIP_FOR_WINDOWS();
    const std::string unreadable = "/proc/self/mem"; // opens, but has nothing at its start
    if (!std::filesystem::exists(unreadable)) {
        GTEST_SKIP() << "There is no file that opens and cannot be read.";
    }
    const Folder folder;
    std::filesystem::create_symlink(unreadable, folder.path() / GetParam());
    const Outcome outcome = folder.run({"check", GetParam()});
    EXPECT_EQ(outcome.exitCode, 1);
    const std::string beginning = std::string(GetParam()) + ": The file cannot be read: "; // in the system's own words:
    EXPECT_THAT(outcome.out,
                AnyOf(StartsWith(beginning + "Input/output error.\n"), StartsWith(beginning + "I/O error.\n")));
}

INSTANTIATE_TEST_SUITE_P(Tool, BrokenFile, testing::Values("f.json", "f.ndjson"),
                         [](const auto& test) { return std::string(test.param).substr(2); });

TEST(Tool, RefusesAStandardInputThatCannotBeRead) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.makeFolder("c");
    folder.write("run.sh", "'" + pathOfTool() + "' check - < c 2> err; echo $? >> err");
    std::ignore = std::system(("cd '" + folder.path().string() + "' && sh run.sh").c_str());
    EXPECT_EQ(folder.read("err"), "ostra-params: Cannot read <stdin>: Is a directory.\n2\n");
}

struct Printing {
    const char* name;
    std::vector<std::string> arguments;
};

class FullDevice : public testing::TestWithParam<Printing> {};

TEST_P(FullDevice, IsSaid) {
    SKIP_FOR_WINDOWS();
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "There is no device that refuses what is written to it.";
    }
    const Folder folder;
    folder.write("g.json", R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"],)"
                           R"("constants":[{"id":"name","value":"G"}]})");
    const Outcome outcome = folder.run(GetParam().arguments, "/dev/full");
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Cannot write the result.\n");
}

INSTANTIATE_TEST_SUITE_P(
    Tool, FullDevice,
    testing::Values(Printing{"Check", {"check", "g.json"}}, Printing{"List", {"list"}}, Printing{"Show", {"show", "g"}},
                    Printing{"Deps", {"deps", "g"}}, Printing{"Export", {"export", "g.json", "-o", "-"}},
                    Printing{"Diff", {"diff", "g.json", "g.json"}}, Printing{"Report", {"report", "g.json", "-o", "-"}},
                    Printing{"Format", {"fmt", "--check", "g.json"}}, Printing{"New", {"new", "group", "x"}},
                    Printing{"JsonSchema", {"json-schema"}}, Printing{"Help", {"--help"}},
                    Printing{"Version", {"--version"}}),
    Support::nameOfRow);

TEST(Tool, ExitsAsItWouldWhenItsComplaintCannotBeWritten) {
    const Folder folder;
    folder.write("f.json", "]");
    folder.write("run.sh", "'" + pathOfTool() + "' list f.json 2>&-; echo $? > code");
    std::ignore = std::system(("cd '" + folder.path().string() + "' && sh run.sh").c_str());
    EXPECT_EQ(folder.read("code"), "1\n");
}

TEST(Tool, EndsQuietlyWhenNobodyReadsOn) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    std::string lines;
    for (int i = 0; i < 5000; ++i) {
        lines += "]\n";
    }
    folder.write("f.ndjson", lines);
    folder.write("run.sh", "'" + pathOfTool() + "' check f.ndjson 2>err | head -n 1 > out");
    std::ignore = std::system(("cd '" + folder.path().string() + "' && sh run.sh").c_str());
    EXPECT_EQ(folder.read("out"), "f.ndjson:1:1: JSON parsing error at offset 0: Invalid value.\n");
    EXPECT_EQ(folder.read("err"), "");
}

TEST(Tool, RefusesATypeIdThatIsNoUtf8) {
    SKIP_FOR_WINDOWS(); // where arguments are texts
    const Outcome outcome = Folder().run({"new", "group", "a\xFFz"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr("TYPEID: a\\xFFz is no UTF-8\n"));
}

TEST(Tool, PrintsItsVersion) {
    const Outcome outcome = Folder().run({"--version"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "ostra-params " OSTRA_PARAMETERS_VERSION "\n");
}

TEST(Tool, HelpNamesItsVerb) {
    const Outcome outcome = Folder().run({"--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out,
                StartsWith("Tools for people who write and review parameter catalogues\nUsage: ostra-params "));
    EXPECT_THAT(outcome.out, HasSubstr("\nVerbs:\n  check "));
}

TEST(Tool, HelpOfCheckNamesItsExitCodes) {
    const Outcome outcome = Folder().run({"check", "--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr("\nExit codes:\n"
                                       "  0  the catalogue is sound, or has warnings alone\n"
                                       "  1  the catalogue has faults, or warnings and --strict is given\n"
                                       "  2  wrong usage, or a path"));
}

} // namespace
