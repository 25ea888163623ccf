#include <parameters/MeasurableParameter.h>

#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

// Measurable parameters as values, how their schemas are read and how they are written; for what they name see
// MeasurableParameterReferencesTest.cpp.

namespace {

using Parameters::FloatRange;
using Parameters::MeasurableParameter;
using Parameters::MeasurableSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::engineOf;
using Support::engineWithUnits;
using Support::Fault;
using Support::groupText;
using Support::measurableSpecText;
using Support::messageOf;
using Support::refusalBy;
using Support::rewritten;
using Support::schemaText;
using Support::typedConstant;
using Units::Unit;

const std::string base = "norvex.parameter:parameter.measurable-3.0.0";
const std::string baseRange = "norvex.range:range.float64.bounded.static-1.0.0";
const std::string nameAndSpec =
    R"({"id": "name", "value": "Level"}, {"id": "spec", "typedValue": {"typeid": "length"}})";
const FloatRange unbounded(false, 0, false, 0);

/// Returns a range constant whose typedValue is given as JSON.
std::string rangeConstant(const std::string& typedValue) {
    return R"({"id": "range", "typedValue": )" + typedValue + "}";
}

/// Returns a range constant with an inline value, which is given as JSON.
std::string inlineRange(const std::string& value, const std::string& typeId = baseRange) {
    return rangeConstant(R"({"typeid": )" + Support::quoted(typeId) + R"(, "value": )" + value + "}");
}

std::string textOf(const std::string& constants) {
    return schemaText("level", base, constants.empty() ? nameAndSpec : nameAndSpec + ", " + constants);
}

ParameterCore coreOf(const std::string& typeId) { return {typeId, "Level", "", "", false}; }

MeasurableSpec mine(const std::string& typeId) { return {SpecCore(typeId, "Mine"), {}, Unit("mine", "Mine", "")}; }

/// Returns the parameter "level" made in code.
MeasurableParameter levelOf(const FloatRange& range) { return {coreOf("level"), mine("length"), range}; }

/// An engine with a unit, a group, the measurable spec "length" and the range "percent".
ParametersEngine plant() {
    ParametersEngine engine =
        engineOf({groupText("operation", "Operation"), measurableSpecText("length", "m")}, engineWithUnits({"m"}));
    engine.registerFloatRange(FloatRange("percent", true, 0, true, 100));
    engine.registerFloatRange(FloatRange("any", false, 0, false, 0));
    return engine;
}

MeasurableParameter readFrom(const std::string& constants) {
    return engineOf({textOf(constants)}, plant()).getMeasurableParameter("level");
}

TEST(MeasurableParameter, AnswersWhatItWasMadeFrom) {
    const MeasurableParameter parameter(ParameterCore("level", "Level", Taxon("g", "G"), "D", "S", true),
                                        MeasurableSpec(SpecCore("length", "Length"), {}, Unit("m", "Metre", "m")),
                                        FloatRange("percent", true, 1.5, false, 2.5));
    EXPECT_EQ(parameter.getCore().getTypeId(), "level");
    EXPECT_EQ(parameter.getCore().getName(), "Level");
    EXPECT_EQ(parameter.getCore().getDescription(), "D");
    EXPECT_EQ(parameter.getCore().getSampleText(), "S");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "G");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Length");
    EXPECT_EQ(parameter.getSpec().getStorageUnit().getName(), "Metre");
    EXPECT_EQ(parameter.getRange().getTypeId(), "percent");
    EXPECT_EQ(parameter.getRange().getBottomBoundary(), 1.5);
    EXPECT_EQ(parameter.getRange().getTopBoundary(), 2.5);
}

TEST(MeasurableParameter, HasPartsThatOutliveIt) {
    const auto core = [] { return levelOf(unbounded).getCore(); }();
    const auto spec = [] { return levelOf(unbounded).getSpec(); }();
    const auto range = [] { return levelOf(FloatRange("r", true, 1, true, 2)).getRange(); }();
    EXPECT_EQ(core.getName(), "Level");
    EXPECT_EQ(spec.getStorageUnit().getTypeId(), "mine");
    EXPECT_EQ(range.getTopBoundary(), 2);
}

