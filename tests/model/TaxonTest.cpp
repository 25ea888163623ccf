#include <parameters/Taxon.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using Parameters::ParametersEngine;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Support::awkwardStrings;
using Support::constant;
using Support::engineOf;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;

TEST(Taxon, AnswersWhatItWasMadeFrom) {
    const Taxon taxon("plant.group:safety-1.0.0", "Safety");
    EXPECT_EQ(taxon.getTypeId(), "plant.group:safety-1.0.0");
    EXPECT_EQ(taxon.getName(), "Safety");
}

TEST(Taxon, ChecksNothingOfWhatItIsMadeFrom) {
    const Taxon taxon("", "");
    EXPECT_EQ(taxon.getTypeId(), "");
    EXPECT_EQ(taxon.getName(), "");
}

class AwkwardTaxon : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardTaxon, KeepsItsBytes) {
    const Taxon taxon(GetParam().bytes, "x" + GetParam().bytes);
    EXPECT_EQ(taxon.getTypeId(), GetParam().bytes);
    EXPECT_EQ(taxon.getName(), "x" + GetParam().bytes);
}

TEST_P(AwkwardTaxon, IsWrittenWithItsBytes) {
    ParametersEngine engine;
    engine.registerGroup(Taxon(GetParam().bytes, GetParam().bytes));
    EXPECT_EQ(engine.getSchema(GetParam().bytes),
              R"({"typeid":")" + GetParam().escaped +
                  R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":")" +
                  GetParam().escaped + R"("}]})");
}

TEST_P(AwkwardTaxon, IsReadFromASchemaWithItsBytes) {
    const ParametersEngine engine =
        engineOf({namedText(GetParam().bytes, "norvex.parameter:group-1.0.0", GetParam().bytes)});
    EXPECT_EQ(engine.getGroup(GetParam().bytes).getTypeId(), GetParam().bytes);
    EXPECT_EQ(engine.getGroup(GetParam().bytes).getName(), GetParam().bytes);
}

TEST_P(AwkwardTaxon, SurvivesTheRoundTrip) {
    ParametersEngine engine;
    engine.registerDomain(Taxon(GetParam().bytes, GetParam().bytes));
    const std::string written = engine.getSchema(GetParam().bytes);
    EXPECT_EQ(rewritten(ParametersEngine(), GetParam().bytes, written), written);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardTaxon, testing::ValuesIn(awkwardStrings), Support::nameOfRow);

struct TaxonomyKind {
    const char* name;
    std::string prefix; // of the base, up to the minor version
    const char* missing;
    Taxon (ParametersEngine::*get)(const std::string&) const;
    std::map<std::string, Taxon> (ParametersEngine::*getAll)() const;
    void (ParametersEngine::*add)(const Taxon&);
};

class TaxonOfEachKind : public testing::TestWithParam<TaxonomyKind> {
protected:
    static std::string base() { return GetParam().prefix + "0.0"; }
    static Taxon found(const ParametersEngine& engine, const std::string& typeId) {
        return (engine.*GetParam().get)(typeId);
    }
    /// Returns a text of the kind with the given constants.
    static std::string textWith(const std::string& constants) { return schemaText("plant", base(), constants); }
};

TEST_P(TaxonOfEachKind, HasTheTypeIdAndNameOfItsSchema) {
    const ParametersEngine engine = engineOf({namedText("plant", base(), "Water Ways")});
    EXPECT_EQ(found(engine, "plant").getTypeId(), "plant");
    EXPECT_EQ(found(engine, "plant").getName(), "Water Ways");
}

TEST_P(TaxonOfEachKind, IsListedAmongItsKind) {
    const ParametersEngine engine = engineOf({namedText("plant", base(), "Water Ways")});
    const auto all = (engine.*GetParam().getAll)();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all.at("plant").getName(), "Water Ways");
}

TEST_P(TaxonOfEachKind, IsReadFromOtherMinorVersionsOfItsBase) {
    const ParametersEngine engine = engineOf({namedText("plant", GetParam().prefix + "9.3", "N")});
    EXPECT_EQ(found(engine, "plant").getName(), "N");
}

