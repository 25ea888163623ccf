#include "IntParameters.h"
#include "StringParameters.h"
#include "support/Engines.h"
#include "support/KindTypes.h"
#include "support/Refusal.h"
#include "support/SchemaTexts.h"
#include "support/Sentences.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

// What integer and string parameters have in common: what they are made of, and how they find what they name.

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::IntRange;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::StringRange;
using Support::engineOf;
using Support::notFound;
using Support::refusalBy;
using Support::refusalOf;
using Support::typedConstant;

using TypeIds = std::set<std::string>;

/// What they do not have in common.
template <class Kind>
struct Traits;

template <>
struct Traits<Kinds::IntParameter> {
    using Spec = Kinds::IntSpec;
    using Range = Kinds::IntRange;
    static constexpr const char* namedRange = "r";
    static constexpr const char* namedRangeWithoutLimits = "unbounded";
    static constexpr auto stocked = &IntParameters::stocked;

    static std::string rangeText() {
        return Support::schemaText(namedRange, IntParameters::builtInRange,
                                   R"({"id": "fromBottom", "value": true}, {"id": "bottomBoundary", "value": -4},
                                      {"id": "fromTop", "value": true}, {"id": "topBoundary", "value": 8})");
    }
    static std::vector<std::string> textsWithARangeOfTheirOwn() {
        const std::string value = R"({"fromBottom": true, "fromTop": true})";
        return {IntParameters::inlineText(value),
                IntParameters::inlineText(value, "norvex.range:range.int64.bounded.static-1.3.0")};
    }
    static std::vector<IntRange> rangesOfTheirOwn() {
        return {IntRange(true, 1, true, 2),
                IntRange("norvex.range:range.int64.bounded.static-1.3.0", true, 1, true, 2)};
    }
    static IntRange rangeOf(const std::string& typeId) { return {typeId, true, 1, false, 2}; }
    static void expectRangeOf(const IntRange& range, const std::string& typeId) {
        IntParameters::expectRange(range, typeId, true, 1, false, 2);
    }
    static void expectNamedRange(const IntRange& range) { IntParameters::expectRange(range, "r", true, -4, true, 8); }
    static void expectDefaultRange(const IntRange& range) {
        IntParameters::expectRange(range, "norvex.range:range.int64.bounded.static-1.0.0", false, 0, false, 0);
    }
};

template <>
struct Traits<Kinds::StringParameter> {
    using Spec = Kinds::StringSpec;
    using Range = Kinds::StringRange;
    static constexpr const char* namedRange = "set";
    static constexpr const char* namedRangeWithoutLimits = "any";
    static constexpr auto stocked = &StringParameters::stocked;

    static std::string rangeText() {
        return Support::schemaText(namedRange, StringParameters::setBase,
                                   R"({"id": "allowedValues", "value": ["b", "a"]})");
    }
    static std::vector<std::string> textsWithARangeOfTheirOwn() {
        return {StringParameters::inlineText("norvex.range:range.string-1.3.0", "{}"),
                StringParameters::inlineText(StringParameters::regexBase, R"({"regex": "a"})")};
    }
    static std::vector<StringRange> rangesOfTheirOwn() {
        return {StringRange(), StringParameters::setOf("norvex.range:range.string.set.static-1.4.2", {"a"})};
    }
    static StringRange rangeOf(const std::string& typeId) { return StringParameters::setOf(typeId, {"x"}); }
    static void expectRangeOf(const StringRange& range, const std::string& typeId) {
        StringParameters::expectSet(range, typeId, {"x"});
    }
    static void expectNamedRange(const StringRange& range) { StringParameters::expectSet(range, "set", {"b", "a"}); }
    static void expectDefaultRange(const StringRange& range) {
        StringParameters::expectAnyText(range, "norvex.range:range.string-1.0.0");
    }
};

template <class Kind>
struct RangedParameter : testing::Test {
    using T = Traits<Kind>;
    using Parameter = typename Kind::Value;

