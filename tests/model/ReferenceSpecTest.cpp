#include <parameters/ReferenceSpec.h>

#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

// What reference specs have beyond their cores; see SpecCoreTest.cpp for those.

namespace {

using Parameters::Category;
using Parameters::MajorCategoryComponent;
using Parameters::ParametersEngine;
using Parameters::ReferenceSpec;
using Parameters::SpecCore;
using Parameters::SubCategoryComponent;
using Parameters::Taxon;
using Support::constant;
using Support::disciplineText;
using Support::domainText;
using Support::engineOf;
using Support::failureOf;
using Support::Fault;
using Support::majorCategoryText;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;
using Support::subCategoryText;
using Support::typedConstant;

using TypeIds = std::set<std::string>;

const std::string base = "norvex.spec:spec.reference-1.0.0";
const std::string nameOnly = R"({"id": "name", "value": "Gate"})";

/// Returns the text of the spec "gate", which names a discipline and a category.
std::string textNaming(const std::string& discipline, const std::string& category) {
    return schemaText("gate", base,
                      typedConstant("category", category) + ", " + typedConstant("discipline", discipline) + ", " +
                          nameOnly);
}

std::string textNaming(const std::string& category) { return textNaming("norvex.spec:discipline-1.0.0", category); }

Category categoryOf(const std::string& typeId) { return {typeId, "Mine", SubCategoryComponent("mine")}; }

/// Returns a spec "gate" made in code, with a discipline and a category that it makes up.
ReferenceSpec gateOf(const std::string& category, const std::string& discipline = "norvex.spec:discipline-1.0.0") {
    return {SpecCore("gate", "Gate", Taxon(discipline, "Mine")), categoryOf(category)};
}

/// An engine with the major category "gates", its subcategory "intake" and a discipline.
ParametersEngine plant() {
    ParametersEngine engine = engineOf({domainText("domain"), disciplineText("civil", "Civil Works")});
    engine.registerCategory(Category("gates", "Gates", MajorCategoryComponent(Taxon("domain", ""), {})));
    engine.registerCategory(Category("intake", "Intake Gates", SubCategoryComponent("gates")));
    return engine;
}

ReferenceSpec readFrom(const std::string& text) { return engineOf({text}, plant()).getReferenceSpec("gate"); }

TEST(ReferenceSpec, AnswersWhatItWasMadeFrom) {
    const ReferenceSpec spec(SpecCore("gate", "Gate", Taxon("civil", "Civil Works")), categoryOf("gates"));
    EXPECT_EQ(spec.getCore().getTypeId(), "gate");
    EXPECT_EQ(spec.getCore().getName(), "Gate");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Civil Works");
    ASSERT_TRUE(spec.getCategory().has_value());
    EXPECT_EQ(spec.getCategory()->getTypeId(), "gates");
    EXPECT_EQ(spec.getCategory()->getName(), "Mine");
}

TEST(ReferenceSpec, MayHaveNoCategory) {
    EXPECT_FALSE(ReferenceSpec(SpecCore("gate", "Gate"), std::nullopt).getCategory().has_value());
}

TEST(ReferenceSpec, EqualsAnotherOfItsTypeIdWhateverTheirCategories) {
    const ReferenceSpec without(SpecCore("gate", "A"), std::nullopt);
    const ReferenceSpec with(SpecCore("gate", "B"), categoryOf("gates"));
    EXPECT_TRUE(without == with);
    EXPECT_FALSE(without != with);
    EXPECT_FALSE(without < with);
    EXPECT_FALSE(without > with);
}

TEST(ReferenceSpec, HasPartsThatOutliveIt) {
    const auto core = [] { return gateOf("gates").getCore(); }();
    const auto category = [] { return gateOf("gates").getCategory(); }();
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(category->getName(), "Mine");
}

TEST(ReferenceSpec, HasNoCategoryByDefault) {
    EXPECT_FALSE(readFrom(schemaText("gate", base, nameOnly)).getCategory().has_value());
}

TEST(ReferenceSpec, HasTheCategoryOfItsSchema) {
    const ReferenceSpec spec = readFrom(textNaming("civil", "gates"));
    EXPECT_EQ(spec.getCore().getTypeId(), "gate");
    EXPECT_EQ(spec.getCore().getName(), "Gate");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Civil Works");
    EXPECT_EQ(spec.getCategory()->getTypeId(), "gates");
    EXPECT_EQ(spec.getCategory()->getName(), "Gates");
    EXPECT_TRUE(spec.getCategory()->getMajorCategoryComponent().has_value());
}

TEST(ReferenceSpec, MayHaveASubcategory) {
    EXPECT_EQ(readFrom(textNaming("intake")).getCategory()->getSubCategoryComponent()->getParentCategory(), "gates");
}

TEST(ReferenceSpec, HasTheCategoryResolvedWithIt) {
    const ParametersEngine engine =
        engineOf({textNaming("s"), subCategoryText("s", "t"), majorCategoryText("t", "d"), domainText("d")});
    EXPECT_EQ(engine.getReferenceSpec("gate").getCategory()->getSubCategoryComponent()->getParentCategory(), "t");
}

TEST(ReferenceSpec, TakesItsCategoryAsAPlainValueToo) {
    const std::string text = schemaText("gate", base, nameOnly + ", " + constant("category", R"({"typeid": "gates"})"));
    EXPECT_EQ(readFrom(text).getCategory()->getName(), "Gates");
}

TEST(ReferenceSpec, IsNotReadFromTheBaseOfFamilyTypes) {
    EXPECT_EQ(refusalOf(schemaText("gate", "norvex.talmo.spec:familyType-1.0.0", nameOnly)),
              "Inheritance from an unrecognized base schema.");
}

const std::vector<Fault> categoryFaults = {
    {"String", nameOnly + R"(, {"id": "category", "typedValue": "gates"})", "A typedValue must be an object."},
    {"Null", nameOnly + R"(, {"id": "category", "value": null})", "A typedValue must be an object."},
    {"Empty", nameOnly + R"(, {"id": "category", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"AnotherMember", nameOnly + R"(, {"id": "category", "typedValue": {"typeid": "gates", "value": {}}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"NoTypeId", nameOnly + R"(, {"id": "category", "typedValue": {"category": "gates"}})",
     "A typedValue did not contain a typeid attribute."},
    {"EmptyTypeId", nameOnly + R"(, {"id": "category", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"NumberAsTypeId", nameOnly + R"(, {"id": "category", "typedValue": {"typeid": 5}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"NoValue", nameOnly + R"(, {"id": "category"})",
     "A property definition must contain either a value or a typedValue."},
    {"NameBeforeCategory", R"({"id": "category", "typedValue": 5})", "Schema gate has an undefined name constant."},
    {"DisciplineBeforeCategory",
     nameOnly + R"(, {"id": "category", "typedValue": 5}, {"id": "discipline", "value": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
};

class RefusedReferenceSpec : public testing::TestWithParam<Fault> {};

TEST_P(RefusedReferenceSpec, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf(schemaText("gate", base, GetParam().text)), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Category, RefusedReferenceSpec, testing::ValuesIn(categoryFaults), Support::nameOfRow);

/// What a spec may name in vain, and the messages of the two ways to look for it.
struct Missing {
    const char* name;
    const char* discipline;
    const char* category;
    const char* whenBound;
    const char* whenResolved;
};

const Missing missingReferences[] = {
    {"BaseAsCategory", "civil", "norvex.talmo.category:majorCategory-1.0.0",
     "Could not find category with typeid norvex.talmo.category:majorCategory-1.0.0.",
     "Dependency norvex.talmo.category:majorCategory-1.0.0 in schema gate is missing or does not represent an object "
     "of the expected type."},
    {"DisciplineBeforeCategory", "y", "x", "Could not find discipline with typeid y.",
     "Dependency y in schema gate is missing or does not represent an object of the expected type."},
};

class ReferenceSpecThatNamesInVain : public testing::TestWithParam<Missing> {};

TEST_P(ReferenceSpecThatNamesInVain, IsNeitherRegisteredNorResolved) {
    ParametersEngine engine = plant();
    const ReferenceSpec spec = gateOf(GetParam().category, GetParam().discipline);
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerReferenceSpec(spec); }), GetParam().whenBound);
    engine.registerSchema(textNaming(GetParam().discipline, GetParam().category));
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

INSTANTIATE_TEST_SUITE_P(References, ReferenceSpecThatNamesInVain, testing::ValuesIn(missingReferences),
                         Support::nameOfRow);

TEST(ReferenceSpec, IsRefusedForItsTypeIdBeforeAllElse) {
    ParametersEngine engine = plant();
    const auto refusalOfTypeId = [&](const std::string& typeId) {
        return refusalBy(engine, [&] {
            engine.registerReferenceSpec(ReferenceSpec(SpecCore(typeId, "N", Taxon("x", "")), categoryOf("x")));
        });
    };
    EXPECT_EQ(refusalOfTypeId(""), "Typeid must not be empty.");
    EXPECT_EQ(refusalOfTypeId("gates"), "Schema with typeid gates is already registered.");
    EXPECT_EQ(refusalOfTypeId("norvex.talmo.spec:familyType-1.2.0"),
              "Schema with typeid norvex.talmo.spec:familyType-1.2.0 is already registered.");
}

TEST(ReferenceSpec, IsResolvedAfterItsCategory) {
    EXPECT_EQ(failureOf({textNaming("a"), subCategoryText("a", "x")}),
              "Dependency x in schema a is missing or does not represent an object of the expected type.");
}

TEST(ReferenceSpec, GetsTheRegisteredCategoryForTheOneItWasGiven) {
    ParametersEngine engine = plant();
    engine.registerReferenceSpec(gateOf("gates"));
    EXPECT_EQ(engine.getReferenceSpec("gate").getCategory()->getName(), "Gates");
    EXPECT_TRUE(engine.getReferenceSpec("gate").getCategory()->getMajorCategoryComponent().has_value());
    EXPECT_EQ(engine.getAllReferenceSpecs().at("gate").getCategory()->getName(), "Gates");
}

TEST(ReferenceSpec, StaysWithoutACategoryWhenItIsRegistered) {
    ParametersEngine engine;
    engine.registerReferenceSpec(ReferenceSpec(SpecCore("gate", "Gate"), std::nullopt));
    EXPECT_FALSE(engine.getReferenceSpec("gate").getCategory().has_value());
}

const std::string written =
    R"({"typeid":"gate","inherits":["norvex.spec:spec.reference-1.0.0"],"constants":[{"id":"name","value":"Gate"}]})";
const std::string writtenWithCategory =
    R"({"typeid":"gate","inherits":["norvex.spec:spec.reference-1.0.0"],"constants":[{"id":"name","value":"Gate"},)"
    R"({"id":"category","typedValue":{"typeid":"gates"}}]})";
const std::string writtenWithAll =
    R"({"typeid":"gate","inherits":["norvex.spec:spec.reference-1.0.0"],"constants":[{"id":"name","value":"Gate"},)"
    R"({"id":"discipline","typedValue":{"typeid":"civil"}},{"id":"category","typedValue":{"typeid":"gates"}}]})";

std::string writtenOf(const ReferenceSpec& spec) {
    ParametersEngine engine = plant();
    engine.registerReferenceSpec(spec);
    return engine.getSchema("gate");
}

TEST(ReferenceSpec, IsWrittenWithoutACategoryWhenItHasNone) {
    EXPECT_EQ(writtenOf(ReferenceSpec(SpecCore("gate", "Gate"), std::nullopt)), written);
}

TEST(ReferenceSpec, IsWrittenWithItsCategory) { EXPECT_EQ(writtenOf(gateOf("gates")), writtenWithCategory); }

TEST(ReferenceSpec, IsWrittenWithItsCategoryBehindItsDiscipline) {
    EXPECT_EQ(writtenOf(gateOf("gates", "civil")), writtenWithAll);
    EXPECT_EQ(rewritten(plant(), "gate", textNaming("civil", "gates")), writtenWithAll);
}

TEST(ReferenceSpec, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(plant(), "gate", written), written);
    EXPECT_EQ(rewritten(plant(), "gate", writtenWithCategory), writtenWithCategory);
    EXPECT_EQ(rewritten(plant(), "gate", writtenWithAll), writtenWithAll);
}

TEST(ReferenceSpec, SurvivesTheRoundTripWithACategoryOfAnyBytes) {
    ParametersEngine engine = plant();
    engine.registerCategory(Category(std::string("c\0\xff", 3), "", SubCategoryComponent("gates")));
    const std::string text = R"({"typeid":"gate","inherits":["norvex.spec:spec.reference-1.0.0"],"constants":[)"
                             R"({"id":"name","value":"Gate"},{"id":"category","typedValue":{"typeid":"c\u0000)"
                             "\xff\"}}]}";
    EXPECT_EQ(rewritten(engine, "gate", text), text);
}

TEST(BuiltInReferenceSpec, IsReferenceWithoutACategory) {
    for (const char* typeId : {"norvex.spec:spec.reference-1.0.0", "norvex.spec:spec.reference-1.4.0",
                               "my norvex.spec:spec.reference-1.x"}) {
        const ReferenceSpec spec = ParametersEngine().getReferenceSpec(typeId);
        EXPECT_EQ(spec.getCore().getTypeId(), typeId);
        EXPECT_EQ(spec.getCore().getName(), "Reference");
        EXPECT_EQ(spec.getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
        EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Common");
        EXPECT_FALSE(spec.getCategory().has_value());
    }
}

} // namespace
