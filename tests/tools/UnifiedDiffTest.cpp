#include "output/UnifiedDiff.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

namespace {

struct Case {
    const char* name;
    const char* before;
    const char* after;
    const char* diff;
};

class UnifiedDiff : public testing::TestWithParam<Case> {};

TEST_P(UnifiedDiff, IsAsPatchTakesIt) {
    EXPECT_EQ(Tool::unifiedDiff("f", GetParam().before, GetParam().after), GetParam().diff);
}

INSTANTIATE_TEST_SUITE_P(
    Tool, UnifiedDiff,
    testing::Values(
        Case{"Nothing", "a\n", "a\n", ""}, Case{"FromNothing", "", "a\n", "--- f\n+++ f\n@@ -0,0 +1,1 @@\n+a\n"},
        Case{"ToNothing", "a\n", "", "--- f\n+++ f\n@@ -1,1 +0,0 @@\n-a\n"},
        Case{"NewlineAtTheEnd", "a", "a\n", "--- f\n+++ f\n@@ -1,1 +1,1 @@\n-a\n\\ No newline at end of file\n+a\n"},
        Case{"ThreeLinesAround", "1\n2\n3\n4\nx\n5\n6\n7\n8\n", "1\n2\n3\n4\ny\n5\n6\n7\n8\n",
             "--- f\n+++ f\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-x\n+y\n 5\n 6\n 7\n"},
        Case{"ChangesThatAreNear", "x\n1\n2\n3\n4\n5\n6\nx\n", "y\n1\n2\n3\n4\n5\n6\ny\n",
             "--- f\n+++ f\n@@ -1,8 +1,8 @@\n-x\n+y\n 1\n 2\n 3\n 4\n 5\n 6\n-x\n+y\n"},
        Case{"ChangesThatAreFar", "x\n1\n2\n3\n4\n5\n6\n7\nx\n", "y\n1\n2\n3\n4\n5\n6\n7\ny\n",
             "--- f\n+++ f\n@@ -1,4 +1,4 @@\n-x\n+y\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-x\n+y\n"},
        Case{"LinesBetweenOthers", "a\nb\nc\n", "x\na\nb\ny\nc\n",
             "--- f\n+++ f\n@@ -1,3 +1,5 @@\n+x\n a\n b\n+y\n c\n"},
        Case{"LinesThatChangedPlaces", "a\nb\nc\n", "c\na\nb\n", "--- f\n+++ f\n@@ -1,3 +1,3 @@\n+c\n a\n b\n-c\n"}),
    Support::nameOfRow);

TEST(UnifiedDiffs, LetPatchMakeTheOneOfTheOther) {
    if (std::system("patch --version > /dev/null") != 0) {
        GTEST_SKIP() << "There is no program patch.";
    }
    std::mt19937 random(20);
    const auto text = [&](std::size_t most) {
        std::string lines;
        for (std::size_t i = random() % most; i > 0; --i) {
            lines += std::string(1, static_cast<char>('a' + random() % 12)) + "\n";
        }
        return random() % 3 == 0 ? lines + "end" : lines;
    };
    const Folder folder;
    for (int i = 0; i < 100; ++i) {
        std::string before = text(40) + "middle\n" + text(40);
        std::string after = random() % 2 == 0 ? text(60) : before;
        for (std::size_t changes = random() % 5; changes > 0 && !after.empty(); --changes) {
            after.insert(after.find('\n', random() % after.size()) + 1, text(4) + "new\n");
        }
        folder.write("f", before);
        folder.write("diff", Tool::unifiedDiff("f", before, after));
        const std::string command = "cd '" + folder.path().string() + "' && patch -s -o out f diff < /dev/null";
        ASSERT_EQ(before == after || std::system(command.c_str()) == 0, true) << folder.read("diff");
        ASSERT_EQ(before == after ? after : folder.read("out"), after) << folder.read("diff");
    }
}

TEST(UnifiedDiffs, CostLittleWhenNothingIsTheSame) {
    std::string before;
    std::string after;
    for (int i = 0; i < 200000; ++i) {
        before += "a" + std::to_string(i % 1000) + "\n";
        after += "b" + std::to_string(i) + "\n";
    }
    EXPECT_EQ(Tool::unifiedDiff("f", before, after).size(),
              before.size() + after.size() + 400000 + std::string("--- f\n+++ f\n@@ -1,200000 +1,200000 @@\n").size());
}

} // namespace
