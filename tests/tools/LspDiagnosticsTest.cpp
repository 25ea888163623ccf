#include "tools/Editor.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* group = R"({
  "typeid": "t:group.a-1.0.0",
  "inherits": ["norvex.parameter:group-1.0.0"],
  "constants": [{"id": "name", "value": "A"}]
}
)";

constexpr const char* parameter = R"({
  "typeid": "t:parameter.a-1.0.0",
  "inherits": ["norvex.parameter:parameter.bool-2.0.0"],
  "constants": [
    {"id": "name", "value": "A"},
    {"id": "group", "typedValue": {"typeid": "t:group.a-1.0.0"}}
  ]
}
)";

/// A folder with a group and a parameter of it.
class LspDiagnostics : public testing::Test {
protected:
    LspDiagnostics() {
        folder.write("group.json", group);
        folder.write("parameter.json", parameter);
    }

    static std::string without(std::string text, const std::string& part) {
        return text.erase(text.find(part), part.size());
    }

    Folder folder;
    Editor editor{folder};
};

TEST_F(LspDiagnostics, AreNotThereWhereNothingIsWrong) {
    editor.begin();
    EXPECT_THAT(editor.sent("textDocument/publishDiagnostics"), IsEmpty());
}

TEST_F(LspDiagnostics, AreToldOfFilesThatNobodyHasOpened) {
    folder.write("group.json", without(group, "\"name\""));
    folder.write("other.json", "{\"typeid\": \"t:x\"}");
    editor.begin();
    EXPECT_EQ(editor.faultsOf("other.json"), "0:0-0:17 inherits-missing\n");
    EXPECT_EQ(editor.faultsOf("group.json"), "3:23-3:39 json-syntax\n");
    EXPECT_EQ(editor.faultsOf("parameter.json"), "5:45-5:62 dependency-missing\n");
}

TEST_F(LspDiagnostics, FollowWhatIsTyped) {
    editor.begin();
    editor.open("group.json");
    editor.type("group.json", without(group, "a-1"));
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "5:45-5:62 dependency-missing\n");
    editor.type("group.json", group);
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
    EXPECT_EQ(editor.timesToldOf("parameter.json"), 2);
}

TEST_F(LspDiagnostics, AreToldOnBothSidesOfATypeidThatIsTaken) {
    folder.write("other.json", without(group, "a-1"));
    editor.begin();
    editor.open("group.json", without(group, "a-1"));
    editor.look();
    EXPECT_EQ(editor.faultsOf("other.json"), "1:12-1:26 typeid-taken\n");
    EXPECT_EQ(editor.faultsOf("group.json"), "1:12-1:26 typeid-taken\n");
    EXPECT_THAT(editor.diagnosticsOf("group.json")[0]["message"].get<std::string>(), HasSubstr("/other.json:2:13."));
    EXPECT_THAT(editor.diagnosticsOf("other.json")[0]["message"].get<std::string>(), HasSubstr("/group.json:"));
}

TEST_F(LspDiagnostics, AreNotToldTwice) {
    editor.begin();
    editor.open("group.json", without(group, "a-1"));
    editor.look();
    editor.type("group.json", without(group, "a-1") + " ");
    editor.look();
    EXPECT_EQ(editor.timesToldOf("parameter.json"), 1);
}

TEST_F(LspDiagnostics, TakeHalfTypedTextForWhatItWas) {
    editor.begin();
    editor.open("group.json", without(group, "]\n}"));
    editor.look();
    EXPECT_EQ(editor.faultsOf("group.json"), "4:0-4:0 json-syntax\n");
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
}

TEST_F(LspDiagnostics, TakeHalfTypedLinesForWhatTheyWere) {
    folder.write("both.ndjson", "{\"typeid\":\"t:1\",\"inherits\":[\"norvex.parameter:group-1.0.0\"],\"constants\":[{"
                                "\"id\":\"name\",\"value\":\"1\"}]}\n\n"
                                "{\"typeid\":\"t:2\",\"inherits\":[\"norvex.parameter:group-1.0.0\"]}\n");
    editor.begin();
    editor.open("both.ndjson");
    std::string text = editor.textOf("both.ndjson");
    editor.type("both.ndjson", "{\"typeid\":" + text.substr(text.find('\n')));
    editor.type("parameter.json", parameter);
    editor.look();
    EXPECT_EQ(editor.faultsOf("both.ndjson"), "0:10-0:10 json-syntax\n2:0-2:60 constant-undefined\n");
    editor.open("parameter.json",
                std::string(parameter).replace(std::string(parameter).find("t:group.a-1.0.0"), 15, "t:1"));
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
}

TEST_F(LspDiagnostics, ComeBackToTheFileWhenItIsClosed) {
    editor.begin();
    editor.open("group.json", without(group, "a-1"));
    editor.look();
    editor.tell("textDocument/didClose", {{"textDocument", {{"uri", editor.uriOf("group.json")}}}});
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
}

