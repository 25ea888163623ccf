#include <parameters/ReferenceParameter.h>

#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/Samples.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

// Reference parameters as values, how their schemas are read and written, and what they name: a spec or, for a family
// type, a category; for their cores see ParameterCoreTest.cpp.

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
using Support::constant;
using Support::domainText;
using Support::engineOf;
using Support::Fault;
using Support::groupText;
using Support::majorCategoryText;
using Support::quoted;
using Support::refusalBy;
using Support::rewritten;
using Support::schemaText;
using Support::typedConstant;

using TypeIds = std::set<std::string>;

const std::string base = "norvex.parameter:parameter.reference-2.0.0";
const std::string rangedBase = "norvex.parameter:parameter.reference.ranged-2.0.0";
const std::string nameOnly = R"({"id": "name", "value": "Gate"})";
const std::string familyType = "norvex.talmo.spec:familyType-1.0.0";
const std::string other = "norvex.parameter:group-1.0.0";

/// Returns a spec constant whose typedValue is given as JSON.
std::string specConstant(const std::string& typedValue) {
    return R"({"id": "spec", "typedValue": )" + typedValue + "}";
}

/// Returns a spec constant of a family type, whose inner typedValue is given as JSON.
std::string familyConstant(const std::string& inner, const std::string& typeId = familyType) {
    return specConstant(R"({"typeid": )" + quoted(typeId) + R"(, "typedValue": )" + inner + "}");
}

std::string textOf(const std::string& constants, const std::string& ofBase = base) {
    return schemaText("gate", ofBase, nameOnly + ", " + constants);
}

ParameterCore core(const std::string& typeId = "gate") { return {typeId, "Gate", "", "", false}; }

const Category gates("gates", "Mine", SubCategoryComponent("mine"));

/// An engine with a group, the category "gates" and the reference spec "any gate" of it.
ParametersEngine plant() {
    ParametersEngine engine = engineOf({domainText("domain"), groupText("safety", "Safety")});
    engine.registerCategory(Category("gates", "Gates", MajorCategoryComponent(Taxon("domain", ""), {})));
    engine.registerReferenceSpec(ReferenceSpec(SpecCore("any gate", "Any Gate"), gates));
    return engine;
}

ReferenceParameter readFrom(const std::string& text) { return engineOf({text}, plant()).getReferenceParameter("gate"); }

TEST(ReferenceParameter, AnswersWhatItWasMadeFrom) {
    const ReferenceParameter parameter(ParameterCore("gate", "Gate", Taxon("safety", "Safety"), "D", "S", true),
                                       ReferenceSpec(SpecCore("spec", "Spec", Taxon("civil", "Civil Works")), gates),
                                       true);
    EXPECT_EQ(parameter.getCore().getTypeId(), "gate");
    EXPECT_EQ(parameter.getCore().getName(), "Gate");
    EXPECT_EQ(parameter.getCore().getDescription(), "D");
    EXPECT_EQ(parameter.getCore().getSampleText(), "S");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Safety");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "spec");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Civil Works");
    EXPECT_EQ(parameter.getSpec().getCategory()->getTypeId(), "gates");
    EXPECT_TRUE(parameter.isRanged());
}

TEST(ReferenceParameter, HasTheSpecReferenceUnlessItIsGivenOne) {
    const ReferenceParameter parameter(core(), true);
    EXPECT_EQ(parameter.getCore().getTypeId(), "gate");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.reference-1.0.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Reference");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
    EXPECT_FALSE(parameter.getSpec().getCategory().has_value());
    EXPECT_TRUE(parameter.isRanged());
}

TEST(ReferenceParameter, HasTheSpecFamilyTypeWhenItIsGivenACategory) {
    const ReferenceParameter parameter(core(), gates, true);
    EXPECT_EQ(parameter.getCore().getTypeId(), "gate");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.talmo.spec:familyType-1.0.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Family Type");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
    EXPECT_EQ(parameter.getSpec().getCategory()->getTypeId(), "gates");
    EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Mine");
    EXPECT_TRUE(parameter.isRanged());
}

TEST(ReferenceParameter, MayBeUnranged) {
    EXPECT_FALSE(ReferenceParameter(core(), false).isRanged());
    EXPECT_FALSE(ReferenceParameter(core(), gates, false).isRanged());
    EXPECT_FALSE(ReferenceParameter(core(), ReferenceSpec(SpecCore("s", "S"), std::nullopt), false).isRanged());
}

