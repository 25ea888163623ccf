#include "support/Engines.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::GeneralSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::UnrecognizedIdentifierException;
using Parameters::ValidationException;
using Support::messageOf;
using Support::pictureOf;

using TypeIds = std::set<std::string>;

BoolParameter parameterIn(const std::string& group, const std::string& spec, const std::string& typeId = "p") {
    return {ParameterCore(typeId, "The parameter", Taxon(group, "Mine"), "", "", false),
            BoolSpec(SpecCore(spec, "Mine"))};
}

/// An engine with objects of every kind, pending schemas and a unit.
struct Outputs : testing::Test {
    Outputs() {
        engine.registerDiscipline(Taxon("discipline", "Fire \"safety\""));
        engine.registerDomain(Taxon("domain", "Harbour"));
        engine.registerGroup(Taxon("group", "Doors"));
        engine.registerBoolSpec(BoolSpec(SpecCore("bool spec", "Closed", Taxon("discipline", "Mine"))));
        engine.registerBoolSpec(BoolSpec(SpecCore("common spec", "Usual")));
        engine.registerGeneralSpec(GeneralSpec(SpecCore("general spec", "Choice", Taxon("discipline", ""))));
        engine.registerBoolParameter({ParameterCore("parameter", "Rated", Taxon("group", ""), "About", "Yes", true),
                                      BoolSpec(SpecCore("bool spec", ""))});
        engine.registerBoolParameter(BoolParameter(ParameterCore("plain parameter", "Plain", "", "", false)));
        engine.registerEnumeration({"enumeration", {{"Ash", -1}, {"Oak", 4}}});
        engine.registerFloatRange({"float range", true, -1e-300, true, 0.5});
        engine.registerIntRange({"int range", true, -9223372036854775807 - 1, false, 0});
        engine.registerStringRange({"set range", Parameters::SetStringRangeComponent({"b", "a"})});
        engine.registerStringRange({"regex range", Parameters::RegexStringRangeComponent("[0-9]+")});
        engine.registerIntSpec(Parameters::IntSpec(SpecCore("int spec", "Count")));
        engine.registerStringSpec(Parameters::StringSpec(SpecCore("string spec", "Label", Taxon("discipline", ""))));
        engine.registerIntParameter({ParameterCore("int parameter", "Leaves", "", "", false),
                                     Parameters::IntSpec(SpecCore("int spec", "")),
                                     {"int range", false, 0, false, 0}});
        engine.registerStringParameter({ParameterCore("string parameter", "Mark", "", "", false),
                                        Parameters::StringSpec(SpecCore("string spec", "")),
                                        Parameters::StringRange(Parameters::RegexStringRangeComponent("a*"))});
        engine.registerEnumerationParameter({ParameterCore("enumeration parameter", "Wood", "", "", false),
                                             GeneralSpec(SpecCore("general spec", "")),
                                             {"enumeration", {}}});
        registerCategoriesAndMeasurables();
        engine.registerSchema(Support::boolSpecText("pending spec", "discipline"));
        engine.registerSchema(Support::groupText("pending group"));
    }

    void registerCategoriesAndMeasurables() {
        engine.getUnitsEngine().registerSchema(Support::unitText("unit"));
        engine.getUnitsEngine().resolveSchemas();
        const Units::Unit unit = engine.getUnitsEngine().getUnit("unit");
        engine.registerCategory(
            {"major", "Berths", Parameters::MajorCategoryComponent(Taxon("domain", ""), {Taxon("discipline", "")})});
        engine.registerCategory({"sub", "Dry Docks", Parameters::SubCategoryComponent("major")});
        engine.registerMeasurableSpec({SpecCore("measurable spec", "Draught"), {unit, unit}, unit});
        engine.registerReferenceSpec({SpecCore("reference spec", "Berth"), engine.getCategory("major")});
        engine.registerMeasurableParameter({ParameterCore("measurable parameter", "Depth", "", "", false),
                                            engine.getMeasurableSpec("measurable spec"),
                                            {"float range", false, 0, false, 0}});
        engine.registerReferenceParameter({ParameterCore("reference parameter", "Home Berth", "", "", false),
                                           engine.getReferenceSpec("reference spec"), true});
        engine.registerReferenceParameter(
            {ParameterCore("family parameter", "Dock Type", "", "", false), engine.getCategory("sub"), false});
    }

