#include "support/Engines.h"
#include "support/Messages.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>

// What reference parameters name: a group and a spec or, for a family type, a category.

namespace {

using Parameters::Category;
using Parameters::MajorCategoryComponent;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::ReferenceParameter;
using Parameters::ReferenceSpec;
using Parameters::SpecCore;
using Parameters::SubCategoryComponent;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::domainText;
using Support::engineOf;
using Support::groupText;
using Support::majorCategoryText;
using Support::messageOf;
using Support::namedText;
using Support::quoted;
using Support::refusalBy;
using Support::schemaText;
using Support::subCategoryText;
using Support::typedConstant;

using TypeIds = std::set<std::string>;

const std::string other = "norvex.parameter:group-1.0.0";
const std::string familyType = "norvex.talmo.spec:familyType-1.0.0";

/// What a parameter names. A category is that of its family type.
struct Names {
    std::string group;
    std::string spec;
    std::optional<std::string> category;
};

/// Returns the text of the parameter "p".
std::string textOf(const Names& names, const std::string& base = "norvex.parameter:parameter.reference-2.0.0") {
    const std::string inner =
        names.category ? R"(, "typedValue": {"category": {"typeid": )" + quoted(*names.category) + "}}" : "";
    return schemaText("p", base,
                      R"({"id": "name", "value": "Name"}, )" + typedConstant("group", names.group) +
                          R"(, {"id": "spec", "typedValue": {"typeid": )" + quoted(names.spec) + inner + "}}");
}

/// Returns the parameter "p" made in code, with objects that it makes up.
ReferenceParameter objectOf(const Names& names, bool ranged = false) {
    std::optional<Category> category;
    if (names.category) {
        category = Category(*names.category, "Mine", SubCategoryComponent("mine"));
    }
    return {ParameterCore("p", "Name", Taxon(names.group, "Mine"), "", "", false),
            ReferenceSpec(SpecCore(names.spec, "Mine"), category), ranged};
}

/// An engine with a group, a category and a reference spec.
ParametersEngine plant() {
    ParametersEngine engine = engineOf({domainText("domain"), groupText("group", "Operation")});
    engine.registerCategory(Category("gates", "Gates", MajorCategoryComponent(Taxon("domain", ""), {})));
    engine.registerReferenceSpec(ReferenceSpec(SpecCore("spec", "Gate"), engine.getCategory("gates")));
    return engine;
}

ReferenceParameter resolved(const Names& names) {
    return engineOf({textOf(names)}, plant()).getReferenceParameter("p");
}

ReferenceParameter registered(const ReferenceParameter& parameter) {
    ParametersEngine engine = plant();
    engine.registerReferenceParameter(parameter);
    return engine.getReferenceParameter("p");
}

std::string specIdOf(const ReferenceParameter& parameter) { return parameter.getSpec().getCore().getTypeId(); }
std::string specNameOf(const ReferenceParameter& parameter) { return parameter.getSpec().getCore().getName(); }

TEST(ReferenceParameterResolution, FindsWhatIsResolvedWithIt) {
    const ParametersEngine engine =
        engineOf({textOf({"g", "z", {}}), Support::referenceSpecText("z", "c"), subCategoryText("c", "m"),
                  majorCategoryText("m", "d"), domainText("d"), groupText("g", "G")});
    const ReferenceParameter parameter = engine.getReferenceParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "G");
    EXPECT_EQ(parameter.getSpec().getCategory()->getSubCategoryComponent()->getParentCategory(), "m");
}

TEST(ReferenceParameterResolution, FindsTheCategoryOfAFamilyTypeResolvedWithIt) {
    const ParametersEngine engine =
        engineOf({textOf({other, familyType, "m"}), majorCategoryText("m", "d"), domainText("d")});
    EXPECT_EQ(engine.getReferenceParameter("p").getSpec().getCategory()->getTypeId(), "m");
}