    static std::string textOf(const std::string& constants = "") {
        return Support::schemaText("p", std::string(Kind::info.bases()[0]),
                                   R"({"id": "name", "value": "Name"})" + (constants.empty() ? "" : ", " + constants));
    }
    /// Returns the text of a parameter that names all that it can, in another order than that in which it is read.
    static std::string textNaming(const std::string& group, const std::string& spec, const std::string& range) {
        return textOf(typedConstant("range", range) + ", " + typedConstant("spec", spec) + ", " +
                      typedConstant("group", group));
    }
    /// Returns a parameter made in code with objects that it makes up.
    static Parameter parameterNaming(const std::string& typeId, const std::string& group, const std::string& spec,
                                     const std::string& range) {
        return {IntParameters::coreOf(typeId, group), typename T::Spec::Value(SpecCore(spec, "Spec")),
                T::rangeOf(range)};
    }
    static Parameter resolved(const std::string& constants) {
        return Kind::get(engineOf({textOf(constants)}, T::stocked()), "p");
    }

    /// Expects the objects of the engine with a stock.
    static void expectNamedObjects(const Parameter& parameter) {
        EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
        EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
        T::expectNamedRange(parameter.getRange());
    }
    static void expectBuiltInSpec(const Parameter& parameter) {
        EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), T::Spec::info.bases()[0]);
        EXPECT_EQ(parameter.getSpec().getCore().getName(), T::Spec::info.builtInName());
        EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
    }

    /// Expects that a parameter made in code is refused in all ways in which it can be asked about.
    void expectRefused(const Parameter& parameter, const std::string& message) {
        EXPECT_EQ(refusalBy(stock, [&] { Kind::add(stock, parameter); }), message);
        EXPECT_EQ(refusalBy(stock, [&] { stock.getSchema(parameter); }), message);
        EXPECT_EQ(refusalBy(stock, [&] { stock.getDependencies(parameter); }), message);
    }

    ParametersEngine stock = T::stocked();
};

using RangedKinds = Kinds::List<Kinds::IntParameter, Kinds::StringParameter>;
TYPED_TEST_SUITE(RangedParameter, Support::TestedKinds<RangedKinds>, Support::NameOfKind);

TYPED_TEST(RangedParameter, KeepsWhatItIsMadeWith) {
    const auto parameter = this->parameterNaming("p", "g", "s", "r");
    EXPECT_EQ(parameter.getCore().getTypeId(), "p");
    EXPECT_EQ(parameter.getCore().getGroup().getTypeId(), "g");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "s");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Spec");
    Traits<TypeParam>::expectRangeOf(parameter.getRange(), "r");
}

TYPED_TEST(RangedParameter, HasTheBuiltInSpecWhenItIsGivenNone) {
    const typename TypeParam::Value parameter(IntParameters::coreOf("p"), Traits<TypeParam>::rangeOf("r"));
    this->expectBuiltInSpec(parameter);
    Traits<TypeParam>::expectRangeOf(parameter.getRange(), "r");
}

TYPED_TEST(RangedParameter, HasTheBuiltInSpecAndTheDefaultRangeByDefault) {
    for (const auto& parameter : {this->resolved(""), TypeParam::read(ParametersEngine(), this->textOf())}) {
        this->expectBuiltInSpec(parameter);
        Traits<TypeParam>::expectDefaultRange(parameter.getRange());
    }
}

TYPED_TEST(RangedParameter, HasItsNameBeforeAllElse) {
    EXPECT_EQ(refusalOf(Support::schemaText("p", std::string(TypeParam::info.bases()[0]),
                                            R"({"id": "spec", "typedValue": 5}, {"id": "range", "typedValue": 5})")),
              "Schema p has an undefined name constant.");
}