    ParametersEngine engine;
};

TEST_F(Outputs, DependenciesOfAFamilyTypeParameterIncludeItsCategory) {
    EXPECT_EQ(engine.getDependencies("family parameter"),
              (TypeIds{"norvex.parameter:group-1.0.0", "norvex.talmo.spec:familyType-1.0.0", "sub"}));
}

TEST_F(Outputs, DependenciesAreNotThoseOfDependencies) {
    EXPECT_EQ(engine.getDependencies("parameter").count("discipline"), 0U);
}

struct Unknown {
    const char* name;
    const char* typeId;
    const char* message;
};

struct UnknownInOutputs : Outputs, testing::WithParamInterface<Unknown> {};

TEST_P(UnknownInOutputs, HasNeitherDependenciesNorASchema) {
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getDependencies(GetParam().typeId); }),
              GetParam().message);
    EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&] { engine.getSchema(GetParam().typeId); }),
              GetParam().message);
}

const Unknown unknowns[] = {
    {"Nothing", "x", "Could not find any object with typeid x."},
    {"EmptyTypeId", "", "Could not find any object with typeid ."},
    {"PendingSpec", "pending spec", "Could not find any object with typeid pending spec."},
    {"PendingGroup", "pending group", "Could not find any object with typeid pending group."},
    {"Unit", "unit", "Could not find any object with typeid unit."},
    {"BuiltInBoolSpec", "norvex.spec:spec.bool-1.0.0",
     "Could not find any object with typeid norvex.spec:spec.bool-1.0.0."},
    {"BuiltInGroup", "norvex.parameter:group-1.0.0",
     "Could not find any object with typeid norvex.parameter:group-1.0.0."},
    {"OtherCase", "Parameter", "Could not find any object with typeid Parameter."},
};

INSTANTIATE_TEST_SUITE_P(Outputs, UnknownInOutputs, testing::ValuesIn(unknowns), Support::nameOfRow);

TEST_F(Outputs, OfKindsThatNameNothingAreSchemasButNoDependencies) {
    Parameters::forEachKind([&](auto kind) {
        for (const auto& [typeId, object] : kind.getAll(engine)) {
            EXPECT_FALSE(kind.getSchema(engine, object).empty());
            EXPECT_EQ(kind.getDependencies(engine, object).empty(), !kind.info.hasDependencies()) << typeId;
            if (!kind.info.hasDependencies()) {
                EXPECT_EQ(messageOf<UnrecognizedIdentifierException>([&, id = typeId] { engine.getDependencies(id); }),
                          "Could not find any object with typeid " + typeId + ".");
            }
        }
    });
}

struct Export {
    const char* name;
    const char* typeId;
    const char* text;
};

struct ExportedSchema : Outputs, testing::WithParamInterface<Export> {};

TEST_P(ExportedSchema, IsWrittenFromTheObject) { EXPECT_EQ(engine.getSchema(GetParam().typeId), GetParam().text); }

TEST_P(ExportedSchema, MakesTheSameObjectInAnotherEngine) {
    ParametersEngine other;
    std::map<std::string, std::string> batch;
    Parameters::forEachKind([&](auto kind) {
        for (const auto& [typeId, object] : kind.getAll(engine)) {
            batch.emplace(typeId, engine.getSchema(typeId));
        }
    });
    batch.emplace("unit", Support::unitText("unit"));
    other.registerSchemas(batch);
    EXPECT_EQ(other.getSchema(GetParam().typeId), GetParam().text);
}

TEST(ExportedSchemas, OfEachKindMakeTheSameObjectInAnotherEngine) {
    Parameters::forEachKind([](auto kind) {
        using Kind = decltype(kind);
        ParametersEngine engine;
        Support::addSample<Kind>(engine, "x");
        std::map<std::string, std::string> batch;
        Parameters::forEachKind([&](auto each) {
            for (const auto& [typeId, object] : each.getAll(engine)) {
                batch.emplace(typeId, engine.getSchema(typeId));
            }
        });
        ParametersEngine other;
        other.getUnitsEngine() = engine.getUnitsEngine();
        other.registerSchemas(batch);
        EXPECT_EQ(Support::describe(Kind::get(other, "x")), Support::describe(Kind::get(engine, "x")))
            << kind.info.id();
    });
}

