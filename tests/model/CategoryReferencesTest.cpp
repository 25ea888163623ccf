#include "support/Engines.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

// What categories name: domain and disciplines, or a parent; how that is found, in which order, and what is missing.

namespace {

using Parameters::Category;
using Parameters::MajorCategoryComponent;
using Parameters::ParametersEngine;
using Parameters::SubCategoryComponent;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::boolSpecText;
using Support::disciplineText;
using Support::domainText;
using Support::engineOf;
using Support::groupText;
using Support::majorCategoryText;
using Support::referenceSpecText;
using Support::refusalBy;
using Support::subCategoryText;

using TypeIds = std::set<std::string>;

Category majorOf(const std::string& typeId, const Taxon& domain, const std::vector<Taxon>& disciplines = {}) {
    return {typeId, "Name", MajorCategoryComponent(domain, disciplines)};
}

Category subOf(const std::string& typeId, const std::string& parent) {
    return {typeId, "Name", SubCategoryComponent(parent)};
}

MajorCategoryComponent majorIn(const ParametersEngine& engine, const std::string& typeId) {
    return engine.getCategory(typeId).getMajorCategoryComponent().value();
}

std::string parentIn(const ParametersEngine& engine, const std::string& typeId) {
    return engine.getCategory(typeId).getSubCategoryComponent().value().getParentCategory();
}

/// An engine with a domain, a discipline, the major category "major" and its subcategory "sub".
ParametersEngine plant() {
    return engineOf({domainText("domain", "Waterway"), disciplineText("civil", "Civil Works"), groupText("group"),
                     majorCategoryText("major", "domain"), subCategoryText("sub", "major")});
}

TEST(CategoryResolution, FindsDomainAndDisciplinesResolvedWithIt) {
    const ParametersEngine engine = engineOf({majorCategoryText("a", "d", {"e", "b"}), domainText("d", "D"),
                                              disciplineText("b", "B"), disciplineText("e", "E")});
    EXPECT_EQ(majorIn(engine, "a").getDomain().getName(), "D");
    EXPECT_EQ(majorIn(engine, "a").getDisciplines().at(0).getName(), "E");
    EXPECT_EQ(majorIn(engine, "a").getDisciplines().at(1).getName(), "B");
}

TEST(CategoryResolution, FindsAParentResolvedWithItWhateverTheirOrder) {
    const ParametersEngine engine =
        engineOf({subCategoryText("a", "m"), majorCategoryText("m", "d"), subCategoryText("z", "m"), domainText("d")});
    EXPECT_EQ(parentIn(engine, "a"), "m");
    EXPECT_EQ(parentIn(engine, "z"), "m");
}

struct Unresolvable {
    const char* name;
    std::vector<std::string> texts;
    const char* message;
};

const Unresolvable unresolvable[] = {
    {"NoSecondDiscipline",
     {majorCategoryText("c", "domain", {"civil", "x", "norvex.spec:discipline-1.0.0"})},
     "Dependency x in schema c is missing or does not represent an object of the expected type."},
    {"FirstOfTwoDisciplinesInTheirOrder",
     {majorCategoryText("c", "domain", {"y", "x"})},
     "Dependency y in schema c is missing or does not represent an object of the expected type."},
    {"DomainBeforeDisciplines",
     {majorCategoryText("c", "y", {"x"})},
     "Dependency y in schema c is missing or does not represent an object of the expected type."},
    {"RegisteredSubcategoryAsParent",
     {subCategoryText("c", "sub")},
     "Parent sub of subcategory schema c is not a major category."},
    {"SubcategoryOfTheBatchAsParentThatComesFirst",
     {subCategoryText("c", "b"), subCategoryText("b", "major")},
     "Parent b of subcategory schema c is not a major category."},
    {"SubcategoryOfTheBatchAsParentThatComesLater",
     {subCategoryText("d", "major"), subCategoryText("c", "d")},
     "Dependency d in schema c is missing or does not represent an object of the expected type."},
    {"SubcategoriesThatAreParentsOfEachOther",
     {subCategoryText("c", "d"), subCategoryText("d", "c")},
     "Dependency d in schema c is missing or does not represent an object of the expected type."},
    {"MajorCategoriesBeforeSubcategories",
     {subCategoryText("a", "x"), majorCategoryText("z", "y")},
     "Dependency y in schema z is missing or does not represent an object of the expected type."},
    {"MajorCategoryBeforeItsSubcategory",
     {subCategoryText("a", "z"), majorCategoryText("z", "y")},
     "Dependency y in schema z is missing or does not represent an object of the expected type."},
    {"MajorCategoriesInAscendingOrder",
     {majorCategoryText("b", "x"), majorCategoryText("a", "domain", {"x"}), majorCategoryText("c", "x")},
     "Dependency x in schema a is missing or does not represent an object of the expected type."},
    {"SubcategoriesInAscendingOrder",
     {subCategoryText("b", "x"), subCategoryText("a", "sub"), subCategoryText("c", "x")},
     "Parent sub of subcategory schema a is not a major category."},
    {"CategoriesBeforeSpecs",
     {boolSpecText("a", "x"), referenceSpecText("b", "x"), subCategoryText("z", "x")},
     "Dependency x in schema z is missing or does not represent an object of the expected type."},
    {"PendingReferenceSpecAsParent",
     {subCategoryText("c", "r"), referenceSpecText("r", "major")},
     "Dependency r in schema c is missing or does not represent an object of the expected type."},
};

class UnresolvableCategory : public testing::TestWithParam<Unresolvable> {};

TEST_P(UnresolvableCategory, FailsWithTheFirstFaultAndNothingIsResolved) {
    ParametersEngine engine = plant();
    for (const std::string& text : GetParam().texts) {
        engine.registerSchema(text);
    }
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Resolution, UnresolvableCategory, testing::ValuesIn(unresolvable), Support::nameOfRow);

TEST(CategoryResolution, SucceedsOnceWhatWasMissingIsThere) {
    ParametersEngine engine;
    engine.registerSchema(subCategoryText("a", "m"));
    engine.registerSchema(majorCategoryText("m", "d", {"e"}));
    EXPECT_THROW(engine.resolveSchemas(), ValidationException);
    engine.registerSchema(disciplineText("e"));
    engine.registerDomain(Taxon("d", "D"));
    engine.resolveSchemas();
    EXPECT_EQ(majorIn(engine, "m").getDomain().getName(), "D");
    EXPECT_EQ(parentIn(engine, "a"), "m");
}

TEST(CategoryResolution, BuildsManyOfBothSortsInOnePass) {
    ParametersEngine engine = engineOf({domainText("d")});
    for (int i = 99; i >= 0; --i) {
        engine.registerSchema(subCategoryText("a" + std::to_string(i), "m" + std::to_string(i)));
        engine.registerSchema(majorCategoryText("m" + std::to_string(i), "d"));
    }
    engine.resolveSchemas();
    ASSERT_EQ(engine.getAllCategories().size(), 200U);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(parentIn(engine, "a" + std::to_string(i)), "m" + std::to_string(i));
        EXPECT_EQ(majorIn(engine, "m" + std::to_string(i)).getDomain().getTypeId(), "d");
    }
}

