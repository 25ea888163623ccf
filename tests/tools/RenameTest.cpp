#include "edit/Edit.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

namespace fs = std::filesystem;

const std::string group = R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"],)"
                          R"("constants":[{"id":"name","value":"g"}]})"
                          "\n";
const std::string parameter = R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
                              R"("constants":[{"id":"name","value":"g"},)"
                              R"({"id":"group","typedValue":{"typeid":"g"}}]})"
                              "\n";

std::string renamed(const std::string& text) { return Tool::edited(text, Tool::renamingsIn(text, "g", "new")); }

struct Case {
    const char* name;
    std::string before;
    std::string after;
};

class Renamed : public testing::TestWithParam<Case> {};

TEST_P(Renamed, WhereATypeIdStandsAndNowhereElse) { EXPECT_EQ(renamed(GetParam().before), GetParam().after); }

INSTANTIATE_TEST_SUITE_P(
    Rename, Renamed,
    testing::Values(Case{"OfTheSchema", " {\"typeid\" :\t\"g\" }\r\n", " {\"typeid\" :\t\"new\" }\r\n"},
                    Case{"InATypedValue", R"({"constants":[{"id":"group","typedValue":{"typeid":"g"}}]})",
                         R"({"constants":[{"id":"group","typedValue":{"typeid":"new"}}]})"},
                    Case{"InAListOfTypedValues",
                         R"({"constants":[{"id":"d","typedValue":[{"typeid":"g"},{"typeid":"h"}]}]})",
                         R"({"constants":[{"id":"d","typedValue":[{"typeid":"new"},{"typeid":"h"}]}]})"},
                    Case{"InAProperty", R"({"properties":[{"id":"value","typedValue":{"typeid":"g"}}]})",
                         R"({"properties":[{"id":"value","typedValue":{"typeid":"new"}}]})"},
                    Case{"TheCategoryOfAFamilyType",
                         R"({"constants":[{"typedValue":{"typeid":"f","typedValue":{"category":{"typeid":"g"}}}}]})",
                         R"({"constants":[{"typedValue":{"typeid":"f","typedValue":{"category":{"typeid":"new"}}}}]})"},
                    Case{"InEscapes", R"({"\u0074ypeid":"\u0067"})", R"({"\u0074ypeid":"new"})"},
                    Case{"WhatIsRepeated", R"({"typeid":"g","typeid":"g"})", R"({"typeid":"new","typeid":"new"})"},
                    Case{"NoNamesAndValues", R"({"inherits":["g"],"constants":[{"id":"g","value":"g"}],"g":"g"})",
                         R"({"inherits":["g"],"constants":[{"id":"g","value":"g"}],"g":"g"})"},
                    Case{"NoOtherMembers", R"({"about":{"typeid":"g"},"constants":[{"typeid":["g"]}]})",
                         R"({"about":{"typeid":"g"},"constants":[{"typeid":["g"]}]})"},
                    Case{"NoLongerTypeIds", R"({"typeid":"gg"})", R"({"typeid":"gg"})"},
                    Case{"NothingInWhatIsNoJson", R"({"typeid":"g",})", R"({"typeid":"g",})"}),
    Support::nameOfRow);

TEST(Rename, ChangesAllFilesInPlaceAndTellsHowManyPlaces) {
    const Folder folder;
    folder.write("a.json", "\xEF\xBB\xBF" + group);
    folder.write("b.ndjson", "\n" + parameter + "\r\n{ \"typeid\": \"x\" ,\"inherits\": [\"g\"]}");
    const Outcome outcome = folder.run({"rename", "g", "n\"ew", "."});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "2 places in 2 files name n\"ew\n");
    std::string newGroup = group;
    newGroup.replace(newGroup.find("\"g\""), 3, R"("n\"ew")");
    EXPECT_EQ(folder.read("a.json"), "\xEF\xBB\xBF" + newGroup);
    std::string newParameter = parameter;
    newParameter.replace(newParameter.rfind("\"g\""), 3, R"("n\"ew")");
    EXPECT_EQ(folder.read("b.ndjson"), "\n" + newParameter + "\r\n{ \"typeid\": \"x\" ,\"inherits\": [\"g\"]}");
}

