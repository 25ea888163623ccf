#include <parameters/Category.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Categories as values, how their schemas are read and how they are written; for what they name see
// CategoryReferencesTest.cpp.

namespace {

using Parameters::Category;
using Parameters::MajorCategoryComponent;
using Parameters::ParametersEngine;
using Parameters::SubCategoryComponent;
using Parameters::Taxon;
using Support::awkwardStrings;
using Support::constant;
using Support::disciplineText;
using Support::domainText;
using Support::engineOf;
using Support::Fault;
using Support::majorCategoryText;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;
using Support::subCategoryText;
using Support::typedConstant;
using Support::typedConstants;

const std::string majorBase = "norvex.talmo.category:majorCategory-1.0.0";
const std::string subBase = "norvex.talmo.category:subCategory-1.0.0";
const std::string nameOnly = R"({"id": "name", "value": "Gates"})";
const std::string domain = typedConstant("domain", "waterway");
const std::string parent = typedConstant("parent", "gates");

const Category majorGates("gates", "Gates",
                          MajorCategoryComponent(Taxon("waterway", "Mine"), {Taxon("b", "Mine"), Taxon("a", "Mine")}));
const Category subGates("intake", "Intake Gates", SubCategoryComponent("gates"));

/// An engine with a domain and two disciplines.
ParametersEngine waterway() {
    return engineOf({domainText("waterway", "Waterway"), disciplineText("a", "A"), disciplineText("b", "B")});
}

/// An engine with the major category "gates" too.
ParametersEngine gates() { return engineOf({majorCategoryText("gates", "waterway")}, waterway()); }

/// Returns the category "gates" of a text.
Category readFrom(const std::string& text) { return engineOf({text}, waterway()).getCategory("gates"); }

TEST(Category, AnswersWhatAMajorOneWasMadeFrom) {
    EXPECT_EQ(majorGates.getTypeId(), "gates");
    EXPECT_EQ(majorGates.getName(), "Gates");
    ASSERT_TRUE(majorGates.getMajorCategoryComponent().has_value());
    EXPECT_EQ(majorGates.getMajorCategoryComponent()->getDomain().getTypeId(), "waterway");
    ASSERT_EQ(majorGates.getMajorCategoryComponent()->getDisciplines().size(), 2U);
    EXPECT_EQ(majorGates.getMajorCategoryComponent()->getDisciplines()[0].getTypeId(), "b");
    EXPECT_EQ(majorGates.getMajorCategoryComponent()->getDisciplines()[1].getTypeId(), "a");
}

TEST(Category, AnswersWhatASubcategoryWasMadeFrom) {
    EXPECT_EQ(subGates.getTypeId(), "intake");
    EXPECT_EQ(subGates.getName(), "Intake Gates");
    ASSERT_TRUE(subGates.getSubCategoryComponent().has_value());
    EXPECT_EQ(subGates.getSubCategoryComponent()->getParentCategory(), "gates");
}

TEST(Category, HasTheOneComponentOnly) {
    EXPECT_FALSE(majorGates.getSubCategoryComponent().has_value());
    EXPECT_FALSE(subGates.getMajorCategoryComponent().has_value());
}

TEST(Category, ChecksNothingOfWhatItIsMadeFrom) {
    const Category category("", "", SubCategoryComponent(""));
    EXPECT_EQ(category.getTypeId(), "");
    EXPECT_EQ(category.getName(), "");
    EXPECT_EQ(category.getSubCategoryComponent()->getParentCategory(), "");
}

TEST(Category, EqualsTheOtherSortOfCategoryWithItsTypeId) {
    const Category major("c", "Major", MajorCategoryComponent(Taxon("d", "D"), {}));
    const Category sub("c", "Sub", SubCategoryComponent("p"));
    EXPECT_TRUE(major == sub);
    EXPECT_FALSE(major != sub);
    EXPECT_FALSE(major < sub);
    EXPECT_FALSE(sub < major);
    EXPECT_FALSE(major > sub);
}

TEST(Category, HasPartsThatOutliveIt) {
    const auto component = [] {
        return Category("c", "C", MajorCategoryComponent(Taxon("d", "D"), {})).getMajorCategoryComponent();
    }();
    EXPECT_EQ(component->getDomain().getName(), "D");
}

TEST(Category, IsReadAsAMajorOne) {
    const Category category = readFrom(schemaText(
        "gates", majorBase, typedConstants("disciplines", {"b", "a", "b"}) + ", " + domain + ", " + nameOnly));
    EXPECT_EQ(category.getTypeId(), "gates");
    EXPECT_EQ(category.getName(), "Gates");
    ASSERT_TRUE(category.getMajorCategoryComponent().has_value());
    EXPECT_EQ(category.getMajorCategoryComponent()->getDomain().getName(), "Waterway");
    const auto disciplines = category.getMajorCategoryComponent()->getDisciplines();
    ASSERT_EQ(disciplines.size(), 3U);
    EXPECT_EQ(disciplines[0].getName(), "B");
    EXPECT_EQ(disciplines[1].getName(), "A");
    EXPECT_EQ(disciplines[2].getName(), "B");
    EXPECT_FALSE(category.getSubCategoryComponent().has_value());
}

TEST(Category, HasNoDisciplinesByDefault) {
    const Category category = readFrom(schemaText("gates", majorBase, nameOnly + ", " + domain));
    EXPECT_TRUE(category.getMajorCategoryComponent()->getDisciplines().empty());
}

TEST(Category, MayHaveAnEmptyListOfDisciplines) {
    EXPECT_TRUE(
        readFrom(majorCategoryText("gates", "waterway", {})).getMajorCategoryComponent()->getDisciplines().empty());
}

TEST(Category, IsReadAsASubcategory) {
    const Category category =
        engineOf({schemaText("intake", subBase, parent + ", " + nameOnly)}, gates()).getCategory("intake");
    EXPECT_EQ(category.getTypeId(), "intake");
    EXPECT_EQ(category.getName(), "Gates");
    ASSERT_TRUE(category.getSubCategoryComponent().has_value());
    EXPECT_EQ(category.getSubCategoryComponent()->getParentCategory(), "gates");
    EXPECT_FALSE(category.getMajorCategoryComponent().has_value());
}

TEST(Category, IsReadFromPlainValuesToo) {
    const Category major = readFrom(schemaText("gates", majorBase,
                                               nameOnly + ", " + constant("domain", R"({"typeid": "waterway"})") +
                                                   ", " + constant("disciplines", R"([{"typeid": "a"}])")));
    EXPECT_EQ(major.getMajorCategoryComponent()->getDisciplines().size(), 1U);
    const std::string sub =
        schemaText("intake", subBase, nameOnly + ", " + constant("parent", R"({"typeid": "gates"})"));
    EXPECT_EQ(engineOf({sub}, gates()).getCategory("intake").getSubCategoryComponent()->getParentCategory(), "gates");
}

TEST(Category, IsReadFromOtherMinorVersionsOfItsBases) {
    for (const char* version : {"9.3", "0.1", " and more"}) {
        const std::string major = "a norvex.talmo.category:majorCategory-1." + std::string(version);
        const std::string sub = "a norvex.talmo.category:subCategory-1." + std::string(version);
        EXPECT_TRUE(readFrom(schemaText("gates", major, nameOnly + ", " + domain)).getMajorCategoryComponent());
        EXPECT_TRUE(engineOf({schemaText("intake", sub, nameOnly + ", " + parent)}, gates())
                        .getCategory("intake")
                        .getSubCategoryComponent());
    }
}

TEST(Category, IsReadAsAMajorOneFromBothBases) {
    EXPECT_EQ(refusalOf(schemaText("c", subBase + " " + majorBase, nameOnly + ", " + parent)),
              "Schema c has an undefined domain constant.");
}

TEST(Category, IsNotReadFromOtherBases) {
    for (const char* base :
         {"norvex.talmo.category:majorCategory-2.0.0", "norvex.talmo.category:majorCategory-10.0.0",
          "norvex.talmo.category:subCategory-2.0.0", "norvex.talmo.category:subCategory-1",
          "norvex.talmo.category:majorcategory-1.0.0", "norvex.talmo.category:category-1.0.0", "gates"}) {
        EXPECT_EQ(refusalOf(schemaText("c", base, nameOnly)), "Inheritance from an unrecognized base schema.") << base;
    }
}

const std::vector<Fault> majorFaults = {
    {"NoName", domain, "Schema gates has an undefined name constant."},
    {"EmptyName", domain + R"(, {"id": "name", "value": ""})", "Expected a non-empty string."},
    {"NumberAsName", domain + R"(, {"id": "name", "value": 5})", "Expected a non-empty string."},
    {"NoDomain", nameOnly, "Schema gates has an undefined domain constant."},
    {"ParentInsteadOfDomain", nameOnly + ", " + parent, "Schema gates has an undefined domain constant."},
    {"StringAsDomain", nameOnly + R"(, {"id": "domain", "typedValue": "waterway"})", "A typedValue must be an object."},
    {"ArrayAsDomain", nameOnly + R"(, {"id": "domain", "typedValue": [{"typeid": "waterway"}]})",
     "A typedValue must be an object."},
    {"EmptyDomain", nameOnly + R"(, {"id": "domain", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"DomainWithAnotherMember", nameOnly + R"(, {"id": "domain", "typedValue": {"typeid": "waterway", "name": "N"}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"DomainWithoutATypeId", nameOnly + R"(, {"id": "domain", "typedValue": {"name": "N"}})",
     "A typedValue did not contain a typeid attribute."},
    {"DomainWithAnEmptyTypeId", nameOnly + R"(, {"id": "domain", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"DomainWithANumberAsTypeId", nameOnly + R"(, {"id": "domain", "typedValue": {"typeid": 5}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"DomainWithoutAValue", nameOnly + R"(, {"id": "domain"})",
     "A property definition must contain either a value or a typedValue."},
    {"ObjectAsDisciplines", nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": {"typeid": "a"}})",
     "Expected an array of typedValue objects."},
    {"StringAsDisciplines", nameOnly + ", " + domain + R"(, {"id": "disciplines", "value": "a"})",
     "Expected an array of typedValue objects."},
    {"NullAsDisciplines", nameOnly + ", " + domain + R"(, {"id": "disciplines", "value": null})",
     "Expected an array of typedValue objects."},
    {"StringAsADiscipline", nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": ["a"]})",
     "A typedValue must be an object."},
    {"EmptyDiscipline", nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": [{}]})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"DisciplineWithoutATypeId", nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": [{"name": "a"}]})",
     "A typedValue did not contain a typeid attribute."},
    {"DisciplineWithAnEmptyTypeId",
     nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": [{"typeid": ""}]})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"LaterDiscipline",
     nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": [{"typeid": "a"}, {"typeid": "b"}, 5]})",
     "A typedValue must be an object."},
    {"EarlierDisciplineFirst", nameOnly + ", " + domain + R"(, {"id": "disciplines", "typedValue": [{}, 5]})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"NameBeforeDisciplines", R"({"id": "disciplines", "value": 5}, {"id": "name", "value": ""})",
     "Expected a non-empty string."},
    {"NoNameBeforeDisciplines", R"({"id": "disciplines", "value": 5})", "Schema gates has an undefined name constant."},
    {"DisciplinesBeforeDomain", nameOnly + R"(, {"id": "domain", "value": 5}, {"id": "disciplines", "value": 5})",
     "Expected an array of typedValue objects."},
    {"DisciplinesBeforeNoDomain", nameOnly + R"(, {"id": "disciplines", "value": [5]})",
     "A typedValue must be an object."},
};

class RefusedMajorCategory : public testing::TestWithParam<Fault> {};

TEST_P(RefusedMajorCategory, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf(schemaText("gates", majorBase, GetParam().text)), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Constants, RefusedMajorCategory, testing::ValuesIn(majorFaults), Support::nameOfRow);

const std::vector<Fault> subFaults = {
    {"NoName", parent, "Schema intake has an undefined name constant."},
    {"EmptyName", parent + R"(, {"id": "name", "value": ""})", "Expected a non-empty string."},
    {"NoParent", nameOnly, "Schema intake has an undefined parent constant."},
    {"DomainInsteadOfParent", nameOnly + ", " + domain, "Schema intake has an undefined parent constant."},
    {"StringAsParent", nameOnly + R"(, {"id": "parent", "typedValue": "gates"})", "A typedValue must be an object."},
    {"EmptyParent", nameOnly + R"(, {"id": "parent", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"ParentWithAnotherMember", nameOnly + R"(, {"id": "parent", "typedValue": {"typeid": "gates", "value": {}}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"ParentWithoutATypeId", nameOnly + R"(, {"id": "parent", "typedValue": {"parent": "gates"}})",
     "A typedValue did not contain a typeid attribute."},
    {"ParentWithAnEmptyTypeId", nameOnly + R"(, {"id": "parent", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"NameBeforeParent", R"({"id": "parent", "value": 5}, {"id": "name", "value": ""})",
     "Expected a non-empty string."},
    {"NoNameBeforeNoParent", "", "Schema intake has an undefined name constant."},
};

class RefusedSubCategory : public testing::TestWithParam<Fault> {};

TEST_P(RefusedSubCategory, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf(schemaText("intake", subBase, GetParam().text)), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Constants, RefusedSubCategory, testing::ValuesIn(subFaults), Support::nameOfRow);

TEST(Category, ReadsOnlyTheConstantsOfItsSort) {
    const std::string major = schemaText("gates", majorBase, nameOnly + ", " + domain + R"(, {"id": "parent"})");
    EXPECT_EQ(readFrom(major).getName(), "Gates");
    const std::string sub = schemaText("intake", subBase, nameOnly + ", " + parent + R"(, {"id": "disciplines"})");
    EXPECT_EQ(engineOf({sub}, gates()).getCategory("intake").getName(), "Gates");
}

TEST(Category, IsListedAmongAllOfBothSorts) {
    const auto all = engineOf({subCategoryText("intake", "gates")}, gates()).getAllCategories();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_TRUE(all.at("gates").getMajorCategoryComponent().has_value());
    EXPECT_TRUE(all.at("intake").getSubCategoryComponent().has_value());
}

const std::string writtenMajor = R"({"typeid":"gates","inherits":["norvex.talmo.category:majorCategory-1.0.0"],)"
                                 R"("constants":[{"id":"name","value":"Gates"},)"
                                 R"({"id":"domain","typedValue":{"typeid":"waterway"}}]})";
const std::string writtenMajorWithDisciplines =
    R"({"typeid":"gates","inherits":["norvex.talmo.category:majorCategory-1.0.0"],"constants":[)"
    R"({"id":"name","value":"Gates"},{"id":"domain","typedValue":{"typeid":"waterway"}},)"
    R"({"id":"disciplines","typedValue":[{"typeid":"b"},{"typeid":"a"}]}]})";
const std::string writtenSub = R"({"typeid":"intake","inherits":["norvex.talmo.category:subCategory-1.0.0"],)"
                               R"("constants":[{"id":"name","value":"Intake Gates"},)"
                               R"({"id":"parent","typedValue":{"typeid":"gates"}}]})";

std::string writtenOf(const Category& category, ParametersEngine engine) {
    engine.registerCategory(category);
    return engine.getSchema(category.getTypeId());
}

TEST(Category, IsWrittenWithoutAnEmptyListOfDisciplines) {
    EXPECT_EQ(writtenOf(Category("gates", "Gates", MajorCategoryComponent(Taxon("waterway", "Mine"), {})), waterway()),
              writtenMajor);
    EXPECT_EQ(
        rewritten(waterway(), "gates",
                  schemaText("gates", majorBase, nameOnly + ", " + domain + ", " + typedConstants("disciplines", {}))),
        writtenMajor);
}

TEST(Category, IsWrittenWithItsDomainBeforeItsDisciplinesInTheirOrder) {
    EXPECT_EQ(writtenOf(majorGates, waterway()), writtenMajorWithDisciplines);
}

TEST(Category, IsWrittenWithABuiltInDiscipline) {
    const MajorCategoryComponent component(Taxon("waterway", "N"), {Taxon("norvex.spec:discipline-1.0.0", "Common"),
                                                                    Taxon("norvex.spec:discipline-1.3.0", "Common")});
    EXPECT_EQ(writtenOf(Category("gates", "", component), waterway()),
              R"({"typeid":"gates","inherits":["norvex.talmo.category:majorCategory-1.0.0"],"constants":[)"
              R"({"id":"name","value":""},{"id":"domain","typedValue":{"typeid":"waterway"}},)"
              R"({"id":"disciplines","typedValue":[{"typeid":"norvex.spec:discipline-1.0.0"},)"
              R"({"typeid":"norvex.spec:discipline-1.3.0"}]}]})");
}

TEST(Category, IsWrittenWithItsParent) { EXPECT_EQ(writtenOf(subGates, gates()), writtenSub); }

TEST(Category, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    EXPECT_EQ(rewritten(waterway(), "gates",
                        R"({"note": [], "properties": [{"id": "p", "value": 1}], "typeid": "gates", "inherits":
                            ["norvex.talmo.category:majorCategory-1.7.2"], "constants": [)" +
                            domain + R"(, {"id": "extra", "value": 5}, )" + nameOnly + "]}"),
              writtenMajor);
    EXPECT_EQ(rewritten(gates(), "intake",
                        schemaText("intake", "norvex.talmo.category:subCategory-1.7.2",
                                   parent + R"(, {"id": "extra"}, {"id": "name", "value": "Intake Gates"})")),
              writtenSub);
}

TEST(Category, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(waterway(), "gates", writtenMajor), writtenMajor);
    EXPECT_EQ(rewritten(waterway(), "gates", writtenMajorWithDisciplines), writtenMajorWithDisciplines);
    EXPECT_EQ(rewritten(gates(), "intake", writtenSub), writtenSub);
}

class AwkwardCategory : public testing::TestWithParam<Support::AwkwardString> {
protected:
    static const std::string& bytes() { return GetParam().bytes; }
    static const std::string& escaped() { return GetParam().escaped; }

    static ParametersEngine engineWithTaxa() {
        ParametersEngine engine;
        engine.registerDomain(Taxon("x" + bytes(), "X"));
        engine.registerDiscipline(Taxon("y" + bytes(), "Y"));
        return engine;
    }
    static Category major() {
        return {bytes(), bytes(), MajorCategoryComponent(Taxon("x" + bytes(), ""), {Taxon("y" + bytes(), "")})};
    }
    static std::string writtenMajor() {
        return R"({"typeid":")" + escaped() +
               R"(","inherits":["norvex.talmo.category:majorCategory-1.0.0"],"constants":[{"id":"name","value":")" +
               escaped() + R"("},{"id":"domain","typedValue":{"typeid":"x)" + escaped() +
               R"("}},{"id":"disciplines","typedValue":[{"typeid":"y)" + escaped() + R"("}]}]})";
    }
    static std::string writtenSub() {
        return R"({"typeid":"s)" + escaped() +
               R"(","inherits":["norvex.talmo.category:subCategory-1.0.0"],"constants":[{"id":"name","value":")" +
               escaped() + R"("},{"id":"parent","typedValue":{"typeid":")" + escaped() + R"("}}]})";
    }
};

TEST_P(AwkwardCategory, IsWrittenWithItsBytes) {
    ParametersEngine engine = engineWithTaxa();
    engine.registerCategory(major());
    EXPECT_EQ(engine.getSchema(bytes()), writtenMajor());
    engine.registerCategory(Category("s" + bytes(), bytes(), SubCategoryComponent(bytes())));
    EXPECT_EQ(engine.getSchema("s" + bytes()), writtenSub());
}

TEST_P(AwkwardCategory, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(engineWithTaxa(), bytes(), writtenMajor()), writtenMajor());
    const ParametersEngine engine = engineOf({writtenMajor()}, engineWithTaxa());
    EXPECT_EQ(rewritten(engine, "s" + bytes(), writtenSub()), writtenSub());
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardCategory, testing::ValuesIn(awkwardStrings), Support::nameOfRow);

} // namespace
