#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

std::string group(const std::string& typeId) {
    return R"({"typeid":")" + typeId +
           R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"G"}]})"
           "\n";
}

/// Runs the tool, of whose renamings some fail: those whose numbers, counted from 1, are among the digits.
Outcome runFrail(const Folder& folder, const char* failing, const std::vector<std::string>& arguments) {
    ::setenv("OSTRA_FAILING_RENAMINGS", failing, 1);
    Outcome outcome = folder.runProgram(OSTRA_FRAIL_TOOL, arguments);
    ::unsetenv("OSTRA_FAILING_RENAMINGS");
    return outcome;
}

class FailingRenamings : public testing::Test {
protected:
    void SetUp() override {
        folder.write("old.json", group("old"));
        folder.write("new.json", group("new"));
        ASSERT_EQ(folder.run({"export", "old.json", "-o", "out"}).exitCode, 0);
    }
    Folder folder;
};

TEST_F(FailingRenamings, LeaveAnExportedFolderThatCannotBeMovedAway) {
    const Outcome outcome = runFrail(folder, "1", {"export", "new.json", "-o", "out"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, MatchesRegex("ostra-params: Cannot write .*/out: Input/output error\\.\n"));
    EXPECT_THAT(folder.files(), ElementsAre("new.json", "old.json", "out/group/old.json"));
}

TEST_F(FailingRenamings, PutAnExportedFolderBackThatCannotBeReplaced) {
    const Outcome outcome = runFrail(folder, "2", {"export", "new.json", "-o", "out"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, MatchesRegex("ostra-params: Cannot write .*/out: Input/output error\\.\n"));
    EXPECT_THAT(folder.files(), ElementsAre("new.json", "old.json", "out/group/old.json"));
}

TEST_F(FailingRenamings, KeepAnExportedFolderAsideThatCannotBePutBack) {
    const Outcome outcome = runFrail(folder, "23", {"export", "new.json", "-o", "out"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, MatchesRegex("ostra-params: Cannot write .*/out: Input/output error\\. "
                                          "What was there is in .*/out\\..*/old\\.\n"));
    const std::size_t begin = outcome.err.find(" is in ") + 7;
    const std::filesystem::path kept = outcome.err.substr(begin, outcome.err.size() - begin - 2);
    EXPECT_EQ(contentOf(kept / "group/old.json"), group("old"));
}

TEST_F(FailingRenamings, ChangeNoFileWhenOneOfSeveralCannotBeChanged) {
    const std::string parameter = R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
                                  R"({"id":"name","value":"P"},{"id":"group","typedValue":{"typeid":"old"}}]})"
                                  "\n";
    folder.write("p.json", parameter);
    const Outcome outcome = runFrail(folder, "2", {"rename", "old", "other", "old.json", "p.json"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, MatchesRegex("ostra-params: Cannot write p\\.json: Input/output error\\.\n"));
    EXPECT_EQ(folder.read("old.json"), group("old"));
    EXPECT_EQ(folder.read("p.json"), parameter);
    EXPECT_THAT(folder.files(), ElementsAre("new.json", "old.json", "out/group/old.json", "p.json"));
}

} // namespace
