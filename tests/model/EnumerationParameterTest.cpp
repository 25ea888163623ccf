#include <parameters/EnumerationParameter.h>

#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

using Parameters::Enumeration;
using Parameters::EnumerationParameter;
using Parameters::GeneralSpec;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::SpecCore;
using Parameters::Taxon;
using Support::engineOf;
using Support::Fault;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::typedConstant;
using Values = std::vector<std::pair<std::string, std::int64_t>>;

const char* const base = "norvex.parameter:parameter-2.0.0";
const std::string nameOnly = R"({"id": "name", "value": "Name"})";
const std::string namesS = R"({"id": "spec", "typedValue": {"typeid": "s"}})";
const std::string namesE = R"({"id": "value", "typedValue": {"typeid": "e"}})";

ParameterCore coreOf(const std::string& typeId, const std::string& group = "norvex.parameter:group-1.0.0") {
    return {typeId, "Name", Taxon(group, "Group"), "", "", false};
}

GeneralSpec specOf(const std::string& typeId) { return GeneralSpec(SpecCore(typeId, "Spec")); }

Enumeration enumerationOf(const std::string& typeId) { return {typeId, {{"own", 5}}}; }

/// Returns a schema text of an enumeration parameter with the given constants and properties.
std::string fullText(const std::string& constants, const std::string& properties, const std::string& inherited = base) {
    return R"({"typeid": "p", "inherits": [")" + inherited + R"("], "constants": [)" + constants +
           R"(], "properties": [)" + properties + "]}";
}

std::string textOf(const std::string& spec, const std::string& value) {
    return fullText(nameOnly + ", " + spec, value);
}

std::string written(const std::string& more) {
    return R"({"typeid":"p","inherits":["norvex.parameter:parameter-2.0.0"],"constants":[)"
           R"({"id":"name","value":"Name"})" +
           more + "}";
}

const std::string writtenMinimal =
    written(R"(,{"id":"spec","typedValue":{"typeid":"s"}}],"properties":[{"id":"value","typedValue":{"typeid":"e"}}])");

/// Returns an engine with a group "g", a spec "s" and an enumeration "e".
ParametersEngine stocked() {
    ParametersEngine engine;
    engine.registerGroup(Taxon("g", "The group"));
    engine.registerGeneralSpec(GeneralSpec(SpecCore("s", "The spec")));
    engine.registerEnumeration(Enumeration("e", {{"b", 2}, {"a", 1}}));
    return engine;
}

std::string writtenBy(const EnumerationParameter& parameter) {
    ParametersEngine engine = stocked();
    engine.registerEnumerationParameter(parameter);
    return engine.getSchema("p");
}

TEST(EnumerationParameter, KeepsWhatItIsMadeWith) {
    const EnumerationParameter parameter(coreOf("p", "g"), specOf("s"), Enumeration("e", {{"b", 2}, {"a", 1}}));
    EXPECT_EQ(parameter.getCore().getTypeId(), "p");
    EXPECT_EQ(parameter.getCore().getGroup().getTypeId(), "g");
    EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), "s");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "Spec");
    EXPECT_EQ(parameter.getEnumeration().getTypeId(), "e");
    EXPECT_EQ(parameter.getEnumeration().getValues(), (Values{{"b", 2}, {"a", 1}}));
}

TEST(EnumerationParameter, IsWhatABaseOfBooleanParametersTooMakes) {
    ParametersEngine engine = stocked();
    engine.registerSchema(fullText(nameOnly + ", " + namesS, namesE,
                                   "norvex.parameter:parameter.bool-2.0.0 norvex.parameter:parameter-2.0.0"));
    engine.resolveSchemas();
    EXPECT_EQ(engine.getAllEnumerationParameters().size(), 1U);
    EXPECT_TRUE(engine.getAllBoolParameters().empty());
}

struct Accepted {
    const char* name;
    const char* spec;
    const char* value;
};

