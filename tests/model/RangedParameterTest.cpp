#include "RangedParameters.h"
#include "support/Engines.h"
#include "support/Messages.h"
#include "support/Refusal.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

// What integer and string parameters have in common: what they are made of, and how they find what they name.

namespace {

using namespace RangedParameters;
using Parameters::ValidationException;
using Support::engineOf;
using Support::messageOf;
using Support::refusalBy;
using Support::refusalOf;

using TypeIds = std::set<std::string>;

template <class Parameter>
struct RangedParameter : testing::Test {
    using T = Traits<Parameter>;

    static std::string textOf(const std::string& constants = "") { return T::textOf(constants); }
    static std::string textOfBase(const char* base) { return Support::namedText("p", base, "Name"); }
    static std::string textNamingAll() { return textNaming<Parameter>("g", "s", T::namedRange); }

    static Parameter get(const ParametersEngine& engine) { return (engine.*T::get)("p"); }
    static Parameter read(const ParametersEngine& engine, const std::string& text) { return (engine.*T::read)(text); }

    /// Expects the objects of the engine with a stock.
    static void expectNamedObjects(const Parameter& parameter) {
        EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
        EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
        T::expectNamedRange(parameter.getRange());
    }

    ParametersEngine stock = T::stocked();
};

struct NameOfParameter {
    template <class Parameter>
    static std::string GetName(int) { // NOLINT(readability-identifier-naming): GoogleTest calls it
        return Traits<Parameter>::name;
    }
};

using Kinds = testing::Types<IntParameter, StringParameter>;
TYPED_TEST_SUITE(RangedParameter, Kinds, NameOfParameter);

TYPED_TEST(RangedParameter, KeepsWhatItIsMadeWith) {
    const auto parameter = parameterNaming<TypeParam>("p", "g", "s", "r");
    EXPECT_EQ(parameter.getCore().getTypeId(), "p");
    EXPECT_EQ(parameter.getCore().getGroup().getTypeId(), "g");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "s");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Spec");
    Traits<TypeParam>::expectRangeOf(parameter.getRange(), "r");
}

TYPED_TEST(RangedParameter, HasTheBuiltInSpecWhenItIsGivenNone) {
    const TypeParam parameter(IntParameters::coreOf("p"), Traits<TypeParam>::rangeOf("r"));
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), Traits<TypeParam>::builtInSpec);
    EXPECT_EQ(parameter.getSpec().getCore().getName(), Traits<TypeParam>::builtInSpecName);
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
    Traits<TypeParam>::expectRangeOf(parameter.getRange(), "r");
}

TYPED_TEST(RangedParameter, HasDefaultsForAllButItsName) {
    const TypeParam parameter = Traits<TypeParam>::resolved(this->textOf());
    EXPECT_EQ(parameter.getCore().getName(), "Name");
    EXPECT_EQ(parameter.getCore().getDescription(), "");
    EXPECT_EQ(parameter.getCore().getSampleText(), "");
    EXPECT_EQ(parameter.getCore().getGroup().getTypeId(), "norvex.parameter:group-1.0.0");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Other");
    EXPECT_FALSE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), Traits<TypeParam>::builtInSpec);
    EXPECT_EQ(parameter.getSpec().getCore().getName(), Traits<TypeParam>::builtInSpecName);
    Traits<TypeParam>::expectDefaultRange(parameter.getRange());
}

TYPED_TEST(RangedParameter, TakesAllItsConstants) {
    const std::string further = R"({"id": "readOnly", "value": true}, {"id": "sampleText", "value": "7"},
                                   {"id": "description", "value": "About it"})";
    const TypeParam parameter = Traits<TypeParam>::resolved(
        this->textOf(typedConstant("range", Traits<TypeParam>::namedRange) + ", " + typedConstant("spec", "s") + ", " +
                     typedConstant("group", "g") + ", " + further));
    EXPECT_EQ(parameter.getCore().getDescription(), "About it");
    EXPECT_EQ(parameter.getCore().getSampleText(), "7");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    this->expectNamedObjects(parameter);
}

TYPED_TEST(RangedParameter, HasItsNameBeforeAllElse) {
    EXPECT_EQ(refusalOf(Support::schemaText("p", Traits<TypeParam>::base,
                                            R"({"id": "spec", "typedValue": 5}, {"id": "range", "typedValue": 5})")),
              "Schema p has an undefined name constant.");
}

TYPED_TEST(RangedParameter, InheritsAnyMinorVersionOfItsBaseAlone) {
    const std::string minor = this->textOfBase(Traits<TypeParam>::ofAnotherMinorVersion);
    const std::string major = this->textOfBase(Traits<TypeParam>::ofAnotherMajorVersion);
    EXPECT_EQ(this->get(engineOf({minor})).getCore().getName(), "Name");
    EXPECT_EQ(refusalOf(major), "Inheritance from an unrecognized base schema.");
    EXPECT_EQ(messageOf<ValidationException>([&] { this->read(ParametersEngine(), major); }),
              "Inheritance from an incorrect base schema.");
}