TEST(ReferenceParameter, EqualsARangedOneOfItsTypeId) {
    const ReferenceParameter unranged(core(), false);
    const ReferenceParameter ranged(core(), gates, true);
    EXPECT_TRUE(unranged == ranged);
    EXPECT_FALSE(unranged != ranged);
    EXPECT_FALSE(unranged < ranged);
    EXPECT_FALSE(unranged > ranged);
}

TEST(ReferenceParameter, HasPartsThatOutliveIt) {
    const auto ofCore = [] { return ReferenceParameter(core(), gates, false).getCore(); }();
    const auto ofSpec = [] { return ReferenceParameter(core(), gates, false).getSpec(); }();
    EXPECT_EQ(ofCore.getName(), "Gate");
    EXPECT_EQ(ofSpec.getCategory()->getName(), "Mine");
}

TEST(ReferenceParameter, IsReadFromTheUnrangedBase) {
    EXPECT_FALSE(readFrom(schemaText("gate", base, nameOnly)).isRanged());
    EXPECT_FALSE(readFrom(schemaText("gate", "a norvex.parameter:parameter.reference-2.7.3", nameOnly)).isRanged());
}

TEST(ReferenceParameter, IsReadFromTheRangedBase) {
    EXPECT_TRUE(readFrom(schemaText("gate", rangedBase, nameOnly)).isRanged());
    EXPECT_TRUE(
        readFrom(schemaText("gate", "a norvex.parameter:parameter.reference.ranged-2.7.3", nameOnly)).isRanged());
}

TEST(ReferenceParameter, HasTheSpecOfItsSchema) {
    const ReferenceParameter parameter = readFrom(textOf(typedConstant("spec", "any gate")));
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Any Gate");
    EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Gates");
}

TEST(ReferenceParameter, TakesItsSpecAsAPlainValueToo) {
    EXPECT_EQ(readFrom(textOf(constant("spec", R"({"typeid": "any gate"})"))).getSpec().getCore().getName(),
              "Any Gate");
}

TEST(ReferenceParameter, HasTheFamilyTypeOfItsSchema) {
    const ReferenceSpec spec = readFrom(textOf(familyConstant(R"({"category": {"typeid": "gates"}})"))).getSpec();
    EXPECT_EQ(spec.getCore().getTypeId(), "norvex.talmo.spec:familyType-1.0.0");
    EXPECT_EQ(spec.getCore().getName(), "Family Type");
    EXPECT_EQ(spec.getCore().getDiscipline().getName(), "Common");
    EXPECT_EQ(spec.getCategory()->getName(), "Gates");
}

TEST(ReferenceParameter, IgnoresOtherMembersBesideItsSpec) {
    const std::string named = specConstant(R"({"note": 5, "typeid": "any gate", "category": {"typeid": "x"}})");
    EXPECT_EQ(readFrom(textOf(named)).getSpec().getCore().getName(), "Any Gate");
    const std::string family = specConstant(
        R"({"value": 5, "typedValue": {"note": 5, "category": {"typeid": "gates", "note": 5}}, "typeid": )" +
        quoted(familyType) + "}");
    EXPECT_EQ(readFrom(textOf(family)).getSpec().getCategory()->getName(), "Gates");
}

TEST(ReferenceParameter, TakesATypeIdWithBothBuiltInSpecsForAFamilyType) {
    const std::string both = "norvex.spec:spec.reference-1.0.0 norvex.talmo.spec:familyType-1.0.0";
    const ReferenceSpec spec = readFrom(textOf(familyConstant(R"({"category": {"typeid": "gates"}})", both))).getSpec();
    EXPECT_EQ(spec.getCore().getName(), "Family Type");
    EXPECT_EQ(spec.getCategory()->getName(), "Gates");
}

const char* const noTypeId =
    "Parameter schema gate must specify a typeid string attribute in its spec constant typedValue.";
const char* const noInner = "Inline typedValue override is required when specifying the family type base schema "
                            "norvex.talmo.spec:familyType-1.0.0 in spec constant typedValue.";
const char* const innerNoObject = "Inline typedValue override in spec constant typedValue must be an object.";
const char* const noCategory = "Inline typedValue override in spec constant typedValue must specify an object with a "
                               "typeid string attribute for constant category.";

