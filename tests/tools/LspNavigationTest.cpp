#include "server/Outline.h"
#include "tools/Editor.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Tool::Lsp::Outline;

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
    {"id": "spec", "typedValue": {"typeid": "norvex.spec:spec.bool-1.0.0"}},
    {"id": "group", "typedValue": {"typeid": "t:group.a-1.0.0"}}
  ]
})";

class LspNavigation : public testing::Test {
protected:
    LspNavigation() {
        folder.write("group.json", group);
        folder.write("parameter.json", parameter);
        editor.begin();
        editor.open("group.json");
        editor.open("parameter.json");
    }

    /// Returns "name line:character-character" for each location.
    std::vector<std::string> places(const Tool::Json& locations) const {
        std::vector<std::string> places;
        for (const Tool::Json& each : locations) {
            const Tool::Json& range = each["range"];
            places.push_back(editor.nameOf(each["uri"]) + " " + range["start"]["line"].dump() + ":" +
                             range["start"]["character"].dump() + "-" + range["end"]["character"].dump());
        }
        return places;
    }

    Folder folder;
    Editor editor{folder};
};

TEST_F(LspNavigation, ShowsTheObjectThatIsNamed) {
    editor.goTo("parameter.json", "t:group.a-1.0.0\"}}");
    const Tool::Json hover = editor.here("textDocument/hover");
    EXPECT_EQ(hover["contents"]["kind"], "markdown");
    EXPECT_THAT(hover["contents"]["value"].get<std::string>(), HasSubstr("```text\nPumps\ngroup  t:group.a-1.0.0\n"));
    EXPECT_THAT(hover["contents"]["value"].get<std::string>(),
                HasSubstr("named by 1 object\n  group  t:parameter.a-1.0.0"));
    EXPECT_EQ(hover["range"]["start"]["character"], 45);
}

TEST_F(LspNavigation, ShowsWhatIsBuiltIn) {
    editor.goTo("parameter.json", "norvex.spec:spec.bool");
    EXPECT_EQ(editor.here("textDocument/hover")["contents"]["value"],
              "```text\nYes/No\nBoolean spec  norvex.spec:spec.bool-1.0.0  (built in)\n```");
}

TEST_F(LspNavigation, ShowsWhatAConstantMeans) {
    editor.goTo("parameter.json", "\"name\"", 1);
    EXPECT_EQ(editor.here("textDocument/hover")["contents"]["value"], "**name** (required)\n\nWhat people call it.");
    editor.goTo("parameter.json", "norvex.parameter");
    EXPECT_EQ(editor.here("textDocument/hover")["contents"]["value"],
              "**Boolean parameter**\n\nA parameter whose values are true and false.");
}

TEST_F(LspNavigation, ShowsNothingElsewhere) {
    for (const char* part : {"{", "t:group.a-1.0.0\"},", "\"typeid\": \"t:p"}) {
        editor.goTo("parameter.json", part);
        EXPECT_EQ(editor.here("textDocument/hover"), nullptr) << part;
    }
}

TEST_F(LspNavigation, ShowsNothingOfConstantsThatStandElsewhere) {
    editor.open("group.json",
                R"({"inherits": ["norvex.parameter:group-1.0.0"], "other": [{"id": "name"}], "id": "name"})");
    for (const char* part : {"name\"}]", "name\"}"}) {
        editor.goTo("group.json", part);
        EXPECT_EQ(editor.here("textDocument/hover"), nullptr) << part;
    }
}

TEST_F(LspNavigation, ShowsWhatIsTypedAlready) {
    editor.type("group.json", std::string(group).replace(std::string(group).find("Pumps"), 5, "Valves"));
    editor.goTo("parameter.json", "t:group.a-1.0.0\"}}");
    EXPECT_THAT(editor.here("textDocument/hover")["contents"]["value"].get<std::string>(), HasSubstr("Valves"));
}

TEST_F(LspNavigation, LeadsToTheSchema) {
    editor.goTo("parameter.json", "t:group.a-1.0.0\"}}");
    EXPECT_THAT(places(editor.here("textDocument/definition")), ElementsAre("group.json 1:12-29"));
    editor.goTo("parameter.json", "norvex.spec:spec.bool");
    EXPECT_THAT(places(editor.here("textDocument/definition")), IsEmpty());
}

TEST_F(LspNavigation, LeadsToHalfTypedSchemas) {
    editor.type("group.json", "\n{\"typeid\": \"t:group.a-1.0.0\", \"inh");
    editor.goTo("parameter.json", "t:group.a-1.0.0\"}}");
    EXPECT_THAT(places(editor.here("textDocument/definition")), ElementsAre("group.json 1:11-28"));
}