TEST(ExportedSchemas, WithAnEmptyNameAreRefused) {
    Parameters::forEachKind([](auto kind) {
        using Kind = decltype(kind);
        if constexpr (Support::Sample<Kind>::hasName) {
            ParametersEngine engine;
            Support::addSample<Kind>(engine, "x", "");
            EXPECT_EQ(Support::refusalOf(engine.getSchema("x")), "Expected a non-empty string.") << kind.info.id();
        }
    });
}

/// What an object made in code has, and its schema does not say.
struct Loss {
    const char* name;
    void (*add)(ParametersEngine& engine);
    std::string (*describe)(const ParametersEngine& engine);
    const char* had;
    const char* readsBackAs;
};

class LossOnTheRoundTrip : public testing::TestWithParam<Loss> {};

TEST_P(LossOnTheRoundTrip, IsOfWhatTheSchemaDoesNotSay) {
    ParametersEngine engine = Support::engineOf({Support::disciplineText("discipline", "Registered")});
    ParametersEngine other = engine;
    GetParam().add(engine);
    EXPECT_EQ(GetParam().describe(engine), GetParam().had);
    other.registerSchemas({{"x", engine.getSchema("x")}});
    EXPECT_EQ(GetParam().describe(other), GetParam().readsBackAs);
}

SpecCore ownSpec(const std::string& typeId) { return {typeId, "Mine", Taxon("unknown", "Mine")}; }

void addBoolParameter(ParametersEngine& engine, const std::string& spec) {
    engine.registerBoolParameter({ParameterCore("x", "Name", "", "", false), BoolSpec(ownSpec(spec))});
}

void addIntParameter(ParametersEngine& engine, const std::string& spec) {
    engine.registerIntParameter({ParameterCore("x", "Name", "", "", false), Parameters::IntSpec(ownSpec(spec)),
                                 Parameters::IntRange(false, 0, false, 0)});
}

void addBoolSpec(ParametersEngine& engine, const std::string& discipline) {
    engine.registerBoolSpec(BoolSpec(SpecCore("x", "Name", Taxon(discipline, "Mine"))));
}

std::string boolSpecIn(const ParametersEngine& engine) {
    return Support::describe(engine.getBoolParameter("x").getSpec());
}

std::string intSpecIn(const ParametersEngine& engine) {
    return Support::describe(engine.getIntParameter("x").getSpec());
}

std::string disciplineIn(const ParametersEngine& engine) {
    return Support::describe(engine.getBoolSpec("x").getCore().getDiscipline());
}

const Loss losses[] = {
    {"OwnBoolSpecOfTheBuiltInTypeId", [](ParametersEngine& e) { addBoolParameter(e, "norvex.spec:spec.bool-1.0.0"); },
     boolSpecIn, R"(("norvex.spec:spec.bool-1.0.0" "Mine" of ("unknown" "Mine")))",
     R"(("norvex.spec:spec.bool-1.0.0" "Yes/No" of ("norvex.spec:discipline-1.0.0" "Common")))"},
    {"OwnBoolSpecOfAnotherVersion", [](ParametersEngine& e) { addBoolParameter(e, "norvex.spec:spec.bool-1.4.0"); },
     boolSpecIn, R"(("norvex.spec:spec.bool-1.4.0" "Mine" of ("unknown" "Mine")))",
     R"(("norvex.spec:spec.bool-1.4.0" "Yes/No" of ("norvex.spec:discipline-1.0.0" "Common")))"},
    {"OwnIntSpecOfTheBuiltInTypeId", [](ParametersEngine& e) { addIntParameter(e, "norvex.spec:spec.int64-2.0.0"); },
     intSpecIn, R"(("norvex.spec:spec.int64-2.0.0" "Mine" of ("unknown" "Mine")))",
     R"(("norvex.spec:spec.int64-2.0.0" "Integer" of ("norvex.spec:discipline-1.0.0" "Common")))"},
    {"OwnIntSpecOfAnotherVersion", [](ParametersEngine& e) { addIntParameter(e, "norvex.spec:spec.int64-2.4.0"); },
     intSpecIn, R"(("norvex.spec:spec.int64-2.4.0" "Mine" of ("unknown" "Mine")))",
     R"(("norvex.spec:spec.int64-2.4.0" "Integer" of ("norvex.spec:discipline-1.0.0" "Common")))"},
    {"OwnDisciplineOfTheBuiltInTypeId", [](ParametersEngine& e) { addBoolSpec(e, "norvex.spec:discipline-1.0.0"); },
     disciplineIn, R"(("norvex.spec:discipline-1.0.0" "Mine"))", R"(("norvex.spec:discipline-1.0.0" "Common"))"},
    {"OwnDisciplineOfAnotherVersion", [](ParametersEngine& e) { addBoolSpec(e, "norvex.spec:discipline-1.4.0"); },
     disciplineIn, R"(("norvex.spec:discipline-1.4.0" "Mine"))", R"(("norvex.spec:discipline-1.4.0" "Common"))"},
    {"OwnDisciplineOfARegisteredTypeId", [](ParametersEngine& e) { addBoolSpec(e, "discipline"); }, disciplineIn,
     R"(("discipline" "Mine"))", R"(("discipline" "Registered"))"},
};