const Accepted accepted[] = {
    {"SpecAsAPlainValue", R"({"id": "spec", "value": {"typeid": "s"}})", namesE.c_str()},
    {"SpecAsAPlainValueWithAnEmptyValueInside", R"({"id": "spec", "value": {"typeid": "s", "value": {}}})",
     namesE.c_str()},
    {"SpecBesideAnEmptyValue", R"({"id": "spec", "value": {}, "typedValue": {"typeid": "s"}})", namesE.c_str()},
    {"SpecWithAnEmptyValueInside", R"({"id": "spec", "typedValue": {"value": {}, "typeid": "s"}})", namesE.c_str()},
    {"SpecWithBothEmptyValues", R"({"id": "spec", "value": {}, "typedValue": {"value": {}, "typeid": "s"}})",
     namesE.c_str()},
    {"SpecWithFurtherMembers", R"({"id": "spec", "typedValue": {"x": 5, "typeid": "s"}})", namesE.c_str()},
    {"EnumerationAsAPlainValue", namesS.c_str(), R"({"id": "value", "value": {"typeid": "e"}})"},
    {"EnumerationInTypedValueBeforeAPlainValue", namesS.c_str(),
     R"({"id": "value", "value": {"typeid": "x"}, "typedValue": {"typeid": "e"}})"},
    {"EnumerationBesideAnyValue", namesS.c_str(), R"({"id": "value", "value": 5, "typedValue": {"typeid": "e"}})"},
    {"EnumerationWithFurtherMembers", namesS.c_str(), R"({"id": "value", "typedValue": {"typeid": "e", "value": 5}})"},
};

class AcceptedEnumerationParameter : public testing::TestWithParam<Accepted> {};

TEST_P(AcceptedEnumerationParameter, NamesItsSpecAndItsEnumeration) {
    EXPECT_EQ(rewritten(stocked(), "p", textOf(GetParam().spec, GetParam().value)), writtenMinimal);
}

INSTANTIATE_TEST_SUITE_P(EnumerationParameter, AcceptedEnumerationParameter, testing::ValuesIn(accepted),
                         Support::nameOfRow);

const char* const noSpec = "Enumeration parameter schema p has an undefined spec constant.";
const char* const specWithoutValue = "A spec definition must contain either a value or a typedValue.";
const char* const specWithoutTypeId =
    "Spec constant in enumeration parameter schema p must specify a nonempty typeid string.";
const char* const specWithValue = "Value of spec constant in enumeration parameter schema p must be an empty object.";
const char* const noValue = "Enumeration parameter schema p has an undefined value property.";
const char* const valueWithoutTypeId =
    "Value property in enumeration parameter schema p must specify a nonempty typeid string.";

const std::vector<Fault> textFaults = {
    {"NoName", fullText(namesS, namesE), "Schema p has an undefined name constant."},
    {"NoNameBeforeSpecAndValue", fullText("", ""), "Schema p has an undefined name constant."},
    {"FlagBeforeSpec", fullText(nameOnly + R"(, {"id": "readOnly", "value": 1})", namesE), "Expected a Boolean value."},
    {"NoSpec", fullText(nameOnly, namesE), noSpec},
    {"SpecAsAProperty", fullText(nameOnly, namesS + ", " + namesE), noSpec},
    {"SpecWithoutValue", textOf(R"({"id": "spec"})", namesE), specWithoutValue},
    {"SpecAsAText", textOf(R"({"id": "spec", "typedValue": "s"})", namesE), specWithoutTypeId},
    {"SpecNull", textOf(R"({"id": "spec", "value": null})", namesE), specWithoutTypeId},
    {"SpecAsAnArray", textOf(R"({"id": "spec", "typedValue": [{"typeid": "s"}]})", namesE), specWithoutTypeId},
    {"SpecWithoutTypeId", textOf(R"({"id": "spec", "typedValue": {}})", namesE), specWithoutTypeId},
    {"SpecTypeIdAsANumber", textOf(R"({"id": "spec", "typedValue": {"typeid": 5}})", namesE), specWithoutTypeId},
    {"SpecTypeIdEmpty", textOf(R"({"id": "spec", "typedValue": {"typeid": ""}})", namesE), specWithoutTypeId},
    {"SpecTypeIdBesideTypedValue", textOf(R"({"id": "spec", "value": {"typeid": "s"}, "typedValue": {}})", namesE),
     specWithoutTypeId},
    {"SpecBesideAMember", textOf(R"({"id": "spec", "value": {"a": 1}, "typedValue": {"typeid": "s"}})", namesE),
     specWithValue},
    {"SpecBesideANumber", textOf(R"({"id": "spec", "value": 5, "typedValue": {"typeid": "s"}})", namesE),
     specWithValue},
    {"SpecBesideAnArray", textOf(R"({"id": "spec", "value": [], "typedValue": {"typeid": "s"}})", namesE),
     specWithValue},
    {"SpecBesideNull", textOf(R"({"id": "spec", "value": null, "typedValue": {"typeid": "s"}})", namesE),
     specWithValue},
    {"SpecWithAMemberInside", textOf(R"({"id": "spec", "typedValue": {"typeid": "s", "value": {"a": 1}}})", namesE),
     specWithValue},
    {"SpecWithNullInside", textOf(R"({"id": "spec", "typedValue": {"typeid": "s", "value": null}})", namesE),
     specWithValue},
    {"SpecWithAnEmptyValueBesideAndAMemberInside",
     textOf(R"({"id": "spec", "value": {}, "typedValue": {"typeid": "s", "value": []}})", namesE), specWithValue},
    {"SpecAsAPlainValueWithAMemberInside",
     textOf(R"({"id": "spec", "value": {"typeid": "s", "value": {"a": 1}}})", namesE), specWithValue},
    {"NoEnumeration", fullText(nameOnly + ", " + namesS, ""), noValue},
    {"EnumerationAsAConstant", fullText(nameOnly + ", " + namesS + ", " + namesE, ""), noValue},
    {"NoProperties",
     R"({"typeid": "p", "inherits": ["norvex.parameter:parameter-2.0.0"], "constants": [{"id": "name", "value": "N"},
         {"id": "spec", "typedValue": {"typeid": "s"}}]})",
     noValue},
    {"EnumerationWithoutValue", textOf(namesS, R"({"id": "value"})"),
     "A property definition must contain either a value or a typedValue."},
    {"EnumerationWithoutTypeId", textOf(namesS, R"({"id": "value", "typedValue": {}})"), valueWithoutTypeId},
    {"EnumerationAsAText", textOf(namesS, R"({"id": "value", "typedValue": "e"})"), valueWithoutTypeId},
    {"EnumerationAsAnInteger", textOf(namesS, R"({"id": "value", "value": 1})"), valueWithoutTypeId},
    {"EnumerationTypeIdBesideTypedValue",
     textOf(namesS, R"({"id": "value", "value": {"typeid": "e"}, "typedValue": {}})"), valueWithoutTypeId},
    {"EnumerationTypeIdAsANumber", textOf(namesS, R"({"id": "value", "typedValue": {"typeid": 5}})"),
     "Expected a string."},
    {"EnumerationTypeIdNull", textOf(namesS, R"({"id": "value", "typedValue": {"typeid": null}})"),
     "Expected a string."},
    {"EnumerationTypeIdEmpty", textOf(namesS, R"({"id": "value", "typedValue": {"typeid": ""}})"),
     "Expected a non-empty string."},
    {"NoSpecBeforeNoEnumeration", fullText(nameOnly, ""), noSpec},
    {"SpecBeforeEnumeration", textOf(R"({"id": "spec"})", R"({"id": "value"})"), specWithoutValue},
    {"SpecTypeIdBeforeItsValue", textOf(R"({"id": "spec", "value": 5, "typedValue": {}})", namesE), specWithoutTypeId},
    {"SpecValueBeforeEnumeration", textOf(R"({"id": "spec", "value": 5, "typedValue": {"typeid": "s"}})", ""),
     specWithValue},
};