TEST_P(TaxonOfEachKind, IsReadFromABaseInsideALongerText) {
    const ParametersEngine engine = engineOf({namedText("plant", "a " + GetParam().prefix + " b", "N")});
    EXPECT_EQ(found(engine, "plant").getName(), "N");
}

TEST_P(TaxonOfEachKind, IsNotReadFromAnotherMajorVersionOfItsBase) {
    std::string other = base();
    other.replace(other.size() - 5, 1, "2");
    EXPECT_EQ(refusalOf(namedText("plant", other, "N")), "Inheritance from an unrecognized base schema.");
}

TEST_P(TaxonOfEachKind, IsNotReadFromAMajorVersionThatBeginsWithItsOwn) {
    std::string other = base();
    other.replace(other.size() - 5, 1, "10");
    EXPECT_EQ(refusalOf(namedText("plant", other, "N")), "Inheritance from an unrecognized base schema.");
}

TEST_P(TaxonOfEachKind, IsNotReadFromABaseWithoutItsVersion) {
    EXPECT_EQ(refusalOf(namedText("plant", GetParam().prefix.substr(0, GetParam().prefix.size() - 3), "N")),
              "Inheritance from an unrecognized base schema.");
}

TEST_P(TaxonOfEachKind, IsNotReadFromAnotherTaxon) {
    ParametersEngine engine = engineOf({namedText("parent", base(), "N")});
    EXPECT_EQ(messageOf<Parameters::ValidationException>([&] { engine.registerSchema(namedText("c", "parent", "N")); }),
              "Inheritance from an unrecognized base schema.");
}

TEST_P(TaxonOfEachKind, NeedsAName) {
    EXPECT_EQ(refusalOf(textWith("")), "Schema plant has an undefined name constant.");
}

TEST_P(TaxonOfEachKind, NeedsItsNameAmongTheConstants) {
    EXPECT_EQ(refusalOf(R"({"typeid": "plant", "inherits": [")" + base() +
                        R"("], "properties": [{"id": "name", "value": "N"}], "name": "N"})"),
              "Schema plant has an undefined name constant.");
}

TEST_P(TaxonOfEachKind, RefusesTheEmptyName) {
    EXPECT_EQ(refusalOf(textWith(constant("name", R"("")"))), "Expected a non-empty string.");
}

TEST_P(TaxonOfEachKind, RefusesANameThatIsNoString) {
    for (const char* value : {"null", "true", "5", "1.5", "[]", R"(["N"])", "{}", R"({"typeid": "N"})"}) {
        EXPECT_EQ(refusalOf(textWith(constant("name", value))), "Expected a non-empty string.") << value;
    }
}

TEST_P(TaxonOfEachKind, RefusesANameWithoutAValue) {
    EXPECT_EQ(refusalOf(textWith(R"({"id": "name"})")),
              "A property definition must contain either a value or a typedValue.");
}

TEST_P(TaxonOfEachKind, TakesItsNameFromATypedValueToo) {
    const ParametersEngine engine = engineOf({textWith(R"({"id": "name", "typedValue": "N"})")});
    EXPECT_EQ(found(engine, "plant").getName(), "N");
}

TEST_P(TaxonOfEachKind, IsRegisteredOnlyWhenItsSchemaIsSound) {
    ParametersEngine engine;
    EXPECT_THROW(engine.registerSchema(textWith("")), Parameters::ValidationException);
    engine.resolveSchemas();
    EXPECT_FALSE(engine.isRegistered("plant"));
    EXPECT_TRUE((engine.*GetParam().getAll)().empty());
}

TEST_P(TaxonOfEachKind, IsWrittenWithItsName) {
    ParametersEngine engine;
    (engine.*GetParam().add)(Taxon("plant", "Water Ways"));
    EXPECT_EQ(engine.getSchema("plant"), R"({"typeid":"plant","inherits":[")" + base() +
                                             R"("],"constants":[{"id":"name","value":"Water Ways"}]})");
}

TEST_P(TaxonOfEachKind, IsWrittenEvenWithAnEmptyName) {
    ParametersEngine engine;
    (engine.*GetParam().add)(Taxon("plant", ""));
    EXPECT_EQ(engine.getSchema("plant"),
              R"({"typeid":"plant","inherits":[")" + base() + R"("],"constants":[{"id":"name","value":""}]})");
}