TEST(MeasurableParameter, IsReadFromItsSchema) {
    const std::string text = schemaText("level", base,
                                        typedConstant("range", "percent") + ", " + typedConstant("spec", "length") +
                                            R"(, {"id": "readOnly", "value": true}, {"id": "sampleText", "value": "S"},
                                               {"id": "description", "value": "D"}, {"id": "name", "value": "Level"}, )" +
                                            typedConstant("group", "operation"));
    const MeasurableParameter parameter = engineOf({text}, plant()).getMeasurableParameter("level");
    EXPECT_EQ(parameter.getCore().getTypeId(), "level");
    EXPECT_EQ(parameter.getCore().getName(), "Level");
    EXPECT_EQ(parameter.getCore().getDescription(), "D");
    EXPECT_EQ(parameter.getCore().getSampleText(), "S");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Operation");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "length");
    EXPECT_EQ(parameter.getSpec().getStorageUnit().getTypeId(), "m");
    EXPECT_EQ(parameter.getRange().getTypeId(), "percent");
    EXPECT_EQ(parameter.getRange().getTopBoundary(), 100);
}

TEST(MeasurableParameter, HasNoBoundsByDefault) {
    const FloatRange range = readFrom("").getRange();
    EXPECT_EQ(range.getTypeId(), "norvex.range:range.float64.bounded.static-1.0.0");
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 0);
    EXPECT_FALSE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 0);
}

TEST(MeasurableParameter, HasTheInlineRangeOfItsSchema) {
    const FloatRange range =
        readFrom(inlineRange(R"({"fromBottom": true, "bottomBoundary": -1.5, "fromTop": true, "topBoundary": 1})"))
            .getRange();
    EXPECT_EQ(range.getTypeId(), "norvex.range:range.float64.bounded.static-1.0.0");
    EXPECT_TRUE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), -1.5);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 1.0);
}

TEST(MeasurableParameter, HasZeroWhereItsInlineRangeGivesNoBoundary) {
    const FloatRange range = readFrom(inlineRange(R"({"fromTop": true, "fromBottom": false})")).getRange();
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 0);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 0);
}

TEST(MeasurableParameter, KeepsTheInlineBoundaryOfAnUnboundedSide) {
    const FloatRange range =
        readFrom(inlineRange(R"({"fromBottom": false, "bottomBoundary": 7, "fromTop": true, "topBoundary": 1e-300})"))
            .getRange();
    EXPECT_EQ(range.getBottomBoundary(), 7.0);
    EXPECT_EQ(range.getTopBoundary(), 1e-300);
}

TEST(MeasurableParameter, HasTheFullBaseAsItsInlineRangeWhateverVersionItsSchemaNames) {
    for (const char* typeId :
         {"norvex.range:range.float64.bounded.static-1.3.0", "my norvex.range:range.float64.bounded.static-1.x"}) {
        const FloatRange range = readFrom(inlineRange(R"({"fromBottom": true, "fromTop": false})", typeId)).getRange();
        EXPECT_EQ(range.getTypeId(), "norvex.range:range.float64.bounded.static-1.0.0");
        EXPECT_TRUE(range.isBoundFromBottom());
    }
}

TEST(MeasurableParameter, TakesConstantsAsPlainValuesToo) {
    const std::string text =
        schemaText("level", base,
                   R"({"id": "name", "value": "Level"}, {"id": "spec", "value": {"typeid": "length"}},
                      {"id": "range", "value": {"typeid": "percent", "value": {}}})");
    const MeasurableParameter parameter = engineOf({text}, plant()).getMeasurableParameter("level");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "length");
    EXPECT_EQ(parameter.getRange().getTypeId(), "percent");
}

const std::string noSpec = R"({"id": "name", "value": "Level"})";
const char* const noTypeId = "Schema level must specify a typeid string attribute in its range constant typedValue.";
const char* const noObject = "Inline value override in range constant typedValue must be an object.";
const char* const notEmpty =
    "Inline value override for range schema percent in range constant typedValue, if present, must be an empty object.";
const char* const noFlagFromBottom =
    "Inline value override in range constant typedValue must specify a Boolean value for constant fromBottom.";
const char* const noFlagFromTop =
    "Inline value override in range constant typedValue must specify a Boolean value for constant fromTop.";

