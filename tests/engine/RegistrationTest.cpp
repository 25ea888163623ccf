#include "KindOperations.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::GeneralSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::messageOf;
using Support::pictureOf;

struct RegistrationOfEachKind : testing::TestWithParam<KindOperations> {
    std::string messageOfAdding(const std::string& typeId) {
        return messageOf<ValidationException>([&] { GetParam().add(engine, typeId, "2"); });
    }

    ParametersEngine engine;
};

TEST_P(RegistrationOfEachKind, RefusesTheEmptyTypeId) {
    EXPECT_EQ(messageOfAdding(""), "Typeid must not be empty.");
    EXPECT_TRUE(GetParam().typeIds(engine).empty());
}

TEST_P(RegistrationOfEachKind, RefusesATypeIdOfAnyKind) {
    for (const KindOperations& first : everyKind) {
        engine = ParametersEngine();
        first.add(engine, "x", "1");
        const std::string before = pictureOf(engine);
        EXPECT_EQ(messageOfAdding("x"), "Schema with typeid x is already registered.") << first.name;
        EXPECT_EQ(pictureOf(engine), before) << first.name;
    }
}

TEST_P(RegistrationOfEachKind, RefusesTheTypeIdOfAPendingSchemaOfAnyKind) {
    for (const KindOperations& first : everyKind) {
        engine = ParametersEngine();
        engine.registerSchema(first.text("x", "1"));
        EXPECT_EQ(messageOfAdding("x"), "Schema with typeid x is already registered.") << first.name;
        engine.resolveSchemas();
        EXPECT_EQ(first.contentOf(engine, "x"), "1") << first.name;
    }
}

TEST_P(RegistrationOfEachKind, RefusesTheTypeIdOfAUnit) {
    engine.getUnitsEngine().registerSchema(Support::unitText("x"));
    EXPECT_EQ(messageOfAdding("x"), "Schema with typeid x is already registered.");
    engine.getUnitsEngine().resolveSchemas();
    EXPECT_EQ(messageOfAdding("x"), "Schema with typeid x is already registered.");
    EXPECT_TRUE(GetParam().typeIds(engine).empty());
}

TEST_P(RegistrationOfEachKind, RefusesBuiltInIdentifiers) {
    EXPECT_EQ(messageOfAdding("norvex.spec:discipline-1.0.0"),
              "Schema with typeid norvex.spec:discipline-1.0.0 is already registered.");
    EXPECT_EQ(messageOfAdding("my norvex.talmo.spec:familyType-1.3"),
              "Schema with typeid my norvex.talmo.spec:familyType-1.3 is already registered.");
    EXPECT_TRUE(GetParam().typeIds(engine).empty());
}

TEST_P(RegistrationOfEachKind, TakesBasesThatAreNoBuiltInObjects) {
    GetParam().add(engine, "norvex.talmo.category:domain-1.0.0", "1");
    EXPECT_EQ(GetParam().contentOf(engine, "norvex.talmo.category:domain-1.0.0"), "1");
}

TEST_P(RegistrationOfEachKind, RefusesASchemaOfTheSameTypeIdAfterwards) {
    GetParam().add(engine, "x", "1");
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerSchema(Support::disciplineText("x")); }),
              "Schema with typeid x is already registered.");
}

TEST_P(RegistrationOfEachKind, LeavesPendingSchemasPending) {
    engine.registerSchema(Support::disciplineText("pending"));
    GetParam().add(engine, "x", "1");
    EXPECT_TRUE(engine.isRegistered("pending"));
    EXPECT_EQ(messageOf<Parameters::UnrecognizedIdentifierException>([&] { engine.getDiscipline("pending"); }),
              "Could not find discipline with typeid pending.");
}

struct RegistrationByName : RegistrationOfEachKind {};

TEST_P(RegistrationByName, TakesAnyName) {
    GetParam().add(engine, "x", "");
    EXPECT_EQ(GetParam().contentOf(engine, "x"), "");
}

INSTANTIATE_TEST_SUITE_P(Kinds, RegistrationOfEachKind, testing::ValuesIn(everyKind), Support::nameOfRow);
INSTANTIATE_TEST_SUITE_P(Kinds, RegistrationByName, testing::ValuesIn(kindsThat(&KindOperations::hasNames)),
                         Support::nameOfRow);

BoolParameter parameterIn(const Taxon& group, const BoolSpec& spec, const std::string& typeId = "p") {
    return {ParameterCore(typeId, "The parameter", group, "", "", false), spec};
}

