#include "engine/Messages.h"

#include "support/Engines.h"
#include "support/Faults.h"
#include "support/RowNames.h"
#include "support/SchemaTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

// Every fault that a text can have, one row for each: what is told of it, and the very bytes that are pointed at.

namespace {

using Parameters::ParametersEngine;
using Support::constant;
using Support::faultsOf;
using Support::Lines;
using Support::Texts;

const std::string group = "norvex.parameter:group-1.0.0";
const std::string intParameter = "norvex.parameter:parameter.int64-3.0.0";
const std::string intRange = "norvex.range:range.int64.bounded.static-1.0.0";
const std::string name = R"({"id":"name","value":"N"})";

struct FaultRow {
    const char* name;
    Texts texts;
    Lines lines;
    std::string message = {}; // of a warning, which is never thrown
};

/// Returns a text of the typeid "x".
std::string of(const std::string& base, const std::string& constants) {
    return R"({"typeid":"x","inherits":[")" + base + R"("],"constants":[)" + constants + "]}";
}

/// Returns a text of the typeid "x" with a name and more constants.
std::string named(const std::string& base, const std::string& constants) { return of(base, name + "," + constants); }

std::string groupWith(const std::string& member) {
    return R"({"typeid":"x","inherits":["norvex.parameter:group-1.0.0"],)" + member + "}";
}

/// Returns an integer parameter with a range constant.
std::string withRange(const std::string& typedValue) {
    return named(intParameter, R"({"id":"range","typedValue":)" + typedValue + "}");
}

std::string withStringRange(const std::string& typedValue) {
    return named("norvex.parameter:parameter.string-3.0.0", R"({"id":"range","typedValue":)" + typedValue + "}");
}

std::string withSpec(const std::string& typedValue) {
    return named("norvex.parameter:parameter.reference-2.0.0", R"({"id":"spec","typedValue":)" + typedValue + "}");
}

std::string enumerationOf(const std::string& properties) {
    return R"({"typeid":"x","inherits":["Enum"],"properties":[)" + properties + "]}";
}

const std::string generalSpec = Support::namedText("spec", "norvex.spec:spec-1.0.0", "N");
const std::string enumeration = R"({"typeid":"enum","inherits":["Enum"],"properties":[{"id":"A","value":1}]})";
const std::string goodSpec = R"({"id":"spec","typedValue":{"typeid":"spec"}})";
const std::string goodValue = R"({"id":"value","typedValue":{"typeid":"enum"}})";

/// Returns the texts of an enumeration parameter and of what it names.
Texts choice(const std::string& spec, const std::string& properties) {
    std::string text = named("norvex.parameter:parameter-2.0.0", spec);
    text.insert(text.size() - 1, R"(,"properties":[)" + properties + "]");
    return {{"t", text}, {"u", enumeration}, {"v", generalSpec}};
}

const FaultRow noJSON[] = {
    {"JsonSyntax", {{"t", R"({"typeid": 'x'})"}}, {R"(json-syntax at t: 'x'})"}},
    {"EmptyText", {{"t", ""}}, {"json-syntax at t: "}},
    {"JsonSyntaxAtTheEnd", {{"t", R"({"typeid": "x")"}}, {"json-syntax at t: "}},
};

const FaultRow noSchema[] = {
    {"TypeidMissing",
     {{"t", R"({"inherits":["a"]})"}},
     {R"(typeid-missing typeid at t: {"inherits":["a"]})", R"(base-unrecognized a at t:/inherits/0 "a")"}},
    {"TypeidMisspelt",
     {{"t", R"({"TypeId":"x","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"N"}]})"}},
     {R"(typeid-missing typeid near TypeId at t:/TypeId "x")"}},
    {"TypeidNoString",
     {{"t", R"({"typeid":7,"inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"N"}]})"}},
     {"typeid-missing at t:/typeid 7"}},
    {"NoObject", {{"t", " [1, 2]\n"}}, {"typeid-missing typeid at t: [1, 2]"}},
    {"Scalar", {{"t", " 5 "}}, {"typeid-missing typeid at t: 5"}},
    {"StringAlone", {{"t", R"("x")"}}, {R"(typeid-missing typeid at t: "x")"}},
    {"TypeidEmpty",
     {{"t", R"({"typeid":"","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"N"}]})"}},
     {R"(typeid-empty at t:/typeid "")"}},
    {"InheritsMissing", {{"t", R"({"typeid":"x"})"}}, {R"(inherits-missing inherits at t: {"typeid":"x"})"}},
    {"InheritsMisspelt",
     {{"t", R"({"typeid":"x","inherit":["a"]})"}},
     {R"(inherits-missing inherits near inherit at t:/inherit ["a"])"}},
    {"InheritsNoArray", {{"t", R"({"typeid":"x","inherits":"a"})"}}, {R"(array-expected at t:/inherits "a")"}},
    {"BaseNoString", {{"t", R"({"typeid":"x","inherits":[ 1 ]})"}}, {"array-of-strings-expected at t:/inherits/0 1"}},
    {"BaseEmpty",
     {{"t", R"({"typeid":"x","inherits":[""]})"}},
     {R"(array-of-non-empty-strings-expected at t:/inherits/0 "")"}},
    {"NoBase", {{"t", R"({"typeid":"x","inherits":[]})"}}, {"single-base-expected at t:/inherits []"}},
    {"TwoBases",
     {{"t", R"({"typeid":"x","inherits":["a", "b"]})"}},
     {R"(single-base-expected at t:/inherits ["a", "b"])"}},
    {"ConstantsNoArray",
     {{"t", groupWith(R"("constants":{"name":"N"})")}},
     {R"(definitions-array-expected constants at t:/constants {"name":"N"})"}},
    {"PropertiesNoArray",
     {{"t", groupWith(R"("constants":[{"id":"name","value":"N"}],"properties":0)")}},
     {"definitions-array-expected properties at t:/properties 0"}},
    {"DefinitionNoObject", {{"t", named(group, "0")}}, {"definition-object-expected at t:/constants/1 0"}},
    {"DefinitionWithoutId",
     {{"t", named(group, R"({"value":1})")}},
     {R"(definition-id-missing id at t:/constants/1 {"value":1})"}},
    {"DefinitionWithMisspeltId",
     {{"t", named(group, R"({"ID":"b","value":1})")}},
     {R"(definition-id-missing id near ID at t:/constants/1/ID "b")"}},
    {"DefinitionIdNoString",
     {{"t", named(group, R"({"id":[],"value":1})")}},
     {"definition-id-string-expected at t:/constants/1/id []"}},
    {"DefinitionTwice",
     {{"t", named(group, R"({"id":"name","value":"M"})")}},
     {R"(definition-duplicate name at t:/constants/1/id "name" beside t:/constants/0/id)"}},
    {"PropertyTwice",
     {{"t", enumerationOf(R"({"id":"a","value":1},{"id":"a","value":1})")}},
     {R"(definition-duplicate a at t:/properties/1/id "a" beside t:/properties/0/id)"}},
    {"DefinitionWithoutValue",
     {{"t", of(group, R"({"id":"name"})")}},
     {R"(definition-value-missing value at t:/constants/0 {"id":"name"})"}},
    {"DefinitionWithMisspeltValue",
     {{"t", of(group, R"({"id":"name","Value":"N"})")}},
     {R"(definition-value-missing value near Value at t:/constants/0/Value "N")"}},
};