const std::vector<Fault> specFaults = {
    {"Empty", specConstant("{}"), noTypeId},
    {"NoTypeId", specConstant(R"({"value": {}, "typedValue": 5})"), noTypeId},
    {"TypeIdInOtherCase", specConstant(R"({"typeId": "any gate"})"), noTypeId},
    {"String", specConstant(R"("any gate")"), noTypeId},
    {"Null", specConstant("null"), noTypeId},
    {"Array", specConstant(R"([{"typeid": "any gate"}])"), noTypeId},
    {"PlainValueFirst", R"({"id": "spec", "value": 5, "typedValue": {"typeid": "any gate"}})", noTypeId},
    {"NoValue", R"({"id": "spec"})", "A property definition must contain either a value or a typedValue."},
    {"NumberAsTypeId", specConstant(R"({"typeid": 5, "value": 5})"), "Expected a string."},
    {"NullAsTypeId", specConstant(R"({"typeid": null})"), "Expected a string."},
    {"EmptyTypeId", specConstant(R"({"typeid": "", "typedValue": 5})"), "Expected a non-empty string."},
    {"ValueBesideABuiltInSpec", specConstant(R"({"typeid": "norvex.spec:spec.reference-1.0.0", "value": {}})"),
     "Inline value override for spec norvex.spec:spec.reference-1.0.0 is not permitted."},
    {"ValueBesideASpec", specConstant(R"({"typeid": "any gate", "value": null})"),
     "Inline value override for spec any gate is not permitted."},
    {"TypedValueBesideASpec",
     specConstant(R"({"typeid": "any gate", "typedValue": {"category": {"typeid": "gates"}}})"),
     "Inline value override for spec any gate is not permitted."},
    {"TypedValueBesideAFamilyTypeOfAnotherMajorVersion",
     familyConstant(R"({"category": {"typeid": "gates"}})", "norvex.talmo.spec:familyType-2.0.0"),
     "Inline value override for spec norvex.talmo.spec:familyType-2.0.0 is not permitted."},
    {"FamilyTypeAlone", typedConstant("spec", "norvex.talmo.spec:familyType-1.0.0"), noInner},
    {"FamilyTypeWithAValue",
     specConstant(R"({"value": {"category": {"typeid": "gates"}}, "typeid": )" + quoted(familyType) + "}"), noInner},
    {"FamilyTypeOfAnotherMinorVersionAlone", typedConstant("spec", "norvex.talmo.spec:familyType-1.2.0"),
     "Inline typedValue override is required when specifying the family type base schema "
     "norvex.talmo.spec:familyType-1.2.0 in spec constant typedValue."},
    {"FamilyTypeInALongerTextAlone", typedConstant("spec", "my norvex.talmo.spec:familyType-1."),
     "Inline typedValue override is required when specifying the family type base schema my "
     "norvex.talmo.spec:familyType-1. in spec constant typedValue."},
    {"StringInAFamilyType", familyConstant(R"("gates")"), innerNoObject},
    {"NullInAFamilyType", familyConstant("null"), innerNoObject},
    {"ArrayInAFamilyType", familyConstant(R"([{"category": {"typeid": "gates"}}])"), innerNoObject},
    {"NothingInAFamilyType", familyConstant("{}"), noCategory},
    {"TypeIdInAFamilyType", familyConstant(R"({"typeid": "gates"})"), noCategory},
    {"StringAsCategory", familyConstant(R"({"category": "gates"})"), noCategory},
    {"NullAsCategory", familyConstant(R"({"category": null})"), noCategory},
    {"ArrayAsCategory", familyConstant(R"({"category": [{"typeid": "gates"}]})"), noCategory},
    {"EmptyCategory", familyConstant(R"({"category": {}})"), noCategory},
    {"CategoryWithoutATypeId", familyConstant(R"({"category": {"name": "gates"}})"), noCategory},
    {"NumberAsTypeIdOfTheCategory", familyConstant(R"({"category": {"typeid": 5}})"), "Expected a string."},
    {"ObjectAsTypeIdOfTheCategory", familyConstant(R"({"category": {"typeid": {"typeid": "gates"}}})"),
     "Expected a string."},
    {"EmptyTypeIdOfTheCategory", familyConstant(R"({"category": {"typeid": ""}})"), "Expected a non-empty string."},
    {"FlagBeforeSpec", specConstant("{}") + R"(, {"id": "readOnly", "value": 5})", "Expected a Boolean value."},
    {"GroupBeforeSpec", specConstant("{}") + R"(, {"id": "group", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
};

class RefusedReferenceParameter : public testing::TestWithParam<Fault> {};

TEST_P(RefusedReferenceParameter, IsNeitherRegisteredNorReadRangedOrNotAndHasNoValueType) {
    ParametersEngine engine = plant();
    for (const std::string& text : {textOf(GetParam().text), textOf(GetParam().text, rangedBase)}) {
        EXPECT_EQ(refusalBy(engine, [&] { engine.registerSchema(text); }), GetParam().message);
        EXPECT_EQ(refusalBy(engine, [&] { engine.readReferenceParameter(text); }), GetParam().message);
        EXPECT_EQ(engine.readValueType(text), Parameters::None);
    }
}

INSTANTIATE_TEST_SUITE_P(Spec, RefusedReferenceParameter, testing::ValuesIn(specFaults), Support::nameOfRow);

TEST(ReferenceParameter, HasTheValueTypeReferenceRangedOrNot) {
    const ParametersEngine engine;
    EXPECT_EQ(engine.readValueType(schemaText("gate", base, nameOnly)), Parameters::Reference);
    EXPECT_EQ(engine.readValueType(schemaText("gate", rangedBase, nameOnly)), Parameters::Reference);
    EXPECT_EQ(engine.readValueType(textOf(familyConstant(R"({"category": {"typeid": "unknown"}})"))),
              Parameters::Reference);
}

std::string writtenOf(const ReferenceParameter& parameter) {
    ParametersEngine engine = plant();
    engine.registerReferenceParameter(parameter);
    return engine.getSchema("gate");
}

const std::string written = R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference-2.0.0"],)"
                            R"("constants":[{"id":"name","value":"Gate"}]})";
const std::string writtenRanged =
    R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference.ranged-2.0.0"],)"
    R"("constants":[{"id":"name","value":"Gate"}]})";
const std::string writtenFamily =
    R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[)"
    R"({"id":"name","value":"Gate"},{"id":"spec","typedValue":{"typeid":"norvex.talmo.spec:familyType-1.0.0",)"
    R"("typedValue":{"category":{"typeid":"gates"}}}}]})";
const std::string writtenWithAll =
    R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference.ranged-2.0.0"],"constants":[)"
    R"({"id":"name","value":"Gate"},{"id":"description","value":"D"},{"id":"sampleText","value":"S"},)"
    R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true},)"
    R"({"id":"spec","typedValue":{"typeid":"any gate"}}]})";
