#include <parameters/Enumeration.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using Parameters::Enumeration;
using Parameters::ParametersEngine;
using Support::engineOf;
using Support::Fault;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Values = std::vector<std::pair<std::string, std::int64_t>>;

constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t greatest = std::numeric_limits<std::int64_t>::max();

/// Returns the text of the enumeration "e" with the given properties.
std::string textOf(const std::string& properties) {
    return R"({"typeid": "e", "inherits": ["Enum"], "properties": [)" + properties + "]}";
}

std::string written(const std::string& properties) {
    return R"({"typeid":"e","inherits":["Enum"],"properties":[)" + properties + "]}";
}

Values valuesOf(const std::string& properties) {
    return engineOf({textOf(properties)}).getEnumeration("e").getValues();
}

std::string writtenBy(const Enumeration& enumeration) {
    ParametersEngine engine;
    engine.registerEnumeration(enumeration);
    return engine.getSchema(enumeration.getTypeId());
}

TEST(Enumeration, KeepsItsValuesInOrder) {
    const Enumeration enumeration("e", {{"b", 2}, {"a", -1}, {"c", 2}});
    EXPECT_EQ(enumeration.getTypeId(), "e");
    EXPECT_EQ(enumeration.getValues(), (Values{{"b", 2}, {"a", -1}, {"c", 2}}));
}

TEST(Enumeration, IsMadeWithoutAnyCheck) {
    const Enumeration enumeration("", {{"", 1}, {"a", 2}, {"a", 3}});
    EXPECT_EQ(enumeration.getTypeId(), "");
    EXPECT_EQ(enumeration.getValues(), (Values{{"", 1}, {"a", 2}, {"a", 3}}));
    EXPECT_TRUE(Enumeration("e", {}).getValues().empty());
}

TEST(Enumeration, HasTheValuesOfItsSchemaInTheByteOrderOfTheirIds) {
    EXPECT_EQ(valuesOf(R"({"id": "b", "value": 1}, {"id": "\u00e4", "value": 2}, {"value": -3, "id": "a"},
                          {"id": "B", "value": 4}, {"id": "ab", "value": 5})"),
              (Values{{"B", 4}, {"a", -3}, {"ab", 5}, {"b", 1}, {"\xc3\xa4", 2}}));
}

TEST(Enumeration, MayHaveEqualIntegers) {
    EXPECT_EQ(valuesOf(R"({"id": "a", "value": 1}, {"id": "b", "value": 1})"), (Values{{"a", 1}, {"b", 1}}));
}

TEST(Enumeration, TakesTheLeastAndTheGreatestInteger) {
    EXPECT_EQ(valuesOf(R"({"id": "a", "value": -9223372036854775808}, {"id": "b", "value": 9223372036854775807})"),
              (Values{{"a", least}, {"b", greatest}}));
}

TEST(Enumeration, TakesTheValueOfADefinitionThatHasATypedValueToo) {
    EXPECT_EQ(valuesOf(R"({"typedValue": {"typeid": "x"}, "id": "a", "value": 7})"), (Values{{"a", 7}}));
}

TEST(Enumeration, TellsIdsBehindANulApart) {
    EXPECT_EQ(valuesOf(R"({"id": "\u0000b", "value": 1}, {"id": "\u0000a", "value": 2}, {"id": "\u0000", "value": 3})"),
              (Values{{std::string("\0", 1), 3}, {std::string("\0a", 2), 2}, {std::string("\0b", 2), 1}}));
}

TEST(Enumeration, IgnoresTheConstantsOfItsSchema) {
    const ParametersEngine engine =
        engineOf({R"({"typeid": "e", "inherits": ["Enum"], "constants": [{"id": "name", "value": 5}, {"id": "a"}],
                      "properties": [{"id": "a", "value": 1}]})"});
    EXPECT_EQ(engine.getEnumeration("e").getValues(), (Values{{"a", 1}}));
    EXPECT_EQ(engine.getSchema("e"), written(R"({"id":"a","value":1})"));
}

TEST(Enumeration, InheritsExactlyTheWordOfItsBase) {
    for (const char* base : {"enum", "ENUM", "Enum-1.0.0", " Enum", "Enum ", "my Enum", "Enu", "Enum\\u0000"}) {
        EXPECT_EQ(refusalOf(R"({"typeid": "e", "inherits": [")" + std::string(base) +
                            R"("], "properties": [{"id": "a", "value": 1}]})"),
                  "Inheritance from an unrecognized base schema.")
            << base;
    }
}

