#include "support/Fault.h"
#include "support/KindTypes.h"
#include "support/Messages.h"
#include "support/Picture.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Parameters::ValueType;
using Support::boolParameterText;
using Support::Fault;
using Support::messageOf;
using Support::pictureOf;
using Support::schemaText;

/// An engine with objects and with schemas that are pending.
ParametersEngine prepared() {
    ParametersEngine engine;
    engine.registerDiscipline(Taxon("discipline", "The discipline"));
    engine.registerGroup(Taxon("group", "The group"));
    engine.registerBoolSpec(BoolSpec(SpecCore("spec", "The spec", Taxon("discipline", "The discipline"))));
    engine.registerSchema(Support::groupText("pending group"));
    engine.registerSchema(Support::boolSpecText("pending spec", "discipline"));
    engine.getUnitsEngine().registerSchema(Support::unitText("unit"));
    return engine;
}

const std::string parameterBase = "norvex.parameter:parameter.bool-2.0.0";

TEST(ReadBoolParameter, ReturnsWhatTheTextSays) {
    const ParametersEngine engine = prepared();
    const BoolParameter parameter = engine.readBoolParameter(
        schemaText("p", parameterBase,
                   R"({"id": "name", "value": "Fire rated"}, {"id": "description", "value": "Whether it is"},
                      {"id": "sampleText", "value": "Yes"}, {"id": "readOnly", "value": true},
                      {"id": "group", "typedValue": {"typeid": "group"}},
                      {"id": "spec", "typedValue": {"typeid": "spec"}})"));
    EXPECT_EQ(parameter.getCore().getTypeId(), "p");
    EXPECT_EQ(parameter.getCore().getName(), "Fire rated");
    EXPECT_EQ(parameter.getCore().getDescription(), "Whether it is");
    EXPECT_EQ(parameter.getCore().getSampleText(), "Yes");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "The discipline");
}

TEST(ReadBoolParameter, NeedsNoObjectsForBuiltInTypeIds) {
    const ParametersEngine engine;
    const BoolParameter parameter =
        engine.readBoolParameter(boolParameterText("p", "norvex.parameter:group-1.9.0", "norvex.spec:spec.bool-1.4.0"));
    EXPECT_EQ(parameter.getCore().getGroup().getTypeId(), "norvex.parameter:group-1.9.0");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Other");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.bool-1.4.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Yes/No");
}

const Fault faults[] = {
    {"UnknownGroup", boolParameterText("p", "x", "spec"), "Could not find group with typeid x."},
    {"PendingGroup", boolParameterText("p", "pending group", "spec"),
     "Could not find group with typeid pending group."},
    {"DisciplineAsAGroup", boolParameterText("p", "discipline", "spec"),
     "Could not find group with typeid discipline."},
    {"UnknownSpec", boolParameterText("p", "group", "x"), "Could not find Boolean spec with typeid x."},
    {"PendingSpec", boolParameterText("p", "group", "pending spec"),
     "Could not find Boolean spec with typeid pending spec."},
    {"UnitAsASpec", boolParameterText("p", "group", "unit"), "Could not find Boolean spec with typeid unit."},
    {"SpecThatIsItself", boolParameterText("p", "group", "p"), "Could not find Boolean spec with typeid p."},
    {"GroupBeforeSpec", boolParameterText("p", "y", "x"), "Could not find group with typeid y."},
    {"TypeIdOfAnObject", boolParameterText("discipline", "group", "spec"),
     "Schema with typeid discipline is already registered."},
    {"TypeIdOfAPendingSchema", boolParameterText("pending spec", "group", "spec"),
     "Schema with typeid pending spec is already registered."},
    {"TypeIdOfAUnit", boolParameterText("unit", "group", "spec"), "Schema with typeid unit is already registered."},
    {"BuiltInTypeId", boolParameterText("norvex.spec:spec.bool-1.0.0", "group", "spec"),
     "Schema with typeid norvex.spec:spec.bool-1.0.0 is already registered."},
    {"BaseOfNoKind", Support::namedText("p", "some base", "Name"), "Inheritance from an incorrect base schema."},
    {"OtherKindWithFaultsOfItsOwn", Support::disciplineText("p", ""), "Inheritance from an incorrect base schema."},
    {"KnownTypeIdBeforeTheBase", Support::disciplineText("spec"), "Schema with typeid spec is already registered."},
    {"KnownTypeIdBeforeTheConstants", schemaText("spec", parameterBase, ""),
     "Schema with typeid spec is already registered."},
    {"UndefinedName", schemaText("p", parameterBase, ""), "Schema p has an undefined name constant."},
    {"ConstantsBeforeReferences", schemaText("p", parameterBase, R"({"id": "name", "value": "Name"},
        {"id": "group", "typedValue": {"typeid": "x"}}, {"id": "spec", "value": "spec"})"),
     "A typedValue must be an object."},
    {"FaultOfTheTextFirst", R"({"typeid": "spec"})", "Schema must specify an inheritance array."},
    {"EmptyTypeId", boolParameterText("", "group", "spec"), "The typeid string may not be empty."},
};

