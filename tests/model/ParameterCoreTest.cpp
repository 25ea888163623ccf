#include <parameters/ParameterCore.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

using Parameters::BoolParameter;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::ReferenceParameter;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::awkwardStrings;
using Support::constant;
using Support::disciplineText;
using Support::engineOf;
using Support::failureOf;
using Support::Fault;
using Support::groupText;
using Support::messageOf;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;
using Support::typedConstant;

TEST(ParameterCore, AnswersWhatItWasMadeFrom) {
    const ParameterCore core("plant.parameter:gate-1.0.0", "Gate", Taxon("plant.group:safety-1.0.0", "Safety"),
                             "Whether the gate is open.", "Yes", true);
    EXPECT_EQ(core.getTypeId(), "plant.parameter:gate-1.0.0");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "Whether the gate is open.");
    EXPECT_EQ(core.getSampleText(), "Yes");
    EXPECT_EQ(core.getGroup().getTypeId(), "plant.group:safety-1.0.0");
    EXPECT_EQ(core.getGroup().getName(), "Safety");
    EXPECT_TRUE(core.isReadOnly());
}

TEST(ParameterCore, HasTheGroupOtherUnlessItIsGivenOne) {
    const ParameterCore core("plant.parameter:gate-1.0.0", "Gate", "Whether the gate is open.", "Yes", true);
    EXPECT_EQ(core.getTypeId(), "plant.parameter:gate-1.0.0");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "Whether the gate is open.");
    EXPECT_EQ(core.getSampleText(), "Yes");
    EXPECT_EQ(core.getGroup().getTypeId(), "norvex.parameter:group-1.0.0");
    EXPECT_EQ(core.getGroup().getName(), "Other");
    EXPECT_TRUE(core.isReadOnly());
}

TEST(ParameterCore, MayBeWritable) {
    EXPECT_FALSE(ParameterCore("gate", "Gate", "", "", false).isReadOnly());
    EXPECT_FALSE(ParameterCore("gate", "Gate", Taxon("safety", "Safety"), "", "", false).isReadOnly());
}

TEST(ParameterCore, ChecksNothingOfWhatItIsMadeFrom) {
    const ParameterCore core("", "", Taxon("", ""), "", "", false);
    EXPECT_EQ(core.getTypeId(), "");
    EXPECT_EQ(core.getName(), "");
    EXPECT_EQ(core.getDescription(), "");
    EXPECT_EQ(core.getSampleText(), "");
    EXPECT_EQ(core.getGroup().getTypeId(), "");
}

/// A kind of parameter, as far as its core goes.
struct ParameterKind {
    const char* name;
    std::string base;
    ParameterCore (*get)(const ParametersEngine& engine, const std::string& typeId);
    void (*add)(ParametersEngine& engine, const ParameterCore& core);
};

template <auto getter>
ParameterCore coreBy(const ParametersEngine& engine, const std::string& typeId) {
    return (engine.*getter)(typeId).getCore();
}

template <class Parameter, auto registrar>
void addBy(ParametersEngine& engine, const ParameterCore& core) {
    (engine.*registrar)(Parameter(core));
}

template <bool ranged>
void addReferenceParameter(ParametersEngine& engine, const ParameterCore& core) {
    engine.registerReferenceParameter(ReferenceParameter(core, ranged));
}

void addIntParameter(ParametersEngine& engine, const ParameterCore& core) {
    engine.registerIntParameter({core, {false, 0, false, 0}});
}

void addStringParameter(ParametersEngine& engine, const ParameterCore& core) {
    engine.registerStringParameter({core, Parameters::StringRange()});
}

const ParameterKind parameterKinds[] = {
    {"BoolParameter", "norvex.parameter:parameter.bool-2.0.0", coreBy<&ParametersEngine::getBoolParameter>,
     addBy<BoolParameter, &ParametersEngine::registerBoolParameter>},
    {"IntParameter", "norvex.parameter:parameter.int64-3.0.0", coreBy<&ParametersEngine::getIntParameter>,
     addIntParameter},
    {"StringParameter", "norvex.parameter:parameter.string-3.0.0", coreBy<&ParametersEngine::getStringParameter>,
     addStringParameter},
    {"ReferenceParameter", "norvex.parameter:parameter.reference-2.0.0",
     coreBy<&ParametersEngine::getReferenceParameter>, addReferenceParameter<false>},
    {"RangedReferenceParameter", "norvex.parameter:parameter.reference.ranged-2.0.0",
     coreBy<&ParametersEngine::getReferenceParameter>, addReferenceParameter<true>},
};