class EnumerationParameterFault : public testing::TestWithParam<Fault> {};

TEST_P(EnumerationParameterFault, IsNamedAndNothingIsRegistered) {
    ParametersEngine engine = stocked();
    EXPECT_EQ(refusalOf(engine, GetParam().text), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(EnumerationParameter, EnumerationParameterFault, testing::ValuesIn(textFaults),
                         Support::nameOfRow);

/// What a parameter names in vain, and the messages of the two ways to look for it.
struct NamingFault {
    const char* name;
    const char* group;
    const char* spec;
    const char* enumeration;
    const char* whenBound;
    const char* whenResolved;
};

const NamingFault namingFaults[] = {
    {"GroupBeforeSpecAndEnumeration", "x", "y", "z", "Could not find group with typeid x.",
     "Dependency x in schema p is missing or does not represent an object of the expected type."},
    {"EnumerationOrSpecFirst", "g", "y", "z", "Could not find enumeration with typeid z.",
     "Dependency y in schema p is missing or does not represent an object of the expected type."},
    {"SpecWithoutABuiltInObject", "g", "norvex.spec:spec-1.0.0", "e",
     "Could not find general spec with typeid norvex.spec:spec-1.0.0.",
     "Dependency norvex.spec:spec-1.0.0 in schema p is missing or does not represent an object of the expected type."},
    {"EnumerationWithoutABuiltInObject", "g", "s", "Enum", "Could not find enumeration with typeid Enum.",
     "Dependency Enum in schema p is missing or does not represent an object of the expected type."},
};

class EnumerationParameterNaming : public testing::TestWithParam<NamingFault> {};

TEST_P(EnumerationParameterNaming, FailsRegistrationAndResolution) {
    const auto& [name, group, spec, enumeration, whenBound, whenResolved] = GetParam();
    ParametersEngine engine = stocked();
    const EnumerationParameter parameter(coreOf("p", group), specOf(spec), enumerationOf(enumeration));
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerEnumerationParameter(parameter); }), whenBound);
    engine.registerSchema(fullText(nameOnly + ", " + typedConstant("spec", spec) + ", " + typedConstant("group", group),
                                   typedConstant("value", enumeration)));
    EXPECT_EQ(refusalBy(engine, [&] { engine.resolveSchemas(); }), whenResolved);
}

