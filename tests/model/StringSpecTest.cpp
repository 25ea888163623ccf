#include <parameters/StringSpec.h>

#include "support/Engines.h"
#include "support/Messages.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

// What string specs share with other specs is in SpecCoreTest.cpp.

namespace {

using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::StringSpec;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::disciplineText;
using Support::engineOf;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;

TEST(StringSpec, AnswersTheCoreItWasMadeFrom) {
    const SpecCore core = StringSpec(SpecCore("label", "Label", Taxon("mechanical", "Mechanical"))).getCore();
    EXPECT_EQ(core.getTypeId(), "label");
    EXPECT_EQ(core.getName(), "Label");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "mechanical");
    EXPECT_EQ(core.getDiscipline().getName(), "Mechanical");
}

TEST(StringSpec, IsReadFromASchemaOfItsBase) {
    const ParametersEngine engine = engineOf({namedText("label", "norvex.spec:spec.string-2.6.2", "Label")});
    EXPECT_EQ(engine.getStringSpec("label").getCore().getName(), "Label");
    EXPECT_EQ(engine.getAllStringSpecs().size(), 1U);
    EXPECT_TRUE(engine.getAllIntSpecs().empty());
}

TEST(StringSpec, IsNotReadFromItsFirstMajorVersion) {
    EXPECT_EQ(refusalOf(namedText("label", "norvex.spec:spec.string-1.0.0", "Label")),
              "Inheritance from an unrecognized base schema.");
}

TEST(StringSpec, IsReadFromABaseThatContainsThatOfGeneralSpecsAsAGeneralSpec) {
    const ParametersEngine engine =
        engineOf({namedText("label", "norvex.spec:spec.string-2.0.0 norvex.spec:spec-1.0.0", "Label")});
    EXPECT_EQ(engine.getAllGeneralSpecs().size(), 1U);
    EXPECT_TRUE(engine.getAllStringSpecs().empty());
}

TEST(StringSpec, ReportsItsDisciplineAsMissing) {
    ParametersEngine engine;
    const auto missing = engine.registerSchema(
        Support::schemaText("label", "norvex.spec:spec.string-2.0.0",
                            R"({"id": "name", "value": "Label"}, )" + Support::typedConstant("discipline", "mech")));
    EXPECT_EQ(missing.first, (std::set<std::string>{"mech"}));
    EXPECT_TRUE(missing.second.empty());
}

TEST(StringSpec, IsWrittenFromASchema) {
    const ParametersEngine engine = engineOf(
        {disciplineText("mechanical"),
         R"({"constants": [{"typedValue": {"typeid": "mechanical"}, "id": "discipline"}, {"value": "N", "id": "name"}],
             "inherits": ["norvex.spec:spec.string-2.8.0"], "typeid": "label"})"});
    EXPECT_EQ(engine.getSchema("label"),
              R"({"typeid":"label","inherits":["norvex.spec:spec.string-2.0.0"],"constants":[)"
              R"({"id":"name","value":"N"},{"id":"discipline","typedValue":{"typeid":"mechanical"}}]})");
}

TEST(StringSpec, NamesItsDisciplineAsItsDependency) {
    EXPECT_EQ(engineOf({namedText("label", "norvex.spec:spec.string-2.0.0", "N")}).getDependencies("label"),
              (std::set<std::string>{"norvex.spec:discipline-1.0.0"}));
}

TEST(StringSpec, IsMissedByItsKind) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getStringSpec("x"); }),
              "Could not find string spec with typeid x.");
}

TEST(BuiltInStringSpec, IsTextOfTheCommonDiscipline) {
    const SpecCore core = ParametersEngine().getStringSpec("norvex.spec:spec.string-2.0.0").getCore();
    EXPECT_EQ(core.getTypeId(), "norvex.spec:spec.string-2.0.0");
    EXPECT_EQ(core.getName(), "Text");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST(BuiltInStringSpec, KeepsTheTypeIdAskedFor) {
    const SpecCore core = ParametersEngine().getStringSpec("my norvex.spec:spec.string-2.4.0").getCore();
    EXPECT_EQ(core.getTypeId(), "my norvex.spec:spec.string-2.4.0");
    EXPECT_EQ(core.getName(), "Text");
}

TEST(BuiltInStringSpec, HasNoOtherMajorVersion) {
    for (const char* typeId : {"norvex.spec:spec.string-1.0.0", "norvex.spec:spec.string-3.0.0"}) {
        EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { ParametersEngine().getStringSpec(typeId); }),
                  std::string("Could not find string spec with typeid ") + typeId + ".");
    }
}

TEST(BuiltInStringSpec, IsListedAndWrittenNowhere) {
    const ParametersEngine engine;
    engine.getStringSpec("norvex.spec:spec.string-2.0.0");
    EXPECT_TRUE(engine.getAllStringSpecs().empty());
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getSchema("norvex.spec:spec.string-2.0.0"); }),
              "Could not find any object with typeid norvex.spec:spec.string-2.0.0.");
}

} // namespace
