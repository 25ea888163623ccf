#include <parameters/MeasurableSpec.h>

#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using Parameters::MeasurableSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::constant;
using Support::disciplineText;
using Support::engineOf;
using Support::engineWithUnits;
using Support::Fault;
using Support::measurableSpecText;
using Support::messageOf;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;
using Support::typedConstant;
using Support::typedConstants;
using Support::unitText;
using Units::Unit;

using TypeIds = std::set<std::string>;

const std::string base = "norvex.spec:spec.measurable-2.0.0";
const std::string common = "norvex.spec:discipline-1.0.0";
const std::string nameOnly = R"({"id": "name", "value": "Level"})";
const std::string storedInMetres = typedConstant("storageUnit", "m");

/// Returns a unit that the test makes up.
Unit mine(const std::string& typeId) { return {typeId, "Mine", "mine"}; }

/// Returns a spec "level" made in code.
MeasurableSpec levelOf(const std::string& storageUnit, const std::vector<std::string>& applicableUnits = {},
                       const std::string& discipline = common) {
    std::vector<Unit> units;
    for (const std::string& typeId : applicableUnits) {
        units.push_back(mine(typeId));
    }
    return {SpecCore("level", "Level", Taxon(discipline, "Mine")), units, mine(storageUnit)};
}

/// An engine with units and a discipline.
ParametersEngine plant() {
    return engineOf({disciplineText("civil", "Civil Works")}, engineWithUnits({"m", "mm", "s"}));
}

MeasurableSpec readFrom(const std::string& text) { return engineOf({text}, plant()).getMeasurableSpec("level"); }

std::vector<std::string> typeIdsOf(const std::vector<Unit>& units) {
    std::vector<std::string> typeIds;
    for (const Unit& unit : units) {
        typeIds.push_back(unit.getTypeId());
    }
    return typeIds;
}

TEST(MeasurableSpec, AnswersWhatItWasMadeFrom) {
    const MeasurableSpec spec(SpecCore("level", "Level", Taxon("civil", "Civil Works")),
                              {Unit("mm", "Millimetre", "mm"), Unit("m", "Metre", "m")}, Unit("s", "Second", "s"));
    EXPECT_EQ(spec.getCore().getTypeId(), "level");
    EXPECT_EQ(spec.getCore().getName(), "Level");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Civil Works");
    EXPECT_EQ(typeIdsOf(spec.getApplicableUnits()), (std::vector<std::string>{"mm", "m"}));
    EXPECT_EQ(spec.getApplicableUnits()[0].getName(), "Millimetre");
    EXPECT_EQ(spec.getStorageUnit().getName(), "Second");
}

TEST(MeasurableSpec, MayHaveNoApplicableUnits) { EXPECT_TRUE(levelOf("m").getApplicableUnits().empty()); }

TEST(MeasurableSpec, KeepsAnApplicableUnitAsOftenAsItIsGiven) {
    EXPECT_EQ(typeIdsOf(levelOf("m", {"s", "m", "s"}).getApplicableUnits()), (std::vector<std::string>{"s", "m", "s"}));
}

TEST(MeasurableSpec, HasPartsThatOutliveIt) {
    const auto core = [] { return levelOf("m").getCore(); }();
    const auto unit = [] { return levelOf("m").getStorageUnit(); }();
    EXPECT_EQ(core.getName(), "Level");
    EXPECT_EQ(unit.getTypeId(), "m");
}

TEST(MeasurableSpec, IsReadFromItsSchema) {
    const MeasurableSpec spec =
        readFrom(schemaText("level", base,
                            storedInMetres + ", " + typedConstants("applicableUnits", {"s", "m", "s"}) + ", " +
                                typedConstant("discipline", "civil") + ", " + nameOnly));
    EXPECT_EQ(spec.getCore().getTypeId(), "level");
    EXPECT_EQ(spec.getCore().getName(), "Level");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Civil Works");
    EXPECT_EQ(typeIdsOf(spec.getApplicableUnits()), (std::vector<std::string>{"s", "m", "s"}));
    EXPECT_EQ(spec.getStorageUnit().getTypeId(), "m");
}

