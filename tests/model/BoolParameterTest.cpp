#include <parameters/BoolParameter.h>

#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Parameters::BoolParameter;
using Parameters::BoolSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Parameters::ValidationException;
using Support::boolParameterText;
using Support::constant;
using Support::engineOf;
using Support::failureOf;
using Support::Fault;
using Support::groupText;
using Support::messageOf;
using Support::namedText;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;
using Support::typedConstant;

const std::string base = "norvex.parameter:parameter.bool-2.0.0";
const std::string nameOnly = R"({"id": "name", "value": "Gate"})";
const std::string openSpec = namedText("open", "norvex.spec:spec.bool-1.0.0", "Open/Closed");

/// Returns the text of the parameter "gate", which names a spec.
std::string textNaming(const std::string& spec) {
    return schemaText("gate", base, nameOnly + ", " + typedConstant("spec", spec));
}

/// Returns a parameter "gate" made in code, of a spec and a group that it makes up.
BoolParameter gateOf(const std::string& spec, const std::string& group = "norvex.parameter:group-1.0.0") {
    return {ParameterCore("gate", "Gate", Taxon(group, "Mine"), "", "", false), BoolSpec(SpecCore(spec, "Mine"))};
}

std::string refusalOfObject(const BoolParameter& parameter, ParametersEngine engine = {}) {
    return messageOf<ValidationException>([&] { engine.registerBoolParameter(parameter); });
}

std::string writtenOf(const BoolParameter& parameter, ParametersEngine engine = {}) {
    engine.registerBoolParameter(parameter);
    return engine.getSchema("gate");
}

TEST(BoolParameter, AnswersWhatItWasMadeFrom) {
    const BoolParameter parameter(ParameterCore("gate", "Gate", Taxon("safety", "Safety"), "D", "S", true),
                                  BoolSpec(SpecCore("open", "Open", Taxon("civil", "Civil Works"))));
    EXPECT_EQ(parameter.getCore().getTypeId(), "gate");
    EXPECT_EQ(parameter.getCore().getName(), "Gate");
    EXPECT_EQ(parameter.getCore().getDescription(), "D");
    EXPECT_EQ(parameter.getCore().getSampleText(), "S");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "Safety");
    EXPECT_TRUE(parameter.getCore().isReadOnly());
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "open");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Open");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Civil Works");
}

TEST(BoolParameter, HasTheSpecYesNoUnlessItIsGivenOne) {
    const BoolParameter parameter(ParameterCore("gate", "Gate", "", "", false));
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "norvex.spec:spec.bool-1.0.0");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Yes/No");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getName(), "Common");
}

TEST(BoolParameter, HasPartsThatOutliveIt) {
    const auto core = [] { return gateOf("open").getCore(); }();
    const auto spec = [] { return gateOf("open").getSpec(); }();
    EXPECT_EQ(core.getTypeId(), "gate");
    EXPECT_EQ(core.getName(), "Gate");
    EXPECT_EQ(spec.getCore().getTypeId(), "open");
}

TEST(BoolParameter, HasTheSpecYesNoByDefault) {
    const SpecCore spec = engineOf({schemaText("gate", base, nameOnly)}).getBoolParameter("gate").getSpec().getCore();
    EXPECT_EQ(spec.getTypeId(), "norvex.spec:spec.bool-1.0.0");
    EXPECT_EQ(spec.getName(), "Yes/No");
    EXPECT_EQ(spec.getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    EXPECT_EQ(spec.getDiscipline().getName(), "Common");
}

TEST(BoolParameter, FailsForItsGroupBeforeItsSpec) {
    EXPECT_EQ(failureOf({boolParameterText("gate", "safety", "open")}),
              "Dependency safety in schema gate is missing or does not represent an object of the expected type.");
    EXPECT_EQ(failureOf({boolParameterText("gate", "safety", "open"), groupText("safety")}),
              "Dependency open in schema gate is missing or does not represent an object of the expected type.");
    EXPECT_EQ(refusalOfObject(gateOf("open", "safety")), "Could not find group with typeid safety.");
    EXPECT_EQ(refusalOfObject(gateOf("open", "safety"), engineOf({groupText("safety")})),
              "Could not find Boolean spec with typeid open.");
    EXPECT_EQ(refusalOfObject(gateOf("open", "safety"), engineOf({groupText("gate")})),
              "Schema with typeid gate is already registered.");
}

TEST(BoolParameter, GetsTheRegisteredSpecForTheOneItWasGiven) {
    ParametersEngine engine = engineOf({openSpec});
    engine.registerBoolParameter(gateOf("open"));
    EXPECT_EQ(engine.getBoolParameter("gate").getSpec().getCore().getTypeId(), "open");
    EXPECT_EQ(engine.getBoolParameter("gate").getSpec().getCore().getName(), "Open/Closed");
}

TEST(BoolParameter, KeepsABuiltInSpecAsItWasGiven) {
    ParametersEngine engine;
    engine.registerBoolParameter(gateOf("norvex.spec:spec.bool-1.4.0"));
    EXPECT_EQ(engine.getBoolParameter("gate").getSpec().getCore().getTypeId(), "norvex.spec:spec.bool-1.4.0");
    EXPECT_EQ(engine.getBoolParameter("gate").getSpec().getCore().getName(), "Mine");
}

TEST(BoolParameter, IsWrittenWithoutTheSpecYesNo) {
    EXPECT_EQ(writtenOf(BoolParameter(ParameterCore("gate", "Gate", "", "", false))),
              R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
              R"("constants":[{"id":"name","value":"Gate"}]})");
}

TEST(BoolParameter, IsWrittenWithoutTheSpecYesNoWhateverItsName) {
    EXPECT_EQ(writtenOf(gateOf("norvex.spec:spec.bool-1.0.0")),
              R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
              R"("constants":[{"id":"name","value":"Gate"}]})");
}

TEST(BoolParameter, IsWrittenWithTheSpecYesNoInAnotherMinorVersion) {
    EXPECT_EQ(writtenOf(gateOf("norvex.spec:spec.bool-1.4.0")),
              R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
              R"({"id":"name","value":"Gate"},)"
              R"({"id":"spec","typedValue":{"typeid":"norvex.spec:spec.bool-1.4.0"}}]})");
}

TEST(BoolParameter, IsWrittenWithItsSpecBehindAllOtherConstants) {
    const BoolParameter parameter(ParameterCore("gate", "Gate", Taxon("safety", "N"), "D", "S", true),
                                  BoolSpec(SpecCore("open", "N")));
    EXPECT_EQ(writtenOf(parameter, engineOf({groupText("safety"), openSpec})),
              R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
              R"({"id":"name","value":"Gate"},{"id":"description","value":"D"},{"id":"sampleText","value":"S"},)"
              R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true},)"
              R"({"id":"spec","typedValue":{"typeid":"open"}}]})");
}

