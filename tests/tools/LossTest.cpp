#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Use {
    const char* name;
    std::vector<std::string> arguments;
};

class ForgetfulTool : public testing::TestWithParam<Use> {};

TEST_P(ForgetfulTool, SaysWhatItLostAndExitsWithTwo) {
    const Folder folder;
    folder.write("control.json", R"({"typeid":"c\u001B[31m","inherits":["norvex.parameter:group-1.0.0"],)"
                                 R"("constants":[{"id":"name","value":"C"}]})");
    folder.write("faulty.json", R"({"typeid":"f","inherits":["norvex.parameter:group-1.0.0"]})");
    folder.write("group.json", R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"],)"
                               R"("constants":[{"id":"name","value":"G"}]})");
    folder.write("unit.json", R"({"typeid":"u","inherits":["norvex.unit:unit-1.0.0"],)"
                              R"("constants":[{"id":"name","value":"U"}]})");
    const Outcome outcome = folder.runProgram(OSTRA_FORGETFUL_TOOL, GetParam().arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "ostra-params: This program has a fault, please report it: it read schemas and lost them.\n"
                           "  c\\x1B[31m\n  g\n  u\n");
    EXPECT_EQ(folder.files(), (std::vector<std::string>{"control.json", "faulty.json", "group.json", "unit.json"}));
}

INSTANTIATE_TEST_SUITE_P(Verbs, ForgetfulTool,
                         testing::Values(Use{"Check", {"check", "."}}, Use{"List", {"list"}},
                                         Use{"Show", {"show", "g"}}, Use{"Deps", {"deps", "g"}},
                                         Use{"ExportToAFile", {"export", ".", "-o", "all.ndjson"}},
                                         Use{"ExportToAFolder", {"export", ".", "-o", "all"}},
                                         Use{"Diff", {"diff", ".", "."}},
                                         Use{"Report", {"report", ".", "-o", "page.html"}}),
                         Support::nameOfRow);

} // namespace
