#include <parameters/IntSpec.h>

#include "support/Engines.h"
#include "support/Messages.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

// What integer specs share with other specs is in SpecCoreTest.cpp.

namespace {

using Parameters::IntSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::disciplineText;
using Support::engineOf;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;

TEST(IntSpec, AnswersTheCoreItWasMadeFrom) {
    const SpecCore core = IntSpec(SpecCore("blades", "Blades", Taxon("mechanical", "Mechanical"))).getCore();
    EXPECT_EQ(core.getTypeId(), "blades");
    EXPECT_EQ(core.getName(), "Blades");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "mechanical");
    EXPECT_EQ(core.getDiscipline().getName(), "Mechanical");
}

TEST(IntSpec, IsReadFromASchemaOfItsBase) {
    const ParametersEngine engine = engineOf({namedText("blades", "norvex.spec:spec.int64-2.6.2", "Blades")});
    EXPECT_EQ(engine.getIntSpec("blades").getCore().getName(), "Blades");
    EXPECT_EQ(engine.getAllIntSpecs().size(), 1U);
    EXPECT_TRUE(engine.getAllStringSpecs().empty());
}

TEST(IntSpec, IsNotReadFromItsFirstMajorVersion) {
    EXPECT_EQ(refusalOf(namedText("blades", "norvex.spec:spec.int64-1.0.0", "Blades")),
              "Inheritance from an unrecognized base schema.");
}

TEST(IntSpec, IsReadFromABaseThatContainsThatOfGeneralSpecsAsAGeneralSpec) {
    const ParametersEngine engine =
        engineOf({namedText("blades", "norvex.spec:spec.int64-2.0.0 norvex.spec:spec-1.0.0", "Blades")});
    EXPECT_EQ(engine.getAllGeneralSpecs().size(), 1U);
    EXPECT_TRUE(engine.getAllIntSpecs().empty());
}

TEST(IntSpec, ReportsItsDisciplineAsMissing) {
    ParametersEngine engine;
    const auto missing = engine.registerSchema(
        Support::schemaText("blades", "norvex.spec:spec.int64-2.0.0",
                            R"({"id": "name", "value": "Blades"}, )" + Support::typedConstant("discipline", "mech")));
    EXPECT_EQ(missing.first, (std::set<std::string>{"mech"}));
    EXPECT_TRUE(missing.second.empty());
}

TEST(IntSpec, IsWrittenFromASchema) {
    const ParametersEngine engine = engineOf(
        {disciplineText("mechanical"),
         R"({"constants": [{"typedValue": {"typeid": "mechanical"}, "id": "discipline"}, {"value": "N", "id": "name"}],
             "inherits": ["norvex.spec:spec.int64-2.8.0"], "typeid": "blades"})"});
    EXPECT_EQ(engine.getSchema("blades"),
              R"({"typeid":"blades","inherits":["norvex.spec:spec.int64-2.0.0"],"constants":[)"
              R"({"id":"name","value":"N"},{"id":"discipline","typedValue":{"typeid":"mechanical"}}]})");
}

TEST(IntSpec, NamesItsDisciplineAsItsDependency) {
    EXPECT_EQ(engineOf({namedText("blades", "norvex.spec:spec.int64-2.0.0", "N")}).getDependencies("blades"),
              (std::set<std::string>{"norvex.spec:discipline-1.0.0"}));
}

TEST(IntSpec, IsMissedByItsKind) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getIntSpec("x"); }),
              "Could not find integer spec with typeid x.");
}

TEST(BuiltInIntSpec, IsIntegerOfTheCommonDiscipline) {
    const SpecCore core = ParametersEngine().getIntSpec("norvex.spec:spec.int64-2.0.0").getCore();
    EXPECT_EQ(core.getTypeId(), "norvex.spec:spec.int64-2.0.0");
    EXPECT_EQ(core.getName(), "Integer");
    EXPECT_EQ(core.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(core.getDiscipline().getName(), "Common");
}

TEST(BuiltInIntSpec, KeepsTheTypeIdAskedFor) {
    const SpecCore core = ParametersEngine().getIntSpec("my norvex.spec:spec.int64-2.4.0").getCore();
    EXPECT_EQ(core.getTypeId(), "my norvex.spec:spec.int64-2.4.0");
    EXPECT_EQ(core.getName(), "Integer");
}

TEST(BuiltInIntSpec, HasNoOtherMajorVersion) {
    for (const char* typeId : {"norvex.spec:spec.int64-1.0.0", "norvex.spec:spec.int64-3.0.0"}) {
        EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { ParametersEngine().getIntSpec(typeId); }),
                  std::string("Could not find integer spec with typeid ") + typeId + ".");
    }
}

TEST(BuiltInIntSpec, IsListedAndWrittenNowhere) {
    const ParametersEngine engine;
    engine.getIntSpec("norvex.spec:spec.int64-2.0.0");
    EXPECT_TRUE(engine.getAllIntSpecs().empty());
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getSchema("norvex.spec:spec.int64-2.0.0"); }),
              "Could not find any object with typeid norvex.spec:spec.int64-2.0.0.");
}

} // namespace