TEST(BoolParameter, IsWrittenWithoutTheSpecThatItsSchemaNamesNeedlessly) {
    EXPECT_EQ(rewritten(ParametersEngine(), "gate", textNaming("norvex.spec:spec.bool-1.0.0")),
              R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],)"
              R"("constants":[{"id":"name","value":"Gate"}]})");
}

TEST(BoolParameter, SurvivesTheRoundTrip) {
    const std::string text =
        R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
        R"({"id":"name","value":"Gate"},{"id":"description","value":"D"},{"id":"sampleText","value":"S"},)"
        R"({"id":"group","typedValue":{"typeid":"safety"}},{"id":"readOnly","value":true},)"
        R"({"id":"spec","typedValue":{"typeid":"open"}}]})";
    EXPECT_EQ(rewritten(engineOf({groupText("safety"), openSpec}), "gate", text), text);
}

TEST(BoolParameter, SurvivesTheRoundTripWithTheSpecYesNoInAnotherMinorVersion) {
    const std::string text =
        R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
        R"({"id":"name","value":"Gate"},{"id":"spec","typedValue":{"typeid":"norvex.spec:spec.bool-1.4.0"}}]})";
    EXPECT_EQ(rewritten(ParametersEngine(), "gate", text), text);
}

TEST(BoolParameter, SurvivesTheRoundTripWithASpecOfAnyBytes) {
    const std::string spec("o\0\xff", 3);
    ParametersEngine engine;
    engine.registerBoolSpec(BoolSpec(SpecCore(spec, "N")));
    const std::string text = R"({"typeid":"gate","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[)"
                             R"({"id":"name","value":"Gate"},{"id":"spec","typedValue":{"typeid":"o\u0000)"
                             "\xff\"}}]}";
    EXPECT_EQ(rewritten(engine, "gate", text), text);
}

TEST(BoolParameter, IsReadFromAPlainValueAsItsSpec) {
    const std::string text = schemaText("gate", base, nameOnly + ", " + constant("spec", R"({"typeid": "open"})"));
    EXPECT_EQ(engineOf({openSpec, text}).getBoolParameter("gate").getSpec().getCore().getName(), "Open/Closed");
}

const std::vector<Fault> specFaults = {
    {"String", R"({"id": "spec", "typedValue": "open"})", "A typedValue must be an object."},
    {"Null", R"({"id": "spec", "value": null})", "A typedValue must be an object."},
    {"Empty", R"({"id": "spec", "typedValue": {}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"AnotherMember", R"({"id": "spec", "typedValue": {"typeid": "open", "value": 5}})",
     "A typedValue object may not be empty and must contain a typeid attribute only."},
    {"NoTypeId", R"({"id": "spec", "typedValue": {"value": "open"}})",
     "A typedValue did not contain a typeid attribute."},
    {"EmptyTypeId", R"({"id": "spec", "typedValue": {"typeid": ""}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"NumberAsTypeId", R"({"id": "spec", "typedValue": {"typeid": 5}})",
     "A typeid attribute in a typedValue object may not be empty."},
    {"NoValue", R"({"id": "spec"})", "A property definition must contain either a value or a typedValue."},
    {"AfterReadOnly", R"({"id": "spec", "typedValue": 5}, {"id": "readOnly", "value": 5})",
     "Expected a Boolean value."},
};

class RefusedSpecOfBoolParameter : public testing::TestWithParam<Fault> {};

TEST_P(RefusedSpecOfBoolParameter, FailsWithTheFirstFault) {
    EXPECT_EQ(refusalOf(schemaText("gate", base, nameOnly + ", " + GetParam().text)), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Spec, RefusedSpecOfBoolParameter, testing::ValuesIn(specFaults), Support::nameOfRow);

} // namespace