TEST(CategoryRegistration, ReportsDomainAndDisciplinesThatAreMissing) {
    ParametersEngine engine = plant();
    const auto missing = engine.registerSchema(
        majorCategoryText("c", "x", {"z", "civil", "y", "norvex.spec:discipline-1.3.0", "z", "c"}));
    EXPECT_EQ(missing.first, (TypeIds{"x", "y", "z"}));
    EXPECT_EQ(missing.second, TypeIds{});
}

TEST(CategoryRegistration, ReportsTheBuiltInDomainAsMissing) {
    const auto missing =
        ParametersEngine().registerSchema(majorCategoryText("c", "norvex.talmo.category:domain-1.0.0"));
    EXPECT_EQ(missing.first, TypeIds{"norvex.talmo.category:domain-1.0.0"});
}

TEST(CategoryRegistration, ReportsNothingThatIsPendingOrRegistered) {
    ParametersEngine engine = plant();
    engine.registerSchema(domainText("pending"));
    engine.registerSchema(majorCategoryText("m", "pending", {"civil"}));
    EXPECT_EQ(engine.registerSchema(majorCategoryText("n", "pending", {"civil"})).first, TypeIds{});
    EXPECT_EQ(engine.registerSchema(subCategoryText("s", "m")).first, TypeIds{});
    EXPECT_EQ(engine.registerSchema(subCategoryText("t", "sub")).first, TypeIds{});
}