const char* const empty = "ID of value in enumeration schema e must not be empty.";
const char* const noIntegerA = "Value a in enumeration schema e must specify an integer value.";
const char* const noIntegerB = "Value b in enumeration schema e must specify an integer value.";
const char* const noValues = "Enumeration schema e must specify at least one value.";

const std::vector<Fault> textFaults = {
    {"NoProperties", R"({"typeid": "e", "inherits": ["Enum"]})", noValues},
    {"EmptyProperties", textOf(""), noValues},
    {"ValuesAsConstants", R"({"typeid": "e", "inherits": ["Enum"], "constants": [{"id": "a", "value": 1}]})", noValues},
    {"EmptyId", textOf(R"({"id": "a", "value": 1}, {"id": "", "value": 1})"), empty},
    {"NoValue", textOf(R"({"id": "a"})"), noIntegerA},
    {"TypedValue", textOf(R"({"id": "a", "typedValue": {"typeid": "x"}})"), noIntegerA},
    {"TypedValueAsAnInteger", textOf(R"({"id": "a", "typedValue": 1})"), noIntegerA},
    {"ValueAsAText", textOf(R"({"id": "a", "value": "1"})"), noIntegerA},
    {"ValueAsADouble", textOf(R"({"id": "a", "value": 1.0})"), noIntegerA},
    {"ValueWithExponent", textOf(R"({"id": "a", "value": 1e3})"), noIntegerA},
    {"ValueTooGreat", textOf(R"({"id": "a", "value": 9223372036854775808})"), noIntegerA},
    {"ValueTooSmall", textOf(R"({"id": "a", "value": -9223372036854775809})"), noIntegerA},
    {"ValueNull", textOf(R"({"id": "a", "value": null})"), noIntegerA},
    {"ValueAsABoolean", textOf(R"({"id": "a", "value": true})"), noIntegerA},
    {"SameIdTwice", textOf(R"({"id": "a", "value": 1}, {"id": "a", "value": 2})"),
     "Item a in properties array must be defined only once."},
    {"EmptyIdBeforeItsValue", textOf(R"({"id": "", "value": "x"})"), empty},
    {"EmptyIdBeforeOtherValues", textOf(R"({"id": "a", "value": "x"}, {"id": "", "value": 1})"), empty},
    {"FirstOfTheSortedIds", textOf(R"({"id": "b", "value": "x"}, {"id": "a", "value": "x"})"), noIntegerA},
    {"SecondOfTheSortedIds", textOf(R"({"id": "b", "value": "x"}, {"id": "a", "value": 1}, {"id": "c"})"), noIntegerB},
    {"SameIdTwiceBeforeValues", textOf(R"({"id": "a", "value": "x"}, {"id": "b"}, {"id": "b"})"),
     "Item b in properties array must be defined only once."},
};

class EnumerationFault : public testing::TestWithParam<Fault> {};

TEST_P(EnumerationFault, IsNamedAndNothingIsRegistered) {
    ParametersEngine engine;
    EXPECT_EQ(refusalOf(engine, GetParam().text), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Enumeration, EnumerationFault, testing::ValuesIn(textFaults), Support::nameOfRow);

TEST(Enumeration, MayHaveTheWordOfItsBaseAsItsTypeId) {
    ParametersEngine engine;
    engine.registerEnumeration(Enumeration("Enum", {{"a", 1}}));
    EXPECT_EQ(engine.getEnumeration("Enum").getValues(), (Values{{"a", 1}}));
}

TEST(Enumeration, IsRegisteredAsItIs) {
    ParametersEngine engine;
    engine.registerEnumeration(Enumeration("e", {{"b", 1}, {"B", greatest}, {"a", 1}, {" ", least}}));
    const Values expected{{"b", 1}, {"B", greatest}, {"a", 1}, {" ", least}};
    EXPECT_EQ(engine.getEnumeration("e").getValues(), expected);
    EXPECT_EQ(engine.getAllEnumerations().at("e").getValues(), expected);
}

struct RefusedEnumeration {
    const char* name;
    const char* typeId;
    Values values;
    const char* message;
};

const std::vector<RefusedEnumeration> refusedEnumerations = {
    {"NoValues", "e", {}, "Enumeration must specify at least one value."},
    {"EmptyId", "e", {{"a", 1}, {"", 2}}, "ID of value in enumeration must not be empty."},
    {"SameIdTwice", "e", {{"a", 1}, {"b", 2}, {"a", 1}}, "Value a must appear only once."},
    {"EmptyIdTwice", "e", {{"", 1}, {"", 1}}, "ID of value in enumeration must not be empty."},
    {"EmptyIdBeforeSameId", "e", {{"a", 1}, {"", 2}, {"a", 3}}, "ID of value in enumeration must not be empty."},
    {"SameIdBeforeEmptyId", "e", {{"a", 1}, {"a", 2}, {"", 3}}, "Value a must appear only once."},
    {"FirstOfTwoRepeatedIds", "e", {{"a", 1}, {"b", 2}, {"b", 3}, {"a", 4}}, "Value b must appear only once."},
    {"NoTypeIdBeforeNoValues", "", {}, "Typeid must not be empty."},
    {"KnownTypeIdBeforeSameId", "known", {{"a", 1}, {"a", 2}}, "Schema with typeid known is already registered."},
};

class RefusedEnumerationObject : public testing::TestWithParam<RefusedEnumeration> {};

TEST_P(RefusedEnumerationObject, IsNotRegistered) {
    ParametersEngine engine = engineOf({Support::groupText("known")});
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerEnumeration(Enumeration(GetParam().typeId, GetParam().values)); }),
              GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Enumeration, RefusedEnumerationObject, testing::ValuesIn(refusedEnumerations),
                         Support::nameOfRow);

