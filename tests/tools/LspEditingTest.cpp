#include "tools/Editor.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using Tool::Json;

constexpr const char* group = R"({
  "typeid": "t:group.a-1.0.0",
  "inherits": ["norvex.parameter:group-1.0.0"],
  "constants": [{"id": "name", "value": "Pumps"}]
})";

constexpr const char* parameter = R"({
  "typeid": "t:parameter.a-1.0.0",
  "inherits": ["norvex.parameter:parameter.bool-2.0.0"],
  "constants": [
    {"id": "name", "value": "t:group.a-1.0.0"},
    {"id": "group", "typedValue": {"typeid": "t:group.a-1.0.0"}}
  ]
})";

class LspEditing : public testing::Test {
protected:
    LspEditing() {
        folder.write("group.json", group);
        folder.write("parameter.json", parameter);
    }

    void begin() {
        editor.begin(
            {{"workspace", {{"workspaceEdit", {{"documentChanges", true}, {"resourceOperations", {"create"}}}}}},
             {"textDocument", {{"completion", {{"completionItem", {{"snippetSupport", true}}}}}}}});
    }

    /// Returns what is offered at the bar in a text: labels.
    std::vector<std::string> offered(const std::string& text) {
        editor.open("new.json", text);
        std::vector<std::string> labels;
        const Json list = editor.here("textDocument/completion");
        for (const Json& item : list["items"]) {
            labels.push_back(item["label"]);
        }
        return labels;
    }

    /// Returns the text after the item of a label is taken at the bar.
    std::string taken(const std::string& text, const std::string& label) {
        editor.open("new.json", text);
        const Json list = editor.here("textDocument/completion");
        for (const Json& item : list["items"]) {
            if (item["label"] == label) {
                const Json edits = Json::array({item["textEdit"]});
                const Json change{{"textDocument", {{"uri", editor.uriOf("new.json")}}}, {"edits", edits}};
                return editor.edited({{"documentChanges", Json::array({change})}})["new.json"];
            }
        }
        return "not offered";
    }

    Json actionsAt(const std::string& name, const std::string& part) {
        editor.goTo(name, part);
        return editor.here("textDocument/codeAction",
                           {{"range", rangeAt(name, part)}, {"context", {{"diagnostics", Json::array()}}}});
    }

    Json rangeAt(const std::string& name, const std::string& part) const {
        const std::string& text = editor.textOf(name);
        const std::string before = text.substr(0, text.find(part));
        const auto line = std::count(before.begin(), before.end(), '\n');
        const Json position{{"line", line}, {"character", before.size() - (before.rfind('\n') + 1)}};
        return {{"start", position}, {"end", position}};
    }

    static std::vector<std::string> titlesOf(const Json& actions) {
        std::vector<std::string> titles;
        for (const Json& action : actions) {
            titles.push_back(action["title"]);
        }
        return titles;
    }

    Folder folder;
    Editor editor{folder};
};

TEST_F(LspEditing, OffersWholeSchemasInAnEmptyFile) {
    begin();
    EXPECT_THAT(offered("|"), Contains("Boolean parameter"));
    EXPECT_EQ(
        taken("|", "group"),
        R"({"typeid":"${1:typeid}","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"${2:name}"\}]\})");
}

TEST_F(LspEditing, OffersMembersThatAreNotThereYet) {
    begin();
    EXPECT_THAT(offered("{\"typeid\": \"a\", |}"), ElementsAre("inherits", "constants", "properties"));
    EXPECT_EQ(taken("{\"ty|", "typeid"), "{\"typeid\": \"$1\"");
    EXPECT_EQ(taken("{\"in|h\": []}", "inherits"), "{\"inherits\": []}");
}

TEST_F(LspEditing, OffersBases) {
    begin();
    EXPECT_THAT(offered("{\"inherits\": [\"group|"), ElementsAre("norvex.parameter:group-1.0.0"));
    EXPECT_EQ(taken("{\"inherits\": |}", "Enum"), "{\"inherits\": [\"Enum\"]}");
    EXPECT_EQ(taken("{\"inherits\": [\"En|um\"]}", "Enum"), "{\"inherits\": [\"Enum\"]}");
}