BoolSpec boolSpecOf(const std::string& discipline) {
    return BoolSpec(SpecCore("s", "Spec", Taxon(discipline, "Mine")));
}

const BoolSpec builtInSpec(SpecCore("norvex.spec:spec.bool-1.0.0", "Yes/No"));
const Taxon builtInGroup("norvex.parameter:group-1.0.0", "Other");

/// An engine that holds one object of each kind, and one schema of each kind that others may name.
struct RegistrationOfReferences : testing::Test {
    RegistrationOfReferences() {
        engine.registerDiscipline(Taxon("discipline", "Registered"));
        engine.registerGroup(Taxon("group", "Registered"));
        engine.registerDomain(Taxon("domain", "Registered"));
        engine.registerBoolSpec(BoolSpec(SpecCore("bool spec", "Registered", Taxon("discipline", ""))));
        engine.registerGeneralSpec(GeneralSpec(SpecCore("general spec", "Registered")));
        engine.registerSchema(Support::disciplineText("pending discipline"));
        engine.registerSchema(Support::groupText("pending group"));
        engine.registerSchema(Support::boolSpecText("pending spec", "discipline"));
    }

    ParametersEngine engine;
};

struct Refusal {
    const char* name;
    void (*add)(ParametersEngine& engine);
    const char* message;
};

const Refusal refusals[] = {
    {"BoolSpecOfAnUnknownDiscipline", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("x")); },
     "Could not find discipline with typeid x."},
    {"BoolSpecOfAPendingDiscipline", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("pending discipline")); },
     "Could not find discipline with typeid pending discipline."},
    {"BoolSpecOfAGroup", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("group")); },
     "Could not find discipline with typeid group."},
    {"BoolSpecOfTheBuiltInGroup",
     [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("norvex.parameter:group-1.0.0")); },
     "Could not find discipline with typeid norvex.parameter:group-1.0.0."},
    {"BoolSpecOfItself", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("s")); },
     "Could not find discipline with typeid s."},
    {"BoolSpecOfTheEmptyTypeId", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("")); },
     "Could not find discipline with typeid ."},
    {"GeneralSpecOfAnUnknownDiscipline",
     [](ParametersEngine& e) { e.registerGeneralSpec(GeneralSpec(SpecCore("s", "Spec", Taxon("x", "")))); },
     "Could not find discipline with typeid x."},
    {"ParameterInAnUnknownGroup",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(Taxon("x", ""), builtInSpec)); },
     "Could not find group with typeid x."},
    {"ParameterInAPendingGroup",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(Taxon("pending group", ""), builtInSpec)); },
     "Could not find group with typeid pending group."},
    {"ParameterInADomain",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(Taxon("domain", ""), builtInSpec)); },
     "Could not find group with typeid domain."},
    {"ParameterInTheBuiltInDiscipline",
     [](ParametersEngine& e) {
         e.registerBoolParameter(parameterIn(Taxon("norvex.spec:discipline-1.0.0", ""), builtInSpec));
     },
     "Could not find group with typeid norvex.spec:discipline-1.0.0."},
    {"ParameterOfAnUnknownSpec",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(builtInGroup, BoolSpec(SpecCore("x", "")))); },
     "Could not find Boolean spec with typeid x."},
    {"ParameterOfAPendingSpec",
     [](ParametersEngine& e) {
         e.registerBoolParameter(parameterIn(builtInGroup, BoolSpec(SpecCore("pending spec", ""))));
     },
     "Could not find Boolean spec with typeid pending spec."},
    {"ParameterOfAGeneralSpec",
     [](ParametersEngine& e) {
         e.registerBoolParameter(parameterIn(builtInGroup, BoolSpec(SpecCore("general spec", ""))));
     },
     "Could not find Boolean spec with typeid general spec."},
    {"ParameterOfTheBuiltInIntegerSpec",
     [](ParametersEngine& e) {
         e.registerBoolParameter(parameterIn(builtInGroup, BoolSpec(SpecCore("norvex.spec:spec.int64-2.0.0", ""))));
     },
     "Could not find Boolean spec with typeid norvex.spec:spec.int64-2.0.0."},
    {"GroupBeforeSpec",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(Taxon("x", ""), BoolSpec(SpecCore("y", "")))); },
     "Could not find group with typeid x."},
    {"EmptyTypeIdBeforeReferences",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(Taxon("x", ""), BoolSpec(SpecCore("y", "")), "")); },
     "Typeid must not be empty."},
    {"KnownTypeIdBeforeReferences",
     [](ParametersEngine& e) {
         e.registerBoolParameter(parameterIn(Taxon("x", ""), BoolSpec(SpecCore("y", "")), "group"));
     },
     "Schema with typeid group is already registered."},
    {"KnownTypeIdOfASpecBeforeItsDiscipline",
     [](ParametersEngine& e) { e.registerBoolSpec(BoolSpec(SpecCore("domain", "", Taxon("x", "")))); },
     "Schema with typeid domain is already registered."},
};

