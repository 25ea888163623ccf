#include <parameters/BoolSpec.h>

#include "support/Engines.h"
#include "support/Messages.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using Parameters::BoolSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::disciplineText;
using Support::engineOf;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;

TEST(BoolSpec, AnswersTheCoreItWasMadeFrom) {
    const SpecCore core = BoolSpec(SpecCore("open", "Open", Taxon("civil", "Civil Works"))).getCore();
    EXPECT_EQ(core.getTypeId(), "open");
    EXPECT_EQ(core.getName(), "Open");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "civil");
    EXPECT_EQ(core.getDiscipline().getName(), "Civil Works");
}

TEST(BoolSpec, HasACoreThatOutlivesIt) {
    const SpecCore core = [] { return BoolSpec(SpecCore("open", "Open")).getCore(); }();
    EXPECT_EQ(core.getTypeId(), "open");
    EXPECT_EQ(core.getName(), "Open");
}

TEST(BoolSpec, IsReadFromASchemaOfItsBase) {
    const ParametersEngine engine = engineOf({namedText("open", "norvex.spec:spec.bool-1.6.2", "Open")});
    EXPECT_EQ(engine.getBoolSpec("open").getCore().getName(), "Open");
    EXPECT_TRUE(engine.getAllGeneralSpecs().empty());
}

TEST(BoolSpec, IsReadFromABaseThatContainsThatOfGeneralSpecsToo) {
    const ParametersEngine engine =
        engineOf({namedText("open", "norvex.spec:spec-1.0.0 norvex.spec:spec.bool-1.0.0", "Open")});
    EXPECT_EQ(engine.getAllBoolSpecs().size(), 1U);
    EXPECT_TRUE(engine.getAllGeneralSpecs().empty());
}

TEST(BoolSpec, IsNotReadFromItsSecondMajorVersion) {
    EXPECT_EQ(refusalOf(namedText("open", "norvex.spec:spec.bool-2.0.0", "Open")),
              "Inheritance from an unrecognized base schema.");
}

TEST(BoolSpec, IsWrittenFromASchema) {
    const ParametersEngine engine = engineOf(
        {disciplineText("civil"),
         R"({"constants": [{"typedValue": {"typeid": "civil"}, "id": "discipline"}, {"value": "Open", "id": "name"}],
             "inherits": ["norvex.spec:spec.bool-1.0.0"], "typeid": "plant.spec:open-1.0.0"})"});
    EXPECT_EQ(engine.getSchema("plant.spec:open-1.0.0"),
              R"({"typeid":"plant.spec:open-1.0.0","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[)"
              R"({"id":"name","value":"Open"},{"id":"discipline","typedValue":{"typeid":"civil"}}]})");
}

TEST(BoolSpec, NamesItsDisciplineAsItsDependency) {
    EXPECT_EQ(engineOf({namedText("open", "norvex.spec:spec.bool-1.0.0", "Open")}).getDependencies("open"),
              (std::set<std::string>{"norvex.spec:discipline-1.0.0"}));
}

TEST(BoolSpec, IsMissedByItsKind) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getBoolSpec("x"); }),
              "Could not find Boolean spec with typeid x.");
}

TEST(BuiltInBoolSpec, IsYesNoOfTheCommonDiscipline) {
    const SpecCore core = ParametersEngine().getBoolSpec("norvex.spec:spec.bool-1.0.0").getCore();
    EXPECT_EQ(core.getTypeId(), "norvex.spec:spec.bool-1.0.0");
    EXPECT_EQ(core.getName(), "Yes/No");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST(BuiltInBoolSpec, KeepsTheTypeIdAskedFor) {
    const SpecCore core = ParametersEngine().getBoolSpec("my norvex.spec:spec.bool-1.4.0").getCore();
    EXPECT_EQ(core.getTypeId(), "my norvex.spec:spec.bool-1.4.0");
    EXPECT_EQ(core.getName(), "Yes/No");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
}

TEST(BuiltInBoolSpec, HasNoOtherMajorVersion) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>(
                  [] { ParametersEngine().getBoolSpec("norvex.spec:spec.bool-2.0.0"); }),
              "Could not find Boolean spec with typeid norvex.spec:spec.bool-2.0.0.");
}

} // namespace