TEST(MeasurableSpec, HoldsTheUnitsOfTheUnitsEngine) {
    ParametersEngine engine;
    engine.registerSchemas({{"m", unitText("m", "Metre")},
                            {"mm", unitText("mm", "Millimetre")},
                            {"level", measurableSpecText("level", "m", {"mm"})}});
    EXPECT_EQ(engine.getMeasurableSpec("level").getStorageUnit().getName(), "Metre");
    EXPECT_EQ(engine.getMeasurableSpec("level").getApplicableUnits().at(0).getName(), "Millimetre");
}

TEST(MeasurableSpec, HasNoApplicableUnitsByDefault) {
    const MeasurableSpec spec = readFrom(schemaText("level", base, nameOnly + ", " + storedInMetres));
    EXPECT_TRUE(spec.getApplicableUnits().empty());
    EXPECT_EQ(spec.getStorageUnit().getTypeId(), "m");
}

TEST(MeasurableSpec, NeedsNotBeStoredInAnApplicableUnit) {
    const MeasurableSpec spec = readFrom(measurableSpecText("level", "m", {"mm"}));
    EXPECT_EQ(typeIdsOf(spec.getApplicableUnits()), std::vector<std::string>{"mm"});
    EXPECT_EQ(spec.getStorageUnit().getTypeId(), "m");
}

TEST(MeasurableSpec, TakesItsUnitsAsPlainValuesToo) {
    const MeasurableSpec spec = readFrom(schemaText("level", base,
                                                    nameOnly + ", " + constant("storageUnit", R"({"typeid": "m"})") +
                                                        ", " + constant("applicableUnits", R"([{"typeid": "mm"}])")));
    EXPECT_EQ(spec.getApplicableUnits().size(), 1U);
}

