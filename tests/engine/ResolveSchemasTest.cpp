#include "support/Messages.h"
#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::domainText;
using Support::generalSpecText;
using Support::groupText;
using Support::messageOf;
using Support::pictureOf;

void registerAll(ParametersEngine& engine, const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        engine.registerSchema(text);
    }
}

std::string messageOfResolving(ParametersEngine& engine) {
    return messageOf<ValidationException>([&] { engine.resolveSchemas(); });
}

TEST(ResolveSchemas, MakesObjectsOfEveryKind) {
    ParametersEngine engine;
    registerAll(engine,
                {disciplineText("d", "The discipline"), domainText("m", "The domain"), groupText("g", "The group"),
                 boolSpecText("s", "d"), generalSpecText("t", "d"), boolParameterText("p", "g", "s")});
    engine.resolveSchemas();
    EXPECT_EQ(engine.getDiscipline("d").getName(), "The discipline");
    EXPECT_EQ(engine.getDomain("m").getName(), "The domain");
    EXPECT_EQ(engine.getGroup("g").getName(), "The group");
    EXPECT_EQ(engine.getBoolSpec("s").getCore().getDiscipline().getName(), "The discipline");
    EXPECT_EQ(engine.getGeneralSpec("t").getCore().getDiscipline().getName(), "The discipline");
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "The group");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getTypeId(), "s");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getDiscipline().getName(), "The discipline");
}

TEST(ResolveSchemas, DoesNotDependOnTheOrderOfRegistration) {
    // What is named has the later typeid, so that neither order helps the other.
    std::vector<std::string> texts{boolParameterText("1", "3", "2"), boolSpecText("2", "4"), groupText("3"),
                                   disciplineText("4")};
    std::set<std::string> pictures;
    std::sort(texts.begin(), texts.end());
    do {
        ParametersEngine engine;
        registerAll(engine, texts);
        engine.resolveSchemas();
        ASSERT_EQ(engine.getBoolParameter("1").getSpec().getCore().getDiscipline().getTypeId(), "4");
        pictures.insert(pictureOf(engine));
    } while (std::next_permutation(texts.begin(), texts.end()));
    EXPECT_EQ(pictures.size(), 1U);
}

TEST(ResolveSchemas, DoesNothingInAnEmptyEngine) {
    ParametersEngine engine;
    engine.resolveSchemas();
    EXPECT_EQ(pictureOf(engine), pictureOf(ParametersEngine()));
}

TEST(ResolveSchemas, DoesNothingTheSecondTime) {
    ParametersEngine engine;
    registerAll(engine, {disciplineText("d"), boolSpecText("s", "d")});
    engine.resolveSchemas();
    const std::string before = pictureOf(engine, {"d", "s"});
    engine.resolveSchemas();
    EXPECT_EQ(pictureOf(engine, {"d", "s"}), before);
}

TEST(ResolveSchemas, TakesWhatWasRegisteredSince) {
    ParametersEngine engine;
    registerAll(engine, {disciplineText("d", "Fire")});
    engine.resolveSchemas();
    registerAll(engine, {boolSpecText("s", "d"), disciplineText("e")});
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolSpec("s").getCore().getDiscipline().getName(), "Fire");
    EXPECT_EQ(engine.getAllDisciplines().size(), 2U);
}

TEST(ResolveSchemas, FindsObjectsThatWereMadeInCode) {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("d", "From code"));
    engine.registerGroup(Taxon("g", "From code"));
    engine.registerBoolSpec(BoolSpec(SpecCore("s", "From code", Taxon("d", "Given"))));
    registerAll(engine, {generalSpecText("t", "d"), boolParameterText("p", "g", "s")});
    engine.resolveSchemas();
    EXPECT_EQ(engine.getGeneralSpec("t").getCore().getDiscipline().getName(), "From code");
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "From code");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getName(), "From code");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getDiscipline().getName(), "Given");
}

TEST(ResolveSchemas, ResolvesUnits) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("u", "Knot"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getUnitsEngine().getUnit("u").getName(), "Knot");
}