TYPED_TEST(RangedParameter, FindsWhatIsThereOrResolvedWithItOrRegisteredInPlaceOfItsOwn) {
    const std::string text = this->textNaming("g", "s", Traits<TypeParam>::namedRange);
    this->expectNamedObjects(TypeParam::get(engineOf({text}, this->stock), "p"));
    this->expectNamedObjects(TypeParam::read(this->stock, text));
    EXPECT_FALSE(this->stock.isRegistered("p"));
    const std::string spec = Support::namedText("s", std::string(Traits<TypeParam>::Spec::info.bases()[0]), "The spec");
    this->expectNamedObjects(TypeParam::get(
        engineOf({text, Support::groupText("g", "The group"), spec, Traits<TypeParam>::rangeText()}), "p"));
    TypeParam::add(this->stock, this->parameterNaming("p", "g", "s", Traits<TypeParam>::namedRange));
    this->expectNamedObjects(TypeParam::get(this->stock, "p"));
    this->expectNamedObjects(TypeParam::getAll(this->stock).at("p"));
}

TYPED_TEST(RangedParameter, MissesItsGroupFirst) {
    this->expectRefused(this->parameterNaming("p", "x", "y", "z"), "Could not find group with typeid x.");
    const std::string text = this->textNaming("x", "y", "z");
    EXPECT_EQ(refusalBy(this->stock, [&] { TypeParam::read(this->stock, text); }),
              "Could not find group with typeid x.");
    this->stock.registerSchema(text);
    EXPECT_EQ(refusalBy(this->stock, [&] { this->stock.resolveSchemas(); }), Support::unresolvable("x", "p"));
}

TYPED_TEST(RangedParameter, MissesItsSpecFirstWhenItIsResolvedAndItsRangeFirstWhenItIsBound) {
    const std::string message = notFound(Traits<TypeParam>::Range::info, "z");
    this->expectRefused(this->parameterNaming("p", "g", "y", "z"), message);
    const std::string text = this->textNaming("g", "y", "z");
    EXPECT_EQ(refusalBy(this->stock, [&] { TypeParam::read(this->stock, text); }), message);
    this->stock.registerSchema(text);
    EXPECT_EQ(refusalBy(this->stock, [&] { this->stock.resolveSchemas(); }), Support::unresolvable("y", "p"));
}

TYPED_TEST(RangedParameter, HasItsTypeIdCheckedFirst) {
    this->expectRefused(this->parameterNaming("", "x", "y", "z"), "Typeid must not be empty.");
    for (const std::string typeId : {"g", "norvex.spec:spec.int64-2.0.0", "norvex.range:range.string-1.0.0"}) {
        this->expectRefused(this->parameterNaming(typeId, "x", "y", "z"),
                            "Schema with typeid " + typeId + " is already registered.");
    }
}

TYPED_TEST(RangedParameter, NeedsNothingForARangeOfItsOwn) {
    const TypeIds builtIns{"norvex.parameter:group-1.0.0", std::string(Traits<TypeParam>::Spec::info.bases()[0])};
    for (const std::string& text : Traits<TypeParam>::textsWithARangeOfTheirOwn()) {
        ParametersEngine engine;
        const auto missing = engine.registerSchema(text);
        EXPECT_TRUE(missing.first.empty() && missing.second.empty()) << text;
        engine.resolveSchemas();
        EXPECT_EQ(engine.getDependencies("p"), builtIns) << text;
    }
    for (const auto& range : Traits<TypeParam>::rangesOfTheirOwn()) {
        EXPECT_EQ(ParametersEngine().getDependencies(typename TypeParam::Value(IntParameters::coreOf("p"), range)),
                  builtIns)
            << range.getTypeId();
    }
}

TYPED_TEST(RangedParameter, DependsOnANamedRangeWithoutLimits) {
    const std::string range = Traits<TypeParam>::namedRangeWithoutLimits;
    EXPECT_EQ(engineOf({this->textOf(typedConstant("range", range))}, this->stock).getDependencies("p"),
              (TypeIds{"norvex.parameter:group-1.0.0", std::string(Traits<TypeParam>::Spec::info.bases()[0]), range}));
}

} // namespace
