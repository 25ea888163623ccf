#include "support/Engines.h"
#include "support/Messages.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <type_traits>

// What integer and floating-point ranges have in common.

namespace {

using Parameters::FloatRange;
using Parameters::IntRange;
using Parameters::ParametersEngine;
using Parameters::UnrecognizedIdentifierException;
using Support::constant;
using Support::engineOf;
using Support::messageOf;
using Support::refusalOf;
using Support::schemaText;

template <class Range>
struct Traits;

template <>
struct Traits<IntRange> {
    using Number = long long;
    static constexpr const char* base = "norvex.range:range.int64.bounded.static-1.0.0";
    static constexpr const char* word = "integer range";
    static constexpr const char* ofAnotherMinorVersion = "norvex.range:range.int64.bounded.static-1.6.2";
    static constexpr const char* ofAnotherMajorVersion = "norvex.range:range.int64.bounded.static-2.0.0";
    static constexpr auto get = &ParametersEngine::getIntRange;
    static constexpr auto getAll = &ParametersEngine::getAllIntRanges;
    static constexpr auto add = &ParametersEngine::registerIntRange;
    static constexpr const char* bothBounds =
        R"({"typeid":"r","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-5},)"
        R"({"id":"fromTop","value":true},{"id":"topBoundary","value":12}]})";
    static constexpr const char* fromZeroToHundred =
        R"({"typeid":"r","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":true},{"id":"fromTop","value":true},{"id":"topBoundary","value":100}]})";
    static constexpr const char* noBounds =
        R"({"typeid":"r","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":false},{"id":"fromTop","value":false}]})";
    static constexpr const char* topAlone =
        R"({"typeid":"r","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":false},{"id":"fromTop","value":true},{"id":"topBoundary","value":9}]})";
};

template <>
struct Traits<FloatRange> {
    using Number = double;
    static constexpr const char* base = "norvex.range:range.float64.bounded.static-1.0.0";
    static constexpr const char* word = "floating-point range";
    static constexpr const char* ofAnotherMinorVersion = "norvex.range:range.float64.bounded.static-1.6.2";
    static constexpr const char* ofAnotherMajorVersion = "norvex.range:range.float64.bounded.static-2.0.0";
    static constexpr auto get = &ParametersEngine::getFloatRange;
    static constexpr auto getAll = &ParametersEngine::getAllFloatRanges;
    static constexpr auto add = &ParametersEngine::registerFloatRange;
    static constexpr const char* bothBounds =
        R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-5.0},)"
        R"({"id":"fromTop","value":true},{"id":"topBoundary","value":12.0}]})";
    static constexpr const char* fromZeroToHundred =
        R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":true},{"id":"fromTop","value":true},{"id":"topBoundary","value":100.0}]})";
    static constexpr const char* noBounds =
        R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":false},{"id":"fromTop","value":false}]})";
    static constexpr const char* topAlone =
        R"({"typeid":"r","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[)"
        R"({"id":"fromBottom","value":false},{"id":"fromTop","value":true},{"id":"topBoundary","value":9.0}]})";
};

template <class Range>
struct NumericRange : testing::Test {
    using T = Traits<Range>;

    static Range get(const ParametersEngine& engine, const std::string& typeId = "r") {
        return (engine.*T::get)(typeId);
    }
    static Range resolved(const std::string& constants, const std::string& base = T::base) {
        return get(engineOf({schemaText("r", base, constants)}));
    }
    void add(const Range& range) { (engine.*T::add)(range); }
    std::string refusalOfAdding(const Range& range) {
        return Support::refusalBy(engine, [&] { add(range); });
    }
    std::string writtenByCode(const Range& range) {
        add(range);
        return engine.getSchema(range.getTypeId());
    }

    const std::string fromBottom = R"({"id": "fromBottom", "value": true})";
    const std::string fromTop = R"({"id": "fromTop", "value": true})";
    ParametersEngine engine;
};

struct NameOfRange {
    template <class Range>
    static std::string GetName(int) { // NOLINT(readability-identifier-naming): GoogleTest calls it
        return std::is_same_v<Range, IntRange> ? "Int" : "Float";
    }
};

using Ranges = testing::Types<IntRange, FloatRange>;
TYPED_TEST_SUITE(NumericRange, Ranges, NameOfRange);

TYPED_TEST(NumericRange, KeepsWhatItIsMadeWith) {
    const TypeParam range("r", true, 5, false, 7);
    EXPECT_EQ(range.getTypeId(), "r");
    EXPECT_TRUE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 5);
    EXPECT_FALSE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 7);
}

TYPED_TEST(NumericRange, KeepsABoundaryWhateverItsFlagSays) {
    const TypeParam range("r", false, 5, false, -7);
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 5);
    EXPECT_EQ(range.getTopBoundary(), -7);
}

TYPED_TEST(NumericRange, HasTheBuiltInTypeIdWhenNoneIsGiven) {
    const TypeParam range(false, 5, true, 7);
    EXPECT_EQ(range.getTypeId(), Traits<TypeParam>::base);
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 5);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 7);
}