const FaultRow constants[] = {
    {"ConstantUndefined", {{"t", of(group, "")}}, {"constant-undefined name at t:/constants []"}},
    {"ConstantUndefinedWithoutConstants",
     {{"t", R"({"typeid":"x","inherits":["norvex.parameter:group-1.0.0"]})"}},
     {R"(constant-undefined name at t: {"typeid":"x","inherits":["norvex.parameter:group-1.0.0"]})"}},
    {"ConstantMisspelt",
     {{"t", of(group, R"({"id":"nmae","value":"N"})")}},
     {R"(constant-undefined name near nmae at t:/constants/0/id "nmae")"}},
    {"ConstantsMisspelt",
     {{"t", groupWith(R"("Constants":[{"id":"name","value":"N"}])")}},
     {R"(constant-undefined name near Constants at t:/Constants [{"id":"name","value":"N"}])"}},
    {"ConstantAmongTheProperties",
     {{"t", groupWith(R"("constants":[],"properties":[{"id":"name","value":"N"}])")}},
     {R"(constant-undefined name near name at t:/properties/0/id "name")"}},
    {"StringExpected",
     {{"t", named(intParameter, R"({"id":"description","value":1})")}},
     {"string-expected description at t:/constants/1/value 1"}},
    {"TypeidOfARangeNoString",
     {{"t", withRange(R"({"typeid":1})")}},
     {"string-expected range at t:/constants/1/typedValue/typeid 1"}},
    {"NonEmptyStringExpected",
     {{"t", of(group, R"({"id":"name","value":""})")}},
     {R"(non-empty-string-expected name at t:/constants/0/value "")"}},
    {"NameOfAUnitEmpty",
     {{"t", of("norvex.unit:unit-1.0.0", R"({"id":"name","value":""})")}},
     {R"(non-empty-string-expected name at t:/constants/0/value "")"}},
    {"BooleanExpected",
     {{"t", named(intParameter, R"({"id":"readOnly","value":"true"})")}},
     {R"(boolean-expected readOnly at t:/constants/1/value "true")"}},
    {"IntegerExpected",
     {{"t", of(intRange, constant("fromBottom", "true") + "," + constant("fromTop", "false") + "," +
                             constant("bottomBoundary", "1.5"))}},
     {"integer-expected bottomBoundary at t:/constants/2/value 1.5"}},
    {"IntegerOfAnInlineRange",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{"fromBottom":false,)"
                      R"("fromTop":true,"topBoundary":"9"}})")}},
     {R"(integer-expected topBoundary at t:/constants/1/typedValue/value/topBoundary "9")"}},
    {"NumberExpected",
     {{"t", of("norvex.range:range.float64.bounded.static-1.0.0", constant("fromBottom", "true") + "," +
                                                                      constant("fromTop", "false") + "," +
                                                                      constant("bottomBoundary", "null"))}},
     {"number-expected bottomBoundary at t:/constants/2/value null"}},
    {"AllowedValuesNoArray",
     {{"t", of("norvex.range:range.string.set.static-1.0.0", constant("allowedValues", R"("a")"))}},
     {R"(array-expected allowedValues at t:/constants/0/value "a")"}},
    {"AllowedValueNoString",
     {{"t", of("norvex.range:range.string.set.static-1.0.0", constant("allowedValues", R"(["a", false])"))}},
     {"array-of-strings-expected allowedValues at t:/constants/0/value/1 false"}},
    {"AllowedValueTwice",
     {{"t", of("norvex.range:range.string.set.static-1.0.0", constant("allowedValues", R"(["a", "b", "\u0061"])"))}},
     {R"(array-of-unique-strings-expected allowedValues at t:/constants/0/value/2 "\u0061" )"
      "beside t:/constants/0/value/0"}},
    {"TypedValueNoObject",
     {{"t", named(intParameter, R"({"id":"group","typedValue":"g"})")}},
     {R"(typed-value-object-expected group at t:/constants/1/typedValue "g")"}},
    {"TypedValueWithMoreThanATypeid",
     {{"t", named(intParameter, R"({"id":"group","typedValue":{"typeid":"g","value":1}})")}},
     {R"(typed-value-typeid-only group at t:/constants/1/typedValue {"typeid":"g","value":1})"}},
    {"TypedValueWithoutTypeid",
     {{"t", named(intParameter, R"({"id":"group","typedValue":{"named":"g"}})")}},
     {R"(typed-value-typeid-missing typeid near named at t:/constants/1/typedValue/named "g")"}},
    {"TypedValueWithEmptyTypeid",
     {{"t", named(intParameter, R"({"id":"group","typedValue":{"typeid":""}})")}},
     {R"(typed-value-typeid-empty group at t:/constants/1/typedValue/typeid "")"}},
    {"TypedValuesNoArray",
     {{"d", Support::domainText("d")},
      {"t", named("norvex.talmo.category:majorCategory-1.0.0",
                  Support::typedConstant("domain", "d") + R"(,{"id":"disciplines","typedValue":{"typeid":"e"}})")}},
     {R"(array-of-typed-values-expected disciplines at t:/constants/2/typedValue {"typeid":"e"})"}},
};