INSTANTIATE_TEST_SUITE_P(Outputs, LossOnTheRoundTrip, testing::ValuesIn(losses), Support::nameOfRow);

const Export exports[] = {
    {"Discipline", "discipline",
     R"({"typeid":"discipline","inherits":["norvex.spec:discipline-1.0.0"],"constants":[{"id":"name","value":"Fire \"safety\""}]})"},
    {"Domain", "domain",
     R"({"typeid":"domain","inherits":["norvex.talmo.category:domain-1.0.0"],"constants":[{"id":"name","value":"Harbour"}]})"},
    {"Group", "group",
     R"({"typeid":"group","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"Doors"}]})"},
    {"BoolSpec", "bool spec",
     R"({"typeid":"bool spec","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[{"id":"name","value":"Closed"},)"
     R"({"id":"discipline","typedValue":{"typeid":"discipline"}}]})"},
    {"BoolSpecOfTheCommonDiscipline", "common spec",
     R"({"typeid":"common spec","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[{"id":"name","value":"Usual"}]})"},
    {"GeneralSpec", "general spec",
     R"({"typeid":"general spec","inherits":["norvex.spec:spec-1.0.0"],"constants":[{"id":"name","value":"Choice"},)"
     R"({"id":"discipline","typedValue":{"typeid":"discipline"}}]})"},
    {"BoolParameter", "parameter",
     R"({"typeid":"parameter","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Rated"},{"id":"description","value":"About"},)"
     R"({"id":"sampleText","value":"Yes"},{"id":"group","typedValue":{"typeid":"group"}},)"
     R"({"id":"readOnly","value":true},{"id":"spec","typedValue":{"typeid":"bool spec"}}]})"},
    {"Enumeration", "enumeration",
     R"({"typeid":"enumeration","inherits":["Enum"],"properties":[{"id":"Ash","value":-1},{"id":"Oak","value":4}]})"},
    {"FloatRange", "float range",
     R"({"typeid":"float range","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],)"
     R"("constants":[{"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-1e-300},)"
     R"({"id":"fromTop","value":true},{"id":"topBoundary","value":0.5}]})"},
    {"IntRange", "int range",
     R"({"typeid":"int range","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],)"
     R"("constants":[{"id":"fromBottom","value":true},{"id":"bottomBoundary","value":-9223372036854775808},)"
     R"({"id":"fromTop","value":false}]})"},
    {"SetStringRange", "set range",
     R"({"typeid":"set range","inherits":["norvex.range:range.string.set.static-1.0.0"],)"
     R"("constants":[{"id":"allowedValues","value":["b","a"]}]})"},
    {"RegexStringRange", "regex range",
     R"({"typeid":"regex range","inherits":["norvex.range:range.string.regex-1.0.0"],)"
     R"("constants":[{"id":"regex","value":"[0-9]+"}]})"},
    {"IntSpec", "int spec",
     R"({"typeid":"int spec","inherits":["norvex.spec:spec.int64-2.0.0"],"constants":[{"id":"name","value":"Count"}]})"},
    {"StringSpec", "string spec",
     R"({"typeid":"string spec","inherits":["norvex.spec:spec.string-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Label"},{"id":"discipline","typedValue":{"typeid":"discipline"}}]})"},
    {"IntParameter", "int parameter",
     R"({"typeid":"int parameter","inherits":["norvex.parameter:parameter.int64-3.0.0"],)"
     R"("constants":[{"id":"name","value":"Leaves"},{"id":"spec","typedValue":{"typeid":"int spec"}},)"
     R"({"id":"range","typedValue":{"typeid":"int range"}}]})"},
    {"StringParameter", "string parameter",
     R"({"typeid":"string parameter","inherits":["norvex.parameter:parameter.string-3.0.0"],)"
     R"("constants":[{"id":"name","value":"Mark"},{"id":"spec","typedValue":{"typeid":"string spec"}},)"
     R"({"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0","value":{"regex":"a*"}}}]})"},
    {"EnumerationParameter", "enumeration parameter",
     R"({"typeid":"enumeration parameter","inherits":["norvex.parameter:parameter-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Wood"},{"id":"spec","typedValue":{"typeid":"general spec"}}],)"
     R"("properties":[{"id":"value","typedValue":{"typeid":"enumeration"}}]})"},
    {"MajorCategory", "major",
     R"({"typeid":"major","inherits":["norvex.talmo.category:majorCategory-1.0.0"],)"
     R"("constants":[{"id":"name","value":"Berths"},{"id":"domain","typedValue":{"typeid":"domain"}},)"
     R"({"id":"disciplines","typedValue":[{"typeid":"discipline"}]}]})"},
    {"SubCategory", "sub",
     R"({"typeid":"sub","inherits":["norvex.talmo.category:subCategory-1.0.0"],)"
     R"("constants":[{"id":"name","value":"Dry Docks"},{"id":"parent","typedValue":{"typeid":"major"}}]})"},
    {"MeasurableSpec", "measurable spec",
     R"({"typeid":"measurable spec","inherits":["norvex.spec:spec.measurable-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Draught"},)"
     R"({"id":"applicableUnits","typedValue":[{"typeid":"unit"},{"typeid":"unit"}]},)"
     R"({"id":"storageUnit","typedValue":{"typeid":"unit"}}]})"},
    {"ReferenceSpec", "reference spec",
     R"({"typeid":"reference spec","inherits":["norvex.spec:spec.reference-1.0.0"],)"
     R"("constants":[{"id":"name","value":"Berth"},{"id":"category","typedValue":{"typeid":"major"}}]})"},
    {"MeasurableParameter", "measurable parameter",
     R"({"typeid":"measurable parameter","inherits":["norvex.parameter:parameter.measurable-3.0.0"],)"
     R"("constants":[{"id":"name","value":"Depth"},{"id":"spec","typedValue":{"typeid":"measurable spec"}},)"
     R"({"id":"range","typedValue":{"typeid":"float range"}}]})"},
    {"ReferenceParameter", "reference parameter",
     R"({"typeid":"reference parameter","inherits":["norvex.parameter:parameter.reference.ranged-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Home Berth"},{"id":"spec","typedValue":{"typeid":"reference spec"}}]})"},
    {"FamilyTypeParameter", "family parameter",
     R"({"typeid":"family parameter","inherits":["norvex.parameter:parameter.reference-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Dock Type"},{"id":"spec","typedValue":{"typeid":)"
     R"("norvex.talmo.spec:familyType-1.0.0","typedValue":{"category":{"typeid":"sub"}}}}]})"},
    {"BoolParameterOfDefaults", "plain parameter",
     R"({"typeid":"plain parameter","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
     R"("constants":[{"id":"name","value":"Plain"}]})"},
};

