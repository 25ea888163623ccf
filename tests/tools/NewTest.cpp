#include "ProjectFolder.h"
#include "tools/Forms.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace Forms;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(New, HasEachConstantOnALineOfItsOwn) {
    const Outcome outcome = Folder().run({"new", "int-parameter", "pumps:parameter.stages-1.0.0"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, R"({
  "typeid": "pumps:parameter.stages-1.0.0",
  "inherits": ["norvex.parameter:parameter.int64-3.0.0"],
  "constants": [
    { "id": "name", "value": "<name>" },
    { "id": "description", "value": "" },
    { "id": "sampleText", "value": "" },
    { "id": "group", "typedValue": { "typeid": "norvex.parameter:group-1.0.0" } },
    { "id": "readOnly", "value": false },
    { "id": "spec", "typedValue": { "typeid": "norvex.spec:spec.int64-2.0.0" } },
    {
      "id": "range",
      "typedValue": {
        "typeid": "norvex.range:range.int64.bounded.static-1.0.0",
        "value": { "fromBottom": false, "fromTop": false }
      }
    }
  ]
}
)");
}

TEST(New, WritesWhatItsPageShows) {
    const Outcome outcome = Folder().run({"new", "enumeration-parameter", "pumps:parameter.duty-1.0.0"});
    EXPECT_THAT(contentOf(OSTRA_SOURCE_DIR "/docs/tool.md"),
                testing::HasSubstr("\n$ ostra-params new enumeration-parameter pumps:parameter.duty-1.0.0\n" +
                                   outcome.out + "```\n"));
}

TEST(New, WritesAFile) {
    const Folder folder;
    folder.write("duty.json", "old");
    const Outcome outcome = folder.run({"new", "enumeration", "x", "-o", "duty.json"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(folder.read("duty.json"), R"({
  "typeid": "x",
  "inherits": ["Enum"],
  "properties": [
    { "id": "<choice>", "value": 0 }
  ]
}
)");
    EXPECT_THAT(folder.files(), ElementsAre("duty.json"));
}

TEST(New, TakesATypeIdThatIsLongerThanALine) {
    const std::string typeId(1000, 'x');
    const Outcome outcome = Folder().run({"new", "string-range", typeId});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out,
              "{\n  \"typeid\": \"" + typeId + "\",\n  \"inherits\": [\"norvex.range:range.string-1.0.0\"]\n}\n");
}

TEST(New, TakesTheFirstFormOfAKindThatHasSeveral) {
    EXPECT_EQ(Folder().run({"new", "category", "x"}).out, Folder().run({"new", "major-category", "x"}).out);
}

class NewSchema : public testing::TestWithParam<Form> {};

TEST_P(NewSchema, IsReadWithWhatItNames) {
    const Folder folder;
    for (const auto& [typeId, text] : soundTexts()) {
        const Form& form = *Tool::Language::findForm(typeId);
        Json named = Json::parse(text);
        named["typeid"] = "<" + std::string(form.label) + ">";
        folder.write("named.ndjson", folder.read("named.ndjson") + text + "\n" + named.dump() + "\n");
    }
    folder.run({"new", std::string(GetParam().id), "new:x-1.0.0", "-o", "new.json"});
    const Outcome outcome = folder.run({"check", "-q", "--strict", "named.ndjson", "new.json"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
}

TEST_P(NewSchema, HasAllButWhatCannotBeWritten) {
    const Json schema = Json::parse(Folder().run({"new", std::string(GetParam().id), "x"}).out);
    std::vector<std::string> lacking;
    for (const Definition& definition : definitionsOf(GetParam())) {
        const std::string id = withValue(definition, 0).at("id");
        const auto isIn = [&](const char* name) {
            const Json array = schema.value(name, Json::array());
            return std::any_of(array.begin(), array.end(), [&](const Json& each) { return each.at("id") == id; });
        };
        if (!isIn("constants") && !isIn("properties")) {
            lacking.push_back(id);
        }
    }
    if (GetParam().id == "reference-spec") { // any object, where no category is named
        EXPECT_THAT(lacking, ElementsAre("category"));
    } else {
        EXPECT_THAT(lacking, IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(Tool, NewSchema, testing::ValuesIn(Tool::Language::forms()),
                         [](const auto& test) { return nameOf(test.param); });

TEST(JsonSchema, IsTheSameInAFile) {
    const Folder folder;
    const Outcome outcome = folder.run({"json-schema"});
    EXPECT_THAT(outcome.out, testing::StartsWith("{\n  \"$schema\": ")); // in the order of JSON schemas
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(folder.run({"json-schema", "--output", "schema.json"}).out, "");
    EXPECT_EQ(folder.read("schema.json"), outcome.out);
}

TEST(JsonSchema, HasADefinitionForEachForm) {
    const Json schema = Json::parse(Folder().run({"json-schema"}).out);
    EXPECT_EQ(schema.at("$schema"), "http://json-schema.org/draft-07/schema#");
    std::vector<std::string> ids;
    for (const auto& [id, definition] : schema.at("definitions").items()) {
        ids.push_back(id);
    }
    std::vector<std::string> expected;
    for (const Form& form : Tool::Language::forms()) {
        expected.emplace_back(form.id);
    }
    EXPECT_EQ(ids, expected);
}

} // namespace