const FaultRow ranges[] = {
    {"RangeWithoutTypeid", {{"t", withRange("{}")}}, {"range-typeid-missing typeid at t:/constants/1/typedValue {}"}},
    {"BuiltInRangeWithoutValue",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0"})")}},
     {R"(inline-range-missing norvex.range:range.int64.bounded.static-1.0.0 at t:/constants/1/typedValue )"
      R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0"})"}},
    {"InlineRangeNoObject",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":[0]})")}},
     {"inline-range-object-expected range at t:/constants/1/typedValue/value [0]"}},
    {"InlineRangeWithoutFlag",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{"fromBottom":false}})")}},
     {R"(inline-range-flag-missing fromTop at t:/constants/1/typedValue/value {"fromBottom":false})"}},
    {"FlagOfAnInlineRangeNoBoolean",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0",)"
                      R"("value":{"fromBottom":0,"fromTop":false}})")}},
     {"inline-range-flag-missing fromBottom at t:/constants/1/typedValue/value/fromBottom 0"}},
    {"InlineSetWithoutValues",
     {{"t", withStringRange(R"({"typeid":"norvex.range:range.string.set.static-1.0.0","value":{}})")}},
     {"inline-range-values-missing allowedValues at t:/constants/1/typedValue/value {}"}},
    {"InlineSetEmpty",
     {{"t",
       withStringRange(R"({"typeid":"norvex.range:range.string.set.static-1.0.0","value":{"allowedValues":[]}})")}},
     {"inline-range-values-missing allowedValues at t:/constants/1/typedValue/value/allowedValues []"}},
    {"InlineRegexMissing",
     {{"t", withStringRange(R"({"typeid":"norvex.range:range.string.regex-1.0.0","value":{"regexp":"a"}})")}},
     {R"(inline-range-regex-missing regex near regexp at t:/constants/1/typedValue/value/regexp "a")"}},
    {"AnyTextWithALimit",
     {{"t", withStringRange(R"({"typeid":"norvex.range:range.string-1.0.0","value":{"regex":"a"}})")}},
     {R"(inline-range-not-empty range at t:/constants/1/typedValue/value {"regex":"a"})"}},
    {"NamedRangeWithAValue",
     {{"r", of(intRange, constant("fromBottom", "false") + "," + constant("fromTop", "false")).replace(11, 1, "r")},
      {"t", withRange(R"({"typeid":"r","value":{"fromTop":true}})")}},
     {R"(inline-range-misplaced r at t:/constants/1/typedValue/value {"fromTop":true})"}},
};

