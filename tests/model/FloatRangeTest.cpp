#include <parameters/FloatRange.h>

#include "support/Engines.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

// What floating-point ranges do not share with integer ones; see NumericRangeTest.cpp.

namespace {

using Parameters::FloatRange;
using Parameters::ParametersEngine;
using Parameters::ValidationException;
using Support::engineOf;
using Support::messageOf;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::string text(const std::string& top) {
    return Support::schemaText("r", "norvex.range:range.float64.bounded.static-1.0.0",
                               R"({"id": "fromBottom", "value": false}, {"id": "fromTop", "value": true},
                                  {"id": "topBoundary", "value": )" +
                                   top + "}");
}

std::string written(const std::string& top) {
    return R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
           R"({"id":"fromBottom","value":false},{"id":"fromTop","value":true},{"id":"topBoundary","value":)" +
           top + "}]}";
}

struct Number {
    const char* name;
    const char* json;
    double value;
    const char* written;
};

const Number numbers[] = {
    {"Fraction", "2.5", 2.5, "2.5"},
    {"Integer", "3", 3.0, "3.0"},
    {"NegativeInteger", "-3", -3.0, "-3.0"},
    {"Exponent", "12e-1", 1.2, "1.2"},
    {"Tiny", "1e-300", 1e-300, "1e-300"},
    {"SumOfATenthAndTwoTenths", "0.30000000000000004", 0.1 + 0.2, "0.30000000000000007"},
    {"Tenth", "0.1", 0.1, "0.1"},
    {"Greatest", "1.7976931348623157e308", 1.7976931348623157e308, "1.7976931348623157e308"},
    {"LeastNormal", "2.2250738585072014e-308", 2.2250738585072014e-308, "2.2250738585072014e-308"},
    {"LeastDenormal", "5e-324", 4.9406564584124654e-324, "5e-324"},
    {"GreatestInteger", "9223372036854775807", 9223372036854775808.0, "9223372036854776000.0"},
    {"GreatestUnsignedInteger", "18446744073709551615", 18446744073709551616.0, "18446744073709553000.0"},
    {"IntegerThatNoDoubleHolds", "9007199254740993", 9007199254740992.0, "9007199254740992.0"},
    {"OfTwentyTwoDigits", "1e21", 1e21, "1e21"},
};

class FloatRangeBoundary : public testing::TestWithParam<Number> {};

TEST_P(FloatRangeBoundary, IsReadToTheLastBit) {
    EXPECT_EQ(engineOf({text(GetParam().json)}).getFloatRange("r").getTopBoundary(), GetParam().value);
}

TEST_P(FloatRangeBoundary, IsWrittenAsTheSameDouble) {
    EXPECT_EQ(engineOf({text(GetParam().json)}).getSchema("r"), written(GetParam().written));
}

TEST_P(FloatRangeBoundary, IsWrittenTheSameWhenItIsReadAgain) {
    ParametersEngine engine;
    engine.registerFloatRange(FloatRange("r", false, 0.0, true, GetParam().value));
    EXPECT_EQ(engineOf({engine.getSchema("r")}).getSchema("r"), written(GetParam().written));
}

INSTANTIATE_TEST_SUITE_P(FloatRange, FloatRangeBoundary, testing::ValuesIn(numbers), Support::nameOfRow);

TEST(FloatRange, KeepsTheSignOfAZero) {
    const FloatRange range = engineOf({text("-0.0")}).getFloatRange("r");
    EXPECT_EQ(range.getTopBoundary(), 0.0);
    EXPECT_TRUE(std::signbit(range.getTopBoundary()));
}

TEST(FloatRange, IsWrittenWithoutANegativeZero) {
    ParametersEngine engine;
    engine.registerFloatRange(FloatRange("r", true, -0.0, true, -0.0));
    const std::string text = engine.getSchema("r");
    EXPECT_EQ(text, R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
                    R"({"id":"fromBottom","value":true},{"id":"fromTop","value":true}]})");
    EXPECT_FALSE(std::signbit(engineOf({text}).getFloatRange("r").getBottomBoundary()));
}

TEST(FloatRange, IsRegisteredWithBoundariesThatAreNotFinite) {
    ParametersEngine engine;
    engine.registerFloatRange(FloatRange("r", true, -infinity, true, notANumber));
    EXPECT_EQ(engine.getFloatRange("r").getBottomBoundary(), -infinity);
    EXPECT_TRUE(std::isnan(engine.getFloatRange("r").getTopBoundary()));
}

struct NotFinite {
    const char* name;
    double bottom;
    double top;
};

const NotFinite notFinite[] = {
    {"BottomNotANumber", notANumber, 1.0},   {"BottomInfinite", infinity, 1.0},     {"TopNotANumber", 1.0, notANumber},
    {"TopNegativeInfinite", 1.0, -infinity}, {"BottomAndTop", -infinity, infinity},
};

struct FloatRangeNotFinite : testing::TestWithParam<NotFinite> {
    ParametersEngine engine;
};

TEST_P(FloatRangeNotFinite, IsNotWritten) {
    engine.registerFloatRange(FloatRange("r", true, GetParam().bottom, true, GetParam().top));
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getSchema("r"); }),
              "Schema r has a number that is not finite.");
}

TEST_P(FloatRangeNotFinite, IsWrittenWhereTheBoundaryIsLeftOut) {
    engine.registerFloatRange(FloatRange("r", false, GetParam().bottom, false, GetParam().top));
    EXPECT_EQ(engine.getSchema("r"),
              R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
              R"({"id":"fromBottom","value":false},{"id":"fromTop","value":false}]})");
}

INSTANTIATE_TEST_SUITE_P(FloatRange, FloatRangeNotFinite, testing::ValuesIn(notFinite), Support::nameOfRow);

} // namespace