TYPED_TEST(NumericRange, IsMadeWithoutAnyCheck) {
    const TypeParam range("", true, 10, true, 5);
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

TYPED_TEST(NumericRange, InheritsAnyMinorVersionOfItsBase) {
    const std::string constants = this->fromBottom + ", " + this->fromTop;
    EXPECT_EQ(this->resolved(constants, Traits<TypeParam>::ofAnotherMinorVersion).getTypeId(), "r");
    EXPECT_EQ(this->resolved(constants, std::string("our ") + Traits<TypeParam>::base + " too").getTypeId(), "r");
}

TYPED_TEST(NumericRange, DoesNotInheritAnotherMajorVersionOfItsBase) {
    EXPECT_EQ(refusalOf(this->engine, schemaText("r", Traits<TypeParam>::ofAnotherMajorVersion, this->fromBottom)),
              "Inheritance from an unrecognized base schema.");
}

TYPED_TEST(NumericRange, NamesNothing) {
    const auto missing =
        this->engine.registerSchema(schemaText("r", Traits<TypeParam>::base, this->fromBottom + ", " + this->fromTop));
    EXPECT_TRUE(missing.first.empty());
    EXPECT_TRUE(missing.second.empty());
    this->engine.resolveSchemas();
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { this->engine.getDependencies("r"); }),
              "Could not find any object with typeid r.");
}

TYPED_TEST(NumericRange, IsRegisteredAsItIs) {
    this->add(TypeParam("r", false, 7, true, -3));
    const auto range = this->get(this->engine);
    EXPECT_EQ(range.getTypeId(), "r");
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 7);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), -3);
    EXPECT_EQ((this->engine.*Traits<TypeParam>::getAll)().at("r").getTopBoundary(), -3);
}

TYPED_TEST(NumericRange, IsNotRegisteredWithoutTypeId) {
    EXPECT_EQ(this->refusalOfAdding(TypeParam("", true, 1, true, 2)), "Typeid must not be empty.");
}

TYPED_TEST(NumericRange, IsNotRegisteredTwice) {
    this->add(TypeParam("r", true, 1, true, 2));
    EXPECT_EQ(this->refusalOfAdding(TypeParam("r", true, 3, true, 4)), "Schema with typeid r is already registered.");
}

TYPED_TEST(NumericRange, IsNotRegisteredUnderABuiltInTypeId) {
    EXPECT_EQ(this->refusalOfAdding(TypeParam(true, 1, true, 2)),
              std::string("Schema with typeid ") + Traits<TypeParam>::base + " is already registered.");
}

TYPED_TEST(NumericRange, HasNoBuiltInObject) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { this->get(this->engine, Traits<TypeParam>::base); }),
              std::string("Could not find ") + Traits<TypeParam>::word + " with typeid " + Traits<TypeParam>::base +
                  ".");
}

TYPED_TEST(NumericRange, IsWrittenWithEachBoundaryAfterItsFlag) {
    EXPECT_EQ(this->writtenByCode(TypeParam("r", true, -5, true, 12)), Traits<TypeParam>::bothBounds);
}

TYPED_TEST(NumericRange, IsWrittenWithoutABoundaryOfZero) {
    EXPECT_EQ(this->writtenByCode(TypeParam("r", true, 0, true, 100)), Traits<TypeParam>::fromZeroToHundred);
}

TYPED_TEST(NumericRange, IsWrittenWithoutTheBoundariesOfUnboundedSides) {
    EXPECT_EQ(this->writtenByCode(TypeParam("r", false, 7, false, -8)), Traits<TypeParam>::noBounds);
}

TYPED_TEST(NumericRange, IsWrittenWithTheBoundaryOfItsOneBoundedSide) {
    EXPECT_EQ(this->writtenByCode(TypeParam("r", false, 7, true, 9)), Traits<TypeParam>::topAlone);
}

TYPED_TEST(NumericRange, ReadsBackWithZeroAsTheBoundaryOfAnUnboundedSide) {
    const auto range = this->get(engineOf({this->writtenByCode(TypeParam("r", false, 7, true, 9))}));
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_EQ(range.getBottomBoundary(), 0);
    EXPECT_TRUE(range.isBoundFromTop());
    EXPECT_EQ(range.getTopBoundary(), 9);
}

TYPED_TEST(NumericRange, IsWrittenTheSameWhenItIsReadAgain) {
    for (const char* text : {TestFixture::T::bothBounds, TestFixture::T::fromZeroToHundred, TestFixture::T::noBounds,
                             TestFixture::T::topAlone}) {
        EXPECT_EQ(engineOf({text}).getSchema("r"), text);
    }
}

TYPED_TEST(NumericRange, IsWrittenWithTheFullBaseWhateverVersionItInherited) {
    EXPECT_EQ(engineOf({schemaText("r", Traits<TypeParam>::ofAnotherMinorVersion,
                                   R"({"id": "fromBottom", "value": false}, {"id": "fromTop", "value": false})")})
                  .getSchema("r"),
              Traits<TypeParam>::noBounds);
}

struct KindOfRange {
    const char* name;
    const char* base;
    const char* notANumber;
};

const KindOfRange kindsOfRange[] = {
    {"Int", Traits<IntRange>::base, "Expected an integer."},
    {"Float", Traits<FloatRange>::base, "Expected a number."},
};

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

class NumericRangeFault : public testing::TestWithParam<std::tuple<KindOfRange, RangeFault>> {};

TEST_P(NumericRangeFault, IsNamedAndNothingIsRegistered) {
    const auto& [kind, fault] = GetParam();
    ParametersEngine engine;
    EXPECT_EQ(refusalOf(engine, schemaText("r", kind.base, fault.constants)),
              fault.message != nullptr ? fault.message : kind.notANumber);
}

INSTANTIATE_TEST_SUITE_P(Kinds, NumericRangeFault,
                         testing::Combine(testing::ValuesIn(kindsOfRange), testing::ValuesIn(rangeFaults)),
                         Support::nameOfBothRows);

} // namespace