TEST(ResolveSchemas, GivesDefaultsToWhatNamesNothing) {
    ParametersEngine engine;
    registerAll(engine, {Support::namedText("s", "norvex.spec:spec.bool-1.0.0", "Spec"),
                         Support::namedText("p", "norvex.parameter:parameter.bool-2.0.0", "Parameter")});
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolSpec("s").getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(engine.getBoolSpec("s").getCore().getDiscipline().getName(), "Common");
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getTypeId(), "norvex.parameter:group-1.0.0");
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Other");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getTypeId(), "norvex.spec:spec.bool-1.0.0");
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getName(), "Yes/No");
}

TEST(ResolveSchemas, KeepsTheTypeIdsOfBuiltInObjectsAsNamed) {
    ParametersEngine engine;
    registerAll(engine, {generalSpecText("t", "norvex.spec:discipline-1.3.0"),
                         boolParameterText("p", "our norvex.parameter:group-1.9", "norvex.spec:spec.bool-1.4.0")});
    engine.resolveSchemas();
    const Taxon discipline = engine.getGeneralSpec("t").getCore().getDiscipline();
    EXPECT_EQ(discipline.getTypeId(), "norvex.spec:discipline-1.3.0");
    EXPECT_EQ(discipline.getName(), "Common");
    const BoolParameter parameter = engine.getBoolParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getTypeId(), "our norvex.parameter:group-1.9");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Other");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.bool-1.4.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Yes/No");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
}

TEST(ResolveSchemas, HandsOutObjectsAsTheyWereBuilt) {
    ParametersEngine engine;
    registerAll(engine, {boolParameterText("p", "g", "norvex.spec:spec.bool-1.4.0"), groupText("g", "Doors")});
    engine.resolveSchemas();
    engine.registerSchemas({{"more", domainText("more")}});
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getTypeId(), "norvex.spec:spec.bool-1.4.0");
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Doors");
}

/// Returns a text with a constant that names "x".
std::string textNaming(const std::string& typeId, const std::string& base, const std::string& constant) {
    return Support::schemaText(typeId, base,
                               R"({"id": "name", "value": "Name"}, )" + Support::typedConstant(constant, "x"));
}

struct Fault {
    const char* name;
    std::vector<std::string> texts;
    const char* message;
};