TEST_P(TaxonOfEachKind, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    const std::string text = R"({"note": 5, "typeid": "plant", "inherits": [")" + GetParam().prefix + R"(7.1"],
        "constants": [{"id": "extra", "value": 5}, {"id": "name", "value": "N", "note": "x"}],
        "properties": [{"id": "p", "value": 1}]})";
    EXPECT_EQ(rewritten(ParametersEngine(), "plant", text),
              R"({"typeid":"plant","inherits":[")" + base() + R"("],"constants":[{"id":"name","value":"N"}]})");
}

TEST_P(TaxonOfEachKind, SurvivesTheRoundTrip) {
    const std::string written =
        R"({"typeid":"plant","inherits":[")" + base() + R"("],"constants":[{"id":"name","value":"N"}]})";
    EXPECT_EQ(rewritten(ParametersEngine(), "plant", written), written);
}

TEST_P(TaxonOfEachKind, IsMissedByItsKind) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([] { found(ParametersEngine(), "x"); }), GetParam().missing);
}

const TaxonomyKind taxonomyKinds[] = {
    {"Discipline", "norvex.spec:discipline-1.", "Could not find discipline with typeid x.",
     &ParametersEngine::getDiscipline, &ParametersEngine::getAllDisciplines, &ParametersEngine::registerDiscipline},
    {"Domain", "norvex.talmo.category:domain-1.", "Could not find domain with typeid x.", &ParametersEngine::getDomain,
     &ParametersEngine::getAllDomains, &ParametersEngine::registerDomain},
    {"Group", "norvex.parameter:group-1.", "Could not find group with typeid x.", &ParametersEngine::getGroup,
     &ParametersEngine::getAllGroups, &ParametersEngine::registerGroup},
};

INSTANTIATE_TEST_SUITE_P(Taxonomy, TaxonOfEachKind, testing::ValuesIn(taxonomyKinds), Support::nameOfRow);

TEST(BuiltInDiscipline, IsCommon) {
    const Taxon discipline = ParametersEngine().getDiscipline("norvex.spec:discipline-1.0.0");
    EXPECT_EQ(discipline.getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(discipline.getName(), "Common");
}

TEST(BuiltInDiscipline, KeepsTheTypeIdAskedFor) {
    const Taxon discipline = ParametersEngine().getDiscipline("my norvex.spec:discipline-1.2.7");
    EXPECT_EQ(discipline.getTypeId(), "my norvex.spec:discipline-1.2.7");
    EXPECT_EQ(discipline.getName(), "Common");
}

TEST(BuiltInDiscipline, HasNoOtherMajorVersion) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>(
                  [] { ParametersEngine().getDiscipline("norvex.spec:discipline-2.0.0"); }),
              "Could not find discipline with typeid norvex.spec:discipline-2.0.0.");
}

TEST(BuiltInGroup, IsOther) {
    const Taxon group = ParametersEngine().getGroup("norvex.parameter:group-1.0.0");
    EXPECT_EQ(group.getTypeId(), "norvex.parameter:group-1.0.0");
    EXPECT_EQ(group.getName(), "Other");
}

TEST(BuiltInGroup, KeepsTheTypeIdAskedFor) {
    const Taxon group = ParametersEngine().getGroup("my norvex.parameter:group-1.9.3");
    EXPECT_EQ(group.getTypeId(), "my norvex.parameter:group-1.9.3");
    EXPECT_EQ(group.getName(), "Other");
}

TEST(BuiltInGroup, HasNoOtherMajorVersion) {
    EXPECT_EQ(
        messageOf<UnrecognizedIdentifierException>([] { ParametersEngine().getGroup("norvex.parameter:group-2.0.0"); }),
        "Could not find group with typeid norvex.parameter:group-2.0.0.");
}

TEST(BuiltInDomain, DoesNotExist) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>(
                  [] { ParametersEngine().getDomain("norvex.talmo.category:domain-1.0.0"); }),
              "Could not find domain with typeid norvex.talmo.category:domain-1.0.0.");
}

} // namespace