TEST_F(LspEditing, OffersConstantsOfTheKind) {
    begin();
    const std::string head = R"({"inherits": ["norvex.parameter:parameter.bool-2.4.1"], "constants": [)";
    EXPECT_THAT(offered(head + "|"), ElementsAre("name", "description", "sampleText", "group", "readOnly", "spec"));
    EXPECT_THAT(offered(head + R"({"id": "name", "value": ""}, {"id": "|"}]})"),
                ElementsAre("description", "sampleText", "group", "readOnly", "spec"));
    EXPECT_EQ(taken(head + "|]}", "name"), head + R"({"id":"name","value":"${1:name}"\}]})");
    EXPECT_EQ(taken(head + R"({"id": "readOnly", |)", "value"), head + R"({"id": "readOnly", "value": false)");
    EXPECT_THAT(offered(head + R"({"id": "readOnly", "value": |)"), ElementsAre("true", "false"));
}

TEST_F(LspEditing, OffersObjectsOfTheKindThatIsExpected) {
    begin();
    const std::string head =
        R"({"inherits": ["norvex.parameter:parameter.bool-2.0.0"], "constants": [{"id": "group", "typedValue": {"typeid": )";
    EXPECT_THAT(offered(head + "|"), ElementsAre("norvex.parameter:group-1.0.0", "t:group.a-1.0.0"));
    EXPECT_THAT(offered(head + "\"pump|"), ElementsAre("t:group.a-1.0.0"));
    EXPECT_EQ(taken(head + "\"t:gr|oup\"}}]}", "t:group.a-1.0.0"), head + "\"t:group.a-1.0.0\"}}]}");
    EXPECT_EQ(taken(head + "\"t:gr|", "t:group.a-1.0.0"), head + "\"t:group.a-1.0.0\"");
}

TEST_F(LspEditing, OffersUnits) {
    folder.write(
        "unit.json",
        R"({"typeid":"t:unit.m-1.0.0","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name","value":"Metre"}]})");
    begin();
    const std::string head =
        R"({"inherits": ["norvex.spec:spec.measurable-2.0.0"], "constants": [{"id": "applicableUnits", "typedValue": [)";
    EXPECT_EQ(taken(head + "|", "t:unit.m-1.0.0"), head + R"({"typeid": "t:unit.m-1.0.0"})");
    EXPECT_THAT(offered(head + R"({"typeid": "metre|)"), ElementsAre("t:unit.m-1.0.0"));
}

TEST_F(LspEditing, OffersLimitsOfRanges) {
    begin();
    const std::string head =
        R"({"inherits": ["norvex.parameter:parameter.int64-3.0.0"], "constants": [{"id": "range", "typedValue": {"typeid": )";
    EXPECT_THAT(offered(head + "|"), ElementsAre("norvex.range:range.int64.bounded.static-1.0.0"));
    EXPECT_THAT(offered(head + R"("norvex.range:range.int64.bounded.static-1.0.0", "value": {"fromTop": true, "|)"),
                ElementsAre("fromBottom", "bottomBoundary", "topBoundary"));
    EXPECT_THAT(offered(head + R"("norvex.range:range.int64.bounded.static-1.0.0", "value": {"fromTop": |)"),
                ElementsAre("true", "false"));
}

TEST_F(LspEditing, OffersNothingInPlainTexts) {
    begin();
    EXPECT_THAT(offered(R"({"inherits": ["norvex.parameter:group-1.0.0"], "constants": [{"id": "name", "value": "|)"),
                IsEmpty());
    EXPECT_THAT(offered(R"({"typeid": "|"})"), IsEmpty());
    EXPECT_THAT(offered(R"({"other": [|]})"), IsEmpty());
}

TEST_F(LspEditing, AnswersAnywhereInHalfTypedTexts) {
    begin();
    const std::string text = parameter;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        editor.open("new.json", text.substr(0, i) + "|");
        EXPECT_TRUE(editor.here("textDocument/completion").contains("items")) << i;
        editor.here("textDocument/hover");
        editor.here("textDocument/definition");
        editor.here("textDocument/documentSymbol");
        editor.open("new.json", text.substr(0, i) + "|" + text.substr(std::min(i + 3, text.size())));
        EXPECT_TRUE(editor.here("textDocument/completion").contains("items")) << i;
    }
}

