#include <parameters/IntParameter.h>

#include "IntParameters.h"
#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

// What integer parameters do not share with string parameters; see RangedParameterTest.cpp.

namespace {

using namespace IntParameters;
using Support::engineOf;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::typedConstant;

TEST(IntParameter, KeepsItsOwnBuiltInSpecAndRange) {
    ParametersEngine engine;
    engine.registerIntParameter({coreOf("p"), specOf("norvex.spec:spec.int64-2.5.0"),
                                 IntRange("norvex.range:range.int64.bounded.static-1.3.0", true, 1, false, 2)});
    const IntParameter parameter = engine.getIntParameter("p");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.int64-2.5.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Spec");
    expectRange(parameter.getRange(), "norvex.range:range.int64.bounded.static-1.3.0", true, 1, false, 2);
}

TEST(IntParameter, KeepsTheVersionOfTheBuiltInSpecThatItsSchemaNamesWhenItIsRead) {
    const IntParameter parameter =
        ParametersEngine().readIntParameter(textOf(typedConstant("spec", "norvex.spec:spec.int64-2.3.0")));
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.int64-2.3.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Integer");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
}

struct Inline {
    const char* name;
    const char* value;
    bool fromBottom;
    long long bottom;
    bool fromTop;
    long long top;
    const char* written;
};

const Inline inlineValues[] = {
    {"BothFlagsAlone", R"({"fromTop": true, "fromBottom": true})", true, 0, true, 0,
     R"("fromBottom":true,"bottomBoundary":0,"fromTop":true,"topBoundary":0)"},
    {"BottomAlone", R"({"fromBottom": true, "bottomBoundary": -5, "fromTop": false})", true, -5, false, 0,
     R"("fromBottom":true,"bottomBoundary":-5,"fromTop":false,"topBoundary":0)"},
    {"TopAlone", R"({"topBoundary": 9, "fromBottom": false, "fromTop": true})", false, 0, true, 9,
     R"("fromBottom":false,"bottomBoundary":0,"fromTop":true,"topBoundary":9)"},
    {"BoundaryOfTheUnboundedSide", R"({"fromBottom": false, "bottomBoundary": 7, "fromTop": true})", false, 7, true, 0,
     R"("fromBottom":false,"bottomBoundary":7,"fromTop":true,"topBoundary":0)"},
    {"BottomAboveTop", R"({"fromBottom": true, "bottomBoundary": 2, "fromTop": true, "topBoundary": 1})", true, 2, true,
     1, R"("fromBottom":true,"bottomBoundary":2,"fromTop":true,"topBoundary":1)"},
    {"Limits",
     R"({"fromBottom": true, "bottomBoundary": -9223372036854775808,
         "fromTop": true, "topBoundary": 9223372036854775807})",
     true, std::numeric_limits<long long>::min(), true, std::numeric_limits<long long>::max(),
     R"("fromBottom":true,"bottomBoundary":-9223372036854775808,"fromTop":true,"topBoundary":9223372036854775807)"},
    {"FurtherMembers", R"({"x": [], "fromBottom": true, "fromTop": false, "fromBottom": 5, "allowedValues": 1})", true,
     0, false, 0, R"("fromBottom":true,"bottomBoundary":0,"fromTop":false,"topBoundary":0)"},
};

class IntParameterInline : public testing::TestWithParam<Inline> {
protected:
    static void expectRangeOfRow(const IntRange& range) {
        expectRange(range, builtInRange, GetParam().fromBottom, GetParam().bottom, GetParam().fromTop, GetParam().top);
    }
    static std::string writtenRow() {
        return written(
            R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{)" +
            std::string(GetParam().written) + "}}}");
    }
};

TEST_P(IntParameterInline, IsTheRange) { expectRangeOfRow(resolved(inlineText(GetParam().value)).getRange()); }

TEST_P(IntParameterInline, IsTheRangeWhenItIsReadUnregistered) {
    expectRangeOfRow(ParametersEngine().readIntParameter(inlineText(GetParam().value)).getRange());
}

TEST_P(IntParameterInline, GetsTheFullBuiltInTypeIdWhateverVersionItNames) {
    expectRangeOfRow(
        resolved(inlineText(GetParam().value, "norvex.range:range.int64.bounded.static-1.3.0")).getRange());
    expectRangeOfRow(
        resolved(inlineText(GetParam().value, "my norvex.range:range.int64.bounded.static-1.x")).getRange());
}

TEST_P(IntParameterInline, IsWrittenWithAllFourMembers) {
    EXPECT_EQ(engineOf({inlineText(GetParam().value)}).getSchema("p"), writtenRow());
}

TEST_P(IntParameterInline, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(ParametersEngine(), "p", writtenRow()), writtenRow());
}

INSTANTIATE_TEST_SUITE_P(IntParameter, IntParameterInline, testing::ValuesIn(inlineValues), Support::nameOfRow);

struct InlineFault {
    const char* name;
    const char* value;
    const char* message;
};

const char* const noFromBottom =
    "Inline value override in range constant typedValue must specify a Boolean value for constant fromBottom.";
const char* const noFromTop =
    "Inline value override in range constant typedValue must specify a Boolean value for constant fromTop.";

