#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::StartsWith;

/// Returns a schema whose definitions stand in lines of their own: constants from line 4 on, in column 3.
std::string schema(const std::string& base, const std::vector<std::string>& constants,
                   const std::vector<std::string>& properties = {}) {
    const auto lines = [](const std::vector<std::string>& definitions) {
        std::string text;
        for (const std::string& definition : definitions) {
            text += (text.empty() ? "\n  " : ",\n  ") + definition;
        }
        return text;
    };
    return "{\"typeid\": \"s\",\n \"inherits\": [\"" + base + "\"],\n \"constants\": [" + lines(constants) +
           "],\n \"properties\": [" + lines(properties) + "]}";
}

const std::string name = R"({"id": "name", "value": "N"})";
const std::string group = "norvex.parameter:group-1.0.0";
const std::string boolSpec = "norvex.spec:spec.bool-1.0.0";
const std::string boolParameter = "norvex.parameter:parameter.bool-2.0.0";
const std::string intParameter = "norvex.parameter:parameter.int64-3.0.0";
const std::string measurableParameter = "norvex.parameter:parameter.measurable-3.0.0";
const std::string stringParameter = "norvex.parameter:parameter.string-3.0.0";
const std::string referenceParameter = "norvex.parameter:parameter.reference-2.0.0";
const std::string enumerationParameter = "norvex.parameter:parameter-2.0.0";
const std::string intRange = "norvex.range:range.int64.bounded.static-1.0.0";
const std::string floatRange = "norvex.range:range.float64.bounded.static-1.0.0";
const std::string setRange = "norvex.range:range.string.set.static-1.0.0";
const std::string regexRange = "norvex.range:range.string.regex-1.0.0";
const std::string measurableSpec = "norvex.spec:spec.measurable-2.0.0";
const std::string majorCategory = "norvex.talmo.category:majorCategory-1.0.0";
const std::string subCategory = "norvex.talmo.category:subCategory-1.0.0";
const std::string unit = "norvex.unit:unit-1.0.0";

std::string range(const std::string& typedValue) { return R"({"id": "range", "typedValue": )" + typedValue + "}"; }
std::string spec(const std::string& typedValue) { return R"({"id": "spec", "typedValue": )" + typedValue + "}"; }

struct Fault {
    const char* name;
    std::string text;
    std::string line;
};

class FaultPlaces : public testing::TestWithParam<Fault> {};