TEST(CategoryDependencies, AreTheSameForObjects) {
    ParametersEngine engine = plant();
    engine.registerCategory(
        majorOf("m", Taxon("domain", ""), {Taxon("civil", ""), Taxon("norvex.spec:discipline-1.0.0", "")}));
    engine.registerCategory(subOf("s", "m"));
    EXPECT_EQ(parentIn(engine, "s"), "m");
    EXPECT_EQ(engine.getDependencies("m"), (TypeIds{"civil", "domain", "norvex.spec:discipline-1.0.0"}));
    EXPECT_EQ(engine.getDependencies("s"), TypeIds{"m"});
}

TEST(CategoryBinding, GetsTheRegisteredDomainAndDisciplinesForThoseItWasGiven) {
    ParametersEngine engine = engineOf({disciplineText("a", "Access")}, plant());
    engine.registerCategory(majorOf("c", Taxon("domain", "Mine"), {Taxon("civil", "Mine"), Taxon("a", "Mine")}));
    EXPECT_EQ(majorIn(engine, "c").getDomain().getName(), "Waterway");
    EXPECT_EQ(majorIn(engine, "c").getDisciplines().at(0).getName(), "Civil Works");
    EXPECT_EQ(majorIn(engine, "c").getDisciplines().at(1).getName(), "Access");
    EXPECT_EQ(engine.getAllCategories().at("c").getMajorCategoryComponent()->getDomain().getName(), "Waterway");
}

TEST(CategoryBinding, TakesTheCommonDisciplineForTypeIdsThatContainTheBuiltInOne) {
    ParametersEngine engine = plant();
    engine.registerCategory(
        majorOf("c", Taxon("domain", ""),
                {Taxon("norvex.spec:discipline-1.0.0", "Mine"), Taxon("my norvex.spec:discipline-1.3.0", "Mine")}));
    const auto disciplines = majorIn(engine, "c").getDisciplines();
    EXPECT_EQ(disciplines.at(0).getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(disciplines.at(0).getName(), "Common");
    EXPECT_EQ(disciplines.at(1).getTypeId(), "my norvex.spec:discipline-1.3.0");
    EXPECT_EQ(disciplines.at(1).getName(), "Common");
}

struct Unbindable {
    const char* name;
    Category category;
    const char* message;
};

const Taxon known("domain", "Mine");
const Taxon x("x", "Mine");

const Unbindable unbindable[] = {
    {"BuiltInDomain", majorOf("c", Taxon("norvex.talmo.category:domain-1.0.0", "")),
     "Could not find domain with typeid norvex.talmo.category:domain-1.0.0."},
    {"NoSecondDiscipline", majorOf("c", known, {Taxon("civil", ""), x}), "Could not find discipline with typeid x."},
    {"FirstOfTwoDisciplinesInTheirOrder", majorOf("c", known, {Taxon("y", ""), x}),
     "Could not find discipline with typeid y."},
    {"DomainBeforeDisciplines", majorOf("c", Taxon("y", ""), {x}), "Could not find domain with typeid y."},
    {"ItselfAsParent", subOf("c", "c"), "Could not find category with typeid c."},
    {"EmptyParent", subOf("c", ""), "Could not find category with typeid ."},
    {"SubcategoryAsParent", subOf("c", "sub"), "Parent sub of subcategory c is not a major category."},
    {"PendingSubcategoryAsParent", subOf("c", "pending sub"), "Could not find category with typeid pending sub."},
    {"EmptyTypeIdBeforeDomain", majorOf("", x, {x}), "Typeid must not be empty."},
    {"EmptyTypeIdBeforeParent", subOf("", "sub"), "Typeid must not be empty."},
    {"TakenTypeIdBeforeDomain", majorOf("civil", x), "Schema with typeid civil is already registered."},
    {"TakenTypeIdBeforeParent", subOf("pending major", "sub"),
     "Schema with typeid pending major is already registered."},
};

class UnbindableCategory : public testing::TestWithParam<Unbindable> {};

TEST_P(UnbindableCategory, IsRefusedWithTheFirstFaultAndLeavesNoTrace) {
    ParametersEngine engine = plant();
    engine.registerSchema(domainText("pending domain"));
    engine.registerSchema(disciplineText("pending discipline"));
    engine.registerSchema(majorCategoryText("pending major", "domain"));
    engine.registerSchema(subCategoryText("pending sub", "major"));
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerCategory(GetParam().category); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Binding, UnbindableCategory, testing::ValuesIn(unbindable), Support::nameOfRow);

} // namespace