const InlineFault inlineFaults[] = {
    {"Empty", "{}", noFromBottom},
    {"NoFlagFromBottom", R"({"fromTop": true})", noFromBottom},
    {"FlagFromBottomAsANumber", R"({"fromBottom": 1, "fromTop": true})", noFromBottom},
    {"FlagFromBottomNull", R"({"fromBottom": null, "fromTop": true})", noFromBottom},
    {"NoFlagFromTop", R"({"fromBottom": true, "bottomBoundary": -5})", noFromTop},
    {"FlagFromTopAsAText", R"({"fromBottom": true, "fromTop": "true"})", noFromTop},
    {"BottomAsADouble", R"({"fromBottom": true, "bottomBoundary": 2.0, "fromTop": true})", "Expected an integer."},
    {"BottomTooGreat", R"({"fromBottom": true, "bottomBoundary": 9223372036854775808, "fromTop": true})",
     "Expected an integer."},
    {"BottomNull", R"({"fromBottom": false, "bottomBoundary": null, "fromTop": true})", "Expected an integer."},
    {"TopAsAText", R"({"fromBottom": true, "fromTop": true, "topBoundary": "5"})", "Expected an integer."},
    {"FlagFromBottomBeforeBottom", R"({"bottomBoundary": "1", "fromTop": true})", noFromBottom},
    {"BottomBeforeFlagFromTop", R"({"fromTop": 1, "fromBottom": true, "bottomBoundary": "1"})", "Expected an integer."},
    {"FlagFromTopBeforeTop", R"({"topBoundary": "1", "fromBottom": true, "bottomBoundary": 1})", noFromTop},
};

struct IntParameterInlineFault : testing::TestWithParam<InlineFault> {
    static std::string text() { return inlineText(GetParam().value); }

    ParametersEngine engine;
};

TEST_P(IntParameterInlineFault, IsNamedInRegistration) { EXPECT_EQ(refusalOf(engine, text()), GetParam().message); }

TEST_P(IntParameterInlineFault, IsNamedInReading) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.readIntParameter(text()); }), GetParam().message);
}

TEST_P(IntParameterInlineFault, LeavesTheParameterWithoutAValueType) {
    EXPECT_EQ(engine.readValueType(text()), Parameters::ValueType::None);
}

INSTANTIATE_TEST_SUITE_P(IntParameter, IntParameterInlineFault, testing::ValuesIn(inlineFaults), Support::nameOfRow);

TEST(IntParameter, IsWrittenWithAllItsConstantsInOrder) {
    const IntParameter parameter(ParameterCore("p", "Name", Taxon("g", ""), "About it", "7", true), specOf("s"),
                                 IntRange("r", true, 1, true, 2));
    const std::string expected =
        written(R"(,{"id":"description","value":"About it"},{"id":"sampleText","value":"7"},)"
                R"({"id":"group","typedValue":{"typeid":"g"}},{"id":"readOnly","value":true},)"
                R"({"id":"spec","typedValue":{"typeid":"s"}},{"id":"range","typedValue":{"typeid":"r"}})");
    EXPECT_EQ(stocked().getSchema(parameter), expected);
    EXPECT_EQ(writtenBy(parameter), expected);
    EXPECT_EQ(rewritten(stocked(), "p", expected), expected);
}

TEST(IntParameter, IsWrittenWithItsNameAloneWhenAllElseIsDefault) {
    EXPECT_EQ(writtenBy(IntParameter(coreOf("p"), IntRange(false, 0, false, 0))), written(""));
    EXPECT_EQ(rewritten(ParametersEngine(), "p", written("")), written(""));
}

TEST(IntParameter, IsWrittenWithoutTheBuiltInSpecWhateverItsName) {
    EXPECT_EQ(writtenBy(IntParameter(coreOf("p"), specOf(builtInSpec), IntRange(false, 0, false, 0))), written(""));
}

TEST(IntParameter, IsWrittenWithABuiltInSpecOfAnotherVersion) {
    const std::string expected = written(R"(,{"id":"spec","typedValue":{"typeid":"norvex.spec:spec.int64-2.3.0"}})");
    EXPECT_EQ(
        writtenBy(IntParameter(coreOf("p"), specOf("norvex.spec:spec.int64-2.3.0"), IntRange(false, 0, false, 0))),
        expected);
    EXPECT_EQ(rewritten(ParametersEngine(), "p", expected), expected);
}

TEST(IntParameter, LosesTheBoundariesOfARangeThatIsUnboundedOnBothSides) {
    const std::string text = writtenBy(IntParameter(coreOf("p"), IntRange(false, 7, false, 8)));
    EXPECT_EQ(text, written(""));
    expectRange(resolved(text).getRange(), builtInRange, false, 0, false, 0);
}

TEST(IntParameter, LosesANamedRangeWithoutBounds) {
    const std::string text = writtenBy(IntParameter(coreOf("p"), IntRange("unbounded", true, 1, true, 2)));
    EXPECT_EQ(text, written(""));
    expectRange(resolved(text).getRange(), builtInRange, false, 0, false, 0);
}

TEST(IntParameter, IsWrittenWithoutTheValueOfABuiltInRangeOfAnotherVersion) {
    const std::string text = writtenBy(
        IntParameter(coreOf("p"), IntRange("norvex.range:range.int64.bounded.static-1.3.0", true, 1, true, 2)));
    EXPECT_EQ(text,
              written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.int64.bounded.static-1.3.0"}})"));
    EXPECT_EQ(refusalOf(text), "Inline value override is required when specifying range schema "
                               "norvex.range:range.int64.bounded.static-1.3.0 in range constant typedValue.");
}

class AwkwardIntParameter : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardIntParameter, NamesItsRangeByAnyBytes) {
    ParametersEngine engine;
    engine.registerIntRange(IntRange(GetParam().bytes, true, 1, true, 2));
    const std::string expected = written(R"(,{"id":"range","typedValue":{"typeid":")" + GetParam().escaped + R"("}})");
    EXPECT_EQ(engine.getSchema(IntParameter(coreOf("p"), IntRange(GetParam().bytes, false, 0, false, 0))), expected);
    EXPECT_EQ(rewritten(engine, "p", expected), expected);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardIntParameter, testing::ValuesIn(Support::awkwardStrings), Support::nameOfRow);

} // namespace