const std::string nameOnly = R"({"id": "name", "value": "Gate"})";

/// Returns the text of the parameter "gate" of a kind with the given constants.
std::string textOf(const ParameterKind& kind, const std::string& constants) {
    return schemaText("gate", kind.base, constants);
}

/// Returns the text of the parameter "gate" of a kind, which names a group.
std::string textNaming(const ParameterKind& kind, const std::string& group) {
    return textOf(kind, nameOnly + ", " + typedConstant("group", group));
}

/// Returns a parameter core "gate" of a group.
ParameterCore coreOf(const Taxon& group) { return {"gate", "Gate", group, "", "", false}; }

class ParameterCoreOfEachKind : public testing::TestWithParam<ParameterKind> {
protected:
    static const ParameterKind& kind() { return GetParam(); }
    static ParameterCore coreIn(const ParametersEngine& engine) { return kind().get(engine, "gate"); }
    static ParameterCore coreFrom(const std::string& constants) {
        return coreIn(engineOf({textOf(kind(), constants)}));
    }

    /// Returns the schema of a parameter "gate" made in code.
    static std::string writtenOf(const ParameterCore& core, ParametersEngine engine = {}) {
        kind().add(engine, core);
        return engine.getSchema("gate");
    }

    /// Returns the message with which a parameter made in code is refused.
    static std::string refusalOfObject(const ParameterCore& core, ParametersEngine engine = {}) {
        return messageOf<ValidationException>([&] { kind().add(engine, core); });
    }

    /// Returns the text of a written parameter "gate" with the given constants behind its name.
    static std::string written(const std::string& more) {
        return R"({"typeid":"gate","inherits":[")" + kind().base + R"("],"constants":[{"id":"name","value":"Gate"})" +
               more + "]}";
    }
};

TEST_P(ParameterCoreOfEachKind, HasDefaultsForAllButItsName) {
    const ParameterCore core = coreFrom(nameOnly);
    EXPECT_EQ(core.getTypeId(), "gate");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "");
    EXPECT_EQ(core.getSampleText(), "");
    EXPECT_EQ(core.getGroup().getTypeId(), "norvex.parameter:group-1.0.0");
    EXPECT_EQ(core.getGroup().getName(), "Other");
    EXPECT_FALSE(core.isReadOnly());
}

TEST_P(ParameterCoreOfEachKind, HasTheConstantsOfItsSchema) {
    const ParameterCore core = coreFrom(R"({"id": "readOnly", "value": true}, {"id": "sampleText", "value": "Yes"},
        {"id": "description", "value": "Whether it is open."}, {"id": "name", "value": "Gate"})");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(core.getDescription(), "Whether it is open.");
    EXPECT_EQ(core.getSampleText(), "Yes");
    EXPECT_TRUE(core.isReadOnly());
}

TEST_P(ParameterCoreOfEachKind, MayHaveEmptyTextsAndBeWritable) {
    const ParameterCore core = coreFrom(nameOnly + R"(, {"id": "description", "value": ""},
        {"id": "sampleText", "value": ""}, {"id": "readOnly", "value": false})");
    EXPECT_EQ(core.getDescription(), "");
    EXPECT_EQ(core.getSampleText(), "");
    EXPECT_FALSE(core.isReadOnly());
}

TEST_P(ParameterCoreOfEachKind, NeedsNoGroupOfTheBuiltInMajorVersion) {
    const ParameterCore core = coreIn(engineOf({textNaming(kind(), "norvex.parameter:group-1.3.0")}));
    EXPECT_EQ(core.getGroup().getTypeId(), "norvex.parameter:group-1.3.0");
    EXPECT_EQ(core.getGroup().getName(), "Other");
}

TEST_P(ParameterCoreOfEachKind, NeedsNoGroupWhoseTypeIdContainsTheBuiltInOne) {
    const ParameterCore core = coreIn(engineOf({textNaming(kind(), "my norvex.parameter:group-1.x")}));
    EXPECT_EQ(core.getGroup().getTypeId(), "my norvex.parameter:group-1.x");
    EXPECT_EQ(core.getGroup().getName(), "Other");
}