TEST_F(LspNavigation, LeadsToWhatNamesASchema) {
    editor.goTo("group.json", "t:group");
    EXPECT_THAT(places(editor.here("textDocument/references")), ElementsAre("parameter.json 6:45-62"));
    EXPECT_THAT(places(editor.here("textDocument/references", {{"context", {{"includeDeclaration", true}}}})),
                SizeIs(2));
}

TEST_F(LspNavigation, ListsWhatIsInAFile) {
    editor.goTo("parameter.json", "{");
    const Tool::Json symbols = editor.here("textDocument/documentSymbol");
    ASSERT_THAT(symbols, SizeIs(1));
    EXPECT_EQ(symbols[0]["name"], "t:parameter.a-1.0.0");
    EXPECT_EQ(symbols[0]["detail"], "Boolean parameter");
    ASSERT_THAT(symbols[0]["children"], SizeIs(3));
    EXPECT_EQ(symbols[0]["children"][2]["name"], "group");
    EXPECT_EQ(symbols[0]["children"][2]["selectionRange"]["start"]["line"], 6);
}

TEST_F(LspNavigation, FindsObjectsByTypeidAndName) {
    for (const char* query : {"pUmps", "ps t:g1.0"}) {
        const Tool::Json symbols = editor.resultOf("workspace/symbol", {{"query", query}});
        ASSERT_THAT(symbols, SizeIs(1)) << query;
        EXPECT_EQ(symbols[0]["name"], "t:group.a-1.0.0");
        EXPECT_EQ(symbols[0]["containerName"], "Pumps");
        EXPECT_EQ(symbols[0]["location"]["uri"], editor.uriOf("group.json"));
    }
    EXPECT_THAT(editor.resultOf("workspace/symbol", {{"query", ""}}), SizeIs(2));
    EXPECT_THAT(editor.resultOf("workspace/symbol", {{"query", "xyz"}}), IsEmpty());
}

TEST_F(LspNavigation, RefusesWhatIsNotThere) {
    const Tool::Json place{{"textDocument", {{"uri", "file:///none.json"}}},
                           {"position", {{"line", 0}, {"character", 0}}}};
    EXPECT_EQ(editor.ask("textDocument/hover", place)["error"]["code"], -32602);
    EXPECT_EQ(editor.ask("textDocument/hover", {{"textDocument", 1}})["error"]["code"], -32602);
}

/// Returns an outline as JSON would be written, with ~ for what is not there yet.
std::string written(const Outline& outline, std::size_t node) {
    std::string text;
    for (const std::size_t child : outline[node].children) {
        text += (text.empty() ? "" : ",") + outline.nameOf(child) + (outline[child].hasName() ? ":" : "") +
                written(outline, child);
    }
    switch (outline[node].type) {
    case Outline::Type::object:
        return "{" + text + "}";
    case Outline::Type::array:
        return "[" + text + "]";
    case Outline::Type::string:
        return outline.stringOf(node);
    case Outline::Type::other:
        return "#";
    case Outline::Type::nothing:
        break;
    }
    return "~";
}

TEST(Outline, TakesWhatIsHalfTypedForWhatItMayBecome) {
    const auto outlineOf = [](const char* text) {
        const Outline outline(text);
        return outline.root() == Outline::none ? std::string("-") : written(outline, outline.root());
    };
    EXPECT_EQ(outlineOf(""), "-");
    EXPECT_EQ(outlineOf("]}"), "-");
    EXPECT_EQ(outlineOf("{\"a\":[1,\"b\"]}"), "{a:[#,b]}");
    EXPECT_EQ(outlineOf("{\"a"), "{a:~}");
    EXPECT_EQ(outlineOf("{\"a\n\"b\":1}"), "{a:~,b:#}");
    EXPECT_EQ(outlineOf("{\"a\":"), "{a:~}");
    EXPECT_EQ(outlineOf("{\"a\": \"b\n}"), "{a:b}");
    EXPECT_EQ(outlineOf("{\"a\":,\"b\":[{\"c\":1 {\"d\":2}]"), "{a:~,b:[{c:#},{d:#}]}");
    EXPECT_EQ(outlineOf("{\"a\" 1 \"b\":2"), "{a:~,b:#}");
    EXPECT_EQ(outlineOf("{\"a\":{\"b\":[1}"), "{a:{b:[#]}}");
    EXPECT_EQ(outlineOf("{\"\\u0061\":\"\\n\\q\"}"), "{a:\\n\\q}");
    const std::string deep(1000000, '[');
    EXPECT_EQ(Outline(deep).size(), deep.size());
}

} // namespace