class RefusedObject : public RegistrationOfReferences, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedObject, NamesTheFaultAndLeavesTheEngineAsItWas) {
    const std::string before = pictureOf(engine, {"p", "s", "x", "y", ""});
    EXPECT_EQ(messageOf<ValidationException>([&] { GetParam().add(engine); }), GetParam().message);
    EXPECT_EQ(pictureOf(engine, {"p", "s", "x", "y", ""}), before);
}

INSTANTIATE_TEST_SUITE_P(Registration, RefusedObject, testing::ValuesIn(refusals), Support::nameOfRow);

TEST_F(RegistrationOfReferences, KeepsTheDisciplineThatASpecWasMadeWith) {
    engine.registerBoolSpec(boolSpecOf("discipline"));
    const Taxon discipline = engine.getBoolSpec("s").getCore().getDiscipline();
    EXPECT_EQ(discipline.getTypeId(), "discipline");
    EXPECT_EQ(discipline.getName(), "Mine");
}

TEST_F(RegistrationOfReferences, KeepsTheBuiltInDisciplineThatASpecWasMadeWith) {
    engine.registerGeneralSpec(GeneralSpec(SpecCore("s", "Spec", Taxon("norvex.spec:discipline-1.7.0", "Mine"))));
    const Taxon discipline = engine.getGeneralSpec("s").getCore().getDiscipline();
    EXPECT_EQ(discipline.getTypeId(), "norvex.spec:discipline-1.7.0");
    EXPECT_EQ(discipline.getName(), "Mine");
}

TEST_F(RegistrationOfReferences, GivesAParameterTheRegisteredGroup) {
    engine.registerBoolParameter(parameterIn(Taxon("group", "Mine"), builtInSpec));
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Registered");
}

TEST_F(RegistrationOfReferences, GivesAParameterTheBuiltInGroupOfTheTypeIdThatItNames) {
    engine.registerBoolParameter(parameterIn(Taxon("norvex.parameter:group-1.7.0", "Mine"), builtInSpec));
    const Taxon group = engine.getBoolParameter("p").getCore().getGroup();
    EXPECT_EQ(group.getTypeId(), "norvex.parameter:group-1.7.0");
    EXPECT_EQ(group.getName(), "Other");
}

TEST_F(RegistrationOfReferences, GivesAParameterTheRegisteredSpec) {
    engine.registerBoolParameter(parameterIn(builtInGroup, BoolSpec(SpecCore("bool spec", "Mine", Taxon("x", "")))));
    const SpecCore spec = engine.getBoolParameter("p").getSpec().getCore();
    EXPECT_EQ(spec.getName(), "Registered");
    EXPECT_EQ(spec.getDiscipline().getTypeId(), "discipline");
}

TEST_F(RegistrationOfReferences, KeepsTheBuiltInSpecThatAParameterWasMadeWith) {
    engine.registerBoolParameter(
        parameterIn(builtInGroup, BoolSpec(SpecCore("norvex.spec:spec.bool-1.7.0", "Mine", Taxon("x", "Also mine")))));
    const SpecCore spec = engine.getBoolParameter("p").getSpec().getCore();
    EXPECT_EQ(spec.getTypeId(), "norvex.spec:spec.bool-1.7.0");
    EXPECT_EQ(spec.getName(), "Mine");
    EXPECT_EQ(spec.getDiscipline().getName(), "Also mine");
}

TEST_F(RegistrationOfReferences, TakesAnObjectOnceWhatItNamesIsThere) {
    const BoolParameter parameter = parameterIn(Taxon("pending group", ""), BoolSpec(SpecCore("pending spec", "")));
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.registerBoolParameter(parameter); }),
              "Could not find group with typeid pending group.");
    engine.resolveSchemas();
    engine.registerBoolParameter(parameter);
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getName(), "Name");
}

} // namespace