TEST_P(FaultPlaces, AreFoundInTheText) {
    const Folder folder;
    folder.write("f.json", GetParam().text);
    const Outcome outcome = folder.run({"check", "f.json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, StartsWith("f.json:" + GetParam().line + "\n"));
}

const Fault faults[] = {
    {"Syntax", "{\n \"typeid\": }", "2:12: JSON parsing error at offset 13: Invalid value."},
    {"SyntaxBehindLettersOfTwoBytes", "{\n \"\u00e4\u00f6\": }",
     "2:8: JSON parsing error at offset 11: Invalid value."},
    {"SecondValue", "{}\n{}",
     "2:1: JSON parsing error at offset 3: The document root must not be followed by other values."},
    {"NoObject", "\n[]", "2:1: Schema must specify a typeid string."},
    {"NoTypeId", "\n {\"inherits\": [\"x\"]}", "2:2: Schema must specify a typeid string."},
    {"TypeIdIsNoString", "{\n  \"typeid\": 5}", "2:13: Schema must specify a typeid string."},
    {"TypeIdIsEmpty", "{\n  \"typeid\": \"\"}", "2:13: The typeid string may not be empty."},
    {"TypeIdIsBuiltIn", "{\n\"typeid\": \"norvex.parameter:group-1.2.3\",\n\"inherits\": [\"" + group + "\"]}",
     "2:11: Schema with typeid norvex.parameter:group-1.2.3 is already registered."},
    {"NoBase", "{\"typeid\": \"s\"}", "1:1: Schema must specify an inheritance array."},
    {"BaseIsNoArray", "{\"typeid\": \"s\",\n \"inherits\": \"x\"}", "2:14: Expected an array."},
    {"BaseIsNoString", "{\"typeid\": \"s\",\n \"inherits\": [5]}", "2:14: Expected an array of strings."},
    {"BaseIsEmpty", "{\"typeid\": \"s\",\n \"inherits\": [\"\"]}", "2:15: Expected an array of non-empty strings."},
    {"TwoBases", "{\"typeid\": \"s\",\n \"inherits\": [\"x\", \"y\"]}",
     "2:14: Inheritance clause must specify exactly one base schema."},
    {"UnknownBase", schema("norvex.x", {name}), "2:15: Inheritance from an unrecognized base schema."},
    {"ConstantsAreNoArray", "{\"typeid\": \"s\", \"inherits\": [\"x\"],\n \"constants\": {}}",
     "2:15: Expected schema constants to be an array."},
    {"PropertiesAreNoArray", "{\"typeid\": \"s\", \"inherits\": [\"x\"],\n \"properties\": 1}",
     "2:16: Expected schema properties to be an array."},
    {"DefinitionIsNoObject", schema(group, {name, "5"}), "5:3: Expected an object describing a property."},
    {"DefinitionWithoutId", schema(group, {name, "{}"}), "5:3: A property definition must have an id attribute."},
    {"IdIsNoString", schema(group, {name, R"({"id": 5})"}), "5:3: A property's id attribute must be a string."},
    {"ConstantTwice", schema(group, {name, name}), "5:3: Item name in constants array must be defined only once."},
    {"PropertyTwice", schema("Enum", {}, {R"({"id": "a", "value": 1})", R"({"id": "a", "value": 2})"}),
     "6:3: Item a in properties array must be defined only once."},
    {"ConstantWithoutValue", schema(group, {R"({"id": "other", "value": 1})", R"({"id": "name"})"}),
     "5:3: A property definition must contain either a value or a typedValue."},
    {"NoName", schema(group, {}), "1:1: Schema s has an undefined name constant."},
    {"NameIsEmpty", schema(group, {R"({"id": "other", "value": 1})", R"({"id": "name", "value": ""})"}),
     "5:3: Expected a non-empty string."},
    {"DescriptionIsNoString", schema(boolParameter, {R"({"id": "description", "value": 5})", name}),
     "4:3: Expected a string."},
    {"TheFirstOfTwoThatAreNoString",
     schema(boolParameter, {R"({"id": "sampleText", "value": 5})", R"({"id": "description", "value": 5})", name}),
     "5:3: Expected a string."},
    {"ReadOnlyIsNoBoolean", schema(boolParameter, {name, R"({"id": "readOnly", "value": "yes"})"}),
     "5:3: Expected a Boolean value."},
    {"GroupIsNoTypedValue", schema(boolParameter, {name, R"({"id": "group", "typedValue": "g"})"}),
     "5:3: A typedValue must be an object."},
    {"GroupWithMoreThanATypeId",
     schema(boolParameter, {name, R"({"id": "group", "typedValue": {"typeid": "g", "name": "G"}})"}),
     "5:3: A typedValue object may not be empty and must contain a typeid attribute only."},
    {"GroupWithoutTypeId", schema(boolParameter, {name, R"({"id": "group", "typedValue": {"typeId": "g"}})"}),
     "5:3: A typedValue did not contain a typeid attribute."},
    {"GroupWithEmptyTypeId", schema(boolParameter, {name, R"({"id": "group", "typedValue": {"typeid": ""}})"}),
     "5:3: A typeid attribute in a typedValue object may not be empty."},
    {"DisciplinesAreNoArray", schema(majorCategory, {name, R"({"id": "disciplines", "typedValue": {}})"}),
     "5:3: Expected an array of typedValue objects."},
    {"FlagIsNoBoolean",
     schema(intRange, {R"({"id": "fromTop", "value": 1})", R"({"id": "fromBottom", "value": false})"}),
     "4:3: Expected a Boolean value."},
    {"BoundaryIsNoInteger",
     schema(intRange, {R"({"id": "fromTop", "value": true})", R"({"id": "fromBottom", "value": true})",
                       R"({"id": "topBoundary", "value": 9})", R"({"id": "bottomBoundary", "value": 0.5})"}),
     "7:3: Expected an integer."},
    {"BoundaryIsNoNumber",
     schema(floatRange, {R"({"id": "fromTop", "value": true})", R"({"id": "topBoundary", "value": "9"})",
                         R"({"id": "fromBottom", "value": true})"}),
     "5:3: Expected a number."},
    {"AllowedValuesAreNoArray", schema(setRange, {name, R"({"id": "allowedValues", "value": "a"})"}),
     "5:3: Expected an array."},
    {"AllowedValuesAreNoStrings", schema(setRange, {name, R"({"id": "allowedValues", "value": [1]})"}),
     "5:3: Expected an array of strings."},
    {"AllowedValueTwice", schema(setRange, {name, R"({"id": "allowedValues", "value": ["a", "a"]})"}),
     "5:3: Expected an array of unique strings."},
    {"RegexIsNoString", schema(regexRange, {name, R"({"id": "regex", "value": 1})"}), "5:3: Expected a string."},
    {"NoChoice", schema("Enum", {}), "1:1: Enumeration schema s must specify at least one value."},
    {"ChoiceIsNoInteger", schema("Enum", {}, {R"({"id": "a", "value": 1})", R"({"id": "b", "value": "2"})"}),
     "6:3: Value b in enumeration schema s must specify an integer value."},
    {"ChoiceWithoutName", schema("Enum", {}, {R"({"id": "a", "value": 1})", R"({"id": "", "value": 2})"}),
     "6:3: ID of value in enumeration schema s must not be empty."},
    {"EnumerationParameterWithoutSpec", schema(enumerationParameter, {name}),
     "1:1: Enumeration parameter schema s has an undefined spec constant."},
    {"SpecNamesNothing", schema(enumerationParameter, {name, spec("{}")}),
     "5:3: Spec constant in enumeration parameter schema s must specify a nonempty typeid string."},
    {"EnumerationIsNotNamed",
     schema(enumerationParameter, {name, spec(R"({"typeid": "x"})")}, {R"({"id": "value", "typedValue": {}})"}),
     "7:3: Value property in enumeration parameter schema s must specify a nonempty typeid string."},
    {"RangeWithoutTypeId", schema(intParameter, {name, range("{}")}),
     "5:3: Schema s must specify a typeid string attribute in its range constant typedValue."},
    {"RangeWithEmptyTypeId", schema(intParameter, {name, range(R"({"typeid": ""})")}),
     "5:3: Expected a non-empty string."},
    {"InlineRangeWithoutValue", schema(intParameter, {name, range("{\"typeid\": \"" + intRange + "\"}")}),
     "5:3: Inline value override is required when specifying range schema " + intRange +
         " in range constant typedValue."},
    {"InlineBoundaryIsNoNumber",
     schema(measurableParameter,
            {name,
             range("{\"typeid\": \"" + floatRange +
                   R"(", "value": {"fromBottom": true, "bottomBoundary": "0", "fromTop": false}})"),
             spec(R"({"typeid": "x"})")}),
     "5:3: Expected a number."},
    {"OverrideOfANamedRange", schema(intParameter, {name, range(R"({"typeid": "r", "value": {"fromTop": true}})")}),
     "5:3: Inline value override for range schema r in range constant typedValue, if present, must be an empty "
     "object."},
    {"OverrideOfAReferenceSpec", schema(referenceParameter, {name, spec(R"({"typeid": "x", "value": {}})")}),
     "5:3: Inline value override for spec x is not permitted."},
    {"FamilyTypeWithoutCategory",
     schema(referenceParameter, {name, spec(R"({"typeid": "norvex.talmo.spec:familyType-1.0.0"})")}),
     "5:3: Inline typedValue override is required when specifying the family type base schema "
     "norvex.talmo.spec:familyType-1.0.0 in spec constant typedValue."},
    {"UnitWithoutName", schema(unit, {}), "1:1: Schema s has an undefined name constant."},
    {"SymbolIsNoString", schema(unit, {name, R"({"id": "symbol", "value": 1})"}), "5:3: Expected a string."},
    {"MissingDiscipline", schema(boolSpec, {name, R"({"id": "discipline", "typedValue": {"typeid": "x"}})"}),
     "5:3: Dependency x in schema s is missing or does not represent an object of the expected type."},
    {"MissingRange", schema(stringParameter, {range(R"({"typeid": "x"})"), name}),
     "4:3: Dependency x in schema s is missing or does not represent an object of the expected type."},
    {"MissingDomainOfSeveralLines",
     schema(majorCategory, {name, "{\n\"id\": \"domain\",\n\"typedValue\": {\"typeid\": \"x\"}}"}),
     "5:3: Dependency x in schema s is missing or does not represent an object of the expected type."},
    {"MissingParent", schema(subCategory, {R"({"id": "parent", "typedValue": {"typeid": "x"}})", name}),
     "4:3: Dependency x in schema s is missing or does not represent an object of the expected type."},
    {"MissingStorageUnit",
     schema(measurableSpec, {name, R"({"id": "applicableUnits", "typedValue": [{"typeid": "x"}]})",
                             R"({"id": "storageUnit", "typedValue": {"typeid": "x"}})"}),
     "6:3: Typeid x for storageUnit constant in measurable spec schema s does not belong to a unit."},
};

INSTANTIATE_TEST_SUITE_P(Check, FaultPlaces, testing::ValuesIn(faults), Support::nameOfRow);

TEST(Check, FindsASubcategoryWhoseParentIsOneToo) {
    const Folder folder;
    folder.write("f.ndjson",
                 R"({"typeid":"d","inherits":["norvex.talmo.category:domain-1.0.0"],"constants":[)" + name +
                     "]}\n"
                     R"({"typeid":"m","inherits":["norvex.talmo.category:majorCategory-1.0.0"],)"
                     R"("constants":[)" +
                     name + R"(,{"id":"domain","typedValue":{"typeid":"d"}}]})" + "\n" +
                     R"({"typeid":"a","inherits":["norvex.talmo.category:subCategory-1.0.0"],"constants":[)" + name +
                     R"(,{"id":"parent","typedValue":{"typeid":"m"}}]})" + "\n" +
                     R"({"typeid":"b","inherits":["norvex.talmo.category:subCategory-1.0.0"],"constants":[)" + name +
                     R"(,{"id":"parent","typedValue":{"typeid":"a"}}]})" + "\n");
    EXPECT_EQ(folder.run({"check", "--quiet", "f.ndjson"}).out,
              "f.ndjson:4:112: Parent a of subcategory schema b is not a major category.\n");
}

} // namespace