const std::string writtenWithMinorVersion =
    R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[)"
    R"({"id":"name","value":"Gate"},{"id":"spec","typedValue":{"typeid":"norvex.spec:spec.reference-1.4.0"}}]})";

TEST(ReferenceParameter, IsWrittenWithTheBaseThatItsFlagSays) {
    EXPECT_EQ(writtenOf(ReferenceParameter(core(), false)), written);
    EXPECT_EQ(writtenOf(ReferenceParameter(core(), true)), writtenRanged);
}

TEST(ReferenceParameter, IsWrittenWithItsSpecBehindAllOtherConstants) {
    EXPECT_EQ(writtenOf(ReferenceParameter(ParameterCore("gate", "Gate", Taxon("safety", ""), "D", "S", true),
                                           ReferenceSpec(SpecCore("any gate", ""), std::nullopt), true)),
              writtenWithAll);
}

TEST(ReferenceParameter, IsWrittenWithTheCategoryOfItsFamilyType) {
    EXPECT_EQ(writtenOf(ReferenceParameter(core(), gates, false)), writtenFamily);
}

TEST(ReferenceParameter, IsWrittenWithTheFullFamilyTypeWhateverVersionItsSchemaNames) {
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.6.2", "my norvex.talmo.spec:familyType-1."}) {
        EXPECT_EQ(rewritten(plant(), "gate", textOf(familyConstant(R"({"category": {"typeid": "gates"}})", typeId))),
                  writtenFamily);
    }
}

TEST(ReferenceParameter, IsWrittenWithoutTheCategoryOfAnotherSpec) {
    EXPECT_EQ(writtenOf(ReferenceParameter(core(), ReferenceSpec(SpecCore("any gate", ""), gates), false)),
              R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[)"
              R"({"id":"name","value":"Gate"},{"id":"spec","typedValue":{"typeid":"any gate"}}]})");
}