class UnreadableParameter : public testing::TestWithParam<Fault> {};

TEST_P(UnreadableParameter, NamesTheFaultAndLeavesTheEngineAsItWas) {
    ParametersEngine engine = prepared();
    EXPECT_EQ(Support::refusalBy(engine, [&] { engine.readBoolParameter(GetParam().text); }), GetParam().message);
    EXPECT_FALSE(engine.isRegistered("p"));
}

INSTANTIATE_TEST_SUITE_P(ReadBoolParameter, UnreadableParameter, testing::ValuesIn(faults), Support::nameOfRow);

TEST(ValueTypes, HaveTheirNumbers) {
    EXPECT_EQ(static_cast<int>(Parameters::None), 0);
    EXPECT_EQ(static_cast<int>(Parameters::Bool), 1);
    EXPECT_EQ(static_cast<int>(Parameters::Int), 2);
    EXPECT_EQ(static_cast<int>(Parameters::Measurable), 3);
    EXPECT_EQ(static_cast<int>(Parameters::Reference), 4);
    EXPECT_EQ(static_cast<int>(Parameters::String), 5);
}

/// What holds for the schemas of each kind when they are read without being registered.
template <class Kind>
struct ReadingOfEachKind : testing::Test {
    const std::vector<Support::Shape> shapes = Support::shapesOf<Kind>();
};

TYPED_TEST_SUITE(ReadingOfEachKind, Support::TestedKinds<Parameters::Kinds::All>, Support::NameOfKind);

TYPED_TEST(ReadingOfEachKind, TellsTheValueTypeOfTheKindWhateverIsNamed) {
    const auto nameAll = [](const Support::Reference& reference) { return std::string(reference.id); };
    for (const Support::Shape& shape : this->shapes) {
        const std::string minor = Support::versionPrefixOf(shape.base) + "7.1";
        EXPECT_EQ(ParametersEngine().readValueType(shape.text("p", "1", Support::nameTheLeast)), TypeParam::valueType);
        EXPECT_EQ(ParametersEngine().readValueType(shape.text("p", "1", nameAll)), TypeParam::valueType);
        if (shape.base != Support::versionPrefixOf(shape.base)) {
            EXPECT_EQ(ParametersEngine().readValueType(shape.textOfBase("our " + minor, "p", "1", nameAll)),
                      TypeParam::valueType);
        }
        EXPECT_EQ(ParametersEngine().readValueType(
                      shape.textOfBase(Support::ofMajorVersion(shape.base, "7"), "p", "1", nameAll)),
                  Parameters::None);
    }
}

TYPED_TEST(ReadingOfEachKind, MakesNoParameterOfAnotherKindOrMajorVersion) {
    Parameters::forEachKind(Parameters::Kinds::Readable{}, [&](auto reader) {
        for (const Support::Shape& shape : this->shapes) {
            const std::string text = shape.text("p", "1", Support::nameTheLeast);
            const std::string other =
                shape.textOfBase(Support::ofMajorVersion(shape.base, "7"), "p", "1", Support::nameTheLeast);
            for (const std::string& wrong : {reader.info == TypeParam::info ? other : text, other}) {
                EXPECT_EQ(messageOf<ValidationException>([&] { reader.read(ParametersEngine(), wrong); }),
                          "Inheritance from an incorrect base schema.")
                    << reader.info.id();
            }
            ParametersEngine engine;
            engine.registerGroup(Taxon("p", "Taken"));
            EXPECT_EQ(messageOf<ValidationException>([&] { reader.read(engine, text); }),
                      "Schema with typeid p is already registered.");
        }
    });
}

TYPED_TEST(ReadingOfEachKind, StoresNothing) {
    if constexpr (TypeParam::valueType != Parameters::None) {
        for (const Support::Shape& shape : this->shapes) {
            ParametersEngine engine;
            Support::stock(engine, shape);
            const std::string before = pictureOf(engine, {"p"});
            const auto parameter = TypeParam::read(engine, shape.text("p", "1", Support::nameTheLeast));
            EXPECT_EQ(Support::Sample<TypeParam>::contentOf(parameter), "1");
            EXPECT_EQ(pictureOf(engine, {"p"}), before);
            TypeParam::add(engine, parameter);
            EXPECT_EQ(Support::describe(TypeParam::get(engine, "p")), Support::describe(parameter));
        }
    }
}

/// Returns the text of a parameter "p" of a base, which names the spec "x".
std::string namingSpec(const std::string& base) {
    return schemaText("p", base, R"({"id": "name", "value": "Name"}, )" + Support::typedConstant("spec", "x"));
}

struct Typed {
    const char* name;
    std::string text;
    ValueType type;
};

