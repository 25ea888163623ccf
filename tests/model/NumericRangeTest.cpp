#include "support/Engines.h"
#include "support/KindTypes.h"
#include "support/Refusal.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>

// What integer and floating-point ranges have in common.

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::ParametersEngine;
using Support::constant;
using Support::engineOf;
using Support::refusalOf;
using Support::schemaText;

/// What they do not have in common: the texts of their numbers, and the message of what is no number.
template <class Kind>
struct Traits;

template <>
struct Traits<Kinds::IntRange> {
    static constexpr const char* notANumber = "Expected an integer.";
    static constexpr const char* bothBounds = R"({"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-5},)"
                                              R"({"id":"fromTop","value":true},{"id":"topBoundary","value":12})";
    static constexpr const char* fromZeroToHundred =
        R"({"id":"fromBottom","value":true},{"id":"fromTop","value":true},{"id":"topBoundary","value":100})";
    static constexpr const char* topAlone =
        R"({"id":"fromBottom","value":false},{"id":"fromTop","value":true},{"id":"topBoundary","value":9})";
};

template <>
struct Traits<Kinds::FloatRange> {
    static constexpr const char* notANumber = "Expected a number.";
    static constexpr const char* bothBounds =
        R"({"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-5.0},)"
        R"({"id":"fromTop","value":true},{"id":"topBoundary","value":12.0})";
    static constexpr const char* fromZeroToHundred =
        R"({"id":"fromBottom","value":true},{"id":"fromTop","value":true},{"id":"topBoundary","value":100.0})";
    static constexpr const char* topAlone =
        R"({"id":"fromBottom","value":false},{"id":"fromTop","value":true},{"id":"topBoundary","value":9.0})";
};

constexpr const char* noBounds = R"({"id":"fromBottom","value":false},{"id":"fromTop","value":false})";

template <class Kind>
struct NumericRange : testing::Test {
    using Range = typename Kind::Value;

    static std::string base() { return std::string(Kind::info.bases()[0]); }
    static Range get(const ParametersEngine& engine) { return Kind::get(engine, "r"); }
    static Range resolved(const std::string& constants) { return get(engineOf({schemaText("r", base(), constants)})); }
    static std::string written(const std::string& constants) {
        return R"({"typeid":"r","inherits":[")" + base() + R"("],"constants":[)" + constants + "]}";
    }
    std::string writtenByCode(const Range& range) {
        Kind::add(engine, range);
        return engine.getSchema(range.getTypeId());
    }

    const std::string fromBottom = R"({"id": "fromBottom", "value": true})";
    const std::string fromTop = R"({"id": "fromTop", "value": true})";
    ParametersEngine engine;
};

using NumericRanges = Kinds::List<Kinds::IntRange, Kinds::FloatRange>;
TYPED_TEST_SUITE(NumericRange, Support::TestedKinds<NumericRanges>, Support::NameOfKind);

TYPED_TEST(NumericRange, KeepsWhatItIsMadeWith) {
    const typename TypeParam::Value range("r", true, 5, false, 7);
    EXPECT_EQ(range.getTypeId(), "r");
    EXPECT_TRUE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 5);
    EXPECT_FALSE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 7);
}

TYPED_TEST(NumericRange, KeepsABoundaryWhateverItsFlagSays) {
    const typename TypeParam::Value range("r", false, 5, false, -7);
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 5);
    EXPECT_EQ(range.getTopBoundary(), -7);
}

TYPED_TEST(NumericRange, HasTheBuiltInTypeIdWhenNoneIsGiven) {
    const typename TypeParam::Value range(false, 5, true, 7);
    EXPECT_EQ(range.getTypeId(), this->base());
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 5);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 7);
}

TYPED_TEST(NumericRange, IsMadeWithoutAnyCheck) {
    const typename TypeParam::Value range("", true, 10, true, 5);
    EXPECT_EQ(range.getTypeId(), "");
    EXPECT_EQ(range.getBottomBoundary(), 10);
    EXPECT_EQ(range.getTopBoundary(), 5);
}

TYPED_TEST(NumericRange, IsReadFromASchema) {
    const auto range = this->resolved(R"({"id": "fromTop", "value": true}, {"id": "topBoundary", "value": 12},
        {"id": "bottomBoundary", "value": -5}, {"id": "fromBottom", "value": true})");
    EXPECT_EQ(range.getTypeId(), "r");
    EXPECT_TRUE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), -5);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 12);
}

TYPED_TEST(NumericRange, KeepsTheTwoFlagsApart) {
    const auto bottom = this->resolved(R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": false})");
    EXPECT_TRUE(bottom.isBoundFromBottom());
    EXPECT_FALSE(bottom.isBoundFromTop());
    const auto top = this->resolved(R"({"id": "fromBottom", "value": false}, {"id": "fromTop", "value": true})");
    EXPECT_FALSE(top.isBoundFromBottom());
    EXPECT_TRUE(top.isBoundFromTop());
}

TYPED_TEST(NumericRange, IsBoundedByZeroWhereTheSchemaGivesNoBoundary) {
    const auto range = this->resolved(this->fromBottom + ", " + this->fromTop);
    EXPECT_TRUE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 0);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 0);
}

TYPED_TEST(NumericRange, KeepsTheBoundaryOfAnUnboundedSideOfASchema) {
    const auto range = this->resolved(R"({"id": "fromBottom", "value": false}, {"id": "bottomBoundary", "value": 7},
        {"id": "fromTop", "value": false}, {"id": "topBoundary", "value": -8})");
    EXPECT_EQ(range.getBottomBoundary(), 7);
    EXPECT_EQ(range.getTopBoundary(), -8);
}