TEST_P(ParameterCoreOfEachKind, HasTheGroupRegisteredBefore) {
    ParametersEngine engine;
    engine.registerGroup(Taxon("safety", "Dam Safety"));
    engine.registerSchema(textNaming(kind(), "safety"));
    engine.resolveSchemas();
    EXPECT_EQ(coreIn(engine).getGroup().getTypeId(), "safety");
    EXPECT_EQ(coreIn(engine).getGroup().getName(), "Dam Safety");
}

TEST_P(ParameterCoreOfEachKind, HasTheGroupResolvedWithIt) {
    const ParameterCore core = coreIn(engineOf({textNaming(kind(), "safety"), groupText("safety", "Dam Safety")}));
    EXPECT_EQ(core.getGroup().getName(), "Dam Safety");
}

TEST_P(ParameterCoreOfEachKind, TakesItsGroupAsAPlainValueToo) {
    const std::string text = textOf(kind(), nameOnly + ", " + constant("group", R"({"typeid": "safety"})"));
    EXPECT_EQ(coreIn(engineOf({groupText("safety", "Dam Safety"), text})).getGroup().getName(), "Dam Safety");
}

TEST_P(ParameterCoreOfEachKind, FailsToResolveWithoutItsGroup) {
    EXPECT_EQ(failureOf({textNaming(kind(), "safety")}),
              "Dependency safety in schema gate is missing or does not represent an object of the expected type.");
}

TEST_P(ParameterCoreOfEachKind, FailsToResolveWithAGroupOfAnotherMajorVersion) {
    EXPECT_EQ(failureOf({textNaming(kind(), "norvex.parameter:group-2.0.0")}),
              "Dependency norvex.parameter:group-2.0.0 in schema gate is missing or does not represent an object of "
              "the expected type.");
}

TEST_P(ParameterCoreOfEachKind, FailsToResolveWithADisciplineAsItsGroup) {
    EXPECT_EQ(failureOf({textNaming(kind(), "safety"), disciplineText("safety")}),
              "Dependency safety in schema gate is missing or does not represent an object of the expected type.");
}

TEST_P(ParameterCoreOfEachKind, FailsToResolveWithTheCommonDisciplineAsItsGroup) {
    EXPECT_EQ(failureOf({textNaming(kind(), "norvex.spec:discipline-1.0.0")}),
              "Dependency norvex.spec:discipline-1.0.0 in schema gate is missing or does not represent an object of "
              "the expected type.");
}

TEST_P(ParameterCoreOfEachKind, FailsToResolveWithItselfAsItsGroup) {
    EXPECT_EQ(failureOf({textNaming(kind(), "gate")}),
              "Dependency gate in schema gate is missing or does not represent an object of the expected type.");
}

TEST_P(ParameterCoreOfEachKind, IsRefusedWithoutItsGroup) {
    EXPECT_EQ(refusalOfObject(coreOf(Taxon("safety", "Safety"))), "Could not find group with typeid safety.");
}

TEST_P(ParameterCoreOfEachKind, IsRefusedWithAGroupThatIsOnlyPending) {
    ParametersEngine engine;
    engine.registerSchema(groupText("safety"));
    EXPECT_EQ(refusalOfObject(coreOf(Taxon("safety", "Safety")), engine), "Could not find group with typeid safety.");
}

TEST_P(ParameterCoreOfEachKind, IsRefusedWithAGroupOfAnotherMajorVersion) {
    EXPECT_EQ(refusalOfObject(coreOf(Taxon("norvex.parameter:group-2.0.0", "Other"))),
              "Could not find group with typeid norvex.parameter:group-2.0.0.");
}

TEST_P(ParameterCoreOfEachKind, IsRefusedWithADisciplineAsItsGroup) {
    EXPECT_EQ(refusalOfObject(coreOf(Taxon("safety", "Safety")), engineOf({disciplineText("safety")})),
              "Could not find group with typeid safety.");
}

TEST_P(ParameterCoreOfEachKind, IsRefusedForItsTypeIdBeforeItsGroup) {
    const Taxon missing("safety", "Safety");
    EXPECT_EQ(refusalOfObject(ParameterCore("", "Gate", missing, "", "", false)), "Typeid must not be empty.");
    EXPECT_EQ(refusalOfObject(coreOf(missing), engineOf({disciplineText("gate")})),
              "Schema with typeid gate is already registered.");
}

