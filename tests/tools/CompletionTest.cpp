#include "ProjectFolder.h"
#include "catalogue/Sections.h"
#include "faults/Rules.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using testing::HasSubstr;

/// Lets a shell run a script behind the completion for it, and returns what that prints.
std::string outputOf(const std::string& shell, const std::string& prelude, const std::string& script) {
    const Folder folder;
    folder.write("a file.json", "");
    folder.write("script", prelude + folder.run({"completion", shell}).out + script);
    EXPECT_EQ(folder.runProgram("env", {"HOME=" + folder.path().string(), shell, "script"}, "reply").err, "");
    return folder.read("reply");
}

bool isThere(const std::string& shell) { return std::system((shell + " -c true > /dev/null 2>&1").c_str()) == 0; }

#define SKIP_WITHOUT(shell)                                                                                            \
    if (!isThere(shell)) {                                                                                             \
        GTEST_SKIP() << "There is no " << (shell) << '.';                                                              \
    }                                                                                                                  \
    static_assert(true, "so that a semicolon follows")

std::string inBash(const std::string& words, const std::string& last) {
    return outputOf("bash", "",
                    "COMP_WORDS=(ostra-params " + words + "); COMP_CWORD=" + last +
                        "; _ostra_params; echo \"${COMPREPLY[*]}\"");
}

/// Returns the words that fish offers, without what it says of them.
std::string inFish(const std::string& line) {
    return outputOf("fish", "", "complete -C '" + line + "' | string split -f 1 \\t | string join ' '");
}

/// Returns what is handed to the functions of zsh that offer words.
std::string inZsh(const std::string& words, const std::string& current) {
    return outputOf("zsh",
                    "compdef() { }; _describe() { print -l -- ${(P)4}; }; _arguments() { print -rl -- \"$@\"; }\n",
                    "words=(ostra-params " + words + "); CURRENT=" + current + "; _ostra-params");
}

std::string kinds() {
    std::string kinds;
    for (const Tool::Section& section : Tool::sections()) {
        kinds += (kinds.empty() ? "" : " ") + std::string(section.id);
    }
    return kinds;
}

TEST(Completion, OffersVerbsOptionsAndValuesInBash) {
    EXPECT_EQ(inBash("ch", "1"), "check\n");
    EXPECT_EQ(inBash("check --f", "2"), "--format\n");
    EXPECT_EQ(inBash("check --format s", "3"), "sarif\n");
    EXPECT_EQ(inBash("check --severity ''", "3"), "error warning\n");
    EXPECT_EQ(inBash("check --lint obj", "3"), "object-unused\n");
    EXPECT_EQ(inBash("check --only regex-r", "3"), "regex-refused\n");
    EXPECT_EQ(inBash("diff --accept regex-c", "3"), "regex-changed\n");
    EXPECT_EQ(inBash("list --kind bool-", "3"), "bool-spec bool-parameter\n");
    EXPECT_EQ(inBash("list --kind unit,dom", "3"), "unit,domain\n");
    EXPECT_EQ(inBash("list --kind ''", "3"), kinds() + "\n");
    EXPECT_EQ(inBash("list --name ''", "3"), "\n");
    EXPECT_EQ(inBash("deps --svg a", "3"), "a file.json\n");
    EXPECT_EQ(inBash("completion ''", "2"), "bash zsh fish\n");
    EXPECT_EQ(inBash("fmt a", "2"), "a file.json\n");
}

TEST(Completion, OffersVerbsOptionsAndValuesInFish) {
    SKIP_WITHOUT("fish");
    EXPECT_EQ(inFish("ostra-params ch"), "check\n");
    EXPECT_EQ(inFish("ostra-params check --f"), "--format\n");
    EXPECT_EQ(inFish("ostra-params check --format s"), "sarif\n");
    EXPECT_EQ(inFish("ostra-params check --lint obj"), "object-unused\n");
    EXPECT_EQ(inFish("ostra-params list --kind unit,dom"), "unit,domain\n");
    EXPECT_EQ(inFish("ostra-params completion "), "bash fish zsh\n");
    EXPECT_EQ(inFish("ostra-params fmt a"), "a file.json\n");
}

TEST(Completion, OffersVerbsOptionsAndValuesInZsh) {
    SKIP_WITHOUT("zsh");
    EXPECT_THAT(inZsh("ch", "2"), HasSubstr("check:Find every fault in the schemas of files and folders\n"));
    const std::string check = inZsh("check --f", "3");
    EXPECT_THAT(
        check, HasSubstr("\n--severity[error, or warning (which is the default) for both]:SEVERITY:(error warning)\n"));
    EXPECT_THAT(check, HasSubstr("*--only[Look for these alone; may be repeated]:CODE:_sequence compadd - "));
    EXPECT_THAT(check, HasSubstr("\n*:path:_files\n"));
    EXPECT_THAT(inZsh("list ''", "3"), HasSubstr(":KIND:_sequence compadd - " + kinds() + "\n"));
    EXPECT_THAT(inZsh("deps ''", "3"), HasSubstr(":FILE:_files\n"));
    EXPECT_THAT(inZsh("completion ''", "3"), HasSubstr("1:word:(bash zsh fish)\n"));
}

TEST(Completion, KnowsAllCodes) {
    const std::string script = Folder().run({"completion", "bash"}).out;
    for (const Tool::Rule& rule : Tool::rules()) {
        EXPECT_THAT(script, HasSubstr(std::string(rule.code)));
    }
}

TEST(Completion, IsLoadedByTheFilesThatAreInstalled) {
    const std::string shellFolder = OSTRA_SOURCE_DIR "/tools/ostra-params/shell/";
    const Folder folder;
    folder.write("run.sh", "PATH=\"$(dirname '" + pathOfTool() + "'):$PATH\"; source " + shellFolder +
                               "ostra-params.bash; COMP_WORDS=(ostra-params ch); COMP_CWORD=1; _ostra_params; "
                               "echo \"${COMPREPLY[*]}\"");
    EXPECT_EQ(folder.runProgram("bash", {"run.sh"}).out, "check\n");
    if (isThere("fish")) {
        folder.write("run.fish", "set PATH (dirname '" + pathOfTool() + "') $PATH; source " + shellFolder +
                                     "ostra-params.fish; complete -C 'ostra-params ch' | string split -f 1 \\t");
        EXPECT_EQ(folder.runProgram("env", {"HOME=" + folder.path().string(), "fish", "run.fish"}).out, "check\n");
    }
    if (isThere("zsh")) {
        folder.write("run.zsh",
                     "PATH=\"$(dirname '" + pathOfTool() +
                         "'):$PATH\"; compdef() { }; _arguments() { }\n"
                         "_describe() { print -l -- ${(P)4}; }; words=(ostra-params ch); CURRENT=2\nsource " +
                         shellFolder + "_ostra-params");
        EXPECT_THAT(folder.runProgram("zsh", {"run.zsh"}).out, HasSubstr("check:Find"));
    }
}

} // namespace