TEST(Enumeration, IsWrittenWithoutConstants) {
    EXPECT_EQ(writtenBy(Enumeration("e", {{"a", 1}})),
              R"({"typeid":"e","inherits":["Enum"],"properties":[{"id":"a","value":1}]})");
}

TEST(Enumeration, IsWrittenWithTheLeastAndTheGreatestInteger) {
    const std::string text = written(
        R"({"id":"a","value":-9223372036854775808},{"id":"b","value":9223372036854775807},{"id":"c","value":0})");
    EXPECT_EQ(writtenBy(Enumeration("e", {{"a", least}, {"b", greatest}, {"c", 0}})), text);
    EXPECT_EQ(rewritten(ParametersEngine(), "e", text), text);
}

TEST(Enumeration, IsWrittenInItsOwnOrder) {
    EXPECT_EQ(writtenBy(Enumeration("e", {{"b", 1}, {"a", 2}})),
              written(R"({"id":"b","value":1},{"id":"a","value":2})"));
}

TEST(Enumeration, LosesItsOwnOrderOnTheRoundTrip) {
    const std::string text = writtenBy(Enumeration("e", {{"b", 1}, {"a", 2}}));
    EXPECT_EQ(engineOf({text}).getEnumeration("e").getValues(), (Values{{"a", 2}, {"b", 1}}));
    EXPECT_EQ(rewritten(ParametersEngine(), "e", text), written(R"({"id":"a","value":2},{"id":"b","value":1})"));
}

TEST(Enumeration, OfASchemaIsWrittenInTheByteOrderOfItsIds) {
    const std::string text = written(R"({"id":"B","value":2},{"id":"a","value":1})");
    EXPECT_EQ(rewritten(ParametersEngine(), "e", textOf(R"({"id": "a", "value": 1}, {"id": "B", "value": 2})")), text);
    EXPECT_EQ(rewritten(ParametersEngine(), "e", text), text);
}

class AwkwardEnumeration : public testing::TestWithParam<Support::AwkwardString> {
protected:
    static std::string writtenBytes() {
        return R"({"typeid":")" + GetParam().escaped + R"(","inherits":["Enum"],"properties":[{"id":")" +
               GetParam().escaped + R"(","value":1}]})";
    }
};

TEST_P(AwkwardEnumeration, IsWrittenWithItsBytes) {
    EXPECT_EQ(writtenBy(Enumeration(GetParam().bytes, {{GetParam().bytes, 1}})), writtenBytes());
}

TEST_P(AwkwardEnumeration, IsReadWithItsBytes) {
    EXPECT_EQ(engineOf({writtenBytes()}).getEnumeration(GetParam().bytes).getValues(), (Values{{GetParam().bytes, 1}}));
    EXPECT_EQ(rewritten(ParametersEngine(), GetParam().bytes, writtenBytes()), writtenBytes());
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardEnumeration, testing::ValuesIn(Support::awkwardStrings), Support::nameOfRow);

} // namespace