const FaultRow choices[] = {
    {"EnumerationEmpty", {{"t", enumerationOf("")}}, {"enumeration-empty at t:/properties []"}},
    {"EnumerationWithoutProperties",
     {{"t", R"({"typeid":"x","inherits":["Enum"]})"}},
     {R"(enumeration-empty properties at t: {"typeid":"x","inherits":["Enum"]})"}},
    {"EnumerationIdEmpty",
     {{"t", enumerationOf(R"({"id":"","value":1})")}},
     {R"(enumeration-id-empty at t:/properties/0/id "")"}},
    {"EnumerationWithoutInteger",
     {{"t", enumerationOf(R"({"id":"A","valeu":1})")}},
     {"enumeration-integer-missing A near valeu at t:/properties/0/valeu 1"}},
    {"EnumerationWithoutTypedInteger",
     {{"t", enumerationOf(R"({"id":"A","tipedValu":1})")}},
     {"enumeration-integer-missing A near tipedValu at t:/properties/0/tipedValu 1"}},
    {"EnumerationIntegerNoInteger",
     {{"t", enumerationOf(R"({"id":"A","value":"1"})")}},
     {R"(enumeration-integer-missing A at t:/properties/0/value "1")"}},
    {"SpecUndefined",
     choice(R"({"id":"Spec","typedValue":{"typeid":"spec"}})", goodValue),
     {R"(spec-undefined spec near Spec at t:/constants/1/id "Spec")"}},
    {"SpecWithoutValue",
     choice(R"({"id":"spec"})", goodValue),
     {R"(spec-value-missing typedValue at t:/constants/1 {"id":"spec"})"}},
    {"SpecWithAMisspeltValue",
     choice(R"({"id":"spec","valeu":"spec"})", goodValue),
     {R"(spec-value-missing typedValue near valeu at t:/constants/1/valeu "spec")"}},
    {"SpecWithoutTypeid",
     choice(R"({"id":"spec","typedValue":{}})", goodValue),
     {"spec-typeid-missing typeid at t:/constants/1/typedValue {}"}},
    {"SpecTypeidNoString",
     choice(R"({"id":"spec","typedValue":{"typeid":0}})", goodValue),
     {"spec-typeid-missing spec at t:/constants/1/typedValue/typeid 0"}},
    {"SpecWithAValue",
     choice(R"({"id":"spec","typedValue":{"typeid":"spec"},"value":3})", goodValue),
     {"spec-value-misplaced spec at t:/constants/1/value 3"}},
    {"SpecWithAValueInside",
     choice(R"({"id":"spec","typedValue":{"typeid":"spec","value":3}})", goodValue),
     {"spec-value-misplaced spec at t:/constants/1/typedValue/value 3"}},
    {"ValuePropertyUndefined", choice(goodSpec, ""), {"value-property-undefined value at t:/properties []"}},
    {"ValuePropertyAmongTheConstants",
     choice(goodSpec + "," + goodValue, ""),
     {R"(value-property-undefined value near value at t:/constants/2/id "value")"}},
    {"ValuePropertyWithoutTypeid",
     choice(goodSpec, R"({"id":"value","typedValue":{}})"),
     {"value-property-typeid-missing typeid at t:/properties/0/typedValue {}"}},
};

