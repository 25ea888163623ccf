#include "support/Messages.h"
#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <units/ValidationException.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using Parameters::ParametersEngine;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::groupText;
using Support::messageOf;
using Support::namedText;
using Support::pictureOf;
using Support::unitText;

TEST(RegisterSchemas, ResolvesByItself) {
    ParametersEngine engine;
    engine.registerSchemas({{"d", disciplineText("d", "Fire")}, {"g", groupText("g", "Doors")}});
    EXPECT_EQ(engine.getDiscipline("d").getName(), "Fire");
    EXPECT_EQ(engine.getGroup("g").getName(), "Doors");
}

TEST(RegisterSchemas, TakesSchemasThatNameLaterKeys) {
    ParametersEngine engine;
    engine.registerSchemas({{"1", boolParameterText("1", "4", "2")},
                            {"2", boolSpecText("2", "3")},
                            {"3", disciplineText("3", "Fire")},
                            {"4", groupText("4", "Doors")}});
    EXPECT_EQ(engine.getBoolParameter("1").getCore().getGroup().getName(), "Doors");
    EXPECT_EQ(engine.getBoolParameter("1").getSpec().getCore().getDiscipline().getName(), "Fire");
}

TEST(RegisterSchemas, ResolvesWhatWasPendingBefore) {
    ParametersEngine engine;
    engine.registerSchema(disciplineText("d", "Fire"));
    engine.registerSchemas({});
    EXPECT_EQ(engine.getDiscipline("d").getName(), "Fire");
}

TEST(RegisterSchemas, TakesTheSameBatchAgain) {
    const std::map<std::string, std::string> batch{
        {"d", disciplineText("d")}, {"s", boolSpecText("s", "d")}, {"u", unitText("u")}};
    ParametersEngine engine;
    engine.registerSchemas(batch);
    const std::string before = pictureOf(engine);
    engine.registerSchemas(batch);
    EXPECT_EQ(pictureOf(engine), before);
}

struct Skipped {
    const char* name;
    const char* key;
};

/// Keys that an engine with an object, a pending schema and units, resolved and not, knows.
struct SkippedEntry : testing::TestWithParam<Skipped> {
    SkippedEntry() {
        engine.registerDomain(Taxon("object", "Name"));
        engine.getUnitsEngine().registerSchema(unitText("unit"));
        engine.getUnitsEngine().resolveSchemas();
        engine.getUnitsEngine().registerSchema(unitText("pending unit"));
        engine.registerSchema(disciplineText("pending"));
    }

    ParametersEngine engine;
};

TEST_P(SkippedEntry, IsNeitherReadNorRegisteredUnderItsOwnTypeId) {
    engine.registerSchemas({{GetParam().key, "{no JSON"}});
    EXPECT_TRUE(engine.isRegistered(GetParam().key));
    engine.registerSchemas({{GetParam().key, disciplineText("inner")}});
    EXPECT_FALSE(engine.isRegistered("inner"));
}

const Skipped skipped[] = {{"Object", "object"},
                           {"Pending", "pending"},
                           {"Unit", "unit"},
                           {"PendingUnit", "pending unit"},
                           {"BuiltIn", "norvex.spec:spec.bool-1.0.0"},
                           {"BuiltInInsideALongerText", "our norvex.range:range.string-1.8 too"}};

INSTANTIATE_TEST_SUITE_P(RegisterSchemas, SkippedEntry, testing::ValuesIn(skipped), Support::nameOfRow);

TEST(RegisterSchemas, ReadsEntriesWhoseKeysAreFreeBases) {
    ParametersEngine engine;
    engine.registerSchemas({{"norvex.spec:spec-1.0.0", disciplineText("d", "Fire")}});
    EXPECT_EQ(engine.getDiscipline("d").getName(), "Fire");
}

TEST(RegisterSchemas, RegistersUnderTheTypeIdInTheText) {
    ParametersEngine engine;
    engine.registerSchemas({{"key", disciplineText("d", "Fire")}});
    EXPECT_EQ(engine.getDiscipline("d").getName(), "Fire");
    EXPECT_FALSE(engine.isRegistered("key"));
}

TEST(RegisterSchemas, ReadsAnEntryOfAnEmptyKey) {
    ParametersEngine engine;
    engine.registerSchemas({{"", disciplineText("d", "Fire")}});
    EXPECT_EQ(engine.getDiscipline("d").getName(), "Fire");
}

TEST(RegisterSchemas, SkipsAKeyThatAnEarlierEntryMadeKnown) {
    ParametersEngine engine;
    engine.registerSchemas({{"a", disciplineText("b", "From a")}, {"b", "{no JSON"}});
    EXPECT_EQ(engine.getDiscipline("b").getName(), "From a");
}