TEST(ReferenceParameterResolution, KeepsTheTypeIdOfTheBuiltInSpecThatItsSchemaNames) {
    for (const char* typeId : {"norvex.spec:spec.reference-1.0.0", "norvex.spec:spec.reference-1.4.0",
                               "my norvex.spec:spec.reference-1.x"}) {
        const ReferenceParameter parameter = resolved({other, typeId, {}});
        EXPECT_EQ(specIdOf(parameter), typeId);
        EXPECT_EQ(specNameOf(parameter), "Reference");
        EXPECT_FALSE(parameter.getSpec().getCategory().has_value());
    }
}

TEST(ReferenceParameterResolution, KeepsTheTypeIdOfTheFamilyTypeThatItsSchemaNames) {
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.0.0", "norvex.talmo.spec:familyType-1.4.0",
                               "my norvex.talmo.spec:familyType-1.x"}) {
        const ReferenceParameter parameter = resolved({other, typeId, "gates"});
        EXPECT_EQ(specIdOf(parameter), typeId);
        EXPECT_EQ(specNameOf(parameter), "Family Type");
        EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Gates");
    }
}

TEST(ReferenceParameterBinding, GetsTheRegisteredObjectsForThoseItWasGiven) {
    const ReferenceParameter parameter = registered(objectOf({"group", "spec", "x"}, true));
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Operation");
    EXPECT_EQ(specNameOf(parameter), "Gate");
    EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Gates");
    EXPECT_TRUE(parameter.isRanged());
}

TEST(ReferenceParameterBinding, TakesTheFullBuiltInSpecForTypeIdsThatContainIt) {
    for (const char* typeId : {"norvex.spec:spec.reference-1.0.0", "norvex.spec:spec.reference-1.4.0",
                               "my norvex.spec:spec.reference-1.x"}) {
        for (const ReferenceParameter& parameter :
             {registered(objectOf({other, typeId, {}})), plant().readReferenceParameter(textOf({other, typeId, {}}))}) {
            EXPECT_EQ(specIdOf(parameter), "norvex.spec:spec.reference-1.0.0");
            EXPECT_EQ(specNameOf(parameter), "Reference");
            EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
            EXPECT_FALSE(parameter.getSpec().getCategory().has_value());
        }
    }
}

TEST(ReferenceParameterBinding, DropsTheCategoryThatABuiltInSpecWasGiven) {
    EXPECT_FALSE(
        registered(objectOf({other, "norvex.spec:spec.reference-1.0.0", "gates"})).getSpec().getCategory().has_value());
}

TEST(ReferenceParameterBinding, TakesTheFullFamilyTypeForTypeIdsThatContainIt) {
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.0.0", "norvex.talmo.spec:familyType-1.4.0",
                               "my norvex.talmo.spec:familyType-1.x"}) {
        for (const ReferenceParameter& parameter : {registered(objectOf({other, typeId, "gates"})),
                                                    plant().readReferenceParameter(textOf({other, typeId, "gates"}))}) {
            EXPECT_EQ(specIdOf(parameter), "norvex.talmo.spec:familyType-1.0.0");
            EXPECT_EQ(specNameOf(parameter), "Family Type");
            EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
            EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Gates");
        }
    }
}

TEST(ReferenceParameterBinding, KeepsTheFlagAndTheCore) {
    const std::string text = textOf({"group", "spec", {}}, "norvex.parameter:parameter.reference.ranged-2.1.0");
    EXPECT_TRUE(plant().readReferenceParameter(text).isRanged());
    EXPECT_EQ(plant().readReferenceParameter(text).getCore().getGroup().getName(), "Operation");
    EXPECT_FALSE(plant().readReferenceParameter(textOf({"group", "spec", {}})).isRanged());
    EXPECT_TRUE(registered(objectOf({other, "spec", {}}, true)).isRanged());
    EXPECT_EQ(registered(objectOf({other, "spec", {}})).getCore().getGroup().getName(), "Other");
}

