#include "ProjectFolder.h"
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

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace fs = std::filesystem;

const std::string examples = OSTRA_SOURCE_DIR "/examples/catalogue";
const std::string discharge = "hydro.parameter:ratedDischarge-1.0.0";

const std::string group = R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"],)"
                          R"("constants":[{"id":"name","value":"G"}]})"
                          "\n";

/// Runs a script in a folder, in which it finds the tool as $tool and the schema g.json.
void runScript(const Folder& folder, const std::string& script) {
    folder.write("g.json", group);
    folder.write(".script", "tool='" + pathOfTool() + "'\n" + script);
    std::ignore = std::system(("cd '" + folder.path().string() + "' && bash .script").c_str());
}

struct Verb {
    const char* name;
    std::vector<std::string> arguments;
};

class FailingOutput : public testing::TestWithParam<Verb> {};

TEST_P(FailingOutput, IsSaidAndLeavesNothing) {
    const Folder folder;
    std::vector<std::string> arguments = GetParam().arguments;
    arguments.emplace_back("nowhere/output.ndjson");
    const Outcome outcome = folder.run(arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, StartsWith("ostra-params: Cannot write nowhere/output.ndjson"));
    EXPECT_THAT(outcome.err, HasSubstr("No such file or directory.\n"));
    EXPECT_THAT(folder.files(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Output, FailingOutput,
                         testing::Values(Verb{"Export", {"export", examples, "-o"}},
                                         Verb{"Report", {"report", examples, "-o"}},
                                         Verb{"Deps", {"deps", discharge, examples, "--svg"}}),
                         Support::nameOfRow);

TEST(Output, KeepsAnExportedFolderThatCannotBeReplacedAsAWhole) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("more.ndjson", group + R"({"typeid":"h","inherits":["norvex.parameter:group-1.0.0"],)" +
                                    R"("constants":[{"id":"name","value":")" + std::string(2000, 'H') + "\"}]}\n");
    runScript(folder, "$tool export g.json -o out; ulimit -f 1; trap '' XFSZ;"
                      "$tool export more.ndjson -o out 2> err; echo $? >> err");
    EXPECT_EQ(folder.read("err"), "ostra-params: Cannot write out/group/h.json: File too large.\n2\n");
    EXPECT_EQ(folder.read("out/group/g.json"), group);
    EXPECT_THAT(folder.files(), ElementsAre("err", "g.json", "more.ndjson", "out/group/g.json"));
}

TEST(Output, FollowsALinkAndKeepsIt) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("file", "old");
    folder.makeFolder("normal");
    fs::create_symlink("file", folder.path() / "link.ndjson");
    fs::create_symlink("normal", folder.path() / "link");
    runScript(folder, "$tool export g.json -o link.ndjson && $tool export g.json -o link");
    EXPECT_EQ(folder.read("file"), group);
    EXPECT_EQ(folder.read("normal/group/g.json"), group);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link.ndjson"));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
}

TEST(Output, KeepsThePermissionsOfTheFileThatItReplaces) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("old.html", "old");
    fs::permissions(folder.path() / "old.html", fs::perms::owner_read | fs::perms::owner_write);
    runScript(folder, "umask 027; $tool report g.json -o old.html; $tool report g.json -o new.html");
    EXPECT_THAT(folder.read("old.html"), StartsWith("<!doctype html>"));
    EXPECT_EQ(fs::status(folder.path() / "old.html").permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder.path() / "new.html").permissions(), fs::perms(0640));
}

TEST(Output, GoesIntoAPipeThatIsNamedAsAFile) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    runScript(folder, "mkfifo pipe.ndjson; cat pipe.ndjson > out & $tool export g.json -o pipe.ndjson; wait;"
                      "$tool export g.json -o >(cat > never) 2> /dev/null; [ -p pipe.ndjson ] && echo yes > kept");
    EXPECT_EQ(folder.read("out"), group);
    EXPECT_EQ(folder.read("kept"), "yes\n");
}

TEST(Output, LeavesTheFileAsItWasWhenTheDiskIsFull) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("out.ndjson", "as it was");
    runScript(folder,
              "ulimit -f 1; trap '' XFSZ; $tool export '" + examples + "' -o out.ndjson 2> err; echo $? >> err");
    EXPECT_EQ(folder.read("err"), "ostra-params: Cannot write out.ndjson: File too large.\n2\n");
    EXPECT_EQ(folder.read("out.ndjson"), "as it was");
    EXPECT_EQ(folder.files(), (std::vector<std::string>{"err", "g.json", "out.ndjson"}));
}

TEST(Output, OfAPictureMayHaveANameLikeAnOption) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    runScript(folder, "$tool deps --svg=-x.svg g g.json");
    EXPECT_THAT(folder.read("-x.svg"), HasSubstr("<svg "));
}

TEST(Output, OfAPictureGoesToStandardOutputWhenAskedTo) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("g.json", group);
    const Outcome outcome = folder.run({"deps", "--svg", "-", "g"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("<svg "));
    EXPECT_EQ(folder.files(), std::vector<std::string>{"g.json"});
}

TEST(Output, OfManySchemasIsNoJsonFile) {
    const Folder folder;
    folder.write("g.json", group);
    const Outcome outcome = folder.run({"export", "g.json", "-o", "all.json"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err,
              "ostra-params: Cannot write all.json: a .json file holds one schema; .ndjson files hold many, "
              "and so do folders, of any other name.\n");
    EXPECT_EQ(folder.files(), std::vector<std::string>{"g.json"});
}

TEST(Output, DoesNotReplaceTheWorkingFolder) {
    const Folder folder;
    folder.makeFolder("empty");
    runScript(folder, "cd empty && $tool export ../g.json -o . 2> ../err; echo $? >> ../err");
    EXPECT_EQ(folder.read("err"), "ostra-params: . is not replaced: it is the working folder.\n2\n");
    EXPECT_EQ(folder.files(), (std::vector<std::string>{"err", "g.json"}));
}

/// A program that waits for a file which is written only after more than a second.
const std::string slowReading = "mkfifo slow.ndjson; (sleep 1.2; echo ']') > slow.ndjson & "
                                "'" +
                                pathOfTool() + "' check --quiet slow.ndjson";

TEST(Progress, IsShownOnATerminalWhenReadingTakesLong) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("slow.sh", slowReading);
    ASSERT_EQ(std::system(("cd '" + folder.path().string() + "' && script -qc 'bash slow.sh' seen >/dev/null").c_str()),
              0);
    EXPECT_THAT(folder.read("seen"), HasSubstr("\rreading"));
    EXPECT_THAT(folder.read("seen"), HasSubstr("\r\x1B[K")); // and gone afterwards
}

TEST(Progress, IsNotShownElsewhere) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("slow.sh", slowReading);
    std::ignore = std::system(("cd '" + folder.path().string() + "' && bash slow.sh 2>seen >out").c_str());
    EXPECT_EQ(folder.read("seen"), "");
    EXPECT_EQ(folder.read("out"), "slow.ndjson:1:1: JSON parsing error at offset 0: Invalid value.\n");
}

TEST(Progress, IsShownWhenStandardInputTakesLongAndIsEmpty) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    runScript(folder, "script -qec \"bash -c 'sleep 1.2 | $tool check -q -'\" seen > /dev/null < /dev/null");
    EXPECT_THAT(folder.read("seen"), HasSubstr("<stdin>:1:1: JSON parsing error at offset 0: The document is empty."));
}

} // namespace