TYPED_TEST(NumericRange, IsReadWithABottomAboveItsTop) {
    const auto range = this->resolved(this->fromBottom + ", " + this->fromTop + ", " +
                                      constant("bottomBoundary", "10") + ", " + constant("topBoundary", "5"));
    EXPECT_EQ(range.getBottomBoundary(), 10);
    EXPECT_EQ(range.getTopBoundary(), 5);
}

TYPED_TEST(NumericRange, IsRegisteredAsItIs) {
    TypeParam::add(this->engine, typename TypeParam::Value("r", false, 7, true, -3));
    const auto range = this->get(this->engine);
    EXPECT_EQ(range.getTypeId(), "r");
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 7);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), -3);
    EXPECT_EQ(TypeParam::getAll(this->engine).at("r").getTopBoundary(), -3);
}

TYPED_TEST(NumericRange, IsWrittenWithEachBoundaryAfterItsFlag) {
    EXPECT_EQ(this->writtenByCode({"r", true, -5, true, 12}), this->written(Traits<TypeParam>::bothBounds));
}

TYPED_TEST(NumericRange, IsWrittenWithoutABoundaryOfZero) {
    EXPECT_EQ(this->writtenByCode({"r", true, 0, true, 100}), this->written(Traits<TypeParam>::fromZeroToHundred));
}

TYPED_TEST(NumericRange, IsWrittenWithoutTheBoundariesOfUnboundedSides) {
    EXPECT_EQ(this->writtenByCode({"r", false, 7, false, -8}), this->written(noBounds));
}

TYPED_TEST(NumericRange, IsWrittenWithTheBoundaryOfItsOneBoundedSide) {
    EXPECT_EQ(this->writtenByCode({"r", false, 7, true, 9}), this->written(Traits<TypeParam>::topAlone));
}

TYPED_TEST(NumericRange, ReadsBackWithZeroAsTheBoundaryOfAnUnboundedSide) {
    const auto range = this->get(engineOf({this->writtenByCode({"r", false, 7, true, 9})}));
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 0);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 9);
}

TYPED_TEST(NumericRange, IsWrittenTheSameWhenItIsReadAgain) {
    using T = Traits<TypeParam>;
    for (const char* constants : {T::bothBounds, T::fromZeroToHundred, noBounds, T::topAlone}) {
        const std::string text = this->written(constants);
        EXPECT_EQ(engineOf({text}).getSchema("r"), text);
    }
}

struct RangeFault {
    const char* name;
    const char* constants;
    const char* message; // null: that of a boundary that is no number
};

const RangeFault rangeFaults[] = {
    {"NoFlags", R"({"id": "name", "value": "N"})", "Schema r has an undefined fromBottom constant."},
    {"NoFlagFromBottom", R"({"id": "fromTop", "value": true})", "Schema r has an undefined fromBottom constant."},
    {"NoFlagFromTop", R"({"id": "fromBottom", "value": true})", "Schema r has an undefined fromTop constant."},
    {"FlagFromBottomAsANumber", R"({"id": "fromBottom", "value": 1}, {"id": "fromTop", "value": true})",
     "Expected a Boolean value."},
    {"FlagFromBottomNull", R"({"id": "fromBottom", "value": null}, {"id": "fromTop", "value": true})",
     "Expected a Boolean value."},
    {"FlagFromTopAsAText", R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": "true"})",
     "Expected a Boolean value."},
    {"FlagWithoutValue", R"({"id": "fromBottom"}, {"id": "fromTop", "value": true})",
     "A property definition must contain either a value or a typedValue."},
    {"FlagFromBottomBeforeFlagFromTop", R"({"id": "fromBottom", "value": 1})", "Expected a Boolean value."},
    {"NoFlagFromBottomBeforeFlagFromTop", R"({"id": "fromTop", "value": 1})",
     "Schema r has an undefined fromBottom constant."},
    {"NoFlagFromTopBeforeBoundary", R"({"id": "fromBottom", "value": true}, {"id": "bottomBoundary", "value": "1"})",
     "Schema r has an undefined fromTop constant."},
    {"BottomAsAText",
     R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true}, {"id": "bottomBoundary", "value": "1"})",
     nullptr},
    {"BottomNull",
     R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true}, {"id": "bottomBoundary", "value": null})",
     nullptr},
    {"BottomOfAnUnboundedSide",
     R"({"id": "fromBottom", "value": false}, {"id": "fromTop", "value": true}, {"id": "bottomBoundary", "value": {}})",
     nullptr},
    {"TopAsABoolean",
     R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true}, {"id": "topBoundary", "value": true})",
     nullptr},
    {"TopAsAnArray",
     R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true}, {"id": "topBoundary", "value": [1]})",
     nullptr},
    {"BottomBeforeTopWithoutValue",
     R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true}, {"id": "topBoundary"},
        {"id": "bottomBoundary", "value": "1"})",
     nullptr},
    {"BottomWithoutValueBeforeTop",
     R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true}, {"id": "topBoundary", "value": "1"},
        {"id": "bottomBoundary"})",
     "A property definition must contain either a value or a typedValue."},
};

TYPED_TEST(NumericRange, IsRefusedForTheFirstOfItsFaults) {
    for (const RangeFault& fault : rangeFaults) {
        EXPECT_EQ(refusalOf(this->engine, schemaText("r", this->base(), fault.constants)),
                  fault.message != nullptr ? fault.message : Traits<TypeParam>::notANumber)
            << fault.name;
    }
}

} // namespace
