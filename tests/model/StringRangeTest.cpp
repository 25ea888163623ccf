#include <parameters/StringRange.h>

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

namespace {

using namespace StringRanges;
using Parameters::ParametersEngine;
using Parameters::RegexStringRangeComponent;
using Parameters::SetStringRangeComponent;
using Support::engineOf;
using Support::Fault;
using Support::refusalBy;
using Support::refusalOf;
using Support::rewritten;
using Support::schemaText;

const char* const writtenSet = R"({"typeid":"r","inherits":["norvex.range:range.string.set.static-1.0.0"],)"
                               R"("constants":[{"id":"allowedValues","value":["b","a","A"]}]})";
const char* const writtenEmptySet = R"({"typeid":"r","inherits":["norvex.range:range.string.set.static-1.0.0"],)"
                                    R"("constants":[{"id":"allowedValues","value":[]}]})";
const char* const writtenRegex = R"({"typeid":"r","inherits":["norvex.range:range.string.regex-1.0.0"],)"
                                 R"("constants":[{"id":"regex","value":"(("}]})";
const char* const writtenEmptyRegex = R"({"typeid":"r","inherits":["norvex.range:range.string.regex-1.0.0"],)"
                                      R"("constants":[{"id":"regex","value":""}]})";

StringRange resolved(const std::string& base, const std::string& constants) {
    return engineOf({schemaText("r", base, constants)}).getStringRange("r");
}

std::string writtenBy(const StringRange& range) {
    ParametersEngine engine;
    engine.registerStringRange(range);
    return engine.getSchema(range.getTypeId());
}

TEST(StringRange, AllowsAnyTextByDefault) { expectAnyText(StringRange(), defaultBase); }

TEST(StringRange, HasTheTypeIdOfSetsWhenItIsMadeOfASetAlone) {
    expectSet(StringRange(SetStringRangeComponent({"b", "a"})), setBase, {"b", "a"});
}

TEST(StringRange, HasTheTypeIdOfExpressionsWhenItIsMadeOfOneAlone) {
    expectRegex(StringRange(RegexStringRangeComponent("a*")), regexBase, "a*");
}

TEST(StringRange, KeepsItsTypeIdAndItsSet) {
    expectSet(StringRange("r", SetStringRangeComponent({"b", "a"})), "r", {"b", "a"});
    expectSet(StringRange(regexBase, SetStringRangeComponent({"a"})), regexBase, {"a"});
}

TEST(StringRange, KeepsItsTypeIdAndItsExpression) {
    expectRegex(StringRange("r", RegexStringRangeComponent("a*")), "r", "a*");
    expectRegex(StringRange(defaultBase, RegexStringRangeComponent("")), defaultBase, "");
}

TEST(StringRange, IsMadeWithoutAnyCheck) {
    expectSet(StringRange("", SetStringRangeComponent({"a", "a"})), "", {"a", "a"});
    expectSet(StringRange(SetStringRangeComponent(Strings())), setBase, {});
}

TEST(StringRange, HasComponentsThatOutliveIt) {
    const auto set = StringRange("r", SetStringRangeComponent({"a"})).getSetStringRangeComponent();
    const auto regex = StringRange("r", RegexStringRangeComponent("b")).getRegexStringRangeComponent();
    EXPECT_EQ(set.value().getAllowedValues(), Strings{"a"});
    EXPECT_EQ(regex.value().getRegex(), "b");
}

TEST(StringRange, TakesTheAllowedValuesOfItsSchemaInOrder) {
    expectSet(resolved(setBase, R"({"id": "allowedValues", "value": ["b", "", "a", "A"]})"), "r", {"b", "", "a", "A"});
}

TEST(StringRange, MayHaveAnEmptySetInItsSchema) {
    expectSet(resolved(setBase, R"({"id": "allowedValues", "value": []})"), "r", {});
}

TEST(StringRange, TakesTheExpressionOfItsSchemaUnchecked) {
    expectRegex(resolved(regexBase, R"({"id": "regex", "value": "(("})"), "r", "((");
    expectRegex(resolved(regexBase, R"({"id": "regex", "value": ""})"), "r", "");
}

TEST(StringRange, ReadsNoConstantOfTheDefaultBase) {
    expectAnyText(resolved(defaultBase, ""), "r");
    expectAnyText(resolved(defaultBase, R"({"id": "allowedValues", "value": 5}, {"id": "regex"})"), "r");
}

TEST(StringRange, IgnoresTheConstantOfAnotherBase) {
    expectSet(resolved(setBase, R"({"id": "allowedValues", "value": ["a"]}, {"id": "regex", "value": 5})"), "r", {"a"});
    expectRegex(resolved(regexBase, R"({"id": "regex", "value": "a"}, {"id": "allowedValues", "value": 5})"), "r", "a");
}

TEST(StringRange, InheritsAnyMinorVersionOfItsBases) {
    expectAnyText(resolved("norvex.range:range.string-1.9.9", ""), "r");
    expectSet(resolved("norvex.range:range.string.set.static-1.4.2", R"({"id": "allowedValues", "value": ["a"]})"), "r",
              {"a"});
    expectRegex(resolved("our norvex.range:range.string.regex-1.0.0 too", R"({"id": "regex", "value": "a"})"), "r",
                "a");
}

TEST(StringRange, InheritsNoOtherMajorVersionOfItsBases) {
    for (const char* base : {"norvex.range:range.string-2.0.0", "norvex.range:range.string.set.static-2.0.0",
                             "norvex.range:range.string.regex-2.0.0", "norvex.range:range.string-10.0.0"}) {
        EXPECT_EQ(refusalOf(schemaText("r", base, R"({"id": "regex", "value": "a"})")),
                  "Inheritance from an unrecognized base schema.")
            << base;
    }
}

TEST(StringRange, IsASetWhenItsBaseFitsSeveral) {
    const std::string constants = R"({"id": "allowedValues", "value": ["a"]}, {"id": "regex", "value": "b"})";
    const std::string all = std::string(defaultBase) + " " + regexBase + " " + setBase;
    expectSet(resolved(all, constants), "r", {"a"});
    expectSet(resolved(std::string(setBase) + " " + defaultBase, constants), "r", {"a"});
    expectSet(resolved(std::string(regexBase) + " " + setBase, constants), "r", {"a"});
}

TEST(StringRange, IsAnExpressionWhenItsBaseFitsTheDefaultToo) {
    expectRegex(resolved(std::string(defaultBase) + " " + regexBase, R"({"id": "regex", "value": "b"})"), "r", "b");
}

const std::vector<Fault> constantFaults = {
    {"NoSet", schemaText("r", setBase, R"({"id": "regex", "value": "a"})"),
     "Schema r has an undefined allowedValues constant."},
    {"SetWithoutValue", schemaText("r", setBase, R"({"id": "allowedValues"})"),
     "A property definition must contain either a value or a typedValue."},
    {"SetAsAText", schemaText("r", setBase, R"({"id": "allowedValues", "value": "a"})"), "Expected an array."},
    {"SetAsAnObject", schemaText("r", setBase, R"({"id": "allowedValues", "value": {"a": "b"}})"),
     "Expected an array."},
    {"SetNull", schemaText("r", setBase, R"({"id": "allowedValues", "value": null})"), "Expected an array."},
    {"ValueAsANumber", schemaText("r", setBase, R"({"id": "allowedValues", "value": ["a", 1]})"),
     "Expected an array of strings."},
    {"ValueNull", schemaText("r", setBase, R"({"id": "allowedValues", "value": [null]})"),
     "Expected an array of strings."},
    {"RepeatedValue", schemaText("r", setBase, R"({"id": "allowedValues", "value": ["a", "b", "a"]})"),
     "Expected an array of unique strings."},
    {"RepeatedEmptyValue", schemaText("r", setBase, R"({"id": "allowedValues", "value": ["", ""]})"),
     "Expected an array of unique strings."},
    {"RepeatedValueBehindANul", schemaText("r", setBase, R"({"id": "allowedValues", "value": ["\u0000a", "\u0000a"]})"),
     "Expected an array of unique strings."},
    {"RepeatedValueBeforeNumber", schemaText("r", setBase, R"({"id": "allowedValues", "value": ["a", "a", 1]})"),
     "Expected an array of unique strings."},
    {"NumberBeforeRepeatedValue", schemaText("r", setBase, R"({"id": "allowedValues", "value": ["a", 1, "a"]})"),
     "Expected an array of strings."},
    {"NoExpression", schemaText("r", regexBase, R"({"id": "allowedValues", "value": ["a"]})"),
     "Schema r has an undefined regex constant."},
    {"ExpressionAsANumber", schemaText("r", regexBase, R"({"id": "regex", "value": 5})"), "Expected a string."},
    {"ExpressionNull", schemaText("r", regexBase, R"({"id": "regex", "value": null})"), "Expected a string."},
    {"SetOfSeveralBases", schemaText("r", std::string(regexBase) + " " + setBase, R"({"id": "regex", "value": "a"})"),
     "Schema r has an undefined allowedValues constant."},
};

class StringRangeFault : public testing::TestWithParam<Fault> {};

TEST_P(StringRangeFault, IsNamedAndNothingIsRegistered) {
    ParametersEngine engine;
    EXPECT_EQ(refusalOf(engine, GetParam().text), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(StringRange, StringRangeFault, testing::ValuesIn(constantFaults), Support::nameOfRow);

TEST(StringRange, TellsValuesBehindANulApart) {
    expectSet(resolved(setBase, R"({"id": "allowedValues", "value": ["\u0000a", "\u0000b"]})"), "r",
              {std::string("\0a", 2), std::string("\0b", 2)});
}

TEST(StringRange, IsRegisteredAsItIs) {
    ParametersEngine engine;
    engine.registerStringRange(StringRange("set", SetStringRangeComponent({"b", "a", "A", ""})));
    engine.registerStringRange(StringRange("empty", SetStringRangeComponent(Strings())));
    engine.registerStringRange(StringRange("regex", RegexStringRangeComponent("((")));
    expectSet(engine.getStringRange("set"), "set", {"b", "a", "A", ""});
    expectSet(engine.getStringRange("empty"), "empty", {});
    expectRegex(engine.getAllStringRanges().at("regex"), "regex", "((");
}

struct RefusedRange {
    const char* name;
    StringRange range;
    const char* message;
};

const RefusedRange refusedRanges[] = {
    {"RepeatedValue", StringRange("r", SetStringRangeComponent({"a", "b", "c", "b", "a"})),
     "Value b must appear only once."},
    {"RepeatedEmptyValue", StringRange("r", SetStringRangeComponent({"", "a", ""})), "Value  must appear only once."},
    {"EmptyBeforeRepeatedValue", StringRange("", SetStringRangeComponent({"a", "a"})), "Typeid must not be empty."},
    {"KnownBeforeRepeatedValue", StringRange("known", SetStringRangeComponent({"a", "a"})),
     "Schema with typeid known is already registered."},
};

class RefusedStringRange : public testing::TestWithParam<RefusedRange> {};

TEST_P(RefusedStringRange, IsNotRegistered) {
    ParametersEngine engine = engineOf({schemaText("known", defaultBase, "")});
    EXPECT_EQ(refusalBy(engine, [&] { engine.registerStringRange(GetParam().range); }), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(StringRange, RefusedStringRange, testing::ValuesIn(refusedRanges), Support::nameOfRow);

TEST(StringRange, IsWrittenWithItsSetInOrder) {
    EXPECT_EQ(writtenBy(StringRange("r", SetStringRangeComponent({"b", "a", "A"}))), writtenSet);
}

TEST(StringRange, IsWrittenWithAnEmptySet) {
    EXPECT_EQ(writtenBy(StringRange("r", SetStringRangeComponent(Strings()))), writtenEmptySet);
}

TEST(StringRange, IsWrittenWithItsExpression) {
    EXPECT_EQ(writtenBy(StringRange("r", RegexStringRangeComponent("(("))), writtenRegex);
}

TEST(StringRange, IsWrittenWithAnEmptyExpression) {
    EXPECT_EQ(writtenBy(StringRange("r", RegexStringRangeComponent(""))), writtenEmptyRegex);
}

TEST(StringRange, IsWrittenWithAnEmptyExpressionWhenItAllowsAnyText) {
    const std::string text = engineOf({schemaText("r", defaultBase, "")}).getSchema("r");
    EXPECT_EQ(text, writtenEmptyRegex);
    expectRegex(engineOf({text}).getStringRange("r"), "r", "");
}

TEST(StringRange, IsWrittenWithTheFullBaseWhateverVersionItInherited) {
    EXPECT_EQ(engineOf({schemaText("r", "norvex.range:range.string.set.static-1.4.2",
                                   R"({"id": "allowedValues", "value": ["b", "a", "A"]})")})
                  .getSchema("r"),
              writtenSet);
    EXPECT_EQ(engineOf({schemaText("r", "norvex.range:range.string.regex-1.3.0", R"({"id": "regex", "value": "(("})")})
                  .getSchema("r"),
              writtenRegex);
}

TEST(StringRange, IsWrittenTheSameWhenItIsReadAgain) {
    for (const char* text : {writtenSet, writtenEmptySet, writtenRegex, writtenEmptyRegex}) {
        EXPECT_EQ(rewritten(ParametersEngine(), "r", text), text);
    }
}

class AwkwardStringRange : public testing::TestWithParam<Support::AwkwardString> {
protected:
    static std::string writtenSetOfBytes() {
        return R"({"typeid":")" + GetParam().escaped +
               R"(","inherits":["norvex.range:range.string.set.static-1.0.0"],"constants":[)"
               R"({"id":"allowedValues","value":["x",")" +
               GetParam().escaped + R"("]}]})";
    }
    static std::string writtenRegexOfBytes() {
        return R"({"typeid":")" + GetParam().escaped +
               R"(","inherits":["norvex.range:range.string.regex-1.0.0"],"constants":[)"
               R"({"id":"regex","value":")" +
               GetParam().escaped + R"("}]})";
    }
};

TEST_P(AwkwardStringRange, IsWrittenWithItsBytes) {
    const std::string& bytes = GetParam().bytes;
    EXPECT_EQ(writtenBy(StringRange(bytes, SetStringRangeComponent({"x", bytes}))), writtenSetOfBytes());
    EXPECT_EQ(writtenBy(StringRange(bytes, RegexStringRangeComponent(bytes))), writtenRegexOfBytes());
}

TEST_P(AwkwardStringRange, IsReadWithItsBytes) {
    const std::string& bytes = GetParam().bytes;
    expectSet(engineOf({writtenSetOfBytes()}).getStringRange(bytes), bytes, {"x", bytes});
    expectRegex(engineOf({writtenRegexOfBytes()}).getStringRange(bytes), bytes, bytes);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardStringRange, testing::ValuesIn(Support::awkwardStrings), Support::nameOfRow);

} // namespace