TEST_F(LspDiagnostics, FollowTheDisk) {
    editor.begin({{"workspace", {{"didChangeWatchedFiles", {{"dynamicRegistration", true}}}}}});
    EXPECT_THAT(editor.sent("client/registerCapability"), SizeIs(1));
    const auto announce = [&](const char* name, int type) {
        editor.tell("workspace/didChangeWatchedFiles", {{"changes", {{{"uri", editor.uriOf(name)}, {"type", type}}}}});
        editor.look();
    };
    std::filesystem::remove(folder.path() / "group.json");
    announce("group.json", 3);
    EXPECT_EQ(editor.faultsOf("parameter.json"), "5:45-5:62 dependency-missing\n");
    folder.write("again.json", without(group, "a-1"));
    announce("again.json", 1);
    EXPECT_EQ(editor.faultsOf("parameter.json"), "5:45-5:62 dependency-missing\n");
    folder.write("again.json", group);
    announce("again.json", 2);
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
}

TEST_F(LspDiagnostics, FollowFolders) {
    folder.write("more/other.json", "{\"typeid\": \"t:x\"}");
    editor.resultOf("initialize",
                    {{"capabilities", {}}, {"workspaceFolders", {{{"uri", editor.uriOf("more")}, {"name", ""}}}}});
    editor.tell("initialized");
    editor.look();
    EXPECT_EQ(editor.faultsOf("more/other.json"), "0:0-0:17 inherits-missing\n");
    const Tool::Json folderHere{{"uri", editor.uriOf("more")}, {"name", ""}};
    editor.tell("workspace/didChangeWorkspaceFolders",
                {{"event", {{"added", Tool::Json::array()}, {"removed", {folderHere}}}}});
    editor.look();
    EXPECT_EQ(editor.faultsOf("more/other.json"), "");
}

TEST_F(LspDiagnostics, LeaveOtherJsonAlone) {
    folder.write("package.json", "{\"dependencies\": {\"inherits\": \"2.0\"}}");
    folder.write("list.json", "[1,");
    editor.begin();
    EXPECT_THAT(editor.sent("textDocument/publishDiagnostics"), IsEmpty());
}

TEST_F(LspDiagnostics, OfAFileAloneDoNotAskForOthers) {
    editor.resultOf("initialize", {{"capabilities", {}}, {"rootUri", nullptr}});
    editor.tell("initialized");
    editor.open("parameter.json", without(parameter, "\"A\""));
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "4:28-4:30 json-syntax\n");
    editor.type("parameter.json", parameter);
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
}

TEST_F(LspDiagnostics, HaveHintsAndTheOtherSide) {
    folder.write("second.json", group);
    editor.begin({{"textDocument", {{"publishDiagnostics", {{"relatedInformation", true}}}}}});
    const Tool::Json& fault = editor.diagnosticsOf("second.json").at(0);
    EXPECT_EQ(fault["severity"], 1);
    EXPECT_EQ(fault["source"], "ostra-params");
    EXPECT_THAT(fault["message"].get<std::string>(), HasSubstr("\nhint: it is that of "));
    EXPECT_EQ(fault["relatedInformation"][0]["location"]["uri"], editor.uriOf("group.json"));
    EXPECT_EQ(fault["relatedInformation"][0]["location"]["range"]["start"]["line"], 1);
}

TEST_F(LspDiagnostics, StandWhereTheTextIsWideOrBroken) {
    folder.write("group.json", "\xEF\xBB\xBF{\"typeid\":\"t:\U0001F600\xFF\",\"inherits\":[\"none\"]}");
    editor.begin();
    EXPECT_EQ(editor.faultsOf("group.json"), "0:15-0:16 encoding-invalid\n0:30-0:36 base-unrecognized\n");
}

TEST_F(LspDiagnostics, FollowChangesOfParts) {
    editor.begin();
    editor.open("group.json");
    const auto change = [&](int line, int from, int to, const char* text, int version) {
        const Tool::Json range{{"start", {{"line", line}, {"character", from}}},
                               {"end", {{"line", line}, {"character", to}}}};
        editor.tell("textDocument/didChange",
                    {{"textDocument", {{"uri", editor.uriOf("group.json")}, {"version", version}}},
                     {"contentChanges", {{{"range", range}, {"text", text}}}}});
        editor.look();
    };
    change(1, 21, 22, "\U0001F600b", 9);
    EXPECT_EQ(editor.faultsOf("parameter.json"), "5:45-5:62 dependency-missing\n");
    change(1, 21, 24, "a", 3); // a version that lies
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
    change(999, 999, 9999, " ", 10);
    EXPECT_EQ(editor.faultsOf("group.json"), "");
}

} // namespace