const Fault faults[] = {
    {"GroupBeforeSpec",
     {boolParameterText("p", "y", "x")},
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"BoolSpecsBeforeGeneralSpecs",
     {generalSpecText("a", "x"), boolSpecText("b", "x")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"GeneralSpecsBeforeIntSpecs",
     {textNaming("a", "norvex.spec:spec.int64-2.0.0", "discipline"), generalSpecText("b", "x")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"CategoriesBeforeBoolSpecs",
     {boolSpecText("a", "x"), Support::subCategoryText("b", "x")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"IntSpecsBeforeMeasurableSpecs",
     {Support::measurableSpecText("a", "x"), textNaming("b", "norvex.spec:spec.int64-2.0.0", "discipline")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"MeasurableSpecsBeforeReferenceSpecs",
     {Support::referenceSpecText("a", "x"), Support::measurableSpecText("b", "x")},
     "Typeid x for storageUnit constant in measurable spec schema b does not belong to a unit."},
    {"ReferenceSpecsBeforeStringSpecs",
     {textNaming("a", "norvex.spec:spec.string-2.0.0", "discipline"), Support::referenceSpecText("b", "x")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"IntSpecsBeforeStringSpecs",
     {textNaming("a", "norvex.spec:spec.string-2.0.0", "discipline"),
      textNaming("b", "norvex.spec:spec.int64-2.0.0", "discipline")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"StringSpecsBeforeEnumerationParameters",
     {R"({"typeid": "a", "inherits": ["norvex.parameter:parameter-2.0.0"], "constants": [{"id": "name", "value": "N"},
          {"id": "spec", "typedValue": {"typeid": "x"}}],
          "properties": [{"id": "value", "typedValue": {"typeid": "x"}}]})",
      textNaming("b", "norvex.spec:spec.string-2.0.0", "discipline")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"EnumerationParametersBeforeBoolParameters",
     {boolParameterText("a", "x", "x"),
      R"({"typeid": "b", "inherits": ["norvex.parameter:parameter-2.0.0"], "constants": [{"id": "name", "value": "N"},
          {"id": "spec", "typedValue": {"typeid": "x"}}],
          "properties": [{"id": "value", "typedValue": {"typeid": "x"}}]})"},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"BoolParametersBeforeIntParameters",
     {textNaming("a", "norvex.parameter:parameter.int64-3.0.0", "group"), boolParameterText("b", "x", "x")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"IntParametersBeforeMeasurableParameters",
     {textNaming("a", "norvex.parameter:parameter.measurable-3.0.0", "spec"),
      textNaming("b", "norvex.parameter:parameter.int64-3.0.0", "group")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"MeasurableParametersBeforeReferenceParameters",
     {textNaming("a", "norvex.parameter:parameter.reference-2.0.0", "spec"),
      textNaming("b", "norvex.parameter:parameter.measurable-3.0.0", "spec")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"ReferenceParametersBeforeStringParameters",
     {textNaming("a", "norvex.parameter:parameter.string-3.0.0", "group"),
      textNaming("b", "norvex.parameter:parameter.reference.ranged-2.0.0", "spec")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"IntParametersBeforeStringParameters",
     {textNaming("a", "norvex.parameter:parameter.string-3.0.0", "group"),
      textNaming("b", "norvex.parameter:parameter.int64-3.0.0", "group")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"GeneralSpecsBeforeBoolParameters",
     {boolParameterText("a", "x", "x"), generalSpecText("b", "x")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
    {"AscendingTypeIdsWithinAKind",
     {boolSpecText("b", "x"), boolSpecText("a", "y"), boolSpecText("c", "z")},
     "Dependency y in schema a is missing or does not represent an object of the expected type."},
    {"TypeIdsInByteOrder",
     {boolSpecText("a", "x"), boolSpecText("B", "y"), boolSpecText("ab", "z")},
     "Dependency y in schema B is missing or does not represent an object of the expected type."},
    {"TheFaultRatherThanWhatFollowsFromIt",
     {boolParameterText("a", "norvex.parameter:group-1.0.0", "s"), boolSpecText("s", "x")},
     "Dependency x in schema s is missing or does not represent an object of the expected type."},
    {"FaultsAmongSoundSchemas",
     {boolSpecText("a", "d"), boolSpecText("b", "x"), disciplineText("d"), boolSpecText("c", "d")},
     "Dependency x in schema b is missing or does not represent an object of the expected type."},
};

struct FaultyResolution : testing::TestWithParam<Fault> {
    FaultyResolution() { registerAll(engine, GetParam().texts); }

    ParametersEngine engine;
};

TEST_P(FaultyResolution, SaysWhichDependencyOfWhichSchema) {
    EXPECT_EQ(messageOfResolving(engine), GetParam().message);
}

TEST_P(FaultyResolution, LeavesTheEngineAsItWas) {
    const std::set<std::string> typeIds{"a", "b", "c", "d", "g", "p", "q", "s", "t", "x", "y", "z", "B", "ab"};
    const std::string before = pictureOf(engine, typeIds);
    messageOfResolving(engine);
    EXPECT_EQ(pictureOf(engine, typeIds), before);
    Parameters::forEachKind([&](auto kind) { EXPECT_TRUE(kind.getAll(engine).empty()) << kind.info.id(); });
}

TEST_P(FaultyResolution, FailsInTheSameWayAgain) {
    messageOfResolving(engine);
    EXPECT_EQ(messageOfResolving(engine), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(ResolveSchemas, FaultyResolution, testing::ValuesIn(faults), Support::nameOfRow);

TEST(ResolveSchemas, FindsNoUnitsForWhatNamesOtherKinds) {
    ParametersEngine engine;
    engine.getUnitsEngine().registerSchema(Support::unitText("u"));
    engine.registerSchema(boolSpecText("s", "u"));
    EXPECT_EQ(messageOfResolving(engine),
              "Dependency u in schema s is missing or does not represent an object of the expected type.");
}

/// An engine whose schemas are sound but for a discipline that is missing.
struct ResolutionAfterAFault : testing::Test {
    ResolutionAfterAFault() {
        engine.registerDomain(Taxon("before", "Object"));
        registerAll(engine, {boolSpecText("s", "d"), groupText("g", "Doors"), boolParameterText("p", "g", "s")});
        engine.getUnitsEngine().registerSchema(Support::unitText("u", "Knot"));
        messageOfResolving(engine);
    }

    void expectEverything() const {
        EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getDiscipline().getName(), "Fire");
        EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Doors");
        EXPECT_EQ(engine.getAllGroups().size(), 1U);
        EXPECT_EQ(engine.getAllBoolSpecs().size(), 1U);
        EXPECT_EQ(engine.getDomain("before").getName(), "Object");
    }

    ParametersEngine engine;
};

TEST_F(ResolutionAfterAFault, SucceedsOnceTheMissingSchemaIsThere) {
    engine.registerSchema(disciplineText("d", "Fire"));
    engine.resolveSchemas();
    expectEverything();
}

TEST_F(ResolutionAfterAFault, SucceedsOnceTheMissingObjectIsThere) {
    engine.registerDiscipline(Taxon("d", "Fire"));
    engine.resolveSchemas();
    expectEverything();
}

TEST_F(ResolutionAfterAFault, SucceedsOnceTheMissingBatchIsThere) {
    engine.registerSchemas({{"d", disciplineText("d", "Fire")}});
    expectEverything();
}

TEST_F(ResolutionAfterAFault, StillReportsTheMissingTypeId) {
    EXPECT_EQ(engine.registerSchema(generalSpecText("t", "d")).first, std::set<std::string>{"d"});
}

TEST_F(ResolutionAfterAFault, StillRefusesTheTypeIdsThatArePending) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(groupText("g")); }),
              "Schema with typeid g is already registered.");
}

TEST_F(ResolutionAfterAFault, DoesNotUndoThatOfTheUnitsEngine) {
    EXPECT_EQ(engine.getUnitsEngine().getUnit("u").getName(), "Knot");
}

TEST(ResolveSchemas, FailsAfterSuccessWithoutTouchingWhatIsThere) {
    ParametersEngine engine;
    registerAll(engine, {disciplineText("d"), boolSpecText("s", "d")});
    engine.resolveSchemas();
    registerAll(engine, {groupText("g"), boolParameterText("p", "g", "x")});
    const std::string before = pictureOf(engine, {"d", "s", "g", "p", "x"});
    EXPECT_EQ(messageOfResolving(engine),
              "Dependency x in schema p is missing or does not represent an object of the expected type.");
    EXPECT_EQ(pictureOf(engine, {"d", "s", "g", "p", "x"}), before);
    EXPECT_EQ(engine.getAllBoolSpecs().size(), 1U);
}

TEST(ResolveSchemas, ResolvesManySchemasAtOnceAndInTurn) {
    ParametersEngine atOnce;
    ParametersEngine inTurn;
    for (int i = 0; i < 300; ++i) {
        const std::string number = std::to_string(i);
        for (const std::string& text :
             {disciplineText("d" + number, "Name " + number), groupText("g" + number),
              boolSpecText("s" + number, "d" + number), boolParameterText("p" + number, "g" + number, "s" + number)}) {
            atOnce.registerSchema(text);
            inTurn.registerSchema(text);
        }
        inTurn.resolveSchemas();
    }
    atOnce.resolveSchemas();
    EXPECT_EQ(pictureOf(atOnce), pictureOf(inTurn));
    EXPECT_EQ(atOnce.getAllBoolParameters().size(), 300U);
    EXPECT_EQ(atOnce.getBoolParameter("p299").getSpec().getCore().getDiscipline().getName(), "Name 299");
}

} // namespace