const Typed typed[] = {
    {"ReferencesThatNobodyRegistered", boolParameterText("p", "x", "y"), Parameters::Bool},
    {"TypeIdOfAnObject", boolParameterText("spec", "group", "spec"), Parameters::Bool},
    {"TypeIdOfAPendingSchema", boolParameterText("pending group", "group", "spec"), Parameters::Bool},
    {"BuiltInTypeId", boolParameterText("norvex.spec:discipline-1.0.0", "group", "spec"), Parameters::Bool},
    {"OtherMajorVersion", Support::namedText("p", "norvex.parameter:parameter.bool-1.0.0", "Name"), Parameters::None},
    {"MeasurableParameterWithoutItsSpec",
     Support::namedText("p", "norvex.parameter:parameter.measurable-3.0.0", "Name"), Parameters::None},
    {"IntBeforeMeasurable", namingSpec("norvex.parameter:parameter.measurable-3. norvex.parameter:parameter.int64-3."),
     Parameters::Int},
    {"MeasurableBeforeReference",
     namingSpec("norvex.parameter:parameter.reference-2. norvex.parameter:parameter.measurable-3."),
     Parameters::Measurable},
    {"FaultyMeasurableBeforeReference",
     Support::namedText("p", "norvex.parameter:parameter.reference-2. norvex.parameter:parameter.measurable-3.",
                        "Name"),
     Parameters::None},
    {"ReferenceBeforeString",
     namingSpec("norvex.parameter:parameter.string-3. norvex.parameter:parameter.reference.ranged-2."),
     Parameters::Reference},
    {"BoolBeforeInt",
     Support::namedText("p", "norvex.parameter:parameter.int64-3. norvex.parameter:parameter.bool-2.", "Name"),
     Parameters::Bool},
    {"IntBeforeString",
     Support::namedText("p", "norvex.parameter:parameter.string-3. norvex.parameter:parameter.int64-3.", "Name"),
     Parameters::Int},
    {"FaultyIntBeforeString",
     schemaText("p", "norvex.parameter:parameter.string-3. norvex.parameter:parameter.int64-3.",
                R"({"id": "name", "value": "Name"}, {"id": "range", "typedValue": {"typeid":
                    "norvex.range:range.int64.bounded.static-1.0.0"}})"),
     Parameters::None},
    {"Unit", Support::unitText("p"), Parameters::None},
    {"NoKindsBase", Support::namedText("p", "some base", "Name"), Parameters::None},
    {"FaultyDiscipline", Support::disciplineText("p", ""), Parameters::None},
    {"ParameterWithoutAName", schemaText("p", parameterBase, ""), Parameters::None},
    {"ParameterWithAFaultyName", schemaText("p", parameterBase, R"({"id": "name", "value": 1})"), Parameters::None},
    {"ParameterWithAFaultySpec",
     schemaText("p", parameterBase, R"({"id": "name", "value": "Name"}, {"id": "spec", "typedValue": {}})"),
     Parameters::None},
    {"ParameterWithAConstantOfNoValue", schemaText("p", parameterBase, R"({"id": "name"})"), Parameters::None},
};

class ReadValueType : public testing::TestWithParam<Typed> {};

TEST_P(ReadValueType, SaysWhatValuesTheParameterHasAndLeavesTheEngineAsItWas) {
    const ParametersEngine engine = prepared();
    const std::string before = pictureOf(engine, {"p"});
    EXPECT_EQ(engine.readValueType(GetParam().text), GetParam().type);
    EXPECT_EQ(pictureOf(engine, {"p"}), before);
}

INSTANTIATE_TEST_SUITE_P(ReadParameter, ReadValueType, testing::ValuesIn(typed), Support::nameOfRow);

const Fault noSchemas[] = {
    {"NoObject", "5", "Schema must specify a typeid string."},
    {"NoTypeId", R"({"inherits": ["norvex.parameter:parameter.bool-2.0.0"]})", "Schema must specify a typeid string."},
    {"EmptyTypeId", Support::namedText("", parameterBase, "Name"), "The typeid string may not be empty."},
    {"NoBase", R"({"typeid": "p"})", "Schema must specify an inheritance array."},
    {"TwoBases", R"({"typeid": "p", "inherits": ["norvex.parameter:parameter.bool-2.0.0", "x"]})",
     "Inheritance clause must specify exactly one base schema."},
    {"ConstantDefinedTwice",
     schemaText("p", parameterBase, R"({"id": "name", "value": "A"}, {"id": "name", "value": "B"})"),
     "Item name in constants array must be defined only once."},
};

class NoSchema : public testing::TestWithParam<Fault> {};

TEST_P(NoSchema, HasNoValueTypeButAFault) {
    EXPECT_EQ(messageOf<ValidationException>([&] { prepared().readValueType(GetParam().text); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(ReadParameter, NoSchema, testing::ValuesIn(noSchemas), Support::nameOfRow);

} // namespace