const std::vector<Fault> constantFaults = {
    {"ReadOnlyBeforeNoSpec", noSpec + R"(, {"id": "readOnly", "value": 5})", "Expected a Boolean value."},
    {"NoSpec", noSpec, "Schema level has an undefined spec constant."},
    {"NoSpecBeforeRange", noSpec + ", " + rangeConstant("{}"), "Schema level has an undefined spec constant."},
    {"StringAsSpec", noSpec + R"(, {"id": "spec", "typedValue": "length"})", "A typedValue must be an object."},
    {"SpecWithAnotherMember", noSpec + R"(, {"id": "spec", "typedValue": {"typeid": "length", "value": {}}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"SpecWithoutATypeId", noSpec + R"(, {"id": "spec", "typedValue": {"spec": "length"}})",
     "A typedValue did not contain a typeid attribute."},
    {"SpecWithAnEmptyTypeId", noSpec + R"(, {"id": "spec", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"SpecBeforeRange", noSpec + R"(, {"id": "range", "value": 5}, {"id": "spec", "value": 5})",
     "A typedValue must be an object."},
    {"RangeWithoutTypeId", nameAndSpec + ", " + rangeConstant(R"({"value": {}})"), noTypeId},
    {"StringAsRange", nameAndSpec + ", " + rangeConstant(R"("percent")"), noTypeId},
    {"NullAsRange", nameAndSpec + ", " + rangeConstant("null"), noTypeId},
    {"RangeWithoutAValue", nameAndSpec + R"(, {"id": "range"})",
     "A property definition must contain either a value or a typedValue."},
    {"NumberAsTypeIdOfTheRange", nameAndSpec + ", " + rangeConstant(R"({"typeid": 5, "value": 5})"),
     "Expected a string."},
    {"EmptyTypeIdOfTheRange", nameAndSpec + ", " + rangeConstant(R"({"typeid": "", "value": 5})"),
     "Expected a non-empty string."},
    {"BaseWithoutValue", nameAndSpec + ", " + typedConstant("range", baseRange),
     "Inline value override is required when specifying range schema norvex.range:range.float64.bounded.static-1.0.0 "
     "in range constant typedValue."},
    {"BaseOfAnotherMinorVersionWithoutValue",
     nameAndSpec + ", " + typedConstant("range", "norvex.range:range.float64.bounded.static-1.3.0"),
     "Inline value override is required when specifying range schema norvex.range:range.float64.bounded.static-1.3.0 "
     "in range constant typedValue."},
    {"BaseWithAnArray", nameAndSpec + ", " + inlineRange("[]"), noObject},
    {"BaseWithANumber", nameAndSpec + ", " + inlineRange("5"), noObject},
    {"NothingInline", nameAndSpec + ", " + inlineRange("{}"), noFlagFromBottom},
    {"NoFlagFromBottom", nameAndSpec + ", " + inlineRange(R"({"fromTop": true})"), noFlagFromBottom},
    {"NumberAsFlagFromBottom", nameAndSpec + ", " + inlineRange(R"({"fromBottom": 1, "fromTop": true})"),
     noFlagFromBottom},
    {"NoFlagFromTop", nameAndSpec + ", " + inlineRange(R"({"fromBottom": true})"), noFlagFromTop},
    {"StringAsFlagFromTop", nameAndSpec + ", " + inlineRange(R"({"fromBottom": true, "fromTop": "true"})"),
     noFlagFromTop},
    {"StringAsBottom",
     nameAndSpec + ", " + inlineRange(R"({"fromBottom": true, "bottomBoundary": "0", "fromTop": true})"),
     "Expected a number."},
    {"NullAsTop", nameAndSpec + ", " + inlineRange(R"({"fromBottom": true, "fromTop": false, "topBoundary": null})"),
     "Expected a number."},
    {"FlagFromBottomBeforeBottom", nameAndSpec + ", " + inlineRange(R"({"bottomBoundary": "0", "fromTop": true})"),
     noFlagFromBottom},
    {"BottomBeforeFlagFromTop", nameAndSpec + ", " + inlineRange(R"({"fromBottom": true, "bottomBoundary": "0"})"),
     "Expected a number."},
    {"FlagFromTopBeforeTop", nameAndSpec + ", " + inlineRange(R"({"fromBottom": true, "topBoundary": "0"})"),
     noFlagFromTop},
    {"NamedRangeWithAMember", nameAndSpec + ", " + inlineRange(R"({"fromBottom": true})", "percent"), notEmpty},
    {"NamedRangeWithANumber", nameAndSpec + ", " + inlineRange("3", "percent"), notEmpty},
    {"NamedRangeWithAnArray", nameAndSpec + ", " + inlineRange("[]", "percent"), notEmpty},
    {"IntegerBaseWithAValue",
     nameAndSpec + ", " +
         inlineRange(R"({"fromBottom": true, "fromTop": false})", "norvex.range:range.int64.bounded.static-1.0.0"),
     "Inline value override for range schema norvex.range:range.int64.bounded.static-1.0.0 in range constant "
     "typedValue, if present, must be an empty object."},
};

