#include "compare/Comparison.h"
#include "catalogue/Catalogue.h"
#include "tools/Forms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Forms::Definition;
using Forms::Entry;
using Forms::Form;
using Forms::Json;
using Forms::Type;
using Tool::Catalogue;
using namespace Tool::Compare;

/// Returns a catalogue of two objects of each section and a schema.
std::unique_ptr<Catalogue> catalogueWith(const Json& schema) {
    std::map<std::string, std::string> texts = Forms::soundTexts();
    for (const Form& form : Tool::Language::forms()) {
        const std::string other = std::string(form.section->id) + "-other";
        texts.emplace(other, Forms::textOf(form, &Forms::whereRequired, other).dump());
    }
    std::string lines;
    for (const auto& [name, text] : texts) {
        lines += text + "\n";
    }
    lines += schema.dump() + "\n";
    return std::make_unique<Catalogue>(
        std::vector<Tool::KnownFile>{{"c.ndjson", std::make_shared<const std::string>(lines)}});
}

/// Returns what a definition says in the new catalogue: neither its default nor what is there where it is required.
Json another(const Definition& definition) {
    const Json named = {{"typeid", std::string(definition.named) + "-other"}};
    switch (definition.type) {
    case Type::boolean:
        return true;
    case Type::integer:
    case Type::number:
    case Type::choice:
        return 7;
    case Type::texts:
        return Json::array({"other"});
    case Type::references:
        return Json::array({named});
    default:
        return definition.named.empty() ? Json("other") : named;
    }
}

bool isLimit(std::string_view id) { return id == "bottomBoundary" || id == "topBoundary"; }

/// Returns the id of the constant that changes with a definition.
std::string_view constantOf(const Definition& definition) {
    return definition.id == "fromBottom" ? "bottomBoundary"
           : definition.id == "fromTop"  ? "topBoundary"
           : definition.id.empty()       ? "choices"
                                         : definition.id;
}

class ChangedDefinition : public testing::TestWithParam<Entry> {};

TEST_P(ChangedDefinition, IsSeenToChange) {
    const Form& form = GetParam().form;
    const Definition& definition = GetParam().definition;
    const auto schemaWith = [&](bool isAnother) {
        return Forms::textOf(form, [&](const Definition& each) -> std::optional<Json> {
            const bool isFlag = each.type == Type::boolean && isLimit(definition.id); // which lets limits count
            return each.id == definition.id && isAnother ? another(each)
                   : isFlag                              ? Json(true)
                                                         : Forms::whereRequired(each);
        });
    };
    const auto before = catalogueWith(schemaWith(false));
    const auto after = catalogueWith(schemaWith(true));
    ASSERT_EQ(before->leftOut() + after->leftOut(), 0U) << after->findings().front().message;
    EXPECT_THAT(compare(*before, *before), testing::IsEmpty());
    const std::vector<Change> changes = compare(*before, *after);
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes.front().fate, Fate::changed);
    const ConstantChange& constant = changes.front().constants.front();
    EXPECT_EQ(constant.id, constantOf(definition));
    // What changed is written there.
    EXPECT_THAT(constant.placeAfter.pointer,
                testing::StartsWith(definition.id.empty() || definition.id == "value" ? "/properties" : "/constants/"));
}

INSTANTIATE_TEST_SUITE_P(Comparison, ChangedDefinition, testing::ValuesIn(Forms::entries()),
                         [](const auto& test) { return Forms::nameOf(test.param); });

/// Returns a parameter of a base with a definition of the constant that is behind the name.
std::string parameter(const std::string& base, const std::string& definition) {
    return R"({"typeid":"x","inherits":["norvex.parameter:)" + base + R"("],"constants":[{"id":"name","value":"X"},)" +
           definition + "]}\n";
}

std::unique_ptr<Catalogue> catalogueOf(const std::string& text) {
    return std::make_unique<Catalogue>(
        std::vector<Tool::KnownFile>{{"c.ndjson", std::make_shared<const std::string>(text)}});
}

/// Returns "constant: pointer before, pointer after" of each constant that changed, and of its elements.
std::vector<std::string> placesOf(const std::string& before, const std::string& after) {
    const auto old = catalogueOf(before);
    const auto now = catalogueOf(after);
    std::vector<std::string> places;
    for (const Change& change : compare(*old, *now)) {
        for (const ConstantChange& each : change.constants) {
            places.push_back(std::string(each.id) + ": " + each.placeBefore.pointer + ", " + each.placeAfter.pointer);
            for (const ElementChange& element : each.elements) {
                places.push_back(element.placeBefore.pointer + ", " + element.placeAfter.pointer);
            }
        }
    }
    return places;
}

std::string range(const std::string& value) {
    return parameter(
        "parameter.int64-3.0.0",
        R"({"id":"range","typedValue":{"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":)" + value +
            "}}");
}

TEST(PlaceOfAChange, IsWithinTheRangeOfAParameter) {
    EXPECT_THAT(placesOf(range(R"({"fromBottom":false,"fromTop":true,"topBoundary":7})"),
                         range(R"({"fromBottom":true,"fromTop":true,"topBoundary":8})")),
                testing::ElementsAre("bottomBoundary: /constants/1/typedValue/value/fromBottom, "
                                     "/constants/1/typedValue/value/fromBottom",
                                     "topBoundary: /constants/1/typedValue/value/topBoundary, "
                                     "/constants/1/typedValue/value/topBoundary"));
}

std::string set(const std::string& values) {
    return parameter("parameter.string-3.0.0",
                     R"({"id":"range","typedValue":{"typeid":"norvex.range:range.string.set.static-1.0.0",)"
                     R"("value":{"allowedValues":)" +
                         values + "}}}");
}

TEST(PlaceOfAChange, IsThatOfAnElement) {
    const std::string list = "/constants/1/typedValue/value/allowedValues";
    EXPECT_THAT(
        placesOf(set(R"(["a","b"])"), set(R"(["c","a"])")),
        testing::ElementsAre("allowedValues: " + list + ", " + list, list + "/1, " + list, list + ", " + list + "/0"));
}

TEST(PlaceOfAChange, IsThatOfTheTypeIdWhereNothingIsWritten) {
    EXPECT_THAT(placesOf(parameter("parameter.bool-2.0.0", R"({"id":"x"})"),
                         parameter("parameter.bool-2.0.0", R"({"id":"readOnly","value":true})")),
                testing::ElementsAre("readOnly: /typeid, /constants/1/value"));
}

} // namespace
