#include "IntParameters.h"
#include "support/Engines.h"
#include "support/NamingFault.h"
#include "support/Refusal.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

// What an integer parameter names, and how that is found.

namespace {

using namespace IntParameters;
using Support::engineOf;
using Support::NamingFault;
using Support::refusalBy;
using Support::typedConstant;

const NamingFault namingFaults[] = {
    {"Group", "x", "s", "r", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"Spec", "g", "x", "r", "Could not find integer spec with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"Range", "g", "s", "x", "Could not find integer range with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"GroupBeforeSpecAndRange", "x", "y", "z", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"RangeOrSpecFirst", "g", "y", "z", "Could not find integer range with typeid z.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"GroupOfAnotherKind", "discipline", "s", "r", "Could not find group with typeid discipline.",
     "Dependency discipline in schema p is missing or does not represent an object of the expected type."},
    {"SpecOfAnotherKind", "g", "stringSpec", "r", "Could not find integer spec with typeid stringSpec.",
     "Dependency stringSpec in schema p is missing or does not represent an object of the expected type."},
    {"RangeOfAnotherKind", "g", "s", "floatRange", "Could not find integer range with typeid floatRange.",
     "Dependency floatRange in schema p is missing or does not represent an object of the expected type."},
    {"Itself", "g", "s", "p", "Could not find integer range with typeid p.",
     "Dependency p in schema p is missing or does not represent an object of the expected type."},
    {"SpecOfAnotherMajorVersion", "g", "norvex.spec:spec.int64-1.0.0", "r",
     "Could not find integer spec with typeid norvex.spec:spec.int64-1.0.0.",
     "Dependency norvex.spec:spec.int64-1.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
    {"RangeOfAnotherMajorVersion", "g", "s", "norvex.range:range.int64.bounded.static-2.0.0",
     "Could not find integer range with typeid norvex.range:range.int64.bounded.static-2.0.0.",
     "Dependency norvex.range:range.int64.bounded.static-2.0.0 in schema p is missing or does not represent an object "
     "of the expected type."},
    {"BuiltInRangeOfAnotherKind", "g", "s", "norvex.range:range.float64.bounded.static-1.0.0",
     "Could not find integer range with typeid norvex.range:range.float64.bounded.static-1.0.0.",
     "Dependency norvex.range:range.float64.bounded.static-1.0.0 in schema p is missing or does not represent an "
     "object of the expected type."},
    {"BuiltInSpecOfAnotherKind", "g", "norvex.spec:spec.string-2.0.0", "r",
     "Could not find integer spec with typeid norvex.spec:spec.string-2.0.0.",
     "Dependency norvex.spec:spec.string-2.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
};

struct IntParameterNaming : testing::TestWithParam<NamingFault> {
    static IntParameter parameter() {
        return IntParameter(coreOf("p", GetParam().group), specOf(GetParam().spec),
                            IntRange(GetParam().third, true, 1, true, 2));
    }
    static std::string text() {
        return textOf(typedConstant("range", GetParam().third) + ", " + typedConstant("spec", GetParam().spec) + ", " +
                      typedConstant("group", GetParam().group));
    }

    ParametersEngine engine = stocked();
};

TEST_P(IntParameterNaming, FailsResolution) {
    engine.registerSchema(text());
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

TEST_P(IntParameterNaming, FailsReading) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.readIntParameter(text()); }), GetParam().whenBound);
}

TEST_P(IntParameterNaming, FailsRegistration) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerIntParameter(parameter()); }), GetParam().whenBound);
}

TEST_P(IntParameterNaming, FailsWriting) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter()); }), GetParam().whenBound);
}

TEST_P(IntParameterNaming, FailsTheQuestionForDependencies) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter()); }), GetParam().whenBound);
}

INSTANTIATE_TEST_SUITE_P(IntParameter, IntParameterNaming, testing::ValuesIn(namingFaults),
                         [](const auto& test) { return test.param.name; });