class RefusedMeasurableParameter : public testing::TestWithParam<Fault> {
protected:
    static std::string text() { return schemaText("level", base, GetParam().text); }

    ParametersEngine engine = plant();
};

TEST_P(RefusedMeasurableParameter, IsNotRegistered) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerSchema(text()); }), GetParam().message);
}

TEST_P(RefusedMeasurableParameter, IsNotRead) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.readMeasurableParameter(text()); }), GetParam().message);
}

TEST_P(RefusedMeasurableParameter, HasNoValueType) { EXPECT_EQ(engine.readValueType(text()), Parameters::None); }

INSTANTIATE_TEST_SUITE_P(Constants, RefusedMeasurableParameter, testing::ValuesIn(constantFaults), Support::nameOfRow);

TEST(MeasurableParameter, HasTheValueTypeMeasurableWhateverItNames) {
    EXPECT_EQ(ParametersEngine().readValueType(textOf("")), Parameters::Measurable);
    EXPECT_EQ(ParametersEngine().readValueType(textOf(inlineRange(R"({"fromBottom": true, "fromTop": false})"))),
              Parameters::Measurable);
}

std::string written(const std::string& more) {
    return R"({"typeid":"level","inherits":["norvex.parameter:parameter.measurable-3.0.0"],"constants":[)"
           R"({"id":"name","value":"Level"},{"id":"spec","typedValue":{"typeid":"length"}})" +
           more + "]}";
}

std::string writtenInline(const std::string& value) {
    return written(
        R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.float64.bounded.static-1.0.0","value":)" + value +
        "}}");
}

std::string writtenOf(const MeasurableParameter& parameter, ParametersEngine engine = plant()) {
    engine.registerMeasurableParameter(parameter);
    return engine.getSchema("level");
}

/// A range, and how it is written behind the spec of its parameter.
struct WrittenRange {
    const char* name;
    FloatRange range;
    std::string text;
};

const WrittenRange writtenRanges[] = {
    {"Unbounded", unbounded, written("")},
    {"Bounded", FloatRange(true, 0, true, 1),
     writtenInline(R"({"fromBottom":true,"bottomBoundary":0.0,"fromTop":true,"topBoundary":1.0})")},
    {"BoundedFromBottom", FloatRange(true, -2.5, false, 0),
     writtenInline(R"({"fromBottom":true,"bottomBoundary":-2.5,"fromTop":false,"topBoundary":0.0})")},
    {"BoundedFromTop", FloatRange(false, 7, true, 0.1 + 0.2),
     writtenInline(R"({"fromBottom":false,"bottomBoundary":7.0,"fromTop":true,"topBoundary":0.30000000000000007})")},
    {"Extreme", FloatRange(true, 1e-300, true, 1.7976931348623157e308),
     writtenInline(
         R"({"fromBottom":true,"bottomBoundary":1e-300,"fromTop":true,"topBoundary":1.7976931348623157e308})")},
    {"NegativeZero", FloatRange(true, -0.0, true, 5e-324),
     writtenInline(R"({"fromBottom":true,"bottomBoundary":-0.0,"fromTop":true,"topBoundary":5e-324})")},
    {"Named", FloatRange("percent", false, 0, false, 0),
     written(R"(,{"id":"range","typedValue":{"typeid":"percent"}})")},
};