const FaultRow references[] = {
    {"ReferenceSpecWithoutTypeid",
     {{"t", withSpec("{}")}},
     {"reference-spec-typeid-missing typeid at t:/constants/1/typedValue {}"}},
    {"ReferenceSpecWithAValue",
     {{"t", withSpec(R"({"typeid":"norvex.spec:spec.reference-1.0.0","value":[]})")}},
     {"inline-spec-misplaced norvex.spec:spec.reference-1.0.0 at t:/constants/1/typedValue/value []"}},
    {"FamilyTypeWithoutCategory",
     {{"t", withSpec(R"({"typeid":"norvex.talmo.spec:familyType-1.0.0"})")}},
     {R"(family-type-inline-missing norvex.talmo.spec:familyType-1.0.0 at t:/constants/1/typedValue )"
      R"({"typeid":"norvex.talmo.spec:familyType-1.0.0"})"}},
    {"FamilyTypeNoObject",
     {{"t", withSpec(R"({"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":"c"})")}},
     {R"(family-type-object-expected spec at t:/constants/1/typedValue/typedValue "c")"}},
    {"FamilyTypeOfNoCategory",
     {{"t", withSpec(R"({"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":{"Category":{"typeid":"c"}}})")}},
     {R"(family-type-category-missing category near Category at t:/constants/1/typedValue/typedValue/Category )"
      R"({"typeid":"c"})"}},
    {"FamilyTypeCategoryWithoutTypeid",
     {{"t", withSpec(R"({"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":{"category":{}}})")}},
     {"family-type-category-missing typeid at t:/constants/1/typedValue/typedValue/category {}"}},
    {"FamilyTypeCategoryNoObject",
     {{"t", withSpec(R"({"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":{"category":7}})")}},
     {"family-type-category-missing typeid at t:/constants/1/typedValue/typedValue/category 7"}},
};

