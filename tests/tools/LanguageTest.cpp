#include "language/Language.h"

#include "ProjectFolder.h"
#include "language/Values.h"
#include "support/Faults.h"
#include "support/Picture.h"
#include "tools/Forms.h"
#include "tools/Tool.h"

#include <parameters/ParametersEngine.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The library judges the description of its language.

namespace {

using Parameters::Fault;
using Parameters::ParametersEngine;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace Tool::Language;
using Tool::Json;
using namespace Forms;

/// Returns what is wrong with a text beside the objects that the sound texts name.
std::vector<Fault> faultsIn(const Json& schema) {
    Support::Texts texts = soundTexts();
    texts["~"] = schema.dump(); // behind all others
    return ParametersEngine().findFaults(texts);
}

std::vector<std::string> codesIn(const Json& schema) {
    std::vector<std::string> codes;
    for (const Fault& fault : faultsIn(schema)) {
        codes.push_back(std::string(fault.code()) + " " + fault.name());
    }
    return codes;
}

/// Returns all that an engine shows when it has read a text beside those that it names.
std::string pictureWith(const Json& schema) {
    Support::Texts texts = soundTexts();
    texts["~"] = schema.dump();
    ParametersEngine engine;
    engine.registerSchemas(texts);
    engine.resolveSchemas();
    return Support::pictureOf(engine);
}

/// Returns values that a type does not have, but perhaps a type near to it.
std::vector<Json> valuesOfOtherTypes(Type type) {
    const Json object = {{"typeid", "unit"}};
    std::vector<Json> others{nullptr};
    const auto add = [&](std::initializer_list<Json> values) { others.insert(others.end(), values); };
    if (type != Type::text && type != Type::nonEmptyText) {
        add({"text", ""});
    }
    if (type != Type::boolean) {
        add({true});
    }
    if (type != Type::number) {
        add({0.5});
    }
    if (type != Type::number && type != Type::integer && type != Type::choice) {
        add({1});
    }
    if (type != Type::references && type != Type::texts) {
        add({Json::array()});
    }
    if (!isTyped(type) || type == Type::references) {
        add({object});
    } else {
        add({Json{{"typeid", ""}}, Json{{"typeid", 1}}, Json{{"name", "unit"}}});
    }
    if (type == Type::nonEmptyText) {
        add({""});
    }
    if (type == Type::texts) {
        add({Json::array({1}), Json::array({"a", "a"})});
    }
    if (type == Type::references) {
        add({Json::array({"unit"}), Json::array({Json::object()})});
    }
    if (type == Type::reference || type == Type::referenceSpec || type == Type::range) {
        add({Json{{"typeid", "unit"}, {"value", 1}}});
    }
    return others;
}

class EachForm : public testing::TestWithParam<Form> {};

TEST_P(EachForm, IsSoundWithAllThatItHas) { EXPECT_THAT(codesIn(textOf(GetParam(), &otherThanDefault)), IsEmpty()); }

TEST_P(EachForm, IsSoundWithAllThatItMustHave) { EXPECT_THAT(codesIn(textOf(GetParam(), &whereRequired)), IsEmpty()); }

TEST_P(EachForm, HasNothingThatIsOfOthers) {
    std::set<std::string_view> own;
    for (const Definition& definition : definitionsOf(GetParam())) {
        own.insert(definition.id);
    }
    std::size_t others = 0;
    for (const Form& form : forms()) {
        for (const Definition& definition : definitionsOf(form)) {
            if (!own.contains(definition.id) && !definition.id.empty()) {
                Json schema = textOf(GetParam(), &whereRequired);
                schema["constants"].push_back({{"id", definition.id}, {"value", 1}});
                EXPECT_THAT(codesIn(schema), ElementsAre("constant-unknown " + std::string(definition.id)));
                ++others;
            }
        }
    }
    EXPECT_GT(others, 0U);
}

TEST_P(EachForm, HasNoPropertyThatItDoesNotDescribe) {
    const auto& properties = GetParam().properties;
    const bool hasAny =
        std::any_of(properties.begin(), properties.end(), [](const Definition& each) { return each.id.empty(); });
    Json schema = textOf(GetParam(), &whereRequired);
    schema["properties"].push_back({{"id", "colour"}, {"value", 1}});
    EXPECT_EQ(codesIn(schema),
              hasAny ? std::vector<std::string>() : std::vector<std::string>{"property-unknown colour"});
}

TEST_P(EachForm, IsReadInItsOrder) {
    // Every constant is broken; the library tells faults in the order in which it reads.
    Json schema = textOf(GetParam(), [](const Definition&) { return std::optional<Json>(nullptr); });
    if (schema.contains("constants")) {
        std::reverse(schema["constants"].begin(), schema["constants"].end());
    }
    std::vector<std::string> read;
    for (const Fault& fault : faultsIn(schema)) {
        const Json pointed = schema.at(nlohmann::json_pointer<std::string>(fault.place().pointer).parent_pointer());
        read.push_back(pointed.at("id"));
    }
    std::vector<std::string> described;
    for (const Definition& definition : definitionsOf(GetParam())) {
        described.push_back(withValue(definition, 0).at("id"));
    }
    EXPECT_EQ(read, described);
}

INSTANTIATE_TEST_SUITE_P(Language, EachForm, testing::ValuesIn(forms()),
                         [](const auto& test) { return nameOf(test.param); });

class EachDefinition : public testing::TestWithParam<Entry> {
protected:
    const Form& form_ = GetParam().form;
    const Definition& definition_ = GetParam().definition;