TEST_F(LspEditing, RenamesATypeidEverywhere) {
    begin();
    editor.open("parameter.json", std::string("\n") + parameter);
    editor.goTo("parameter.json", "t:group.a-1.0.0\"}}");
    EXPECT_EQ(editor.here("textDocument/prepareRename")["placeholder"], "t:group.a-1.0.0");
    const auto texts = editor.edited(editor.here("textDocument/rename", {{"newName", "t:\"b\""}}));
    std::string renamedGroup = group;
    renamedGroup.replace(renamedGroup.find("t:group.a-1.0.0"), 15, "t:\\\"b\\\"");
    std::string renamedParameter = std::string("\n") + parameter;
    renamedParameter.replace(renamedParameter.find("t:group.a-1.0.0\"}}"), 15, "t:\\\"b\\\"");
    EXPECT_THAT(texts,
                UnorderedElementsAre(Pair("group.json", renamedGroup), Pair("parameter.json", renamedParameter)));
}

TEST_F(LspEditing, RefusesToRename) {
    begin();
    editor.open("parameter.json");
    const auto refusal = [&](const char* part, const char* newName) {
        editor.goTo("parameter.json", part);
        const Json position = rangeAt("parameter.json", part)["start"];
        const Json answer =
            editor.ask("textDocument/rename", {{"textDocument", {{"uri", editor.uriOf("parameter.json")}}},
                                               {"position", position},
                                               {"newName", newName}});
        return answer.contains("error") ? answer["error"]["message"].get<std::string>() : "renamed";
    };
    EXPECT_EQ(refusal("t:parameter", "t:x"), "renamed");
    EXPECT_EQ(refusal("inherits", "t:x"), "This is no typeid.");
    EXPECT_EQ(refusal("t:parameter", "t:group.a-1.0.0"), "t:group.a-1.0.0 is taken.");
    EXPECT_EQ(refusal("t:parameter", "norvex.spec:spec.bool-1.7.0"),
              "norvex.spec:spec.bool-1.7.0 is reserved: it contains a built-in identifier.");
    EXPECT_EQ(refusal("t:parameter", ""), "A typeid may not be empty.");
}

TEST_F(LspEditing, MendsWhatIsMisspelt) {
    folder.write("parameter.json", std::string(parameter).replace(std::string(parameter).find("t:group.a-1.0.0\"}}"),
                                                                  15, "t:grop.a-1.0.0"));
    begin();
    editor.open("parameter.json");
    const Json actions = actionsAt("parameter.json", "t:grop");
    ASSERT_THAT(titlesOf(actions), ElementsAre("Write t:group.a-1.0.0 in place of t:grop.a-1.0.0",
                                               "Mend all that is plainly misspelt in this file"));
    EXPECT_EQ(editor.edited(actions[0]["edit"])["parameter.json"], parameter);
    EXPECT_EQ(editor.edited(actions[1]["edit"])["parameter.json"], parameter);
    EXPECT_EQ(actions[0]["diagnostics"][0]["code"], "dependency-missing");
}

TEST_F(LspEditing, MendsAllOfOneSort) {
    std::string misspelt = group;
    misspelt.replace(misspelt.find("\"id\": \"name\""), 12, "\"id\": \"nam\"");
    folder.write("group.json", misspelt);
    folder.write("second.json", misspelt.replace(misspelt.find("group.a"), 7, "group.b"));
    begin();
    editor.open("group.json");
    const Json actions = actionsAt("group.json", "\"nam\"");
    EXPECT_THAT(titlesOf(actions), Contains("Write name in place of nam"));
    for (const Json& action : actions) {
        if (action["title"].get<std::string>().starts_with("Mend all 2 of these")) {
            EXPECT_EQ(editor.edited(action["edit"])["group.json"], group);
            EXPECT_THAT(editor.edited(action["edit"]), SizeIs(2));
            return;
        }
    }
    FAIL() << actions.dump(1);
}

TEST_F(LspEditing, MendsSlipsOfTheGrammarOneByOneOrAllInTheFile) {
    std::string broken = group;
    broken.insert(broken.find(']', broken.find("constants")), ",");
    broken.replace(broken.find("\"name\""), 6, "'name'");
    begin();
    editor.open("group.json", broken);
    const Json actions = actionsAt("group.json", "'name'");
    ASSERT_THAT(titlesOf(actions),
                ElementsAre("Write \"name\" in place of 'name'", "Mend all that is plainly misspelt in this file"));
    EXPECT_EQ(actions[0]["diagnostics"][0]["code"], "json-syntax");
    EXPECT_EQ(editor.edited(actions[1]["edit"])["group.json"], group);
    editor.type("group.json", editor.edited(actions[0]["edit"])["group.json"]);
    const Json more = actionsAt("group.json", ",]");
    EXPECT_THAT(titlesOf(more), Contains("Remove ,")); // though the fault is behind it
    const Json last = actionsAt("group.json", "]\n}");
    ASSERT_THAT(titlesOf(last), Contains("Remove ,"));
    EXPECT_EQ(editor.edited(last[0]["edit"])["group.json"], group);
}