TYPED_TEST(RangedParameter, IsNotBoundToWhatIsOnlyPending) {
    ParametersEngine engine;
    engine.registerSchema(Traits<TypeParam>::rangeText());
    const auto parameter = parameterNaming<TypeParam>("p", "norvex.parameter:group-1.0.0",
                                                      Traits<TypeParam>::builtInSpec, Traits<TypeParam>::namedRange);
    EXPECT_EQ(refusalBy(engine, [&] { (engine.*Traits<TypeParam>::add)(parameter); }),
              Traits<TypeParam>::missedPendingRange);
}

TYPED_TEST(RangedParameter, FindsWhatIsResolvedWithIt) {
    const ParametersEngine engine =
        engineOf({this->textNamingAll(), Support::groupText("g", "The group"),
                  Support::namedText("s", Traits<TypeParam>::builtInSpec, "The spec"), Traits<TypeParam>::rangeText()});
    this->expectNamedObjects(this->get(engine));
}

TYPED_TEST(RangedParameter, IsBoundToTheRegisteredObjectsInPlaceOfItsOwn) {
    (this->stock.*Traits<TypeParam>::add)(parameterNaming<TypeParam>("p", "g", "s", Traits<TypeParam>::namedRange));
    this->expectNamedObjects(this->get(this->stock));
    this->expectNamedObjects((this->stock.*Traits<TypeParam>::getAll)().at("p"));
}

TYPED_TEST(RangedParameter, KeepsTheVersionOfTheBuiltInSpecThatItsSchemaNames) {
    const TypeParam parameter = Traits<TypeParam>::resolved(
        this->textOf(typedConstant("spec", Traits<TypeParam>::builtInSpecOfAnotherVersion)));
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), Traits<TypeParam>::builtInSpecOfAnotherVersion);
    EXPECT_EQ(parameter.getSpec().getCore().getName(), Traits<TypeParam>::builtInSpecName);
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
}

TYPED_TEST(RangedParameter, IsReadWithoutBeingRegistered) {
    this->expectNamedObjects(this->read(this->stock, this->textNamingAll()));
    EXPECT_FALSE(this->stock.isRegistered("p"));
    EXPECT_TRUE((this->stock.*Traits<TypeParam>::getAll)().empty());
}

TYPED_TEST(RangedParameter, IsReadWithTheDefaultRange) {
    Traits<TypeParam>::expectDefaultRange(this->read(ParametersEngine(), this->textOf()).getRange());
}

TYPED_TEST(RangedParameter, ReportsWhatItNamesAndIsNotThere) {
    const auto missing = this->stock.registerSchema(textNaming<TypeParam>("my group", "my spec", "my range"));
    EXPECT_EQ(missing.first, (TypeIds{"my group", "my range", "my spec"}));
    EXPECT_TRUE(missing.second.empty());
}

TYPED_TEST(RangedParameter, DoesNotReportWhatIsThere) {
    const auto missing = this->stock.registerSchema(textNaming<TypeParam>("g", "my spec", "my range"));
    EXPECT_EQ(missing.first, (TypeIds{"my range", "my spec"}));
    EXPECT_TRUE(missing.second.empty());
}

TYPED_TEST(RangedParameter, DoesNotReportBuiltInObjectsAsMissing) {
    for (const std::string& text : Traits<TypeParam>::textsWithARangeOfTheirOwn()) {
        const auto missing = ParametersEngine().registerSchema(text);
        EXPECT_TRUE(missing.first.empty()) << text;
        EXPECT_TRUE(missing.second.empty()) << text;
    }
}

TYPED_TEST(RangedParameter, DependsOnGroupSpecAndNamedRange) {
    const auto parameter = parameterNaming<TypeParam>("p", "g", "s", Traits<TypeParam>::namedRange);
    const TypeIds expected{"g", "s", Traits<TypeParam>::namedRange};
    EXPECT_EQ(this->stock.getDependencies(parameter), expected);
    (this->stock.*Traits<TypeParam>::add)(parameter);
    EXPECT_EQ(this->stock.getDependencies("p"), expected);
}

TYPED_TEST(RangedParameter, DependsOnANamedRangeWithoutLimits) {
    this->stock.registerSchema(this->textOf(typedConstant("range", Traits<TypeParam>::namedRangeWithoutLimits)));
    this->stock.resolveSchemas();
    EXPECT_EQ(this->stock.getDependencies("p"), (TypeIds{"norvex.parameter:group-1.0.0", Traits<TypeParam>::builtInSpec,
                                                         Traits<TypeParam>::namedRangeWithoutLimits}));
}

TYPED_TEST(RangedParameter, DoesNotDependOnARangeOfItsOwn) {
    const TypeIds builtIns{"norvex.parameter:group-1.0.0", Traits<TypeParam>::builtInSpec};
    EXPECT_EQ(engineOf({this->textOf()}).getDependencies("p"), builtIns);
    for (const std::string& text : Traits<TypeParam>::textsWithARangeOfTheirOwn()) {
        EXPECT_EQ(engineOf({text}).getDependencies("p"), builtIns) << text;
    }
    for (const auto& range : Traits<TypeParam>::rangesOfTheirOwn()) {
        EXPECT_EQ(ParametersEngine().getDependencies(TypeParam(IntParameters::coreOf("p"), range)), builtIns)
            << range.getTypeId();
    }
}

} // namespace
