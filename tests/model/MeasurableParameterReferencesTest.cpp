#include "support/Engines.h"
#include "support/Messages.h"
#include "support/NamingFault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

// What measurable parameters name: a group, a spec and perhaps a range.

namespace {

using Parameters::FloatRange;
using Parameters::MeasurableParameter;
using Parameters::MeasurableSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::constant;
using Support::engineOf;
using Support::engineWithUnits;
using Support::groupText;
using Support::measurableSpecText;
using Support::messageOf;
using Support::NamingFault;
using Support::refusalBy;
using Support::schemaText;
using Support::typedConstant;
using Support::unitText;
using Units::Unit;

using TypeIds = std::set<std::string>;

const std::string other = "norvex.parameter:group-1.0.0";
const std::string baseRange = "norvex.range:range.float64.bounded.static-1.0.0";

std::string rangeText(const std::string& typeId) {
    return schemaText(typeId, baseRange,
                      R"({"id": "fromBottom", "value": true}, {"id": "bottomBoundary", "value": 1.5},
                         {"id": "fromTop", "value": false})");
}

/// Returns the text of the parameter "p".
std::string textOf(const std::string& group, const std::string& spec, const std::string& range) {
    return schemaText("p", "norvex.parameter:parameter.measurable-3.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("group", group) + ", " +
                          typedConstant("spec", spec) + ", " + typedConstant("range", range));
}

/// Returns the text of the parameter "p" without a range of its own.
std::string textOf(const std::string& group, const std::string& spec) {
    return schemaText("p", "norvex.parameter:parameter.measurable-3.0.0",
                      constant("name", R"("Name")") + ", " + typedConstant("group", group) + ", " +
                          typedConstant("spec", spec));
}

/// Returns the parameter "p" made in code, with objects that it makes up.
MeasurableParameter objectOf(const std::string& group, const std::string& spec, const std::string& range) {
    return {ParameterCore("p", "Name", Taxon(group, "Mine"), "", "", false),
            MeasurableSpec(SpecCore(spec, "Mine"), {}, Unit("mine", "Mine", "")), FloatRange(range, true, 5, true, 6)};
}

/// An engine with a unit, a group, a spec and ranges.
ParametersEngine plant() {
    return engineOf({groupText("group", "Operation"), measurableSpecText("spec", "m"), rangeText("range"),
                     schemaText("int range", "norvex.range:range.int64.bounded.static-1.0.0",
                                R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": false})")},
                    engineWithUnits({"m"}));
}

void expectWhatIsRegistered(const MeasurableParameter& parameter) {
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Operation");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Name");
    EXPECT_EQ(parameter.getSpec().getStorageUnit().getTypeId(), "m");
    EXPECT_EQ(parameter.getRange().getTypeId(), "range");
    EXPECT_TRUE(parameter.getRange().isBoundFromBottom());
    EXPECT_EQ(parameter.getRange().getBottomBoundary(), 1.5);
    EXPECT_FALSE(parameter.getRange().isBoundFromTop());
}

TEST(MeasurableParameterResolution, FindsWhatIsRegistered) {
    expectWhatIsRegistered(engineOf({textOf("group", "spec", "range")}, plant()).getMeasurableParameter("p"));
}

TEST(MeasurableParameterResolution, FindsWhatIsResolvedWithIt) {
    ParametersEngine engine;
    engine.registerSchema(textOf("group", "spec", "range"));
    engine.registerSchema(measurableSpecText("spec", "m"));
    engine.registerSchema(groupText("group", "Operation"));
    engine.registerSchema(rangeText("range"));
    engine.getUnitsEngine().registerSchema(unitText("m"));
    engine.resolveSchemas();
    expectWhatIsRegistered(engine.getMeasurableParameter("p"));
}

TEST(MeasurableParameterBinding, GetsTheRegisteredObjectsForThoseItWasGiven) {
    ParametersEngine engine = plant();
    engine.registerMeasurableParameter(objectOf("group", "spec", "range"));
    expectWhatIsRegistered(engine.getMeasurableParameter("p"));
    expectWhatIsRegistered(engine.getAllMeasurableParameters().at("p"));
}

TEST(MeasurableParameterBinding, ReadsWithTheRegisteredObjects) {
    const ParametersEngine engine = plant();
    expectWhatIsRegistered(engine.readMeasurableParameter(textOf("group", "spec", "range")));
    EXPECT_TRUE(engine.getAllMeasurableParameters().empty());
    EXPECT_FALSE(engine.isRegistered("p"));
}