TEST_F(LspEditing, MendsWhatTheClientShowsBesideTheCursor) {
    std::string misspelt = group;
    misspelt.replace(misspelt.find("\"name\""), 6, "\"nam\"");
    begin();
    editor.open("group.json", misspelt);
    editor.look();
    const Json elsewhere = rangeAt("group.json", "constants");
    const auto actionsWith = [&](const Json& diagnostics) {
        return titlesOf(
            editor.resultOf("textDocument/codeAction", {{"textDocument", {{"uri", editor.uriOf("group.json")}}},
                                                        {"range", elsewhere},
                                                        {"context", {{"diagnostics", diagnostics}}}}));
    };
    const char* const mending = "Write name in place of nam";
    EXPECT_THAT(actionsWith(Json::array()), Not(Contains(mending)));
    EXPECT_THAT(actionsWith(editor.diagnosticsOf("group.json")), Contains(mending));
    Json other = editor.diagnosticsOf("group.json");
    other[0]["code"] = "typeid-taken";
    EXPECT_THAT(actionsWith(other), Not(Contains(mending)));
}

TEST_F(LspEditing, MendsALineThatIsNoJson) {
    const std::string line = R"({"typeid":"t:1","inherits":["norvex.parameter:group-1.0.0"],"constants":[]})";
    begin();
    editor.open("lines.ndjson", line + "\n" + R"({"typeid":"t:2" "inherits"=[],})" + "\n" + R"({"typeid";"t:3"})");
    EXPECT_THAT(titlesOf(actionsAt("lines.ndjson", ";")), ElementsAre());
    editor.type("lines.ndjson", line + "\n" + R"({"typeid":"t:2", "inherits"=[],})" + "\n" + R"({"typeid":True,})");
    const Json actions = actionsAt("lines.ndjson", "=");
    ASSERT_THAT(titlesOf(actions), ElementsAre("Write : in place of =", "Mend all 2 of these (json-syntax)",
                                               "Mend all that is plainly misspelt in this file"));
    EXPECT_EQ(editor.edited(actions[1]["edit"])["lines.ndjson"],
              line + "\n" + R"({"typeid":"t:2", "inherits":[]})" + "\n" + R"({"typeid":true})");
}

TEST_F(LspEditing, OffersNothingThatWouldMakeItWorse) {
    // With its base mended, the schema would name three things that are missing.
    const std::string worse = R"({"typeid":"t:s","inherits":["norvex.talmo.category:majorCategry-1.0.0"],"constants":[)"
                              R"({"id":"domain","typedValue":{"typeid":"nowhere"}},{"id":"disciplines","typedValue":)"
                              R"([{"typeid":"none"},{"typeid":"neither"}]},{"id":"name","value":1}]})"
                              "\n";
    std::string other = group;
    other.replace(other.find("parameter:group-1"), 17, "parameter:grop-1");
    folder.write("other.json", other);
    other.replace(other.find("t:group.a"), 9, "t:group.c");
    folder.write("third.json", other);
    folder.write("worse.ndjson", worse);
    begin();
    editor.open("worse.ndjson");
    EXPECT_EQ(titlesOf(actionsAt("worse.ndjson", "\"norvex")),
              (std::vector<std::string>{"Mend all 2 of these (base-unrecognized)"}));
    const Json actions = actionsAt("worse.ndjson", "\"norvex");
    const auto texts = editor.edited(actions[0]["edit"]);
    EXPECT_THAT(texts, SizeIs(2));
    EXPECT_FALSE(texts.contains("worse.ndjson"));
    editor.type("worse.ndjson", "\n" + worse); // what was tried does not stay known
    EXPECT_THAT(actionsAt("worse.ndjson", "\"norvex"), SizeIs(1));
}

TEST_F(LspEditing, AddsConstantsThatAreMissing) {
    const std::string text =
        "{\n  \"typeid\": \"t:r\",\n  \"inherits\": [\"norvex.range:range.int64.bounded.static-1.0.0\"]\n}";
    folder.write("range.json", text);
    begin();
    editor.open("range.json");
    const Json actions = actionsAt("range.json", "{");
    ASSERT_THAT(titlesOf(actions), ElementsAre("Add the constant fromBottom", "Add all 2 constants that are missing"));
    EXPECT_EQ(
        editor.edited(actions[1]["edit"])["range.json"],
        text.substr(0, text.size() - 2) +
            ",\n  \"constants\": [{\"id\":\"fromBottom\",\"value\":false}, {\"id\":\"fromTop\",\"value\":false}]\n}");
}

