#include <parameters/StringParameter.h>

#include "StringRanges.h"
#include "support/AwkwardStrings.h"
#include "support/Engines.h"
#include "support/Fault.h"
#include "support/Refusal.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// What string parameters do not share with other parameters; see RangedParameterTest.cpp.

namespace {

using namespace StringRanges;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;
using Parameters::RegexStringRangeComponent;
using Parameters::SetStringRangeComponent;
using Parameters::SpecCore;
using Parameters::StringParameter;
using Parameters::StringSpec;
using Parameters::Taxon;
using Support::engineOf;
using Support::Fault;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::typedConstant;

constexpr const char* builtInSpec = "norvex.spec:spec.string-2.0.0";

ParameterCore coreOf(const std::string& typeId, const std::string& group = "norvex.parameter:group-1.0.0") {
    return {typeId, "Name", Taxon(group, "Group"), "", "", false};
}

StringSpec specOf(const std::string& typeId) { return StringSpec(SpecCore(typeId, "Spec")); }

StringRange setOf(const std::string& typeId, const Strings& values) {
    return {typeId, SetStringRangeComponent(values)};
}

StringRange regexOf(const std::string& typeId, const std::string& regex) {
    return {typeId, RegexStringRangeComponent(regex)};
}

/// Returns the text of the parameter "p" with the given constants behind its name.
std::string textOf(const std::string& constants = "") {
    return Support::schemaText("p", "norvex.parameter:parameter.string-3.0.0",
                               R"({"id": "name", "value": "Name"})" + (constants.empty() ? "" : ", " + constants));
}

/// Returns the text of the parameter "p" with an inline value of its range.
std::string inlineText(const std::string& rangeTypeId, const std::string& value) {
    return textOf(R"({"id": "range", "typedValue": {"typeid": ")" + rangeTypeId + R"(", "value": )" + value + "}}");
}

std::string written(const std::string& more) {
    return R"({"typeid":"p","inherits":["norvex.parameter:parameter.string-3.0.0"],"constants":[)"
           R"({"id":"name","value":"Name"})" +
           more + "]}";
}

/// Returns an engine with a group "g", a spec "s", and ranges "set", "empty", "regex" and "any".
ParametersEngine stocked() {
    ParametersEngine engine;
    engine.registerGroup(Taxon("g", "The group"));
    engine.registerStringSpec(StringSpec(SpecCore("s", "The spec")));
    engine.registerStringRange(setOf("set", {"b", "a"}));
    engine.registerStringRange(setOf("empty", {}));
    engine.registerStringRange(regexOf("regex", "a*"));
    return engineOf({Support::schemaText("any", defaultBase, "")}, engine);
}

StringParameter resolved(const std::string& text) { return engineOf({text}, stocked()).getStringParameter("p"); }

std::string writtenBy(const StringParameter& parameter) {
    ParametersEngine engine = stocked();
    engine.registerStringParameter(parameter);
    return engine.getSchema(parameter.getCore().getTypeId());
}

const char* const setAndRegexBase = "norvex.range:range.string.set.static-1.0.0 norvex.range:range.string.regex-1.0.0";
const char* const regexAndSetBase = "norvex.range:range.string.regex-1.0.0 norvex.range:range.string.set.static-1.0.0";
const char* const defaultAndSetBase = "norvex.range:range.string.set.static-1.0.0 norvex.range:range.string-1.0.0";
const char* const defaultAndRegexBase = "norvex.range:range.string-1.0.0 norvex.range:range.string.regex-1.0.0";

TEST(StringParameter, HasAnInlineSetAsItsRange) {
    const std::string text = inlineText("norvex.range:range.string.set.static-1.4.2",
                                        R"({"regex": 5, "allowedValues": ["x", "A", "", "a"], "other": []})");
    expectSet(resolved(text).getRange(), setBase, {"x", "A", "", "a"});
    expectSet(ParametersEngine().readStringParameter(text).getRange(), setBase, {"x", "A", "", "a"});
}

TEST(StringParameter, HasAnInlineExpressionAsItsRange) {
    const std::string text =
        inlineText("my norvex.range:range.string.regex-1.x", R"({"allowedValues": 5, "regex": "((", "other": null})");
    expectRegex(resolved(text).getRange(), regexBase, "((");
    expectRegex(ParametersEngine().readStringParameter(text).getRange(), regexBase, "((");
}

TEST(StringParameter, HasTheDefaultRangeByItsBase) {
    for (const char* typeId : {"norvex.range:range.string-1.0.0", "a norvex.range:range.string-1.7.3 b"}) {
        expectAnyText(resolved(inlineText(typeId, "{}")).getRange(), defaultBase);
        expectAnyText(ParametersEngine().readStringParameter(inlineText(typeId, "{}")).getRange(), defaultBase);
    }
}

TEST(StringParameter, HasTheExpressionWhenItsRangeFitsTheBasesOfSetsAndExpressions) {
    for (const char* typeId : {setAndRegexBase, regexAndSetBase}) {
        const std::string text = inlineText(typeId, R"({"allowedValues": ["a"], "regex": "b"})");
        expectRegex(resolved(text).getRange(), regexBase, "b");
        expectRegex(ParametersEngine().readStringParameter(text).getRange(), regexBase, "b");
    }
}

TEST(StringParameter, HasARegisteredRangeBesideAnEmptyValue) {
    expectSet(resolved(inlineText("set", "{}")).getRange(), "set", {"b", "a"});
    expectSet(stocked().readStringParameter(inlineText("set", "{}")).getRange(), "set", {"b", "a"});
}

TEST(StringParameter, HasARegisteredRangeWhateverThatAllows) {
    expectSet(resolved(textOf(typedConstant("range", "empty"))).getRange(), "empty", {});
    expectRegex(resolved(textOf(typedConstant("range", "regex"))).getRange(), "regex", "a*");
    expectAnyText(resolved(textOf(typedConstant("range", "any"))).getRange(), "any");
    expectSet(stocked().readStringParameter(textOf(typedConstant("range", "empty"))).getRange(), "empty", {});
    expectRegex(stocked().readStringParameter(textOf(typedConstant("range", "regex"))).getRange(), "regex", "a*");
    expectAnyText(stocked().readStringParameter(textOf(typedConstant("range", "any"))).getRange(), "any");
}

const char* const noAllowedValues = "Inline value override in range constant typedValue must specify a non-empty array "
                                    "of unique string values for constant allowedValues.";
const char* const noRegex =
    "Inline value override in range constant typedValue must specify a string value for constant regex.";
const char* const notDefault = "Inline value override for default string range in range constant typedValue, if "
                               "present, must be an empty object.";

const std::vector<Fault> inlineFaults = {
    {"NoSet", inlineText(setBase, R"({"regex": "a"})"), noAllowedValues},
    {"EmptySet", inlineText(setBase, R"({"allowedValues": []})"), noAllowedValues},
    {"SetAsAText", inlineText(setBase, R"({"allowedValues": "a"})"), "Expected an array."},
    {"SetNull", inlineText(setBase, R"({"allowedValues": null})"), "Expected an array."},
    {"SetAsAnEmptyObject", inlineText(setBase, R"({"allowedValues": {}})"), "Expected an array."},
    {"ValueAsANumber", inlineText(setBase, R"({"allowedValues": ["a", 5]})"), "Expected an array of strings."},
    {"RepeatedValue", inlineText(setBase, R"({"allowedValues": ["a", "b", "a"]})"),
     "Expected an array of unique strings."},
    {"RepeatedValueBeforeNumber", inlineText(setBase, R"({"allowedValues": ["a", "a", 5]})"),
     "Expected an array of unique strings."},
    {"NumberBeforeRepeatedValue", inlineText(setBase, R"({"allowedValues": [5, "a", "a"]})"),
     "Expected an array of strings."},
    {"NoExpression", inlineText(regexBase, R"({"allowedValues": ["a"]})"), noRegex},
    {"ExpressionAsANumber", inlineText(regexBase, R"({"regex": 5})"), "Expected a string."},
    {"ExpressionNull", inlineText(regexBase, R"({"regex": null})"), "Expected a string."},
    {"DefaultWithAnExpression", inlineText(defaultBase, R"({"regex": "a"})"), notDefault},
    {"DefaultWithAnyMember", inlineText("norvex.range:range.string-1.3.0", R"({"": null})"), notDefault},
    {"SeveralBasesWithoutValue", textOf(typedConstant("range", setAndRegexBase)),
     "Inline value override is required when specifying range schema norvex.range:range.string.set.static-1.0.0 "
     "norvex.range:range.string.regex-1.0.0 in range constant typedValue."},
    {"SetBeforeExpression", inlineText(regexAndSetBase, "{}"), noAllowedValues},
    {"ExpressionBehindSet", inlineText(setAndRegexBase, R"({"allowedValues": ["a"]})"), noRegex},
    {"SetBesideExpression", inlineText(setAndRegexBase, R"({"regex": "a"})"), noAllowedValues},
    {"DefaultBeforeSet", inlineText(defaultAndSetBase, R"({"allowedValues": ["a"]})"), notDefault},
    {"SetBehindDefault", inlineText(defaultAndSetBase, "{}"), noAllowedValues},
    {"DefaultBeforeExpression", inlineText(defaultAndRegexBase, R"({"regex": 5})"), notDefault},
    {"ExpressionBehindDefault", inlineText(defaultAndRegexBase, "{}"), noRegex},
};

class StringParameterInlineFault : public testing::TestWithParam<Fault> {};

TEST_P(StringParameterInlineFault, IsNamedAndLeavesTheParameterWithoutAValueType) {
    ParametersEngine engine;
    EXPECT_EQ(refusalOf(engine, GetParam().text), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.readStringParameter(GetParam().text); }), GetParam().message);
    EXPECT_EQ(engine.readValueType(GetParam().text), Parameters::ValueType::None);
}

INSTANTIATE_TEST_SUITE_P(StringParameter, StringParameterInlineFault, testing::ValuesIn(inlineFaults),
                         Support::nameOfRow);

struct UnfitRange {
    const char* name;
    const char* group;
    const char* spec;
    StringRange range;
    const char* message;
};

const UnfitRange unfitRanges[] = {
    {"DefaultWithSet", "g", "s", setOf("norvex.range:range.string-1.4.0", {"a"}),
     "String range using base schema typeid norvex.range:range.string-1.4.0 may not specify a limited range of "
     "values."},
    {"DefaultWithEmptySet", "g", "s", setOf("norvex.range:range.string-1.0.0", {}),
     "String range using base schema typeid norvex.range:range.string-1.0.0 may not specify a limited range of "
     "values."},
    {"DefaultWithExpression", "g", "s", regexOf("my norvex.range:range.string-1.x", "a"),
     "String range using base schema typeid my norvex.range:range.string-1.x may not specify a limited range of "
     "values."},
    {"SetWithExpression", "g", "s", regexOf("norvex.range:range.string.set.static-1.0.0", "a"),
     "String range using base schema typeid norvex.range:range.string.set.static-1.0.0 must specify an explicit set of "
     "allowed values."},
    {"SetWithoutValues", "g", "s", setOf("norvex.range:range.string.set.static-1.4.2", {}),
     "String range using base schema typeid norvex.range:range.string.set.static-1.4.2 must specify an explicit set of "
     "allowed values."},
    {"RegexWithSet", "g", "s", setOf("norvex.range:range.string.regex-1.3.0", {"a"}),
     "String range using base schema typeid norvex.range:range.string.regex-1.3.0 must specify a regular expression "
     "matching permitted values."},
    {"DefaultBeforeSet", "g", "s",
     regexOf("norvex.range:range.string.set.static-1.0.0 norvex.range:range.string-1.0.0", "a"),
     "String range using base schema typeid norvex.range:range.string.set.static-1.0.0 "
     "norvex.range:range.string-1.0.0 may not specify a limited range of values."},
    {"SetBeforeRegex", "g", "s",
     regexOf("norvex.range:range.string.regex-1.0.0 norvex.range:range.string.set.static-1.0.0", "a"),
     "String range using base schema typeid norvex.range:range.string.regex-1.0.0 "
     "norvex.range:range.string.set.static-1.0.0 must specify an explicit set of allowed values."},
    {"RegexBehindSet", "g", "s",
     setOf("norvex.range:range.string.set.static-1.0.0 norvex.range:range.string.regex-1.0.0", {"a"}),
     "String range using base schema typeid norvex.range:range.string.set.static-1.0.0 "
     "norvex.range:range.string.regex-1.0.0 must specify a regular expression matching permitted values."},
    {"RepeatedValue", "g", "s", setOf("norvex.range:range.string.set.static-1.0.0", {"a", "b", "c", "b", "a"}),
     "Value b must appear only once."},
    {"RepeatedValueOfANamedRange", "g", "s", setOf("set", {"a", "a"}), "Value a must appear only once."},
    {"RepeatedValueBeforeTheBase", "g", "s", setOf("norvex.range:range.string-1.0.0", {"a", "a"}),
     "Value a must appear only once."},
    {"RepeatedValueBeforeRange", "g", "x", setOf("y", {"a", "a"}), "Value a must appear only once."},
    {"GroupBeforeRepeatedValue", "x", "s", setOf("set", {"a", "a"}), "Could not find group with typeid x."},
    {"GroupBeforeTheBase", "x", "s", setOf("norvex.range:range.string-1.4.0", {"a"}),
     "Could not find group with typeid x."},
    {"TheBaseBeforeSpec", "g", "x", regexOf("norvex.range:range.string-1.4.0", "a"),
     "String range using base schema typeid norvex.range:range.string-1.4.0 may not specify a limited range of "
     "values."},
};

class UnfitStringRange : public testing::TestWithParam<UnfitRange> {};

TEST_P(UnfitStringRange, FailsRegistrationAndWritingAndTheQuestionForDependencies) {
    const StringParameter parameter(coreOf("p", GetParam().group), specOf(GetParam().spec), GetParam().range);
    ParametersEngine engine = stocked();
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerStringParameter(parameter); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getSchema(parameter); }), GetParam().message);
    EXPECT_EQ(refusalBy(engine, [&] { engine.getDependencies(parameter); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(StringParameter, UnfitStringRange, testing::ValuesIn(unfitRanges), Support::nameOfRow);

TEST(StringParameter, KeepsItsOwnRangeOfAnyVersionOfABase) {
    ParametersEngine engine;
    engine.registerStringParameter({coreOf("set"), setOf("norvex.range:range.string.set.static-1.4.2", {"b", "a"})});
    engine.registerStringParameter({coreOf("regex"), regexOf("my norvex.range:range.string.regex-1.x", "((")});
    engine.registerStringParameter({coreOf("any"), StringRange()});
    expectSet(engine.getStringParameter("set").getRange(), "norvex.range:range.string.set.static-1.4.2", {"b", "a"});
    expectRegex(engine.getStringParameter("regex").getRange(), "my norvex.range:range.string.regex-1.x", "((");
    expectAnyText(engine.getStringParameter("any").getRange(), defaultBase);
}

TEST(StringParameter, IsBoundToTheFullBuiltInSpecWhateverVersionItHas) {
    ParametersEngine engine;
    engine.registerStringParameter({coreOf("p"), specOf("norvex.spec:spec.string-2.3.0"), StringRange()});
    for (const StringParameter& parameter :
         {engine.getStringParameter("p"),
          engine.readStringParameter(Support::schemaText(
              "q", "norvex.parameter:parameter.string-3.0.0",
              R"({"id": "name", "value": "Name"}, )" + typedConstant("spec", "norvex.spec:spec.string-2.3.0")))}) {
        EXPECT_EQ(parameter.getSpec().getCore().getTypeId(), builtInSpec);
        EXPECT_EQ(parameter.getSpec().getCore().getName(), "Text");
        EXPECT_EQ(parameter.getSpec().getCore().getDiscipline().getTypeId(), "norvex.spec:discipline-1.0.0");
    }
}

struct Written {
    const char* name;
    StringParameter parameter;
    std::string text;
};

const Written writtenParameters[] = {
    {"DefaultsAlone", {coreOf("p"), StringRange()}, written("")},
    {"BuiltInSpecOfAnotherName", {coreOf("p"), specOf(builtInSpec), StringRange()}, written("")},
    {"BuiltInSpecOfAnotherVersion", {coreOf("p"), specOf("norvex.spec:spec.string-2.3.0"), StringRange()}, written("")},
    {"NamedExpression",
     {coreOf("p"), regexOf("regex", "")},
     written(R"(,{"id":"range","typedValue":{"typeid":"regex"}})")},
    {"NamedEmptySet", {coreOf("p"), setOf("empty", {})}, written(R"(,{"id":"range","typedValue":{"typeid":"empty"}})")},
    {"NamedRangeOfAnyText",
     {coreOf("p"), setOf("any", {"a"})},
     written(R"(,{"id":"range","typedValue":{"typeid":"any"}})")},
    {"OwnSet",
     {coreOf("p"), StringRange(SetStringRangeComponent({"b", "", "a", "A"}))},
     written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.set.static-1.0.0",)"
             R"("value":{"allowedValues":["b","","a","A"]}}})")},
    {"OwnExpression",
     {coreOf("p"), StringRange(RegexStringRangeComponent("(("))},
     written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0",)"
             R"("value":{"regex":"(("}}})")},
    {"OwnEmptyExpression",
     {coreOf("p"), StringRange(RegexStringRangeComponent(""))},
     written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0",)"
             R"("value":{"regex":""}}})")},
};

class WrittenStringParameter : public testing::TestWithParam<Written> {};

TEST_P(WrittenStringParameter, HasItsConstantsInOrder) {
    EXPECT_EQ(writtenBy(GetParam().parameter), GetParam().text);
    EXPECT_EQ(stocked().getSchema(GetParam().parameter), GetParam().text);
}

TEST_P(WrittenStringParameter, SurvivesTheRoundTrip) {
    EXPECT_EQ(rewritten(stocked(), "p", GetParam().text), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(StringParameter, WrittenStringParameter, testing::ValuesIn(writtenParameters),
                         Support::nameOfRow);

TEST(StringParameter, IsWrittenWithTheVersionOfTheBuiltInSpecThatItsSchemaNames) {
    const std::string text = written(R"(,{"id":"spec","typedValue":{"typeid":"norvex.spec:spec.string-2.3.0"}})");
    EXPECT_EQ(rewritten(ParametersEngine(), "p", text), text);
}

TEST(StringParameter, IsWrittenWithoutTheDefaultRangeThatItsSchemaNames) {
    EXPECT_EQ(rewritten(ParametersEngine(), "p", inlineText("norvex.range:range.string-1.3.0", "{}")), written(""));
}

TEST(StringParameter, LosesTheVersionOfAnOwnRangeOnTheRoundTrip) {
    const StringParameter set(coreOf("p"), setOf("norvex.range:range.string.set.static-1.4.2", {"a"}));
    EXPECT_EQ(writtenBy(set),
              written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.set.static-1.4.2",)"
                      R"("value":{"allowedValues":["a"]}}})"));
    EXPECT_EQ(rewritten(ParametersEngine(), "p", writtenBy(set)),
              written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.set.static-1.0.0",)"
                      R"("value":{"allowedValues":["a"]}}})"));
    const StringParameter regex(coreOf("p"), regexOf("my norvex.range:range.string.regex-1.x", "a"));
    EXPECT_EQ(writtenBy(regex),
              written(R"(,{"id":"range","typedValue":{"typeid":"my norvex.range:range.string.regex-1.x",)"
                      R"("value":{"regex":"a"}}})"));
    EXPECT_EQ(rewritten(ParametersEngine(), "p", writtenBy(regex)),
              written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0",)"
                      R"("value":{"regex":"a"}}})"));
}

class AwkwardStringParameter : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardStringParameter, IsWrittenWithTheBytesOfItsValues) {
    const std::string expected =
        written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.set.static-1.0.0",)"
                R"("value":{"allowedValues":["x",")" +
                GetParam().escaped + R"("]}}})");
    EXPECT_EQ(writtenBy({coreOf("p"), StringRange(SetStringRangeComponent({"x", GetParam().bytes}))}), expected);
    EXPECT_EQ(rewritten(ParametersEngine(), "p", expected), expected);
}

TEST_P(AwkwardStringParameter, IsWrittenWithTheBytesOfItsExpression) {
    const std::string expected =
        written(R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0",)"
                R"("value":{"regex":")" +
                GetParam().escaped + R"("}}})");
    EXPECT_EQ(writtenBy({coreOf("p"), StringRange(RegexStringRangeComponent(GetParam().bytes))}), expected);
    EXPECT_EQ(rewritten(ParametersEngine(), "p", expected), expected);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardStringParameter, testing::ValuesIn(Support::awkwardStrings),
                         Support::nameOfRow);

} // namespace