const std::vector<Fault> constantFaults = {
    {"NoStorageUnit", nameOnly, "Schema level has an undefined storageUnit constant."},
    {"StringAsStorageUnit", nameOnly + R"(, {"id": "storageUnit", "typedValue": "m"})",
     "A typedValue must be an object."},
    {"ArrayAsStorageUnit", nameOnly + R"(, {"id": "storageUnit", "typedValue": [{"typeid": "m"}]})",
     "A typedValue must be an object."},
    {"EmptyStorageUnit", nameOnly + R"(, {"id": "storageUnit", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"StorageUnitWithAnotherMember",
     nameOnly + R"(, {"id": "storageUnit", "typedValue": {"typeid": "m", "value": {}}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"StorageUnitWithoutATypeId", nameOnly + R"(, {"id": "storageUnit", "typedValue": {"unit": "m"}})",
     "A typedValue did not contain a typeid attribute."},
    {"StorageUnitWithAnEmptyTypeId", nameOnly + R"(, {"id": "storageUnit", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"StorageUnitWithoutAValue", nameOnly + R"(, {"id": "storageUnit"})",
     "A property definition must contain either a value or a typedValue."},
    {"ObjectAsApplicableUnits",
     nameOnly + ", " + storedInMetres + R"(, {"id": "applicableUnits", "typedValue": {"typeid": "m"}})",
     "Expected an array of typedValue objects."},
    {"StringAsApplicableUnits", nameOnly + ", " + storedInMetres + R"(, {"id": "applicableUnits", "value": "m"})",
     "Expected an array of typedValue objects."},
    {"NullAsApplicableUnits", nameOnly + ", " + storedInMetres + R"(, {"id": "applicableUnits", "value": null})",
     "Expected an array of typedValue objects."},
    {"StringAsAnApplicableUnit",
     nameOnly + ", " + storedInMetres + R"(, {"id": "applicableUnits", "typedValue": ["m"]})",
     "A typedValue must be an object."},
    {"EmptyApplicableUnit",
     nameOnly + ", " + storedInMetres + R"(, {"id": "applicableUnits", "typedValue": [{"typeid": "m"}, {}, 5]})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"ApplicableUnitWithANumberAsTypeId",
     nameOnly + ", " + storedInMetres + R"(, {"id": "applicableUnits", "typedValue": [{"typeid": 5}]})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"NameBeforeDiscipline", R"({"id": "discipline", "value": 5})", "Schema level has an undefined name constant."},
    {"DisciplineBeforeApplicableUnits",
     nameOnly + R"(, {"id": "applicableUnits", "value": 5}, {"id": "discipline", "value": 5})",
     "A typedValue must be an object."},
    {"ApplicableUnitsBeforeStorageUnit",
     nameOnly + R"(, {"id": "storageUnit", "value": 5}, {"id": "applicableUnits", "value": 5})",
     "Expected an array of typedValue objects."},
    {"ApplicableUnitsBeforeNoStorageUnit", nameOnly + R"(, {"id": "applicableUnits", "value": [{"unit": "m"}]})",
     "A typedValue did not contain a typeid attribute."},
};

class RefusedMeasurableSpec : public testing::TestWithParam<Fault> {};

TEST_P(RefusedMeasurableSpec, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf(schemaText("level", base, GetParam().text)), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Constants, RefusedMeasurableSpec, testing::ValuesIn(constantFaults), Support::nameOfRow);

/// What a spec may name in vain, and the messages of the two ways to look for it.
struct Missing {
    const char* name;
    std::string storageUnit;
    std::vector<std::string> applicableUnits;
    std::string discipline;
    const char* whenBound;
    const char* whenResolved;
};

const Missing missingReferences[] = {
    {"StorageUnit",
     "x",
     {"m"},
     common,
     "Could not find unit with typeid x.",
     "Typeid x for storageUnit constant in measurable spec schema level does not belong to a unit."},
    {"ApplicableUnit",
     "m",
     {"s", "x", "mm"},
     common,
     "Could not find unit with typeid x.",
     "Typeid x in applicableUnits constant in measurable spec schema level does not belong to a unit."},
    {"FirstOfTwoApplicableUnitsInTheirOrder",
     "m",
     {"z", "y"},
     common,
     "Could not find unit with typeid z.",
     "Typeid z in applicableUnits constant in measurable spec schema level does not belong to a unit."},
    {"StorageUnitBeforeApplicableUnits",
     "y",
     {"x"},
     common,
     "Could not find unit with typeid y.",
     "Typeid y for storageUnit constant in measurable spec schema level does not belong to a unit."},
    {"DisciplineAsStorageUnit",
     "civil",
     {},
     common,
     "Could not find unit with typeid civil.",
     "Typeid civil for storageUnit constant in measurable spec schema level does not belong to a unit."},
    {"ItselfAsApplicableUnit",
     "m",
     {"level"},
     common,
     "Could not find unit with typeid level.",
     "Typeid level in applicableUnits constant in measurable spec schema level does not belong to a unit."},
    {"BuiltInDisciplineAsStorageUnit",
     common,
     {},
     common,
     "Could not find unit with typeid norvex.spec:discipline-1.0.0.",
     "Typeid norvex.spec:discipline-1.0.0 for storageUnit constant in measurable spec schema level does not belong to "
     "a unit."},
    {"DisciplineAndStorageUnit",
     "x",
     {},
     "y",
     "Could not find discipline with typeid y.",
     "Typeid x for storageUnit constant in measurable spec schema level does not belong to a unit."},
    {"DisciplineAndApplicableUnit",
     "m",
     {"x"},
     "y",
     "Could not find discipline with typeid y.",
     "Typeid x in applicableUnits constant in measurable spec schema level does not belong to a unit."},
};

class MeasurableSpecThatNamesInVain : public testing::TestWithParam<Missing> {
protected:
    ParametersEngine engine = plant();
};

TEST_P(MeasurableSpecThatNamesInVain, IsNotResolved) {
    engine.registerSchema(measurableSpecText("other", "m"));
    engine.registerSchema(
        measurableSpecText("level", GetParam().storageUnit, GetParam().applicableUnits, GetParam().discipline));
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

TEST_P(MeasurableSpecThatNamesInVain, IsNotRegistered) {
    const MeasurableSpec spec = levelOf(GetParam().storageUnit, GetParam().applicableUnits, GetParam().discipline);
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerMeasurableSpec(spec); }), GetParam().whenBound);
}