TEST(ReferenceParameter, IsWrittenWithoutTheSpecThatItsSchemaNamesNeedlessly) {
    EXPECT_EQ(rewritten(plant(), "gate", textOf(typedConstant("spec", "norvex.spec:spec.reference-1.0.0"))), written);
}

TEST(ReferenceParameter, IsWrittenWithTheMinorVersionOfTheSpecThatItsSchemaNames) {
    EXPECT_EQ(rewritten(plant(), "gate", textOf(typedConstant("spec", "norvex.spec:spec.reference-1.4.0"))),
              writtenWithMinorVersion);
}

TEST(ReferenceParameter, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    EXPECT_EQ(rewritten(plant(), "gate",
                        R"({"note": 5, "typeid": "gate", "properties": [{"id": "p"}],
                            "inherits": ["norvex.parameter:parameter.reference.ranged-2.7.3"],
                            "constants": [{"id": "extra"}, )" +
                            nameOnly + "]}"),
              writtenRanged);
}

TEST(ReferenceParameter, SurvivesTheRoundTrip) {
    for (const std::string& text : {written, writtenRanged, writtenFamily, writtenWithAll, writtenWithMinorVersion}) {
        EXPECT_EQ(rewritten(plant(), "gate", text), text);
    }
}

TEST(ReferenceParameter, SurvivesTheRoundTripWithACategoryOfAnyBytes) {
    ParametersEngine engine = plant();
    engine.registerCategory(Category(std::string("c\0\xff", 3), "", SubCategoryComponent("gates")));
    const std::string text =
        R"({"typeid":"gate","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[)"
        R"({"id":"name","value":"Gate"},{"id":"spec","typedValue":{"typeid":"norvex.talmo.spec:familyType-1.0.0",)"
        R"("typedValue":{"category":{"typeid":"c\u0000)"
        "\xff\"}}}}]}";
    EXPECT_EQ(rewritten(engine, "gate", text), text);
}

/// What a parameter names. A category is that of its family type.
struct Names {
    std::string group;
    std::string spec;
    std::optional<std::string> category;
};

/// Returns the text of a parameter that names them.
std::string textNaming(const Names& names, const std::string& ofBase = base) {
    const std::string spec =
        names.category ? familyConstant(R"({"category": {"typeid": ")" + *names.category + R"("}})", names.spec)
                       : typedConstant("spec", names.spec);
    return textOf(typedConstant("group", names.group) + ", " + spec, ofBase);
}

/// Returns a parameter made in code, with objects that it makes up.
ReferenceParameter objectNaming(const Names& names, bool ranged = false, const std::string& typeId = "gate") {
    std::optional<Category> category;
    if (names.category) {
        category = Category(*names.category, "Mine", SubCategoryComponent("mine"));
    }
    return {ParameterCore(typeId, "Gate", Taxon(names.group, "Mine"), "", "", false),
            ReferenceSpec(SpecCore(names.spec, "Mine"), category), ranged};
}

ReferenceParameter registered(const ReferenceParameter& parameter) {
    ParametersEngine engine = plant();
    engine.registerReferenceParameter(parameter);
    return engine.getReferenceParameter("gate");
}

TEST(ReferenceParameterResolution, FindsWhatIsResolvedWithIt) {
    const ParametersEngine engine =
        engineOf({textNaming({"g", "z", {}}), Support::referenceSpecText("z", "c"), Support::subCategoryText("c", "m"),
                  majorCategoryText("m", "d"), domainText("d"), groupText("g", "G")});
    const ReferenceParameter parameter = engine.getReferenceParameter("gate");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "G");
    EXPECT_EQ(parameter.getSpec().getCategory()->getSubCategoryComponent()->getParentCategory(), "m");
}

TEST(ReferenceParameterResolution, FindsTheCategoryOfAFamilyTypeResolvedWithIt) {
    const ParametersEngine engine =
        engineOf({textNaming({other, familyType, "m"}), majorCategoryText("m", "d"), domainText("d")});
    EXPECT_EQ(engine.getReferenceParameter("gate").getSpec().getCategory()->getTypeId(), "m");
}