class WrittenRangeOfMeasurableParameter : public testing::TestWithParam<WrittenRange> {};

TEST_P(WrittenRangeOfMeasurableParameter, StandsBehindTheSpec) {
    EXPECT_EQ(writtenOf(levelOf(GetParam().range)), GetParam().text);
}

TEST_P(WrittenRangeOfMeasurableParameter, IsWrittenTheSameByObject) {
    EXPECT_EQ(plant().getSchema(levelOf(GetParam().range)), GetParam().text);
}

TEST_P(WrittenRangeOfMeasurableParameter, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(plant(), "level", GetParam().text), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(MeasurableParameter, WrittenRangeOfMeasurableParameter, testing::ValuesIn(writtenRanges),
                         Support::nameOfRow);

TEST(MeasurableParameter, IsWrittenWithItsConstantsInOneOrder) {
    const std::string text =
        R"({"typeid":"level","inherits":["norvex.parameter:parameter.measurable-3.0.0"],"constants":[)"
        R"({"id":"name","value":"Level"},{"id":"description","value":"D"},{"id":"sampleText","value":"S"},)"
        R"({"id":"group","typedValue":{"typeid":"operation"}},{"id":"readOnly","value":true},)"
        R"({"id":"spec","typedValue":{"typeid":"length"}},{"id":"range","typedValue":{"typeid":"percent"}}]})";
    EXPECT_EQ(writtenOf({ParameterCore("level", "Level", Taxon("operation", ""), "D", "S", true), mine("length"),
                         FloatRange("percent", false, 0, false, 0)}),
              text);
    EXPECT_EQ(rewritten(plant(), "level", text), text);
}

TEST(MeasurableParameter, LosesANamedRangeWithoutBoundsWhenItIsWritten) {
    EXPECT_EQ(rewritten(plant(), "level", textOf(typedConstant("range", "any"))), written(""));
    EXPECT_EQ(writtenOf(levelOf(FloatRange("any", true, 1, true, 2))), written(""));
}

TEST(MeasurableParameter, LosesTheBoundsOfABaseRangeOfAnotherMinorVersionWhenItIsWritten) {
    EXPECT_EQ(writtenOf(levelOf(FloatRange("norvex.range:range.float64.bounded.static-1.3.0", true, 1, true, 2))),
              written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.float64.bounded.static-1.3.0"}})"));
}

TEST(MeasurableParameter, IsNotWrittenWithABoundaryThatIsNotFinite) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const FloatRange& range : {FloatRange(true, -infinity, false, 0), FloatRange(false, 0, true, notANumber),
                                    FloatRange(true, 0, false, infinity), FloatRange(false, notANumber, true, 0)}) {
        ParametersEngine engine = plant();
        engine.registerMeasurableParameter(levelOf(range));
        EXPECT_EQ(messageOf<ValidationException>([&] { engine.getSchema("level"); }),
                  "Schema level has a number that is not finite.");
        EXPECT_EQ(messageOf<ValidationException>([&] { plant().getSchema(levelOf(range)); }),
                  "Schema level has a number that is not finite.");
    }
}

TEST(MeasurableParameter, IsWrittenWhereABoundaryThatIsNotFiniteIsLeftOut) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(writtenOf(levelOf(FloatRange(false, infinity, false, -infinity))), written(""));
    ParametersEngine engine = plant();
    engine.registerFloatRange(FloatRange("endless", true, 0, true, infinity));
    EXPECT_EQ(writtenOf(levelOf(FloatRange("endless", false, 0, false, 0)), engine),
              written(R"(,{"id":"range","typedValue":{"typeid":"endless"}})"));
}

TEST(MeasurableParameter, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    EXPECT_EQ(rewritten(plant(), "level",
                        schemaText("level", "norvex.parameter:parameter.measurable-3.7.2",
                                   R"({"id": "extra"}, )" + nameAndSpec + ", " +
                                       inlineRange(R"({"note": 5, "fromTop": false, "fromBottom": true})",
                                                   "norvex.range:range.float64.bounded.static-1.3.0"))),
              writtenInline(R"({"fromBottom":true,"bottomBoundary":0.0,"fromTop":false,"topBoundary":0.0})"));
}

} // namespace