TEST(ReferenceParameterBinding, WritesAndNamesWhatItGotByObject) {
    const ParametersEngine engine = plant();
    EXPECT_EQ(engine.getSchema(objectOf({other, "norvex.spec:spec.reference-1.4.0", {}}, true)),
              R"({"typeid":"p","inherits":["norvex.parameter:parameter.reference.ranged-2.0.0"],)"
              R"("constants":[{"id":"name","value":"Name"}]})");
    EXPECT_EQ(
        engine.getSchema(objectOf({"group", "norvex.talmo.spec:familyType-1.4.0", "gates"})),
        R"({"typeid":"p","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[)"
        R"({"id":"name","value":"Name"},{"id":"group","typedValue":{"typeid":"group"}},{"id":"spec","typedValue":)"
        R"({"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":{"category":{"typeid":"gates"}}}}]})");
    EXPECT_EQ(engine.getDependencies(objectOf({other, "norvex.spec:spec.reference-1.4.0", {}})),
              (TypeIds{other, "norvex.spec:spec.reference-1.0.0"}));
    EXPECT_EQ(engine.getDependencies(objectOf({"group", "norvex.talmo.spec:familyType-1.4.0", "gates"})),
              (TypeIds{"gates", "group", familyType}));
    EXPECT_EQ(engine.getDependencies(objectOf({"group", "spec", "x"})), (TypeIds{"group", "spec"}));
    EXPECT_TRUE(engine.getAllReferenceParameters().empty());
}

/// What a parameter may name in vain, and the messages of the two ways to look for it.
struct Missing {
    const char* name;
    Names names;
    const char* whenBound;
    const char* whenResolved;
};

const Missing missingReferences[] = {
    {"SpecOfAnotherMajorVersion",
     {"group", "norvex.spec:spec.reference-2.0.0", {}},
     "Could not find reference spec with typeid norvex.spec:spec.reference-2.0.0.",
     "Dependency norvex.spec:spec.reference-2.0.0 in schema p is missing or does not represent an object of the "
     "expected type."},
    {"FamilyTypeOfAnotherMajorVersion",
     {"group", "norvex.talmo.spec:familyType-2.0.0", {}},
     "Could not find reference spec with typeid norvex.talmo.spec:familyType-2.0.0.",
     "Dependency norvex.talmo.spec:familyType-2.0.0 in schema p is missing or does not represent an object of the "
     "expected type."},
    {"BuiltInBooleanSpec",
     {"group", "norvex.spec:spec.bool-1.0.0", {}},
     "Could not find reference spec with typeid norvex.spec:spec.bool-1.0.0.",
     "Dependency norvex.spec:spec.bool-1.0.0 in schema p is missing or does not represent an object of the expected "
     "type."},
    {"GroupBeforeSpec",
     {"y", "x", {}},
     "Could not find group with typeid y.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"Category",
     {"group", familyType, "x"},
     "Could not find category with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"SpecAsCategory",
     {"group", "norvex.talmo.spec:familyType-1.3.0", "spec"},
     "Could not find category with typeid spec.",
     "Dependency spec in schema p is missing or does not represent an object of the expected type."},
    {"ItselfAsCategory",
     {"group", familyType, "p"},
     "Could not find category with typeid p.",
     "Dependency p in schema p is missing or does not represent an object of the expected type."},
    {"GroupBeforeCategory",
     {"y", familyType, "x"},
     "Could not find group with typeid y.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
};

class ReferenceParameterThatNamesInVain : public testing::TestWithParam<Missing> {
protected:
    ReferenceParameterThatNamesInVain() {
        engine = engineOf({namedText("bool spec", "norvex.spec:spec.bool-1.0.0", "N")}, plant());
    }

    ReferenceParameter object() const { return objectOf(GetParam().names); }

    ParametersEngine engine;
};

TEST_P(ReferenceParameterThatNamesInVain, IsNotResolved) {
    engine.registerSchema(textOf(GetParam().names));
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

TEST_P(ReferenceParameterThatNamesInVain, IsNotRegistered) {
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerReferenceParameter(object()); }), GetParam().whenBound);
}