TEST(ReferenceParameterResolution, KeepsTheTypeIdOfTheFamilyTypeThatItsSchemaNames) {
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.0.0", "norvex.talmo.spec:familyType-1.4.0",
                               "my norvex.talmo.spec:familyType-1.x"}) {
        const ReferenceSpec spec = readFrom(textNaming({other, typeId, "gates"})).getSpec();
        EXPECT_EQ(spec.getCore().getTypeId(), typeId);
        EXPECT_EQ(spec.getCore().getName(), "Family Type");
        EXPECT_EQ(spec.getCategory()->getName(), "Gates");
    }
}

TEST(ReferenceParameterBinding, GetsTheRegisteredObjectsForThoseItWasGiven) {
    const ReferenceParameter parameter = registered(objectNaming({"safety", "any gate", "x"}, true));
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Safety");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Any Gate");
    EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Gates");
    EXPECT_TRUE(parameter.isRanged());
}

TEST(ReferenceParameterBinding, TakesTheFullBuiltInSpecForTypeIdsThatContainIt) {
    for (const char* typeId : {"norvex.spec:spec.reference-1.0.0", "norvex.spec:spec.reference-1.4.0",
                               "my norvex.spec:spec.reference-1.x"}) {
        for (const ReferenceParameter& parameter :
             {registered(objectNaming({other, typeId, {}})), registered(objectNaming({other, typeId, "gates"})),
              plant().readReferenceParameter(textNaming({other, typeId, {}}))}) {
            EXPECT_EQ(Support::describe(parameter.getSpec()),
                      R"(("norvex.spec:spec.reference-1.0.0" "Reference" of ("norvex.spec:discipline-1.0.0" "Common")))"
                      " to anything");
        }
    }
}

TEST(ReferenceParameterBinding, TakesTheFullFamilyTypeForTypeIdsThatContainIt) {
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.0.0", "norvex.talmo.spec:familyType-1.4.0",
                               "my norvex.talmo.spec:familyType-1.x"}) {
        for (const ReferenceParameter& parameter :
             {registered(objectNaming({other, typeId, "gates"})),
              plant().readReferenceParameter(textNaming({other, typeId, "gates"}))}) {
            EXPECT_EQ(Support::describe(parameter.getSpec().getCore()),
                      R"(("norvex.talmo.spec:familyType-1.0.0" "Family Type" of )"
                      R"(("norvex.spec:discipline-1.0.0" "Common")))");
            EXPECT_EQ(parameter.getSpec().getCategory()->getName(), "Gates");
        }
    }
}

TEST(ReferenceParameterBinding, KeepsTheFlag) {
    const std::string text =
        textNaming({"safety", "any gate", {}}, "norvex.parameter:parameter.reference.ranged-2.1.0");
    EXPECT_TRUE(plant().readReferenceParameter(text).isRanged());
    EXPECT_FALSE(plant().readReferenceParameter(textNaming({"safety", "any gate", {}})).isRanged());
    EXPECT_FALSE(registered(objectNaming({other, "any gate", {}})).isRanged());
}

TEST(ReferenceParameterBinding, WritesAndNamesWhatItGotByObject) {
    const ParametersEngine engine = plant();
    EXPECT_EQ(engine.getSchema(objectNaming({other, "norvex.spec:spec.reference-1.4.0", {}}, true)), writtenRanged);
    EXPECT_EQ(engine.getSchema(objectNaming({other, "norvex.talmo.spec:familyType-1.4.0", "gates"})), writtenFamily);
    EXPECT_EQ(engine.getDependencies(objectNaming({other, "norvex.spec:spec.reference-1.4.0", {}})),
              (TypeIds{other, "norvex.spec:spec.reference-1.0.0"}));
    EXPECT_EQ(engine.getDependencies(objectNaming({"safety", "norvex.talmo.spec:familyType-1.4.0", "gates"})),
              (TypeIds{"gates", "safety", familyType}));
    EXPECT_EQ(engine.getDependencies(objectNaming({"safety", "any gate", "x"})), (TypeIds{"any gate", "safety"}));
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
    {"FamilyTypeOfAnotherMajorVersion",
     {"safety", "norvex.talmo.spec:familyType-2.0.0", {}},
     "Could not find reference spec with typeid norvex.talmo.spec:familyType-2.0.0.",
     "Dependency norvex.talmo.spec:familyType-2.0.0 in schema gate is missing or does not represent an object of the "
     "expected type."},
    {"GroupBeforeSpec",
     {"y", "x", {}},
     "Could not find group with typeid y.",
     "Dependency y in schema gate is missing or does not represent an object of the expected type."},
    {"Category",
     {"safety", familyType, "x"},
     "Could not find category with typeid x.",
     "Dependency x in schema gate is missing or does not represent an object of the expected type."},
    {"SpecAsCategory",
     {"safety", "norvex.talmo.spec:familyType-1.3.0", "any gate"},
     "Could not find category with typeid any gate.",
     "Dependency any gate in schema gate is missing or does not represent an object of the expected type."},
    {"ItselfAsCategory",
     {"safety", familyType, "gate"},
     "Could not find category with typeid gate.",
     "Dependency gate in schema gate is missing or does not represent an object of the expected type."},
    {"GroupBeforeCategory",
     {"y", familyType, "x"},
     "Could not find group with typeid y.",
     "Dependency y in schema gate is missing or does not represent an object of the expected type."},
};

