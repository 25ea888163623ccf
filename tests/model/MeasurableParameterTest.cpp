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

// What measurable parameters do not share with other parameters: a spec that they must have, and numbers that are no
// integers; see RangedParameterTest.cpp.

namespace {

using Parameters::FloatRange;
using Parameters::MeasurableParameter;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::ValidationException;
using Support::engineOf;
using Support::Fault;
using Support::messageOf;
using Support::refusalBy;
using Support::rewritten;
using Support::schemaText;

constexpr double infinity = std::numeric_limits<double>::infinity();

std::string textOf(const std::string& constants) {
    return schemaText("level", "norvex.parameter:parameter.measurable-3.0.0",
                      R"({"id": "name", "value": "Level"})" + constants);
}

/// An engine with a unit and the measurable spec "length".
ParametersEngine plant() {
    return engineOf({Support::measurableSpecText("length", "m")}, Support::engineWithUnits({"m"}));
}

/// Returns the parameter "level" made in code.
MeasurableParameter levelOf(const FloatRange& range) {
    return {ParameterCore("level", "Level", "", "", false), plant().getMeasurableSpec("length"), range};
}

std::string writtenOf(const FloatRange& range, ParametersEngine engine = plant()) {
    engine.registerMeasurableParameter(levelOf(range));
    return engine.getSchema("level");
}

std::string written(const std::string& more) {
    return R"({"typeid":"level","inherits":["norvex.parameter:parameter.measurable-3.0.0"],"constants":[)"
           R"({"id":"name","value":"Level"},{"id":"spec","typedValue":{"typeid":"length"}})" +
           more + "]}";
}

TEST(MeasurableParameter, TakesItsSpecAsAPlainValueToo) {
    EXPECT_EQ(rewritten(plant(), "level", textOf(R"(, {"id": "spec", "value": {"typeid": "length"}})")), written(""));
}

const std::vector<Fault> constantFaults = {
    {"ReadOnlyBeforeNoSpec", R"(, {"id": "readOnly", "value": 5})", "Expected a Boolean value."},
    {"NoSpec", "", "Schema level has an undefined spec constant."},
    {"NoSpecBeforeRange", R"(, {"id": "range", "typedValue": {}})", "Schema level has an undefined spec constant."},
    {"StringAsSpec", R"(, {"id": "spec", "typedValue": "length"})", "A typedValue must be an object."},
    {"SpecWithAnotherMember", R"(, {"id": "spec", "typedValue": {"typeid": "length", "value": {}}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"SpecWithoutATypeId", R"(, {"id": "spec", "typedValue": {"spec": "length"}})",
     "A typedValue did not contain a typeid attribute."},
    {"SpecWithAnEmptyTypeId", R"(, {"id": "spec", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"IntegerBaseWithAValue", R"(, {"id": "spec", "typedValue": {"typeid": "length"}}, {"id": "range", "typedValue":
        {"typeid": "norvex.range:range.int64.bounded.static-1.0.0", "value": {"fromBottom": true, "fromTop": false}}})",
     "Inline value override for range schema norvex.range:range.int64.bounded.static-1.0.0 in range constant "
     "typedValue, if present, must be an empty object."},
};

class RefusedMeasurableParameter : public testing::TestWithParam<Fault> {};

TEST_P(RefusedMeasurableParameter, IsNeitherRegisteredNorReadAndHasNoValueType) {
    ParametersEngine engine = plant();
    const std::string text = textOf(GetParam().text);
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerSchema(text); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.readMeasurableParameter(text); }), GetParam().message);
    EXPECT_EQ(engine.readValueType(text), Parameters::None);
}

INSTANTIATE_TEST_SUITE_P(Constants, RefusedMeasurableParameter, testing::ValuesIn(constantFaults), Support::nameOfRow);

/// A range, and how its value is written.
struct WrittenRange {
    const char* name;
    FloatRange range;
    std::string value;
};

const WrittenRange writtenRanges[] = {
    {"AllDigits", FloatRange(true, -2.5, true, 0.1 + 0.2),
     R"({"fromBottom":true,"bottomBoundary":-2.5,"fromTop":true,"topBoundary":0.30000000000000007})"},
    {"Extreme", FloatRange(true, 1e-300, true, 1.7976931348623157e308),
     R"({"fromBottom":true,"bottomBoundary":1e-300,"fromTop":true,"topBoundary":1.7976931348623157e308})"},
    {"NegativeZero", FloatRange(true, -0.0, true, 5e-324),
     R"({"fromBottom":true,"bottomBoundary":-0.0,"fromTop":true,"topBoundary":5e-324})"},
};

class WrittenRangeOfMeasurableParameter : public testing::TestWithParam<WrittenRange> {};

TEST_P(WrittenRangeOfMeasurableParameter, KeepsItsNumbers) {
    const std::string text =
        written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.float64.bounded.static-1.0.0","value":)" +
                GetParam().value + "}}");
    EXPECT_EQ(writtenOf(GetParam().range), text);
    EXPECT_EQ(plant().getSchema(levelOf(GetParam().range)), text);
    EXPECT_EQ(rewritten(plant(), "level", text), text);
    const FloatRange range = engineOf({text}, plant()).getMeasurableParameter("level").getRange();
    EXPECT_EQ(range.getBottomBoundary(), GetParam().range.getBottomBoundary());
    EXPECT_EQ(range.getTopBoundary(), GetParam().range.getTopBoundary());
}

INSTANTIATE_TEST_SUITE_P(MeasurableParameter, WrittenRangeOfMeasurableParameter, testing::ValuesIn(writtenRanges),
                         Support::nameOfRow);

TEST(MeasurableParameter, IsNotWrittenWithABoundaryThatIsNotFinite) {
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const FloatRange& range : {FloatRange(true, -infinity, false, 0), FloatRange(false, 0, true, notANumber),
                                    FloatRange(true, 0, false, infinity), FloatRange(false, notANumber, true, 0)}) {
        EXPECT_EQ(messageOf<ValidationException>([&] { writtenOf(range); }),
                  "Schema level has a number that is not finite.");
        EXPECT_EQ(messageOf<ValidationException>([&] { plant().getSchema(levelOf(range)); }),
                  "Schema level has a number that is not finite.");
    }
}

TEST(MeasurableParameter, IsWrittenWhereABoundaryThatIsNotFiniteIsLeftOut) {
    EXPECT_EQ(writtenOf(FloatRange(false, infinity, false, -infinity)), written(""));
    ParametersEngine engine = plant();
    engine.registerFloatRange(FloatRange("endless", true, 0, true, infinity));
    EXPECT_EQ(writtenOf(FloatRange("endless", false, 0, false, 0), engine),
              written(R"(,{"id":"range","typedValue":{"typeid":"endless"}})"));
}

} // namespace