TEST(Rename, WritesNothingWhenItIsOnlyToTell) {
    const Folder folder;
    folder.write("a.ndjson", group + parameter);
    EXPECT_EQ(folder.run({"rename", "--dry-run", "g", "n", "a.ndjson"}).out, "2 places in 1 file would name n\n");
    const Outcome outcome = folder.run({"rename", "--diff", "p", "n", "a.ndjson"});
    std::string changed = parameter;
    changed.replace(changed.find("\"p\""), 3, "\"n\"");
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "--- a.ndjson\n+++ a.ndjson\n@@ -1,2 +1,2 @@\n " + group + "-" + parameter + "+" + changed);
    EXPECT_EQ(folder.read("a.ndjson"), group + parameter);
}

struct Refused {
    const char* name;
    std::vector<std::string> arguments;
    const char* message;
};

class RefusedRename : public testing::TestWithParam<Refused> {};

TEST_P(RefusedRename, ChangesNothing) {
    const Folder folder;
    folder.write("a.ndjson", group + parameter);
    folder.write("broken.json", R"({"typeid":"broken",})");
    std::vector<std::string> arguments{"rename"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    const Outcome outcome = folder.run(arguments);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr(GetParam().message));
    EXPECT_EQ(folder.read("a.ndjson"), group + parameter);
}

INSTANTIATE_TEST_SUITE_P(
    Rename, RefusedRename,
    testing::Values(
        Refused{"NoSuchSchema", {"gone", "n", "."}, "ostra-params: there is no schema with typeid gone\n"},
        Refused{"NearOne", {"h", "n", "."}, "there is no schema with typeid h; did you mean g or p?\n"},
        Refused{"TakenByASchema", {"g", "p", "."}, "ostra-params: p is taken: it is the typeid of ./a.ndjson:2:1\n"},
        Refused{"ItsOwn", {"g", "g", "."}, "ostra-params: g is taken: it is the typeid of ./a.ndjson:1:1\n"},
        Refused{"TakenByAFaultySchema", {"g", "broken", "."}, "broken is taken"},
        Refused{"Reserved",
                {"g", "x.norvex.parameter:group-1.7", "."},
                "x.norvex.parameter:group-1.7 is reserved: it contains a built-in identifier\n"},
        Refused{"Empty", {"g", "", "."}, "ostra-params: NEW: must not be empty\n"},
        Refused{"InWhatIsNoJson",
                {"broken", "n", "."},
                "./broken.json:1:1 has broken in it, and is no JSON; \"ostra-params check\" tells more\n"},
        Refused{"StandardInput", {"g", "n", "-"}, "Standard input cannot be changed in place.\n"}),
    Support::nameOfRow);

TEST(Rename, ChangesNoFileWhenOneCannotBeWritten) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("a.json", group);
    folder.write("b.json", parameter + std::string(5000, ' '));
    // A limit on the size of files, in blocks of 1024 bytes, lets the second one fail.
    folder.write("run.sh", "trap '' XFSZ; ulimit -f 4; '" + pathOfTool() + "' rename g n a.json b.json 2> err");
    EXPECT_NE(std::system(("cd '" + folder.path().string() + "' && bash run.sh").c_str()), 0);
    EXPECT_THAT(folder.read("err"), HasSubstr("Cannot write b.json"));
    EXPECT_EQ(folder.read("a.json"), group);
    EXPECT_THAT(folder.files(), testing::ElementsAre("a.json", "b.json", "err", "run.sh"));
}

TEST(Rename, KeepsALargeCatalogueSound) {
    const char* const catalogue = std::getenv("OSTRA_CATALOGUE");
    if (catalogue == nullptr) {
        GTEST_SKIP() << "OSTRA_CATALOGUE names no folder.";
    }
    const Folder folder;
    fs::copy(catalogue, folder.path() / "c", fs::copy_options::recursive);
    for (const char* typeId : {"acme.hvac:discipline-1.0.0", "qudt.unit:M-1.0.0", "acme.category:ducts-1.0.0",
                               "acme.range:int.unboundedCount-1.0.0", "acme.domain:building-1.0.0"}) {
        EXPECT_EQ(folder.run({"rename", typeId, std::string("renamed:") + typeId, "c"}).exitCode, 0) << typeId;
        EXPECT_EQ(folder.run({"check", "-q", "--severity", "error", "c"}).out, "") << typeId;
        EXPECT_EQ(folder.run({"rename", std::string("renamed:") + typeId, typeId, "c"}).exitCode, 0) << typeId;
    }
    EXPECT_EQ(folder.run({"diff", fs::absolute(catalogue).string(), "c"}).out, "0 added, 0 removed, 0 changed\n");
    for (const auto& entry : fs::directory_iterator(catalogue)) {
        EXPECT_TRUE(contentOf(entry.path()) == contentOf(folder.path() / "c" / entry.path().filename()));
    }
}

} // namespace