const FaultRow refusals[] = {
    {"TypeidTaken",
     {{"s", Support::groupText("x")}, {"t", of(group, name)}},
     {R"(typeid-taken x at t:/typeid "x" beside s:/typeid)"}},
    {"TypeidBuiltIn",
     {{"t", Support::groupText("norvex.parameter:group-1.2.3")}},
     {R"(typeid-taken norvex.parameter:group-1.2.3 at t:/typeid "norvex.parameter:group-1.2.3")"}},
    {"BaseUnrecognized",
     {{"t", of("norvex.parameter:gruop-1.0.0", name)}},
     {R"(base-unrecognized norvex.parameter:gruop-1.0.0 at t:/inherits/0 "norvex.parameter:gruop-1.0.0")"}},
};

const FaultRow dependencies[] = {
    {"DependencyMissing",
     {{"t", named(intParameter, R"({"id":"group","typedValue":{"typeid":"g"}})")}},
     {R"(dependency-missing g needs group at t:/constants/1/typedValue/typeid "g")"}},
    {"UnitMissing",
     {{"t", named("norvex.spec:spec.measurable-2.0.0", R"({"id":"storageUnit","typedValue":{"typeid":"u"}})")}},
     {R"(unit-missing u needs unit at t:/constants/1/typedValue/typeid "u")"}},
    {"ParentNotMajor",
     {{"a", Support::domainText("d")},
      {"b", Support::majorCategoryText("m", "d")},
      {"c", Support::subCategoryText("s", "m")},
      {"t", Support::subCategoryText("x", "s")}},
     {R"(parent-not-major s needs category at t:/constants/1/typedValue/typeid "s" beside c:/typeid)"}},
    {"RangeWithABoundaryOfAnotherType", // which limits nothing, and so is above or below nothing
     {{"t", of(intRange, constant("fromBottom", "true") + "," + constant("fromTop", "true") + "," +
                             constant("bottomBoundary", "7") + "," + constant("topBoundary", "1.5"))}},
     {"integer-expected topBoundary at t:/constants/3/value 1.5"},
     "Expected an integer."},
};

