#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using namespace std::string_literals;
using Parameters::ParametersEngine;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::boolSpecText;
using Support::disciplineText;
using Support::groupText;
using Support::messageOf;

struct Hostile {
    const char* name;
    std::string typeId;
};

const Hostile hostile[] = {
    {"Nul", "\0"s},
    {"NulInside", "a\0b"s},
    {"NulAtTheEnd", "a\0"s},
    {"Quotes", R"("})"},
    {"Backslash", R"(\n\)"},
    {"ControlBytes", "\x01\x1f\n\r\t\x7f"},
    {"NoUtf8", "\xff\xfe\x80"},
    {"Blank", " "},
    {"AMillionBytes", std::string(1'000'000, 'x')},
    {"ManyNuls", std::string(100'000, '\0')},
    {"LongerThanOthersByOneNul", "x\0"s},
    {"NearlyBuiltIn", "norvex.spec:discipline-1\0.0.0"s},
};

struct HostileTypeId : testing::TestWithParam<Hostile> {
    HostileTypeId() : typeId(GetParam().typeId) {}

    const std::string typeId;
    ParametersEngine engine;
};

TEST_P(HostileTypeId, IsFoundInEveryKind) {
    Parameters::forEachKind([&](auto kind) {
        using Kind = decltype(kind);
        engine = ParametersEngine();
        Support::addSample<Kind>(engine, "x", "1");
        Support::addSample<Kind>(engine, typeId, "2");
        EXPECT_EQ(Support::contentIn<Kind>(engine, typeId), "2") << kind.info.id();
        EXPECT_EQ(Support::contentIn<Kind>(engine, "x"), "1") << kind.info.id();
        EXPECT_EQ(Support::typeIdsIn<Kind>(engine).size(), 2U) << kind.info.id();
        EXPECT_TRUE(engine.isRegistered(typeId)) << kind.info.id();
        EXPECT_FALSE(engine.isRegistered(typeId + '\0')) << kind.info.id();
    });
}

TEST_P(HostileTypeId, ResolvesFromATextThroughReferences) {
    engine.registerSchema(boolSpecText("spec", typeId));
    engine.registerSchema(disciplineText(typeId, "Hostile"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolSpec("spec").getCore().getDiscipline().getTypeId(), typeId);
    EXPECT_EQ(engine.getDiscipline(typeId).getName(), "Hostile");
    EXPECT_EQ(engine.getDependencies("spec"), std::set<std::string>{typeId});
}

TEST_P(HostileTypeId, IsReportedWholeAsMissing) {
    EXPECT_EQ(engine.registerSchema(boolSpecText("spec", typeId)).first, std::set<std::string>{typeId});
}

TEST_P(HostileTypeId, SurvivesExportAndReading) {
    engine.registerDiscipline(Taxon(typeId, "Hostile"));
    ParametersEngine other;
    other.registerSchemas({{typeId, engine.getSchema(typeId)}});
    EXPECT_EQ(other.getDiscipline(typeId).getName(), "Hostile");
    EXPECT_EQ(other.getSchema(typeId), engine.getSchema(typeId));
}

TEST_P(HostileTypeId, IsTakenOnce) {
    engine.registerSchema(groupText(typeId));
    EXPECT_THROW(engine.registerSchema(groupText(typeId)), ValidationException);
    EXPECT_THROW(engine.registerDomain(Taxon(typeId, "Name")), ValidationException);
}

INSTANTIATE_TEST_SUITE_P(Bytes, HostileTypeId, testing::ValuesIn(hostile), Support::nameOfRow);

TEST(Bytes, TypeIdsThatDifferAfterANulAreDifferent) {
    ParametersEngine engine;
    engine.registerGroup(Taxon("a\0b"s, "First"));
    engine.registerGroup(Taxon("a\0c"s, "Second"));
    engine.registerGroup(Taxon("a", "Third"));
    EXPECT_EQ(engine.getGroup("a\0b"s).getName(), "First");
    EXPECT_EQ(engine.getGroup("a\0c"s).getName(), "Second");
    EXPECT_EQ(engine.getGroup("a").getName(), "Third");
}

TEST(Bytes, OfTypeIdsStandBareInMessages) {
    const ParametersEngine engine;
    const std::string million(1'000'000, 'x');
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getGroup("\"\\\n\xff"); }),
              "Could not find group with typeid \"\\\n\xff.");
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getSchema(million); }),
              "Could not find any object with typeid " + million + ".");
}

TEST(Bytes, OfNamesAreKept) {
    ParametersEngine engine;
    engine.registerSchemas({{"d", disciplineText("d", "\0\"\\\x01\xff"s)}});
    EXPECT_EQ(engine.getDiscipline("d").getName(), "\0\"\\\x01\xff"s);
    EXPECT_EQ(
        engine.getSchema("d"),
        "{\"typeid\":\"d\",\"inherits\":[\"norvex.spec:discipline-1.0.0\"],\"constants\":[{\"id\":\"name\",\"value\":"
        "\"\\u0000\\\"\\\\\\u0001\xff\"}]}");
}

TEST(Bytes, OfBuiltInObjectsAreKept) {
    const std::string typeId = "\0norvex.spec:spec.bool-1.\0\""s;
    ParametersEngine engine;
    engine.registerSchema(boolParameterText("p", "norvex.parameter:group-1.0.0", typeId));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getBoolParameter("p").getSpec().getCore().getTypeId(), typeId);
    EXPECT_EQ(engine.getBoolSpec(typeId).getCore().getTypeId(), typeId);
}

TEST(Bytes, OfKeysOfABatchCount) {
    ParametersEngine engine;
    engine.registerGroup(Taxon("a", "Name"));
    engine.registerSchemas({{"a\0"s, groupText("a\0"s, "Another")}, {"a", "not read"}});
    EXPECT_EQ(engine.getGroup("a\0"s).getName(), "Another");
}

} // namespace