TEST_F(LspEditing, AddsConstantsInTheLayoutThatAFileHas) {
    const std::string head =
        "{\n  \"typeid\": \"t:r\",\n  \"inherits\": [\"norvex.range:range.int64.bounded.static-1.0.0\"]";
    folder.write("range.json", head + "\n}\n");
    const std::string line = R"({"typeid":"t:g","inherits":["norvex.parameter:group-1.0.0"],"constants":[)";
    folder.write("lines.ndjson", line + "]}\n");
    const std::string spec = R"({
  "typeid": "t:s",
  "inherits": ["norvex.spec:spec.measurable-2.0.0"],
  "constants": [
    { "id": "note", "value": "é" }
  ]
}
)";
    folder.write("spec.json", spec);
    begin();
    editor.open("range.json");
    Json actions = actionsAt("range.json", "{");
    EXPECT_EQ(editor.edited(actions[1]["edit"])["range.json"],
              head + ",\n  \"constants\": [\n    { \"id\": \"fromBottom\", \"value\": false },\n"
                     "    { \"id\": \"fromTop\", \"value\": false }\n  ]\n}\n");
    const Json& change = actions[0]["edit"]["documentChanges"][0]["edits"][0];
    EXPECT_EQ(change["range"]["start"], (Json{{"line", 2}, {"character", 63}}));
    editor.open("lines.ndjson");
    actions = actionsAt("lines.ndjson", "[]");
    EXPECT_EQ(editor.edited(actions[0]["edit"])["lines.ndjson"], line + R"({"id":"name","value":"<name>"}]})" + "\n");
    editor.open("spec.json");
    actions = actionsAt("spec.json", "[\n");
    EXPECT_EQ(editor.edited(actions[0]["edit"])["spec.json"],
              std::string(spec).insert(spec.find("{ \"id\": \"note\""),
                                       "{ \"id\": \"name\", \"value\": \"<name>\" },\n    "));
}

TEST_F(LspEditing, CreatesWhatIsMissing) {
    const std::string text =
        std::string(parameter).replace(std::string(parameter).find("t:group.a-1.0.0\"}}"), 15, "x:quite/other");
    folder.write("parameter.json", text);
    begin();
    editor.open("parameter.json");
    const Json actions = actionsAt("parameter.json", "x:quite");
    ASSERT_THAT(titlesOf(actions), ElementsAre("Create the group x:quite/other"));
    const auto texts = editor.edited(actions[0]["edit"]);
    ASSERT_THAT(texts, SizeIs(1));
    EXPECT_EQ(texts.begin()->first, "x%3Aquite%2Fother.json");
    editor.open(texts.begin()->first, texts.begin()->second);
    editor.look();
    EXPECT_EQ(editor.faultsOf("parameter.json"), "");
}

TEST_F(LspEditing, LaysOutAsFmtDoes) {
    begin();
    editor.open("group.json", "{\"inherits\":[\"norvex.parameter:group-1.0.0\"],\"typeid\":\"t:g\"}");
    const auto formatted = [&](const std::string& name) {
        const Json edits = editor.resultOf("textDocument/formatting",
                                           {{"textDocument", {{"uri", editor.uriOf(name)}}}, {"options", {}}});
        const Json change{{"textDocument", {{"uri", editor.uriOf(name)}}}, {"edits", edits}};
        return editor.edited({{"documentChanges", Json::array({change})}})[name];
    };
    EXPECT_EQ(formatted("group.json"),
              "{\n  \"typeid\": \"t:g\",\n  \"inherits\": [\"norvex.parameter:group-1.0.0\"]\n}\n");
    editor.open("lines.ndjson", "{ \"typeid\" : 1 }\n{ half\n");
    EXPECT_EQ(formatted("lines.ndjson"), "{\"typeid\":1}\n{ half\n");
    editor.open("group.json", "{"); // saved while it is half typed
    EXPECT_EQ(editor.resultOf("textDocument/formatting", {{"textDocument", {{"uri", editor.uriOf("group.json")}}}}),
              Json::array());
}

} // namespace
