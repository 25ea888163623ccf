#include <parameters/GeneralSpec.h>

#include "support/Engines.h"
#include "support/Messages.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using Parameters::GeneralSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::disciplineText;
using Support::engineOf;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;

TEST(GeneralSpec, AnswersTheCoreItWasMadeFrom) {
    const SpecCore core = GeneralSpec(SpecCore("gate", "Gate Type", Taxon("civil", "Civil Works"))).getCore();
    EXPECT_EQ(core.getTypeId(), "gate");
    EXPECT_EQ(core.getName(), "Gate Type");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "civil");
    EXPECT_EQ(core.getDiscipline().getName(), "Civil Works");
}

TEST(GeneralSpec, HasACoreThatOutlivesIt) {
    const SpecCore core = [] { return GeneralSpec(SpecCore("gate", "Gate Type")).getCore(); }();
    EXPECT_EQ(core.getTypeId(), "gate");
    EXPECT_EQ(core.getName(), "Gate Type");
}

TEST(GeneralSpec, IsReadFromASchemaOfItsBase) {
    const ParametersEngine engine = engineOf({namedText("gate", "norvex.spec:spec-1.7.0", "Gate Type")});
    EXPECT_EQ(engine.getGeneralSpec("gate").getCore().getName(), "Gate Type");
    EXPECT_TRUE(engine.getAllBoolSpecs().empty());
}

TEST(GeneralSpec, IsNotReadFromTheBaseOfBooleanSpecs) {
    const ParametersEngine engine = engineOf({namedText("gate", "norvex.spec:spec.bool-1.0.0", "Gate Type")});
    EXPECT_TRUE(engine.getAllGeneralSpecs().empty());
}

TEST(GeneralSpec, IsNotReadFromItsSecondMajorVersion) {
    EXPECT_EQ(refusalOf(namedText("gate", "norvex.spec:spec-2.0.0", "Gate Type")),
              "Inheritance from an unrecognized base schema.");
}

TEST(GeneralSpec, IsWrittenFromASchema) {
    const ParametersEngine engine = engineOf(
        {disciplineText("civil"),
         R"({"constants": [{"typedValue": {"typeid": "civil"}, "id": "discipline"}, {"value": "Gate", "id": "name"}],
             "inherits": ["norvex.spec:spec-1.0.0"], "typeid": "plant.spec:gate-1.0.0"})"});
    EXPECT_EQ(engine.getSchema("plant.spec:gate-1.0.0"),
              R"({"typeid":"plant.spec:gate-1.0.0","inherits":["norvex.spec:spec-1.0.0"],"constants":[)"
              R"({"id":"name","value":"Gate"},{"id":"discipline","typedValue":{"typeid":"civil"}}]})");
}

TEST(GeneralSpec, NamesItsDisciplineAsItsDependency) {
    EXPECT_EQ(engineOf({namedText("gate", "norvex.spec:spec-1.0.0", "Gate Type")}).getDependencies("gate"),
              (std::set<std::string>{"norvex.spec:discipline-1.0.0"}));
}

TEST(GeneralSpec, IsMissedByItsKind) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getGeneralSpec("x"); }),
              "Could not find general spec with typeid x.");
}

TEST(GeneralSpec, HasNoBuiltInObject) {
    EXPECT_EQ(
        messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getGeneralSpec("norvex.spec:spec-1.0.0"); }),
        "Could not find general spec with typeid norvex.spec:spec-1.0.0.");
}

} // namespace