TEST(IntParameter, IsNotBoundToWhatIsOnlyPending) {
    ParametersEngine engine;
    engine.registerSchema(Support::schemaText("r", builtInRange, R"({"id": "fromBottom", "value": true},
                                                                    {"id": "fromTop", "value": false})"));
    EXPECT_EQ(refusalBy(engine,
                        [&] {
                            engine.registerIntParameter({coreOf("p"), IntRange("r", true, 1, true, 2)});
                        }),
              "Could not find integer range with typeid r.");
}

struct TypeIdFault {
    const char* name;
    const char* typeId;
    const char* message;
};

const TypeIdFault typeIdFaults[] = {
    {"Empty", "", "Typeid must not be empty."},
    {"Known", "g", "Schema with typeid g is already registered."},
    {"BuiltIn", "norvex.spec:spec.int64-2.0.0",
     "Schema with typeid norvex.spec:spec.int64-2.0.0 is already registered."},
};

struct IntParameterTypeId : testing::TestWithParam<TypeIdFault> {
    // All that it names is missing, too.
    const IntParameter parameter{coreOf(GetParam().typeId, "x"), specOf("y"), IntRange("z", true, 1, true, 2)};
    ParametersEngine engine = stocked();
};

TEST_P(IntParameterTypeId, IsCheckedFirst) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerIntParameter(parameter); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(IntParameter, IntParameterTypeId, testing::ValuesIn(typeIdFaults),
                         [](const auto& test) { return test.param.name; });

TEST(IntParameter, FindsWhatIsResolvedWithIt) {
    const ParametersEngine engine = engineOf(
        {textOf(typedConstant("spec", "s") + ", " + typedConstant("range", "r") + ", " + typedConstant("group", "g")),
         Support::groupText("g", "The group"), Support::namedText("s", builtInSpec, "The spec"),
         Support::schemaText("r", builtInRange,
                             R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": true},
                                                   {"id": "topBoundary", "value": 6})")});
    const IntParameter parameter = engine.getIntParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    expectRange(parameter.getRange(), "r", true, 0, true, 6);
}

TEST(IntParameter, IsBoundToTheRegisteredObjectsInPlaceOfItsOwn) {
    ParametersEngine engine = stocked();
    engine.registerIntParameter({coreOf("p", "g"), specOf("s"), IntRange("r", false, 99, false, 99)});
    const IntParameter parameter = engine.getIntParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    expectRange(parameter.getRange(), "r", true, -4, true, 8);
    expectRange(engine.getAllIntParameters().at("p").getRange(), "r", true, -4, true, 8);
}

TEST(IntParameter, KeepsItsOwnBuiltInSpecAndRange) {
    ParametersEngine engine;
    engine.registerIntParameter({coreOf("p"), specOf("norvex.spec:spec.int64-2.5.0"),
                                 IntRange("norvex.range:range.int64.bounded.static-1.3.0", true, 1, false, 2)});
    const IntParameter parameter = engine.getIntParameter("p");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.int64-2.5.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Spec");
    expectRange(parameter.getRange(), "norvex.range:range.int64.bounded.static-1.3.0", true, 1, false, 2);
}

TEST(IntParameter, KeepsTheVersionOfTheBuiltInSpecThatItsSchemaNames) {
    const std::string text = textOf(typedConstant("spec", "norvex.spec:spec.int64-2.3.0"));
    for (const IntParameter& parameter : {resolved(text), ParametersEngine().readIntParameter(text)}) {
        EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.int64-2.3.0");
        EXPECT_EQ(parameter.getSpec().getCore().getName(), "Integer");
        EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    }
}

TEST(IntParameter, IsReadWithoutBeingRegistered) {
    ParametersEngine engine = stocked();
    const IntParameter parameter = engine.readIntParameter(
        textOf(typedConstant("spec", "s") + ", " + typedConstant("range", "r") + ", " + typedConstant("group", "g")));
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    expectRange(parameter.getRange(), "r", true, -4, true, 8);
    EXPECT_FALSE(engine.isRegistered("p"));
    EXPECT_TRUE(engine.getAllIntParameters().empty());
}

TEST(IntParameter, IsReadWithTheDefaultRange) {
    expectRange(ParametersEngine().readIntParameter(textOf()).getRange(), builtInRange, false, 0, false, 0);
}

TEST(IntParameter, ReportsWhatItNamesAndIsNotThere) {
    ParametersEngine engine = stocked();
    const auto missing =
        engine.registerSchema(textOf(typedConstant("spec", "missing spec") + ", " +
                                     typedConstant("range", "missing range") + ", " + typedConstant("group", "g")));
    EXPECT_EQ(missing.first, (std::set<std::string>{"missing range", "missing spec"}));
    EXPECT_TRUE(missing.second.empty());
}

TEST(IntParameter, DoesNotReportBuiltInObjectsAsMissing) {
    const auto missing = ParametersEngine().registerSchema(
        inlineText(R"({"fromBottom": true, "fromTop": true})", "norvex.range:range.int64.bounded.static-1.3.0"));
    EXPECT_TRUE(missing.first.empty());
    EXPECT_TRUE(missing.second.empty());
}

TEST(IntParameter, DependsOnGroupSpecAndNamedRange) {
    ParametersEngine engine = stocked();
    const IntParameter parameter(coreOf("p", "g"), specOf("s"), IntRange("r", true, 1, true, 2));
    const std::set<std::string> expected{"g", "r", "s"};
    EXPECT_EQ(engine.getDependencies(parameter), expected);
    engine.registerIntParameter(parameter);
    EXPECT_EQ(engine.getDependencies("p"), expected);
}

TEST(IntParameter, DependsOnANamedRangeWithoutBounds) {
    ParametersEngine engine = stocked();
    engine.registerSchema(textOf(typedConstant("range", "unbounded")));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDependencies("p"),
              (std::set<std::string>{"norvex.parameter:group-1.0.0", "norvex.spec:spec.int64-2.0.0", "unbounded"}));
}

TEST(IntParameter, DoesNotDependOnARangeOfItsOwn) {
    const std::set<std::string> builtIns{"norvex.parameter:group-1.0.0", "norvex.spec:spec.int64-2.0.0"};
    const ParametersEngine engine;
    EXPECT_EQ(engineOf({textOf()}).getDependencies("p"), builtIns);
    EXPECT_EQ(engineOf({inlineText(R"({"fromBottom": true, "fromTop": true})")}).getDependencies("p"), builtIns);
    EXPECT_EQ(engine.getDependencies(IntParameter(coreOf("p"), oneToTwo)), builtIns);
    EXPECT_EQ(engine.getDependencies(IntParameter(
                  coreOf("p"), IntRange("norvex.range:range.int64.bounded.static-1.3.0", true, 1, true, 2))),
              builtIns);
}

} // namespace
