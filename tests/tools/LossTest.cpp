#include "catalogue/Loss.h"

#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Tool::Entries;
using Tool::Entry;
using Tool::Object;

Entries entriesOf(const std::vector<std::string>& typeIds) {
    Entries entries;
    for (const std::string& typeId : typeIds) {
        entries.emplace(typeId, Entry{{}, "", entries.size()});
    }
    return entries;
}

std::vector<Object> objectsOf(const std::vector<std::string>& typeIds) {
    std::vector<Object> objects;
    for (const std::string& typeId : typeIds) {
        objects.push_back({typeId, "", {}});
    }
    return objects;
}

std::string complaintAbout(const std::vector<Object>& objects, const Entries& entries) {
    try {
        Tool::mustHaveAll(objects, entries);
        return "";
    } catch (const Tool::Loss& loss) {
        return loss.what();
    }
}

TEST(Loss, IsNoneWhenEachSchemaIsAnObject) {
    EXPECT_EQ(complaintAbout(objectsOf({"b", "a"}), entriesOf({"a", "b"})), "");
    EXPECT_EQ(complaintAbout({}, {}), "");
}

TEST(Loss, NamesAllSchemasThatAreNoObjects) {
    EXPECT_EQ(complaintAbout(objectsOf({"b"}), entriesOf({"a", "b", "c"})),
              "This program has a fault, please report it: it read schemas and lost them.\n  a\n  c");
}

TEST(Loss, IsNotOfSchemasThatAreFaulty) {
    Entries entries = entriesOf({"a"});
    entries.at("a").isSound = false;
    EXPECT_EQ(complaintAbout({}, entries), "");
}

TEST(Loss, ShowsControlCharactersInPlainLetters) {
    EXPECT_EQ(complaintAbout({}, entriesOf({"a\x1B[31m"})),
              "This program has a fault, please report it: it read schemas and lost them.\n  a\\x1B[31m");
}

struct Use {
    const char* name;
    std::vector<std::string> arguments;
};

class ForgetfulTool : public testing::TestWithParam<Use> {};

TEST_P(ForgetfulTool, SaysWhatItLostAndExitsWithTwo) {
    const Folder folder;
    folder.write("faulty.json", R"({"typeid":"f","inherits":["norvex.parameter:group-1.0.0"]})");
    folder.write("group.json", R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"],)"
                               R"("constants":[{"id":"name","value":"G"}]})");
    folder.write("unit.json", R"({"typeid":"u","inherits":["norvex.unit:unit-1.0.0"],)"
                              R"("constants":[{"id":"name","value":"U"}]})");
    const Outcome outcome = folder.runProgram(OSTRA_FORGETFUL_TOOL, GetParam().arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "ostra-params: This program has a fault, please report it: it read schemas and lost them.\n"
                           "  g\n  u\n");
    EXPECT_EQ(folder.files(), (std::vector<std::string>{"faulty.json", "group.json", "unit.json"}));
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
