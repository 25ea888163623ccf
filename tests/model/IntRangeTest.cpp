#include <parameters/IntRange.h>

#include "support/Engines.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

// What integer ranges do not share with floating-point ones; see NumericRangeTest.cpp.

namespace {

using Parameters::IntRange;
using Parameters::ParametersEngine;
using Support::engineOf;
using Support::refusalOf;

constexpr long long least = std::numeric_limits<long long>::min();
constexpr long long greatest = std::numeric_limits<long long>::max();

std::string text(const std::string& bottom, const std::string& top) {
    return Support::schemaText("r", "norvex.range:range.int64.bounded.static-1.0.0",
                               R"({"id": "fromBottom", "value": true}, {"id": "bottomBoundary", "value": )" + bottom +
                                   R"(}, {"id": "fromTop", "value": true}, {"id": "topBoundary", "value": )" + top +
                                   "}");
}

const char* const limits = R"({"typeid":"r","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[)"
                           R"({"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-9223372036854775808},)"
                           R"({"id":"fromTop","value":true},{"id":"topBoundary","value":9223372036854775807}]})";

TEST(IntRange, ReadsTheLeastAndTheGreatestInteger) {
    const IntRange range = engineOf({text("-9223372036854775808", "9223372036854775807")}).getIntRange("r");
    EXPECT_EQ(range.getBottomBoundary(), least);
    EXPECT_EQ(range.getTopBoundary(), greatest);
}

TEST(IntRange, WritesTheLeastAndTheGreatestInteger) {
    ParametersEngine engine;
    engine.registerIntRange(IntRange("r", true, least, true, greatest));
    EXPECT_EQ(engine.getSchema("r"), limits);
}

TEST(IntRange, WritesTheLimitsTheSameWhenTheyAreReadAgain) { EXPECT_EQ(engineOf({limits}).getSchema("r"), limits); }

TEST(IntRange, KeepsIntegersThatNoDoubleHolds) {
    const IntRange range = engineOf({text("9007199254740993", "-9007199254740993")}).getIntRange("r");
    EXPECT_EQ(range.getBottomBoundary(), 9007199254740993);
    EXPECT_EQ(range.getTopBoundary(), -9007199254740993);
}

TEST(IntRange, IsWrittenWithAnyBytesInItsTypeId) {
    ParametersEngine engine;
    engine.registerIntRange(IntRange(std::string("\0\"\xff", 3), false, 0, false, 0));
    EXPECT_EQ(engine.getSchema(std::string("\0\"\xff", 3)),
              "{\"typeid\":\"\\u0000\\\"\xff\",\"inherits\":[\"norvex.range:range.int64.bounded.static-1.0.0\"],"
              "\"constants\":[{\"id\":\"fromBottom\",\"value\":false},{\"id\":\"fromTop\",\"value\":false}]}");
}

struct Boundary {
    const char* name;
    const char* json;
};

const Boundary notIntegers[] = {
    {"Fraction", "2.5"},
    {"WholeDouble", "3.0"},
    {"Exponent", "1e3"},
    {"AboveTheGreatest", "9223372036854775808"},
    {"BelowTheLeast", "-9223372036854775809"},
    {"GreatestUnsigned", "18446744073709551615"},
};

class IntRangeBoundary : public testing::TestWithParam<Boundary> {};

TEST_P(IntRangeBoundary, MustBeAnInteger) {
    EXPECT_EQ(refusalOf(text(GetParam().json, "1")), "Expected an integer.");
    EXPECT_EQ(refusalOf(text("1", GetParam().json)), "Expected an integer.");
}

INSTANTIATE_TEST_SUITE_P(IntRange, IntRangeBoundary, testing::ValuesIn(notIntegers), Support::nameOfRow);

} // namespace