TEST(RegisterSchemas, GoesByAscendingKeys) {
    ParametersEngine engine;
    EXPECT_EQ(messageOf<ValidationException>([&] {
                  engine.registerSchemas({{"b", disciplineText("x", "From b")}, {"a", disciplineText("x", "From a")}});
              }),
              "Schema with typeid x is already registered.");
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDiscipline("x").getName(), "From a");
}

TEST(RegisterSchemas, RefusesATypeIdThatIsKnownUnderAnotherKey) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("d", "Name"));
    EXPECT_EQ(messageOf<ValidationException>([&] {
                  engine.registerSchemas({{"key", unitText("d")}});
              }),
              "Schema with typeid d is already registered.");
    EXPECT_FALSE(engine.getUnitsEngine().isRegistered("d"));
}

TEST(RegisterSchemas, LetsTheFirstExceptionThroughAndLooksNoFurther) {
    ParametersEngine engine;
    EXPECT_EQ(messageOf<ValidationException>([&] {
                  engine.registerSchemas({{"a", disciplineText("a")},
                                          {"b", disciplineText("b", "")},
                                          {"c", R"({"typeid": "c"})"},
                                          {"d", disciplineText("d")}});
              }),
              "Expected a non-empty string.");
    EXPECT_FALSE(engine.isRegistered("b"));
    EXPECT_FALSE(engine.isRegistered("d"));
}

TEST(RegisterSchemas, LeavesEntriesBeforeARefusedOnePending) {
    ParametersEngine engine;
    messageOf<ValidationException>([&] {
        engine.registerSchemas({{"a", disciplineText("a", "Fire")}, {"b", disciplineText("b", "")}});
    });
    EXPECT_TRUE(engine.isRegistered("a"));
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getDiscipline("a"); }),
              "Could not find discipline with typeid a.");
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDiscipline("a").getName(), "Fire");
}

TEST(RegisterSchemas, ResolvesNoUnitsWhenAnEntryIsRefused) {
    ParametersEngine engine;
    messageOf<ValidationException>([&] { engine.registerSchemas({{"a", unitText("a")}, {"b", "[]"}}); });
    EXPECT_TRUE(engine.getUnitsEngine().isRegistered("a"));
    EXPECT_TRUE(engine.getUnitsEngine().getAllUnits().empty());
}

TEST(RegisterSchemas, HandsUnitSchemasToTheUnitsEngineAndResolvesThem) {
    ParametersEngine engine;
    engine.registerSchemas({{"u", unitText("u", "Knot")}});
    EXPECT_EQ(engine.getUnitsEngine().getUnit("u").getName(), "Knot");
    EXPECT_TRUE(engine.isRegistered("u"));
}

TEST(RegisterSchemas, LetsExceptionsOfTheUnitsEngineThrough) {
    ParametersEngine engine;
    EXPECT_EQ(messageOf<Units::ValidationException>([&] {
                  engine.registerSchemas({{"u", unitText("u", "")}});
              }),
              "Expected a non-empty string.");
    EXPECT_FALSE(engine.isRegistered("u"));
}

TEST(RegisterSchemas, LeavesUnknownBasesToTheUnitsEngine) {
    ParametersEngine engine;
    EXPECT_EQ(messageOf<Units::ValidationException>([&] {
                  engine.registerSchemas({{"a", disciplineText("a")}, {"x", namedText("x", "some base", "Name")}});
              }),
              "Inheritance from an unrecognized base schema.");
    EXPECT_TRUE(engine.isRegistered("a"));
    EXPECT_FALSE(engine.isRegistered("x"));
}

TEST(RegisterSchemas, ReadsTheTextOfAUnitAsAnyOtherFirst) {
    ParametersEngine engine;
    EXPECT_EQ(messageOf<ValidationException>([&] {
                  engine.registerSchemas({{"u", R"({"typeid": "u"})"}});
              }),
              "Schema must specify an inheritance array.");
}

TEST(RegisterSchemas, LeavesEverythingPendingWhenResolutionFails) {
    ParametersEngine engine;
    EXPECT_EQ(messageOf<ValidationException>([&] {
                  engine.registerSchemas({{"g", groupText("g")}, {"s", boolSpecText("s", "d")}});
              }),
              "Dependency d in schema s is missing or does not represent an object of the expected type.");
    EXPECT_TRUE(engine.isRegistered("s"));
    EXPECT_TRUE(engine.getAllGroups().empty());
    engine.registerSchemas({{"d", disciplineText("d", "Fire")}});
    EXPECT_EQ(engine.getBoolSpec("s").getCore().getDiscipline().getName(), "Fire");
    EXPECT_EQ(engine.getGroup("g").getName(), "Name");
}

} // namespace