TEST_P(ReferenceParameterThatNamesInVain, IsNotRead) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.readReferenceParameter(textOf(GetParam().names)); }),
              GetParam().whenBound);
}

TEST_P(ReferenceParameterThatNamesInVain, IsNotWritten) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getSchema(object()); }), GetParam().whenBound);
}

TEST_P(ReferenceParameterThatNamesInVain, HasNoDependencies) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getDependencies(object()); }), GetParam().whenBound);
}

INSTANTIATE_TEST_SUITE_P(References, ReferenceParameterThatNamesInVain, testing::ValuesIn(missingReferences),
                         Support::nameOfRow);

TEST(ReferenceParameterBinding, MissesWhatIsOnlyPending) {
    ParametersEngine engine = plant();
    engine.registerSchema(majorCategoryText("pending category", "domain"));
    engine.registerSchema(Support::referenceSpecText("pending spec", "gates"));
    const auto refusal = [&](const Names& names) {
        return refusalBy(engine, [&] { engine.registerReferenceParameter(objectOf(names)); });
    };
    EXPECT_EQ(refusal({other, "pending spec", {}}), "Could not find reference spec with typeid pending spec.");
    EXPECT_EQ(refusal({other, familyType, "pending category"}),
              "Could not find category with typeid pending category.");
}

TEST(ReferenceParameterBinding, RefusesAFamilyTypeWithoutACategory) {
    ParametersEngine engine = plant();
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.0.0", "my norvex.talmo.spec:familyType-1.4.0"}) {
        const ReferenceParameter parameter = objectOf({"group", typeId, {}});
        EXPECT_EQ(refusalBy(engine, [&] { engine.registerReferenceParameter(parameter); }),
                  "Family Type parameter must specify a category.");
        EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter); }),
                  "Family Type parameter must specify a category.");
        EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter); }),
                  "Family Type parameter must specify a category.");
    }
}

TEST(ReferenceParameterBinding, MissesTheGroupBeforeTheCategoryThatAFamilyTypeLacks) {
    ParametersEngine engine = plant();
    EXPECT_EQ(refusalBy(engine,
                        [&] {
                            engine.registerReferenceParameter(objectOf({"x", familyType, {}}));
                        }),
              "Could not find group with typeid x.");
}

TEST(ReferenceParameterBinding, RefusesATypeIdBeforeAllElse) {
    ParametersEngine engine = engineOf({groupText("p")});
    const ReferenceParameter taken = objectOf({"x", familyType, {}});
    const ReferenceParameter unnamed(ParameterCore("", "Name", Taxon("x", ""), "", "", false), taken.getSpec(), false);
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerReferenceParameter(taken); }),
              "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(taken); }), "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(taken); }), "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine,
                        [&] {
                            engine.readReferenceParameter(textOf({"x", "y", {}}));
                        }),
              "Schema with typeid p is already registered.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerReferenceParameter(unnamed); }), "Typeid must not be empty.");
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(unnamed); }), "Typeid must not be empty.");
}

TEST(ReferenceParameterRegistration, ReportsTheCategoryOfAFamilyTypeButNotTheFamilyType) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(textOf({other, "norvex.talmo.spec:familyType-1.3.0", "gates"})).first,
              TypeIds{"gates"});
    EXPECT_EQ(plant().registerSchema(textOf({"group", familyType, "gates"})).first, TypeIds{});
}

TEST(ReferenceParameterDependencies, AreTheCategoryOfAFamilyTypeToo) {
    EXPECT_EQ(
        engineOf({textOf({"group", "norvex.talmo.spec:familyType-1.3.0", "gates"})}, plant()).getDependencies("p"),
        (TypeIds{"gates", "group", "norvex.talmo.spec:familyType-1.3.0"}));
}

} // namespace