TEST(MeasurableParameterBinding, ReadsTheDefaultRange) {
    const FloatRange range = plant().readMeasurableParameter(textOf("group", "spec")).getRange();
    EXPECT_EQ(range.getTypeId(), baseRange);
    EXPECT_FALSE(range.isBoundFromBottom());
    EXPECT_FALSE(range.isBoundFromTop());
}

TEST(MeasurableParameterBinding, KeepsABaseRangeAsItWasGiven) {
    for (const char* typeId :
         {"norvex.range:range.float64.bounded.static-1.0.0", "norvex.range:range.float64.bounded.static-1.3.0",
          "my norvex.range:range.float64.bounded.static-1.x"}) {
        ParametersEngine engine = plant();
        engine.registerMeasurableParameter(objectOf(other, "spec", typeId));
        const FloatRange range = engine.getMeasurableParameter("p").getRange();
        EXPECT_EQ(range.getTypeId(), typeId);
        EXPECT_EQ(range.getBottomBoundary(), 5);
        EXPECT_EQ(range.getTopBoundary(), 6);
    }
}

const NamingFault namingFaults[] = {
    {"Unit", "group", "m", "range", "Could not find measurable spec with typeid m.",
     "Dependency m in schema p is missing or does not represent an object of the expected type."},
    {"IntegerBaseAsRange", "group", "spec", "norvex.range:range.int64.bounded.static-1.0.0",
     "Could not find floating-point range with typeid norvex.range:range.int64.bounded.static-1.0.0.",
     "Dependency norvex.range:range.int64.bounded.static-1.0.0 in schema p is missing or does not represent an object "
     "of the expected type."},
    {"SpecAndRange", "group", "y", "x", "Could not find measurable spec with typeid y.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"GroupAndSpec", "y", "x", "range", "Could not find group with typeid y.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"GroupAndRange", "y", "spec", "x", "Could not find group with typeid y.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
};

class MeasurableParameterThatNamesInVain : public testing::TestWithParam<NamingFault> {
protected:
    static std::string text() { return textOf(GetParam().group, GetParam().spec, GetParam().third); }
    static MeasurableParameter object() { return objectOf(GetParam().group, GetParam().spec, GetParam().third); }

    ParametersEngine engine = plant();
};

TEST_P(MeasurableParameterThatNamesInVain, IsNotResolved) {
    engine.registerSchema(text());
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

TEST_P(MeasurableParameterThatNamesInVain, IsNotRegistered) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerMeasurableParameter(object()); }), GetParam().whenBound);
}

TEST_P(MeasurableParameterThatNamesInVain, IsNotRead) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.readMeasurableParameter(text()); }), GetParam().whenBound);
}

TEST_P(MeasurableParameterThatNamesInVain, IsNotWritten) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getSchema(object()); }), GetParam().whenBound);
}

TEST_P(MeasurableParameterThatNamesInVain, HasNoDependencies) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getDependencies(object()); }), GetParam().whenBound);
}

INSTANTIATE_TEST_SUITE_P(References, MeasurableParameterThatNamesInVain, testing::ValuesIn(namingFaults),
                         Support::nameOfRow);

TEST(MeasurableParameterBinding, RefusesATypeIdBeforeAllElse) {
    ParametersEngine engine = engineOf({groupText("p")});
    const MeasurableParameter taken = objectOf("x", "y", "z");
    const MeasurableParameter unnamed(ParameterCore("", "Name", Taxon("x", ""), "", "", false), taken.getSpec(),
                                      taken.getRange());
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerMeasurableParameter(taken); }),
              "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(taken); }), "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(taken); }), "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.readMeasurableParameter(textOf("x", "y", "z")); }),
              "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerMeasurableParameter(unnamed); }), "Typeid must not be empty.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(unnamed); }), "Typeid must not be empty.");
}

TEST(MeasurableParameterDependencies, AreTheSameByObject) {
    const ParametersEngine engine = plant();
    EXPECT_EQ(engine.getDependencies(objectOf("group", "spec", "range")), (TypeIds{"group", "range", "spec"}));
    EXPECT_EQ(engine.getDependencies(objectOf("group", "spec", baseRange)), (TypeIds{"group", "spec"}));
    EXPECT_EQ(engine.getDependencies(objectOf("group", "spec", "norvex.range:range.float64.bounded.static-1.3.0")),
              (TypeIds{"group", "spec"}));
    EXPECT_FALSE(engine.isRegistered("p"));
}

} // namespace