TEST_P(ParameterCoreOfEachKind, GetsTheRegisteredGroupForTheOneItWasGiven) {
    ParametersEngine engine = engineOf({groupText("safety", "Dam Safety")});
    kind().add(engine, coreOf(Taxon("safety", "Mine")));
    EXPECT_EQ(coreIn(engine).getGroup().getTypeId(), "safety");
    EXPECT_EQ(coreIn(engine).getGroup().getName(), "Dam Safety");
}

TEST_P(ParameterCoreOfEachKind, GetsTheNameOtherForABuiltInGroupThatItWasGiven) {
    ParametersEngine engine;
    kind().add(engine, coreOf(Taxon("norvex.parameter:group-1.3.0", "Mine")));
    EXPECT_EQ(coreIn(engine).getGroup().getTypeId(), "norvex.parameter:group-1.3.0");
    EXPECT_EQ(coreIn(engine).getGroup().getName(), "Other");
}

TEST_P(ParameterCoreOfEachKind, KeepsWhatElseItWasGiven) {
    ParametersEngine engine;
    kind().add(engine, ParameterCore("gate", "Gate", "Whether it is open.", "Yes", true));
    EXPECT_EQ(coreIn(engine).getName(), "Gate");
    EXPECT_EQ(coreIn(engine).getDescription(), "Whether it is open.");
    EXPECT_EQ(coreIn(engine).getSampleText(), "Yes");
    EXPECT_TRUE(coreIn(engine).isReadOnly());
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithoutDefaults) {
    EXPECT_EQ(writtenOf(ParameterCore("gate", "Gate", "", "", false)), written(""));
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithoutTheGroupOtherWhateverItsName) {
    EXPECT_EQ(writtenOf(coreOf(Taxon("norvex.parameter:group-1.0.0", "Mine"))), written(""));
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithTheGroupOtherInAnotherMinorVersion) {
    EXPECT_EQ(writtenOf(coreOf(Taxon("norvex.parameter:group-1.3.0", "Other"))),
              written(R"(,{"id":"group","typedValue":{"typeid":"norvex.parameter:group-1.3.0"}})"));
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithAllItsConstantsInOneOrder) {
    const ParameterCore core("gate", "Gate", Taxon("safety", "Safety"), "Whether it is open.", "Yes", true);
    EXPECT_EQ(writtenOf(core, engineOf({groupText("safety")})),
              written(R"(,{"id":"description","value":"Whether it is open."},{"id":"sampleText","value":"Yes"},)"
                      R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true})"));
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithEachConstantAlone) {
    EXPECT_EQ(writtenOf(ParameterCore("gate", "Gate", "Whether it is open.", "", false)),
              written(R"(,{"id":"description","value":"Whether it is open."})"));
    EXPECT_EQ(writtenOf(ParameterCore("gate", "Gate", "", "Yes", false)),
              written(R"(,{"id":"sampleText","value":"Yes"})"));
    EXPECT_EQ(writtenOf(coreOf(Taxon("safety", "Safety")), engineOf({groupText("safety")})),
              written(R"(,{"id":"group","typedValue":{"typeid":"safety"}})"));
    EXPECT_EQ(writtenOf(ParameterCore("gate", "Gate", "", "", true)), written(R"(,{"id":"readOnly","value":true})"));
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithItsNameEvenWhenThatIsEmpty) {
    EXPECT_EQ(writtenOf(ParameterCore("gate", "", "", "", false)),
              R"({"typeid":"gate","inherits":[")" + kind().base + R"("],"constants":[{"id":"name","value":""}]})");
}

TEST_P(ParameterCoreOfEachKind, SurvivesTheRoundTripWithDefaults) {
    EXPECT_EQ(rewritten(ParametersEngine(), "gate", written("")), written(""));
}

TEST_P(ParameterCoreOfEachKind, SurvivesTheRoundTripWithAllItsConstants) {
    const std::string text =
        written(R"(,{"id":"description","value":"D"},{"id":"sampleText","value":"S"},)"
                R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true})");
    EXPECT_EQ(rewritten(engineOf({groupText("safety")}), "gate", text), text);
}

