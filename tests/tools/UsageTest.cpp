#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

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
        Misuse{"NoVerb", {}, "A subcommand is required"},
        Misuse{"UnknownVerb", {"repair", "."}, "A subcommand is required"},
        Misuse{"NoPath", {"check"}, "PATH is required"},
        Misuse{"UnknownOption", {"check", "--fast", "empty"}, "--fast"},
        Misuse{"MissingPath", {"check", "nowhere"}, "ostra-params: Cannot read nowhere: No such file or directory.\n"},
        Misuse{"MissingFile",
               {"check", "nowhere.json"},
               "ostra-params: Cannot read nowhere.json: No such file or directory.\n"},
        Misuse{"FolderWithoutSchemas", {"check", "empty"}, "ostra-params: No .json or .ndjson file in empty.\n"},
        Misuse{"OtherFile",
               {"check", "text.txt"},
               "ostra-params: text.txt is neither a folder nor a .json or .ndjson file.\n"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(Tool, ChecksNothingWhenOneOfThePathsIsMissing) {
    const Folder folder;
    folder.write("f.json", "]");
    const Outcome outcome = folder.run({"check", "f.json", "nowhere.json"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
}

TEST(Tool, RefusesALinkThatLeadsNowhere) {
    const Folder folder;
    folder.write("c/f.json", "{}");
    std::filesystem::create_symlink("nowhere", folder.path() / "c/link.json");
    const Outcome outcome = folder.run({"check", "c"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Cannot read c/link.json: No such file or directory.\n");
}

TEST(Tool, RefusesAFileThatCannotBeOpened) {
    const Folder folder;
    folder.makeSocket("s.json"); // which refuses even the superuser
    const Outcome outcome = folder.run({"check", "."});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Cannot read ./s.json: No such device or address.\n");
}

class BrokenFile : public testing::TestWithParam<const char*> {};

TEST_P(BrokenFile, IsRefusedAndNotTakenForAShortOne) {
    const std::string unreadable = "/proc/self/mem"; // opens, but has nothing at its start
    if (!std::filesystem::exists(unreadable)) {
        GTEST_SKIP() << "There is no file that opens and cannot be read.";
    }
    const Folder folder;
    std::filesystem::create_symlink(unreadable, folder.path() / GetParam());
    const Outcome outcome = folder.run({"check", GetParam()});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, std::string("ostra-params: Cannot read ") + GetParam() + ": Input/output error.\n");
}

INSTANTIATE_TEST_SUITE_P(Tool, BrokenFile, testing::Values("f.json", "f.ndjson"),
                         [](const auto& test) { return std::string(test.param).substr(2); });

TEST(Tool, FailsWhenItsResultCannotBeWritten) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "There is no device that refuses what is written to it.";
    }
    const Folder folder;
    folder.write("f.json", "{}");
    const Outcome outcome = folder.run({"check", "f.json"}, "/dev/full");
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Cannot write the result.\n");
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
    EXPECT_THAT(outcome.out, HasSubstr("\n  check "));
}

TEST(Tool, HelpOfCheckNamesItsExitCodes) {
    const Outcome outcome = Folder().run({"check", "--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr("\nExit codes:\n"
                                       "  0  the catalogue is sound\n"
                                       "  1  the catalogue has faults\n"
                                       "  2  wrong usage, or a path"));
}

} // namespace