INSTANTIATE_TEST_SUITE_P(References, MeasurableSpecThatNamesInVain, testing::ValuesIn(missingReferences),
                         Support::nameOfRow);

TEST(MeasurableSpecResolution, ReportsSpecsInAscendingOrder) {
    ParametersEngine engine = plant();
    for (const char* typeId : {"c", "a", "b"}) {
        engine.registerSchema(measurableSpecText(typeId, "x"));
    }
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }),
              "Typeid x for storageUnit constant in measurable spec schema a does not belong to a unit.");
}

TEST(MeasurableSpecResolution, ResolvesPendingUnitsFirst) {
    ParametersEngine engine;
    engine.registerSchema(measurableSpecText("level", "m"));
    engine.getUnitsEngine().registerSchema(unitText("m", "Metre"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getMeasurableSpec("level").getStorageUnit().getName(), "Metre");
}

TEST(MeasurableSpecResolution, FindsUnitsThatTheCallerRegisteredAndResolvedDirectly) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText("m", "Metre"));
    engine.getUnitsEngine().resolveSchemas();
    engine.registerSchema(measurableSpecText("level", "m", {"m"}));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getMeasurableSpec("level").getApplicableUnits().at(0).getName(), "Metre");
}

TEST(MeasurableSpecResolution, SucceedsOnceTheMissingUnitIsThere) {
    ParametersEngine engine;
    engine.registerSchema(measurableSpecText("level", "m"));
    EXPECT_THROW(engine.resolveSchemas(), ValidationException);
    engine.getUnitsEngine().registerSchema(unitText("m", "Metre"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getMeasurableSpec("level").getStorageUnit().getName(), "Metre");
}

TEST(MeasurableSpecBinding, GetsTheUnitsOfTheUnitsEngineForThoseItWasGiven) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(unitText("m", "Metre"));
    engine.getUnitsEngine().registerSchema(unitText("mm", "Millimetre"));
    engine.resolveSchemas();
    engine.registerMeasurableSpec(levelOf("m", {"mm", "m", "mm"}));
    EXPECT_EQ(engine.getMeasurableSpec("level").getStorageUnit().getName(), "Metre");
    EXPECT_EQ(typeIdsOf(engine.getMeasurableSpec("level").getApplicableUnits()),
              (std::vector<std::string>{"mm", "m", "mm"}));
    EXPECT_EQ(engine.getAllMeasurableSpecs().at("level").getApplicableUnits()[2].getName(), "Millimetre");
}

TEST(MeasurableSpecBinding, DoesNotFindUnitsThatAreRegisteredAndNotResolved) {
    ParametersEngine engine = plant();
    engine.getUnitsEngine().registerSchema(unitText("pending"));
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerMeasurableSpec(levelOf("pending")); }),
              "Could not find unit with typeid pending.");
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerMeasurableSpec(levelOf("m", {"pending"})); }),
              "Could not find unit with typeid pending.");
    EXPECT_FALSE(engine.isRegistered("level"));
    engine.getUnitsEngine().resolveSchemas();
    EXPECT_NO_THROW(engine.registerMeasurableSpec(levelOf("pending")));
}

TEST(MeasurableSpecBinding, RefusesATypeIdBeforeAllElse) {
    ParametersEngine engine = plant();
    for (const auto& [typeId, message] : {std::pair("", "Typeid must not be empty."),
                                          std::pair("civil", "Schema with typeid civil is already registered."),
                                          std::pair("m", "Schema with typeid m is already registered.")}) {
        const MeasurableSpec spec(SpecCore(typeId, "N", Taxon("x", "")), {}, mine("x"));
        EXPECT_EQ(refusalBy(engine, [&] { engine.registerMeasurableSpec(spec); }), message);
    }
}

TEST(MeasurableSpecRegistration, ReportsMissingUnitsInTheSecondSetOnly) {
    ParametersEngine engine = plant();
    const auto missing = engine.registerSchema(measurableSpecText("level", "z", {"y", "m", "y", "x"}, "discipline"));
    EXPECT_EQ(missing.first, TypeIds{"discipline"});
    EXPECT_EQ(missing.second, (TypeIds{"x", "y", "z"}));
}