TEST_P(ParameterCoreOfEachKind, IsWrittenWithTheFullBaseAndNothingElseOfItsSchema) {
    const std::string base = kind().base.substr(0, kind().base.size() - 3) + "8.2";
    const std::string text = R"({"note": [], "properties": [{"id": "p", "value": 1}], "inherits": [")" + base +
                             R"("], "typeid": "gate", "constants": [{"id": "extra", "value": 5},)"
                             R"({"id": "readOnly", "value": false}, {"id": "description", "value": ""},)"
                             R"({"id": "group", "typedValue": {"typeid": "norvex.parameter:group-1.0.0"}},)"
                             R"({"id": "sampleText", "value": ""}, {"id": "name", "value": "Gate"}]})";
    EXPECT_EQ(rewritten(ParametersEngine(), "gate", text), written(""));
}

TEST_P(ParameterCoreOfEachKind, IsReadFromABaseInsideALongerText) {
    const std::string text = schemaText("gate", "a " + kind().base + " b", nameOnly);
    EXPECT_EQ(coreIn(engineOf({text})).getName(), "Gate");
}

TEST_P(ParameterCoreOfEachKind, IsNotReadFromAnotherMajorVersionOfItsBase) {
    for (const char* version : {"1", "4", "20", "30"}) {
        std::string other = kind().base;
        other.replace(other.size() - 5, 1, version);
        EXPECT_EQ(refusalOf(schemaText("gate", other, nameOnly)), "Inheritance from an unrecognized base schema.")
            << other;
    }
}

INSTANTIATE_TEST_SUITE_P(Parameters, ParameterCoreOfEachKind, testing::ValuesIn(parameterKinds), Support::nameOfRow);

/// Returns constants that are all malformed but for the first ones of their order.
std::string malformedFrom(std::size_t first) {
    const std::string sound[] = {R"({"id": "name", "value": "Gate"})", R"({"id": "description", "value": "D"})",
                                 R"({"id": "sampleText", "value": "S"})",
                                 R"({"id": "group", "typedValue": {"typeid": "safety"}})"};
    const std::string malformed[] = {R"({"id": "name", "value": ""})", R"({"id": "description", "value": 1})",
                                     R"({"id": "sampleText", "typedValue": null, "value": []})",
                                     R"({"id": "group", "typedValue": {}})"};
    std::string constants = R"({"id": "readOnly", "value": 0})"; // the text's order is not the order of checks
    for (std::size_t place = 4; place > 0; --place) {
        constants += ", " + (place - 1 < first ? sound : malformed)[place - 1];
    }
    return constants;
}

