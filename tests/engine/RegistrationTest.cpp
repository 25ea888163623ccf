#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>

namespace {

namespace Kinds = Parameters::Kinds;
using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::GeneralSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::messageOf;

template <class Kind>
struct RegistrationOfEachKind : testing::Test {
    void add(const std::string& typeId, const std::string& content = "1") {
        Support::addSample<Kind>(engine, typeId, content);
    }
    std::string contentOf(const std::string& typeId) const { return Support::contentIn<Kind>(engine, typeId); }

    /// Returns the message with which an object is refused, without a trace.
    std::string refusalOfAdding(const std::string& typeId) {
        Support::stock(engine, Support::mainShapeOf<Kind>());
        return Support::refusalBy(engine, [&] { add(typeId, "2"); });
    }

    ParametersEngine engine;
};

TYPED_TEST_SUITE(RegistrationOfEachKind, Support::TestedKinds<Kinds::All>, Support::NameOfKind);

TYPED_TEST(RegistrationOfEachKind, RefusesTheEmptyTypeId) {
    EXPECT_EQ(this->refusalOfAdding(""), "Typeid must not be empty.");
}

TYPED_TEST(RegistrationOfEachKind, RefusesATypeIdOfAnyKind) {
    Parameters::forEachKind([&](auto first) {
        this->engine = ParametersEngine();
        Support::addSample<decltype(first)>(this->engine, "x");
        EXPECT_EQ(this->refusalOfAdding("x"), "Schema with typeid x is already registered.") << first.info.id();
    });
}

TYPED_TEST(RegistrationOfEachKind, RefusesTheTypeIdOfAPendingSchemaOfAnyKind) {
    Parameters::forEachKind([&](auto first) {
        using First = decltype(first);
        this->engine = ParametersEngine();
        Support::stock(this->engine, Support::mainShapeOf<First>());
        this->engine.registerSchema(Support::sampleText<First>("x", "1"));
        EXPECT_EQ(this->refusalOfAdding("x"), "Schema with typeid x is already registered.") << first.info.id();
        this->engine.resolveSchemas();
        EXPECT_EQ(Support::contentIn<First>(this->engine, "x"), "1") << first.info.id();
    });
}

TYPED_TEST(RegistrationOfEachKind, RefusesTheTypeIdOfAUnit) {
    this->engine.getUnitsEngine().registerSchema(Support::unitText("x"));
    EXPECT_EQ(this->refusalOfAdding("x"), "Schema with typeid x is already registered.");
    this->engine.getUnitsEngine().resolveSchemas();
    EXPECT_EQ(this->refusalOfAdding("x"), "Schema with typeid x is already registered.");
}

TYPED_TEST(RegistrationOfEachKind, RefusesBuiltInIdentifiers) {
    EXPECT_EQ(this->refusalOfAdding("norvex.spec:discipline-1.0.0"),
              "Schema with typeid norvex.spec:discipline-1.0.0 is already registered.");
    EXPECT_EQ(this->refusalOfAdding("my norvex.talmo.spec:familyType-1.3"),
              "Schema with typeid my norvex.talmo.spec:familyType-1.3 is already registered.");
}

TYPED_TEST(RegistrationOfEachKind, TakesBasesThatAreNoBuiltInObjects) {
    this->add("norvex.talmo.category:domain-1.0.0");
    EXPECT_EQ(this->contentOf("norvex.talmo.category:domain-1.0.0"), "1");
}

TYPED_TEST(RegistrationOfEachKind, RefusesASchemaOfTheSameTypeIdAfterwards) {
    this->add("x");
    EXPECT_EQ(Support::refusalOf(this->engine, Support::disciplineText("x")),
              "Schema with typeid x is already registered.");
}

TYPED_TEST(RegistrationOfEachKind, LeavesPendingSchemasPending) {
    this->engine.registerSchema(Support::disciplineText("pending"));
    this->add("x");
    EXPECT_TRUE(this->engine.isRegistered("pending"));
    EXPECT_EQ(messageOf<Parameters::UnrecognizedIdentifierException>([&] { this->engine.getDiscipline("pending"); }),
              "Could not find discipline with typeid pending.");
}

TYPED_TEST(RegistrationOfEachKind, TakesAnyName) {
    if constexpr (Support::Sample<TypeParam>::hasName) {
        this->add("x", "");
        EXPECT_EQ(this->contentOf("x"), "");
    }
}

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
    {"BoolSpecOfTheBuiltInGroup",
     [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("norvex.parameter:group-1.0.0")); },
     "Could not find discipline with typeid norvex.parameter:group-1.0.0."},
    {"BoolSpecOfItself", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("s")); },
     "Could not find discipline with typeid s."},
    {"BoolSpecOfTheEmptyTypeId", [](ParametersEngine& e) { e.registerBoolSpec(boolSpecOf("")); },
     "Could not find discipline with typeid ."},
    {"GroupBeforeSpec",
     [](ParametersEngine& e) { e.registerBoolParameter(parameterIn(Taxon("x", ""), BoolSpec(SpecCore("y", "")))); },
     "Could not find group with typeid x."},
    {"KnownTypeIdOfASpecBeforeItsDiscipline",
     [](ParametersEngine& e) { e.registerBoolSpec(BoolSpec(SpecCore("domain", "", Taxon("x", "")))); },
     "Schema with typeid domain is already registered."},
};

class RefusedObject : public RegistrationOfReferences, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedObject, NamesTheFaultAndLeavesTheEngineAsItWas) {
    EXPECT_EQ(Support::refusalBy(engine, [&] { GetParam().add(engine); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Registration, RefusedObject, testing::ValuesIn(refusals), Support::nameOfRow);

TEST_F(RegistrationOfReferences, GivesAParameterTheRegisteredSpec) {
    engine.registerBoolParameter(parameterIn(builtInGroup, BoolSpec(SpecCore("bool spec", "Mine", Taxon("x", "")))));
    const SpecCore spec = engine.getBoolParameter("p").getSpec().getCore();
    EXPECT_EQ(spec.getName(), "Registered");
    EXPECT_EQ(spec.getDiscipline().getTypeId(), "discipline");
}

TEST_F(RegistrationOfReferences, LeavesTheParameterThatWasGivenAsItWas) {
    const BoolParameter parameter =
        parameterIn(Taxon("group", "Mine"), BoolSpec(SpecCore("bool spec", "Mine", Taxon("x", ""))));
    engine.getSchema(parameter);
    engine.registerBoolParameter(parameter);
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Mine");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Mine");
    EXPECT_EQ(engine.getBoolParameter("p").getCore().getGroup().getName(), "Registered");
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