TEST(MeasurableSpecRegistration, ReportsNothingThatIsPendingOrRegisteredOrBuiltIn) {
    ParametersEngine engine = plant();
    engine.getUnitsEngine().registerSchema(unitText("pending"));
    engine.registerSchema(disciplineText("pending discipline"));
    const auto missing = engine.registerSchema(
        measurableSpecText("level", "pending", {"m", "civil", "norvex.spec:discipline-1.0.0"}, "pending discipline"));
    EXPECT_EQ(missing.first, TypeIds{});
    EXPECT_EQ(missing.second, TypeIds{});
}

TEST(MeasurableSpecDependencies, AreTheDisciplineAndAllUnits) {
    EXPECT_EQ(
        engineOf({measurableSpecText("level", "s", {"mm", "m", "mm"}, "civil")}, plant()).getDependencies("level"),
        (TypeIds{"civil", "m", "mm", "s"}));
    EXPECT_EQ(engineOf({schemaText("level", base, nameOnly + ", " + storedInMetres)}, plant()).getDependencies("level"),
              (TypeIds{"m", "norvex.spec:discipline-1.0.0"}));
    ParametersEngine engine = plant();
    engine.registerMeasurableSpec(levelOf("m", {"s"}));
    EXPECT_EQ(engine.getDependencies("level"), (TypeIds{"m", "norvex.spec:discipline-1.0.0", "s"}));
}

const std::string written = R"({"typeid":"level","inherits":["norvex.spec:spec.measurable-2.0.0"],"constants":[)"
                            R"({"id":"name","value":"Level"},{"id":"storageUnit","typedValue":{"typeid":"m"}}]})";
const std::string writtenWithAll =
    R"({"typeid":"level","inherits":["norvex.spec:spec.measurable-2.0.0"],"constants":[)"
    R"({"id":"name","value":"Level"},{"id":"discipline","typedValue":{"typeid":"civil"}},)"
    R"({"id":"applicableUnits","typedValue":[{"typeid":"s"},{"typeid":"mm"},{"typeid":"s"}]},)"
    R"({"id":"storageUnit","typedValue":{"typeid":"m"}}]})";

std::string writtenOf(const MeasurableSpec& spec) {
    ParametersEngine engine = plant();
    engine.registerMeasurableSpec(spec);
    return engine.getSchema("level");
}

TEST(MeasurableSpec, IsWrittenWithoutApplicableUnitsWhenThereAreNone) {
    EXPECT_EQ(writtenOf(levelOf("m")), written);
    EXPECT_EQ(rewritten(plant(), "level",
                        schemaText("level", base,
                                   storedInMetres + ", " + typedConstants("applicableUnits", {}) + ", " + nameOnly)),
              written);
}

TEST(MeasurableSpec, IsWrittenWithItsConstantsInOneOrder) {
    EXPECT_EQ(writtenOf(levelOf("m", {"s", "mm", "s"}, "civil")), writtenWithAll);
}

TEST(MeasurableSpec, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    EXPECT_EQ(rewritten(plant(), "level",
                        schemaText("level", "norvex.spec:spec.measurable-2.7.3",
                                   storedInMetres + R"(, {"id": "extra"}, )" + nameOnly)),
              written);
}

TEST(MeasurableSpec, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(plant(), "level", written), written);
    EXPECT_EQ(rewritten(plant(), "level", writtenWithAll), writtenWithAll);
}

TEST(MeasurableSpec, SurvivesTheRoundTripWithUnitsOfAnyBytes) {
    const std::string unit("u\0\xff", 3);
    const std::string text =
        "{\"typeid\":\"level\",\"inherits\":[\"norvex.spec:spec.measurable-2.0.0\"],\"constants\":["
        "{\"id\":\"name\",\"value\":\"Level\"},{\"id\":\"applicableUnits\",\"typedValue\":"
        "[{\"typeid\":\"u\\u0000\xff\"}]},{\"id\":\"storageUnit\",\"typedValue\":"
        "{\"typeid\":\"u\\u0000\xff\"}}]}";
    EXPECT_EQ(rewritten(engineWithUnits({unit}), "level", text), text);
}

} // namespace