INSTANTIATE_TEST_SUITE_P(Outputs, ExportedSchema, testing::ValuesIn(exports), Support::nameOfRow);

TEST_F(Outputs, ASchemaIsWrittenAfreshFromItsObject) {
    engine.registerSchema(R"({ "more" : 1, "constants" : [ { "value" : "N\u0061me", "id" : "name" },
        { "id": "description", "value": "" } ], "inherits" : [ "our norvex.parameter:parameter.bool-2.5" ],
        "typeid" : "p", "properties": [] })");
    engine.resolveSchemas();
    EXPECT_EQ(
        engine.getSchema("p"),
        R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[{"id":"name","value":"Name"}]})");
}

TEST_F(Outputs, ASchemaKeepsTheTypeIdsOfBuiltInObjectsUnlessTheyAreTheDefaults) {
    engine.registerSchema(
        Support::boolParameterText("p", "norvex.parameter:group-1.0.0", "norvex.spec:spec.bool-1.4.0"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getSchema("p"),
              R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
              R"({"id":"name","value":"Name"},{"id":"spec","typedValue":{"typeid":"norvex.spec:spec.bool-1.4.0"}}]})");
}

TEST_F(Outputs, OfAParameterMadeInCodeAreItsBuiltInDependencies) {
    EXPECT_EQ(engine.getDependencies(BoolParameter(ParameterCore("p", "", "", "", false))),
              (TypeIds{"norvex.parameter:group-1.0.0", "norvex.spec:spec.bool-1.0.0"}));
    EXPECT_EQ(engine.getDependencies(parameterIn("norvex.parameter:group-1.9.0", "norvex.spec:spec.bool-1.4.0")),
              (TypeIds{"norvex.parameter:group-1.9.0", "norvex.spec:spec.bool-1.4.0"}));
}

TEST_F(Outputs, OfAParameterMadeInCodeIsItsSchema) {
    EXPECT_EQ(engine.getSchema(parameterIn("group", "bool spec")),
              R"({"typeid":"p","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
              R"({"id":"name","value":"The parameter"},{"id":"group","typedValue":{"typeid":"group"}},)"
              R"({"id":"spec","typedValue":{"typeid":"bool spec"}}]})");
}

TEST_F(Outputs, OfAParameterMadeInCodeStoreNothing) {
    const std::string before = pictureOf(engine, {"p"});
    const BoolParameter parameter = parameterIn("group", "bool spec");
    EXPECT_EQ(engine.getSchema(parameter), engine.getSchema(parameter));
    EXPECT_EQ(engine.getDependencies(parameter), engine.getDependencies(parameter));
    EXPECT_EQ(pictureOf(engine, {"p"}), before);
}

struct Refusal {
    const char* name;
    BoolParameter parameter;
    const char* message;
};

struct RefusedParameter : Outputs, testing::WithParamInterface<Refusal> {};

TEST_P(RefusedParameter, HasNeitherDependenciesNorASchema) {
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getDependencies(GetParam().parameter); }),
              GetParam().message);
    EXPECT_EQ(messageOf<ValidationException>([&] { engine.getSchema(GetParam().parameter); }), GetParam().message);
}

const Refusal refusals[] = {
    {"EmptyTypeId", parameterIn("group", "bool spec", ""), "Typeid must not be empty."},
    {"Registered", parameterIn("group", "bool spec", "parameter"),
     "Schema with typeid parameter is already registered."},
    {"TypeIdOfAnotherKind", parameterIn("group", "bool spec", "domain"),
     "Schema with typeid domain is already registered."},
    {"TypeIdOfAPendingSchema", parameterIn("group", "bool spec", "pending spec"),
     "Schema with typeid pending spec is already registered."},
    {"TypeIdOfAUnit", parameterIn("group", "bool spec", "unit"), "Schema with typeid unit is already registered."},
    {"BuiltInTypeId", parameterIn("group", "bool spec", "norvex.spec:spec.bool-1.0.0"),
     "Schema with typeid norvex.spec:spec.bool-1.0.0 is already registered."},
    {"TypeIdBeforeReferences", parameterIn("x", "y", "parameter"),
     "Schema with typeid parameter is already registered."},
    {"GroupBeforeSpec", parameterIn("x", "y"), "Could not find group with typeid x."},
};

INSTANTIATE_TEST_SUITE_P(Outputs, RefusedParameter, testing::ValuesIn(refusals), Support::nameOfRow);

} // namespace