const FaultRow warnings[] = {
    {"MemberUnknown",
     {{"t", groupWith(R"("Properties":[],"constants":[{"id":"name","value":"N"}])")}},
     {"warning member-unknown Properties near properties at t:/Properties []"},
     "Nothing reads member Properties here."},
    {"MemberOfADefinitionUnknown",
     {{"t", of(group, R"({"id":"name","value":"N","unit":"m"})")}},
     {R"(warning member-unknown unit at t:/constants/0/unit "m")"},
     "Nothing reads member unit here."},
    {"MemberOfAnInlineRangeUnknown",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{"fromBottom":false,)"
                      R"("fromTop":false,"topBoundry":3}})")}},
     {"warning member-unknown topBoundry near topBoundary at t:/constants/1/typedValue/value/topBoundry 3"},
     "Nothing reads member topBoundry here."},
    {"ConstantUnknown",
     {{"t", named(intParameter, R"({"id":"readonly","value":true})")}},
     {R"(warning constant-unknown readonly near readOnly at t:/constants/1/id "readonly")"},
     "Nothing reads constant readonly in a schema of this base."},
    {"PropertyUnknown",
     {{"t", groupWith(R"("constants":[{"id":"name","value":"N"}],"properties":[{"id":"extra","value":1}])")}},
     {R"(warning property-unknown extra at t:/properties/0/id "extra")"},
     "Nothing reads property extra in a schema of this base."},
    {"MemberTwice",
     {{"t", of(group, R"({"id":"name","value":"N","value":"M"})")}},
     {R"(warning member-duplicate value at t:/constants/0/value "N" beside t:/constants/0/value)"},
     "Member value stands here more than once: the first one counts."},
    {"ValueBesideATypedValue",
     {{"t", of(group, R"({"id":"name","typedValue":{"typeid":"g"},"value":"N"})")}},
     {R"(warning value-ignored typedValue at t:/constants/0/typedValue {"typeid":"g"})"},
     "Of value and typedValue only the other one is read here, not typedValue."},
    {"TypeidRepeated",
     {{"a", Support::domainText("d")},
      {"b", Support::disciplineText("e")},
      {"t", Support::majorCategoryText("x", "d", {"e", "e"})}},
     {R"(warning typeid-repeated e at t:/constants/2/typedValue/1/typeid "e" beside )"
      "t:/constants/2/typedValue/0/typeid"},
     "Typeid e stands more than once in this list."},
    {"BoundaryMissing",
     {{"t", of(intRange, constant("fromBottom", "true") + "," + constant("fromTop", "false"))}},
     {"warning boundary-missing fromBottom at t:/constants/0/value true"},
     "Flag fromBottom is true without a bottomBoundary, which then is 0."},
    {"BoundaryIgnored",
     {{"t", of(intRange, constant("fromBottom", "false") + "," + constant("fromTop", "false") + "," +
                             constant("topBoundary", "12"))}},
     {"warning boundary-ignored topBoundary at t:/constants/2/value 12"},
     "Boundary topBoundary has no effect, since fromTop is false."},
    {"RangeOfNumbersEmpty",
     {{"t", of("norvex.range:range.float64.bounded.static-1.0.0",
               constant("fromBottom", "true") + "," + constant("fromTop", "true") + "," +
                   constant("bottomBoundary", "1e1") + "," + constant("topBoundary", "-2.50"))}},
     {"warning range-empty topBoundary at t:/constants/3/value -2.50 beside t:/constants/2/value"},
     "No value lies within this range."},
    {"InlineRangeEmpty",
     {{"t", withRange(R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{"fromBottom":true,)"
                      R"("bottomBoundary":2,"fromTop":true,"topBoundary":1}})")}},
     {"warning range-empty topBoundary at t:/constants/1/typedValue/value/topBoundary 1 beside "
      "t:/constants/1/typedValue/value/bottomBoundary"},
     "No value lies within this range."},
    {"SetEmpty",
     {{"t", of("norvex.range:range.string.set.static-1.0.0", constant("allowedValues", "[ ]"))}},
     {"warning range-empty allowedValues at t:/constants/0/value [ ]"},
     "No value lies within this range."},
};

class FaultOfAText : public testing::TestWithParam<FaultRow> {};

TEST_P(FaultOfAText, IsToldWithItsPlace) { EXPECT_EQ(faultsOf(GetParam().texts), GetParam().lines); }

TEST_P(FaultOfAText, HasTheMessageThatIsThrown) {
    const auto errors = Support::errorsAmong(ParametersEngine().findFaults(GetParam().texts));
    ParametersEngine engine;
    std::string thrown;
    try {
        engine.registerSchemas(GetParam().texts);
    } catch (const std::logic_error& exception) {
        thrown = exception.what();
    }
    EXPECT_EQ(thrown, errors.empty() ? "" : errors.front());
}

class WarningOfAText : public testing::TestWithParam<FaultRow> {};