/// Returns the message with which an engine refuses a parameter made in code, in whatever way it is asked about.
std::string refusalOfObject(ParametersEngine& engine, const ReferenceParameter& parameter) {
    std::string message = refusalBy(engine, [&] { engine.registerReferenceParameter(parameter); });
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter); }), message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter); }), message);
    return message;
}

class ReferenceParameterThatNamesInVain : public testing::TestWithParam<Missing> {};

TEST_P(ReferenceParameterThatNamesInVain, IsNeitherBoundNorReadNorResolved) {
    ParametersEngine engine = plant();
    EXPECT_EQ(refusalOfObject(engine, objectNaming(GetParam().names)), GetParam().whenBound);
    EXPECT_EQ(refusalBy(engine, [&] { engine.readReferenceParameter(textNaming(GetParam().names)); }),
              GetParam().whenBound);
    engine.registerSchema(textNaming(GetParam().names));
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), GetParam().whenResolved);
}

INSTANTIATE_TEST_SUITE_P(References, ReferenceParameterThatNamesInVain, testing::ValuesIn(missingReferences),
                         Support::nameOfRow);

TEST(ReferenceParameterBinding, MissesACategoryThatIsOnlyPending) {
    ParametersEngine engine = plant();
    engine.registerSchema(majorCategoryText("pending category", "domain"));
    EXPECT_EQ(refusalOfObject(engine, objectNaming({other, familyType, "pending category"})),
              "Could not find category with typeid pending category.");
}

TEST(ReferenceParameterBinding, RefusesAFamilyTypeWithoutACategoryButMissesItsGroupBefore) {
    ParametersEngine engine = plant();
    for (const char* typeId : {"norvex.talmo.spec:familyType-1.0.0", "my norvex.talmo.spec:familyType-1.4.0"}) {
        EXPECT_EQ(refusalOfObject(engine, objectNaming({"safety", typeId, {}})),
                  "Family Type parameter must specify a category.");
        EXPECT_EQ(refusalOfObject(engine, objectNaming({"x", typeId, {}})), "Could not find group with typeid x.");
    }
}

TEST(ReferenceParameterBinding, RefusesATypeIdBeforeAllElse) {
    ParametersEngine engine = engineOf({groupText("gate")});
    const Names names{"x", familyType, {}};
    EXPECT_EQ(refusalOfObject(engine, objectNaming(names)), "Schema with typeid gate is already registered.");
    EXPECT_EQ(refusalOfObject(engine, objectNaming(names, false, "")), "Typeid must not be empty.");
}

TEST(ReferenceParameterRegistration, ReportsTheCategoryOfAFamilyTypeButNotTheFamilyType) {
    ParametersEngine engine;
    EXPECT_EQ(engine.registerSchema(textNaming({other, "norvex.talmo.spec:familyType-1.3.0", "gates"})).first,
              TypeIds{"gates"});
    EXPECT_EQ(plant().registerSchema(textNaming({"safety", familyType, "gates"})).first, TypeIds{});
}

TEST(ReferenceParameterDependencies, AreTheCategoryOfAFamilyTypeToo) {
    EXPECT_EQ(engineOf({textNaming({"safety", "norvex.talmo.spec:familyType-1.3.0", "gates"})}, plant())
                  .getDependencies("gate"),
              (TypeIds{"gates", "norvex.talmo.spec:familyType-1.3.0", "safety"}));
}

} // namespace