    bool isIt(const Definition& other) const { return &other == &definition_; }

    /// Returns a schema with all that it may have, and with a value of this definition or without it.
    Json schemaWith(const std::optional<Json>& value) const {
        return textOf(form_, [&](const Definition& each) { return isIt(each) ? value : otherThanDefault(each); });
    }
};

TEST_P(EachDefinition, IsMissingWhereItIsRequired) {
    auto faults = faultsIn(schemaWith(std::nullopt));
    std::erase_if(faults, [](const Fault& fault) { return !fault.isError(); }); // such as a flag without its boundary
    ASSERT_EQ(faults.size(), definition_.isRequired ? 1U : 0U);
    if (definition_.isRequired) {
        EXPECT_TRUE(faults.front().isError());
        EXPECT_THAT(faults.front().name(), testing::AnyOf(definition_.id, "properties")) << faults.front().code();
    }
}

class OptionalDefinition : public EachDefinition {};

TEST_P(OptionalDefinition, MayBeLeftOutForItsDefault) {
    const std::string without = pictureWith(schemaWith(std::nullopt));
    if (const auto byDefault = defaultOf(definition_)) {
        EXPECT_EQ(pictureWith(schemaWith(byDefault)), without);
    }
    EXPECT_NE(pictureWith(schemaWith(otherThanDefault(definition_))), without);
}

TEST_P(EachDefinition, RefusesValuesOfOtherTypes) {
    for (const Json& value : valuesOfOtherTypes(definition_.type)) {
        const auto faults = faultsIn(schemaWith(value));
        EXPECT_TRUE(std::any_of(faults.begin(), faults.end(), std::mem_fn(&Fault::isError))) << value;
    }
}

TEST_P(EachDefinition, HasAPlaceholderThatIsRead) {
    const auto least = [&](const Definition& each) { return isIt(each) ? placeholderOf(each) : whereRequired(each); };
    for (const std::string& code : codesIn(textOf(form_, least))) {
        EXPECT_THAT(code, testing::MatchesRegex("(dependency|unit)-missing <.*>"));
    }
}

TEST_P(EachDefinition, TellsWhatItIs) {
    EXPECT_THAT(std::string(definition_.meaning), testing::MatchesRegex("[A-Z].*\\."));
}

INSTANTIATE_TEST_SUITE_P(Language, EachDefinition, testing::ValuesIn(entries()),
                         [](const auto& test) { return nameOf(test.param); });

std::vector<Entry> optionalEntries() {
    std::vector<Entry> optional;
    for (const Entry& entry : entries()) {
        if (!entry.definition.isRequired) {
            optional.push_back(entry);
        }
    }
    return optional;
}

INSTANTIATE_TEST_SUITE_P(Language, OptionalDefinition, testing::ValuesIn(optionalEntries()),
                         [](const auto& test) { return nameOf(test.param); });

TEST(Language, HasAllThatTheExamplesHave) {
    std::set<std::string_view> seen;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        if (entry.path().extension() != ".json") {
            continue;
        }
        const Json schema = Json::parse(contentOf(entry.path()));
        const auto form = std::find_if(forms().begin(), forms().end(), [&](const Form& each) {
            return schema.at("inherits").at(0).get<std::string>().starts_with(prefixOf(each.base));
        });
        ASSERT_NE(form, forms().end()) << entry.path();
        seen.insert(form->id);
        const Json constants = schema.value("constants", Json::array());
        for (const Json& constant : constants) {
            EXPECT_TRUE(std::any_of(
                form->constants.begin(), form->constants.end(),
                [&](const Definition& definition) { return definition.id == constant.at("id").get<std::string>(); }))
                << entry.path() << constant;
        }
    }
    EXPECT_EQ(seen.size(), forms().size());
}

TEST(Language, KnowsWhatIsReserved) {
    const ParametersEngine engine;
    const auto reserved = reservedPrefixes();
    for (const Form& form : forms()) {
        const bool isReserved = std::count(reserved.begin(), reserved.end(), prefixOf(form.base)) > 0;
        EXPECT_EQ(isReserved, engine.isRegistered("a" + std::string(prefixOf(form.base)) + "9")) << form.base;
    }
    for (const std::string_view prefix : reserved) {
        EXPECT_TRUE(engine.isRegistered(std::string(prefix))) << prefix;
    }
    EXPECT_EQ(reserved.size(), 12U);
}

} // namespace