TEST_P(WarningOfAText, SaysWhatIsPassedOver) {
    const auto faults = ParametersEngine().findFaults(GetParam().texts);
    ASSERT_EQ(faults.size(), 1U);
    EXPECT_EQ(faults[0].message(), GetParam().message);
    EXPECT_EQ(faults[0].typeId(), "x");
}

INSTANTIATE_TEST_SUITE_P(Warnings, WarningOfAText, testing::ValuesIn(warnings), Support::nameOfRow);

#define OSTRA_FAULT_ROWS(table, rows)                                                                                  \
    INSTANTIATE_TEST_SUITE_P(table, FaultOfAText, testing::ValuesIn(rows), Support::nameOfRow)

OSTRA_FAULT_ROWS(NoJSON, noJSON);
OSTRA_FAULT_ROWS(NoSchema, noSchema);
OSTRA_FAULT_ROWS(Constants, constants);
OSTRA_FAULT_ROWS(Ranges, ranges);
OSTRA_FAULT_ROWS(Choices, choices);
OSTRA_FAULT_ROWS(References, references);
OSTRA_FAULT_ROWS(Refusals, refusals);
OSTRA_FAULT_ROWS(Dependencies, dependencies);
OSTRA_FAULT_ROWS(Warnings, warnings);

/// Adds the codes that the lines of a table begin with.
template <std::size_t size>
void addCodes(const FaultRow (&rows)[size], std::set<std::string>& codes) {
    for (const FaultRow& row : rows) {
        for (std::string line : row.lines) {
            const std::string warning = "warning ";
            line.erase(0, line.compare(0, warning.size(), warning) == 0 ? warning.size() : 0);
            codes.insert(line.substr(0, line.find(' ')));
        }
    }
}

/// What no text can cause: it takes an object made in code, a look-up, another units library or a fault of this one.
const std::set<std::string> notOfTexts{"any-object-unknown",
                                       "base-incorrect",
                                       "constants-after-properties",
                                       "engine-full",
                                       "given-category-missing",
                                       "given-enumeration-empty",
                                       "given-enumeration-id-empty",
                                       "given-parent-not-major",
                                       "given-range-limited",
                                       "given-range-regex-missing",
                                       "given-range-values-missing",
                                       "json-number-not-finite",
                                       "json-string-too-long",
                                       "json-text-too-long",
                                       "map-key-string-expected",
                                       "map-value-string-expected",
                                       "number-not-finite",
                                       "object-typeid-empty",
                                       "object-unknown",
                                       "texts-too-long",
                                       "texts-too-many",
                                       "unit-refused",
                                       "value-duplicate"};

TEST(FaultsOfTexts, HaveARowForEveryMessageThatATextCanCause) {
    std::set<std::string> shown;
    addCodes(noJSON, shown);
    addCodes(noSchema, shown);
    addCodes(constants, shown);
    addCodes(ranges, shown);
    addCodes(choices, shown);
    addCodes(references, shown);
    addCodes(refusals, shown);
    addCodes(dependencies, shown);
    addCodes(warnings, shown);
    for (const std::string& code : notOfTexts) {
        EXPECT_EQ(shown.count(code), 0U) << code;
    }
    shown.insert(notOfTexts.begin(), notOfTexts.end());
    std::set<std::string> all;
    Parameters::Internal::forEachMessage([&all](const Ostra::Message& message) { all.emplace(message.code); });
    EXPECT_EQ(shown, all);
}

/// The severity that is told is that of the table of messages.
TEST(FaultsOfTexts, AreWarningsWhereTheirMessagesAre) {
    std::set<std::string> toldAsWarnings;
    addCodes(warnings, toldAsWarnings);
    std::set<std::string> areWarnings;
    Parameters::Internal::forEachMessage([&areWarnings](const Ostra::Message& message) {
        if (message.severity == Ostra::Severity::warning) {
            areWarnings.emplace(message.code);
        }
    });
    EXPECT_EQ(toldAsWarnings, areWarnings);
}

} // namespace