INSTANTIATE_TEST_SUITE_P(EnumerationParameter, EnumerationParameterNaming, testing::ValuesIn(namingFaults),
                         Support::nameOfRow);

TEST(EnumerationParameter, HasItsTypeIdCheckedFirst) {
    ParametersEngine engine = stocked();
    const auto refusalOfTypeId = [&](const char* typeId) {
        return refusalBy(engine, [&] {
            engine.registerEnumerationParameter({coreOf(typeId, "x"), specOf("y"), Enumeration("z", {})});
        });
    };
    EXPECT_EQ(refusalOfTypeId(""), "Typeid must not be empty.");
    EXPECT_EQ(refusalOfTypeId("g"), "Schema with typeid g is already registered.");
    EXPECT_EQ(refusalOfTypeId("norvex.spec:spec.int64-2.0.0"),
              "Schema with typeid norvex.spec:spec.int64-2.0.0 is already registered.");
}

TEST(EnumerationParameter, FindsWhatIsResolvedWithIt) {
    const EnumerationParameter parameter =
        engineOf({fullText(nameOnly + ", " + namesS + ", " + typedConstant("group", "g"), namesE),
                  Support::groupText("g", "The group"), Support::namedText("s", "norvex.spec:spec-1.0.0", "The spec"),
                  R"({"typeid": "e", "inherits": ["Enum"], "properties": [{"id": "a", "value": 7}]})"})
            .getEnumerationParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    EXPECT_EQ(parameter.getEnumeration().getTypeId(), "e");
    EXPECT_EQ(parameter.getEnumeration().getValues(), (Values{{"a", 7}}));
}

TEST(EnumerationParameter, IsBoundToTheRegisteredObjectsInPlaceOfItsOwn) {
    ParametersEngine engine = stocked();
    engine.registerEnumerationParameter({coreOf("p", "g"), specOf("s"), Enumeration("e", {})});
    const EnumerationParameter parameter = engine.getEnumerationParameter("p");
    EXPECT_EQ(parameter.getCore().getGroup().getName(), "The group");
    EXPECT_EQ(parameter.getSpec().getCore().getName(), "The spec");
    EXPECT_EQ(parameter.getEnumeration().getValues(), (Values{{"b", 2}, {"a", 1}}));
    EXPECT_EQ(engine.getAllEnumerationParameters().at("p").getEnumeration().getValues(), (Values{{"b", 2}, {"a", 1}}));
}

TEST(EnumerationParameter, IsWrittenWithAllItsConstantsInOrder) {
    const std::string expected = written(R"(,{"id":"description","value":"About it"},{"id":"sampleText","value":"a"},)"
                                         R"({"id":"group","typedValue":{"typeid":"g"}},{"id":"readOnly","value":true},)"
                                         R"({"id":"spec","typedValue":{"typeid":"s"}}],)"
                                         R"("properties":[{"id":"value","typedValue":{"typeid":"e"}}])");
    EXPECT_EQ(
        writtenBy({ParameterCore("p", "Name", Taxon("g", ""), "About it", "a", true), specOf("s"), enumerationOf("e")}),
        expected);
    EXPECT_EQ(rewritten(stocked(), "p", expected), expected);
}

TEST(EnumerationParameter, IsWrittenWithItsNameItsSpecAndItsEnumerationAtLeast) {
    EXPECT_EQ(writtenBy({coreOf("p"), specOf("s"), enumerationOf("e")}), writtenMinimal);
    EXPECT_EQ(rewritten(stocked(), "p", writtenMinimal), writtenMinimal);
}

class AwkwardEnumerationParameter : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardEnumerationParameter, NamesItsEnumerationByAnyBytes) {
    ParametersEngine engine;
    engine.registerGeneralSpec(specOf("s"));
    engine.registerEnumeration(enumerationOf(GetParam().bytes));
    const std::string expected =
        written(R"(,{"id":"spec","typedValue":{"typeid":"s"}}],"properties":[{"id":"value","typedValue":{"typeid":")" +
                GetParam().escaped + R"("}}])");
    EXPECT_EQ(rewritten(engine, "p", expected), expected);
    engine.registerEnumerationParameter({coreOf("p"), specOf("s"), enumerationOf(GetParam().bytes)});
    EXPECT_EQ(engine.getSchema("p"), expected);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardEnumerationParameter, testing::ValuesIn(Support::awkwardStrings),
                         Support::nameOfRow);

} // namespace