const std::vector<Fault> constantFaults = {
    {"NoName", "", "Schema gate has an undefined name constant."},
    {"NullAsName", R"({"id": "name", "value": null})", "Expected a non-empty string."},
    {"NumberAsName", R"({"id": "name", "value": 5})", "Expected a non-empty string."},
    {"EmptyName", R"({"id": "name", "value": ""})", "Expected a non-empty string."},
    {"NameWithoutAValue", R"({"id": "name"})", "A property definition must contain either a value or a typedValue."},
    {"NullAsDescription", nameOnly + R"(, {"id": "description", "value": null})", "Expected a string."},
    {"NumberAsDescription", nameOnly + R"(, {"id": "description", "value": 5})", "Expected a string."},
    {"DescriptionWithoutAValue", nameOnly + R"(, {"id": "description"})",
     "A property definition must contain either a value or a typedValue."},
    {"NullAsSampleText", nameOnly + R"(, {"id": "sampleText", "value": null})", "Expected a string."},
    {"TrueAsSampleText", nameOnly + R"(, {"id": "sampleText", "value": true})", "Expected a string."},
    {"SampleTextWithoutAValue", nameOnly + R"(, {"id": "sampleText"})",
     "A property definition must contain either a value or a typedValue."},
    {"StringAsGroup", nameOnly + R"(, {"id": "group", "typedValue": "safety"})", "A typedValue must be an object."},
    {"NullAsGroup", nameOnly + R"(, {"id": "group", "value": null})", "A typedValue must be an object."},
    {"EmptyGroup", nameOnly + R"(, {"id": "group", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"GroupWithAnotherMember", nameOnly + R"(, {"id": "group", "typedValue": {"typeid": "safety", "name": "N"}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"GroupWithoutATypeId", nameOnly + R"(, {"id": "group", "typedValue": {"name": "N"}})",
     "A typedValue did not contain a typeid attribute."},
    {"GroupWithAnEmptyTypeId", nameOnly + R"(, {"id": "group", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"GroupWithANumberAsTypeId", nameOnly + R"(, {"id": "group", "typedValue": {"typeid": 5}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"GroupWithoutAValue", nameOnly + R"(, {"id": "group"})",
     "A property definition must contain either a value or a typedValue."},
    {"NumberAsReadOnly", nameOnly + R"(, {"id": "readOnly", "value": 1})", "Expected a Boolean value."},
    {"StringAsReadOnly", nameOnly + R"(, {"id": "readOnly", "value": "true"})", "Expected a Boolean value."},
    {"NullAsReadOnly", nameOnly + R"(, {"id": "readOnly", "value": null})", "Expected a Boolean value."},
    {"ReadOnlyWithoutAValue", nameOnly + R"(, {"id": "readOnly"})",
     "A property definition must contain either a value or a typedValue."},
    {"NoNameBeforeDescription", R"({"id": "description", "value": 5})", "Schema gate has an undefined name constant."},
    {"NameFirst", malformedFrom(0), "Expected a non-empty string."},
    {"ThenDescription", malformedFrom(1), "Expected a string."},
    {"ThenSampleText", malformedFrom(2), "Expected a string."},
    {"ThenGroup", malformedFrom(3), "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"ThenReadOnly", malformedFrom(4), "Expected a Boolean value."},
    {"DescriptionBeforeSampleText", nameOnly + R"(, {"id": "sampleText", "value": 5}, {"id": "description"})",
     "A property definition must contain either a value or a typedValue."},
};

class RefusedParameter : public testing::TestWithParam<std::tuple<ParameterKind, Fault>> {};

TEST_P(RefusedParameter, FailsWithTheFirstFault) {
    const auto& [kind, fault] = GetParam();
    EXPECT_EQ(refusalOf(textOf(kind, fault.text)), fault.message);
}

INSTANTIATE_TEST_SUITE_P(Constants, RefusedParameter,
                         testing::Combine(testing::ValuesIn(parameterKinds), testing::ValuesIn(constantFaults)),
                         Support::nameOfBothRows);

class AwkwardParameter : public testing::TestWithParam<std::tuple<ParameterKind, Support::AwkwardString>> {
protected:
    static const ParameterKind& kind() { return std::get<0>(GetParam()); }
    static const std::string& bytes() { return std::get<1>(GetParam()).bytes; }

    static ParametersEngine engineWithGroup() {
        ParametersEngine engine;
        engine.registerGroup(Taxon("g" + bytes(), "N"));
        return engine;
    }
    static std::string written() {
        const std::string& escaped = std::get<1>(GetParam()).escaped;
        return R"({"typeid":")" + escaped + R"(","inherits":[")" + kind().base +
               R"("],"constants":[{"id":"name","value":")" + escaped + R"("},{"id":"description","value":"d)" +
               escaped + R"("},{"id":"sampleText","value":"s)" + escaped +
               R"("},{"id":"group","typedValue":{"typeid":"g)" + escaped + R"("}}]})";
    }
};

TEST_P(AwkwardParameter, IsWrittenWithItsBytes) {
    ParametersEngine engine = engineWithGroup();
    kind().add(engine, ParameterCore(bytes(), bytes(), Taxon("g" + bytes(), ""), "d" + bytes(), "s" + bytes(), false));
    EXPECT_EQ(engine.getSchema(bytes()), written());
}

TEST_P(AwkwardParameter, IsReadWithItsBytes) {
    ParametersEngine engine = engineWithGroup();
    engine.registerSchema(written());
    engine.resolveSchemas();
    const ParameterCore core = kind().get(engine, bytes());
    EXPECT_EQ(core.getTypeId(), bytes());
    EXPECT_EQ(core.getName(), bytes());
    EXPECT_EQ(core.getDescription(), "d" + bytes());
    EXPECT_EQ(core.getSampleText(), "s" + bytes());
    EXPECT_EQ(core.getGroup().getTypeId(), "g" + bytes());
}

TEST_P(AwkwardParameter, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(engineWithGroup(), bytes(), written()), written());
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardParameter,
                         testing::Combine(testing::ValuesIn(parameterKinds), testing::ValuesIn(awkwardStrings)),
                         Support::nameOfBothRows);

} // namespace
