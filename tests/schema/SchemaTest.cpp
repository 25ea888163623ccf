#include "schema/Schema.h"

#include "schema/Messages.h"
#include "support/Complaint.h"
#include "support/Fault.h"
#include "support/Messages.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Ostra {

namespace {

constexpr Identifier group("norvex.parameter:group-1.0.0");
constexpr Identifier discipline("norvex.spec:discipline-1.0.0");

using Support::Complaint;
using Support::complaintOf;
using Support::Complaints;
using Support::Fault;
using Support::messageOf;

static_assert(!std::is_copy_constructible_v<Schema>, "views into a record would not survive");

struct Text {
    explicit Text(std::string bytes) : text(std::move(bytes)) {}

    std::string text;
    Schema schema{text, Complaints::shared()};
};

std::string messageFor(const std::string& text) {
    return messageOf<Complaint>([&] { Schema(text, Complaints::shared()); });
}

/// Returns a schema text that goes on after its head with the given members.
std::string withMembers(const std::string& members) { return R"({"typeid": "t", "inherits": ["b"], )" + members + "}"; }

std::string withConstants(const std::string& elements) { return withMembers(R"("constants": [)" + elements + "]"); }

class RefusedSchema : public testing::TestWithParam<Fault> {};

TEST_P(RefusedSchema, FailsWithTheFirstFault) { EXPECT_EQ(messageFor(GetParam().text), GetParam().message); }

const std::vector<Fault> syntaxFaults = {
    {"Empty", "", "JSON parsing error at offset 0: The document is empty."},
    {"SecondRoot", "{} {}", "JSON parsing error at offset 3: The document root must not be followed by other values."},
    {"BeforeEveryOtherFault", R"({"typeid": 5, })",
     "JSON parsing error at offset 14: Missing a name for object member."},
    {"NoColon", R"({"typeid" "t"})", "JSON parsing error at offset 10: Missing a colon after a name of object member."},
};
INSTANTIATE_TEST_SUITE_P(Syntax, RefusedSchema, testing::ValuesIn(syntaxFaults), Support::nameOfRow);

const std::vector<Fault> typeIdFaults = {
    {"NoMembers", "{}", "Schema must specify a typeid string."},
    {"Absent", R"({"inherits": ["b"]})", "Schema must specify a typeid string."},
    {"OtherCase", R"({"Typeid": "t", "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"NameWithANulBehind", R"({"typeid\u0000": "t", "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"Number", R"({"typeid": 5, "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"Null", R"({"typeid": null, "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"True", R"({"typeid": true, "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"Array", R"({"typeid": ["t"], "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"Object", R"({"typeid": {"typeid": "t"}, "inherits": ["b"]})", "Schema must specify a typeid string."},
    {"EmptyString", R"({"typeid": "", "inherits": ["b"]})", "The typeid string may not be empty."},
    {"RootArray", R"(["typeid"])", "Schema must specify a typeid string."},
    {"RootEmptyArray", "[]", "Schema must specify a typeid string."},
    {"RootString", R"("typeid")", "Schema must specify a typeid string."},
    {"RootNumber", "5", "Schema must specify a typeid string."},
    {"RootTrue", "true", "Schema must specify a typeid string."},
    {"RootNull", "null", "Schema must specify a typeid string."},
    {"FirstOfTwo", R"({"typeid": 5, "typeid": "t", "inherits": ["b"]})", "Schema must specify a typeid string."},
};
INSTANTIATE_TEST_SUITE_P(TypeId, RefusedSchema, testing::ValuesIn(typeIdFaults), Support::nameOfRow);

const std::vector<Fault> baseFaults = {
    {"Absent", R"({"typeid": "t"})", "Schema must specify an inheritance array."},
    {"Null", R"({"typeid": "t", "inherits": null})", "Expected an array."},
    {"String", R"({"typeid": "t", "inherits": "b"})", "Expected an array."},
    {"Object", R"({"typeid": "t", "inherits": {}})", "Expected an array."},
    {"Number", R"({"typeid": "t", "inherits": 1})", "Expected an array."},
    {"False", R"({"typeid": "t", "inherits": false})", "Expected an array."},
    {"NumberInside", R"({"typeid": "t", "inherits": [5]})", "Expected an array of strings."},
    {"NullInside", R"({"typeid": "t", "inherits": [null]})", "Expected an array of strings."},
    {"ArrayInside", R"({"typeid": "t", "inherits": [["b"]]})", "Expected an array of strings."},
    {"ObjectInside", R"({"typeid": "t", "inherits": [{"typeid": "b"}]})", "Expected an array of strings."},
    {"EmptyStringInside", R"({"typeid": "t", "inherits": [""]})", "Expected an array of non-empty strings."},
    {"None", R"({"typeid": "t", "inherits": []})", "Inheritance clause must specify exactly one base schema."},
    {"Two", R"({"typeid": "t", "inherits": ["b", "c"]})", "Inheritance clause must specify exactly one base schema."},
    {"OneTwice", R"({"typeid": "t", "inherits": ["b", "b"]})",
     "Inheritance clause must specify exactly one base schema."},
    {"NumberBeforeEmptyString", R"({"typeid": "t", "inherits": [5, ""]})", "Expected an array of strings."},
    {"EmptyStringBeforeNumber", R"({"typeid": "t", "inherits": ["", 5]})", "Expected an array of non-empty strings."},
    {"ElementsBeforeTheirCount", R"({"typeid": "t", "inherits": ["b", "c", 5]})", "Expected an array of strings."},
    {"EmptyElementBeforeTheirCount", R"({"typeid": "t", "inherits": ["b", ""]})",
     "Expected an array of non-empty strings."},
    {"FirstOfTwoMembers", R"({"typeid": "t", "inherits": [], "inherits": ["b"]})",
     "Inheritance clause must specify exactly one base schema."},
};
INSTANTIATE_TEST_SUITE_P(Base, RefusedSchema, testing::ValuesIn(baseFaults), Support::nameOfRow);

const std::vector<Fault> orderFaults = {
    {"TypeIdBeforeBase", R"({"typeid": 5, "inherits": 5})", "Schema must specify a typeid string."},
    {"EmptyTypeIdBeforeAbsentBase", R"({"typeid": ""})", "The typeid string may not be empty."},
    {"BaseBeforeConstants", R"({"typeid": "t", "inherits": [], "constants": 5})",
     "Inheritance clause must specify exactly one base schema."},
    {"AbsentBaseBeforeProperties", R"({"typeid": "t", "properties": 5})", "Schema must specify an inheritance array."},
    {"ConstantsBeforeProperties", withMembers(R"("constants": 5, "properties": 5)"),
     "Expected schema constants to be an array."},
    {"DefinitionsOfConstantsBeforeProperties", withMembers(R"("constants": [5], "properties": 5)"),
     "Expected an object describing a property."},
    {"WhateverTheOrderOfMembers", R"({"properties": 5, "constants": 5, "inherits": 5, "typeid": 5})",
     "Schema must specify a typeid string."},
    {"BaseFirstEvenWhenLastInTheText", R"({"properties": 5, "constants": 5, "typeid": "t", "inherits": 5})",
     "Expected an array."},
    {"ConstantsFirstEvenWhenLastInTheText", R"({"properties": 5, "typeid": "t", "inherits": ["b"], "constants": 5})",
     "Expected schema constants to be an array."},
};
INSTANTIATE_TEST_SUITE_P(Order, RefusedSchema, testing::ValuesIn(orderFaults), Support::nameOfRow);

/// The same fault in each of the two tables: N in a text or message stands for the table's name.
class RefusedDefinitions : public testing::TestWithParam<Fault> {
protected:
    static std::string in(const std::string& table, std::string pattern) {
        for (auto place = pattern.find('N'); place != std::string::npos; place = pattern.find('N')) {
            pattern.replace(place, 1, table);
        }
        return pattern;
    }
};

TEST_P(RefusedDefinitions, FailsAsConstants) {
    EXPECT_EQ(messageFor(withMembers(in("constants", GetParam().text))), in("constants", GetParam().message));
}

TEST_P(RefusedDefinitions, FailsAsProperties) {
    EXPECT_EQ(messageFor(withMembers(in("properties", GetParam().text))), in("properties", GetParam().message));
}

const std::vector<Fault> tableFaults = {
    {"Null", R"("N": null)", "Expected schema N to be an array."},
    {"Object", R"("N": {})", "Expected schema N to be an array."},
    {"String", R"("N": "x")", "Expected schema N to be an array."},
    {"Number", R"("N": 1)", "Expected schema N to be an array."},
    {"False", R"("N": false)", "Expected schema N to be an array."},
    {"FirstOfTwoTables", R"("N": 1, "N": [])", "Expected schema N to be an array."},
    {"NullElement", R"("N": [null])", "Expected an object describing a property."},
    {"StringElement", R"("N": ["id"])", "Expected an object describing a property."},
    {"NumberElement", R"("N": [5])", "Expected an object describing a property."},
    {"TrueElement", R"("N": [true])", "Expected an object describing a property."},
    {"ArrayElement", R"("N": [[]])", "Expected an object describing a property."},
    {"NoMembers", R"("N": [{}])", "A property definition must have an id attribute."},
    {"NoId", R"("N": [{"value": 5}])", "A property definition must have an id attribute."},
    {"OtherCaseOfId", R"("N": [{"Id": "x", "value": 5}])", "A property definition must have an id attribute."},
    {"NumberAsId", R"("N": [{"id": 5, "value": 5}])", "A property's id attribute must be a string."},
    {"NullAsId", R"("N": [{"id": null, "value": 5}])", "A property's id attribute must be a string."},
    {"ObjectAsId", R"("N": [{"id": {}, "value": 5}])", "A property's id attribute must be a string."},
    {"FirstOfTwoIds", R"("N": [{"id": 5, "id": "x"}])", "A property's id attribute must be a string."},
    {"IdTwice", R"("N": [{"id": "x"}, {"id": "x"}])", "Item x in N array must be defined only once."},
    {"IdTwiceFarApart", R"("N": [{"id": "x"}, {"id": "y"}, {"id": "z"}, {"id": "x"}])",
     "Item x in N array must be defined only once."},
    {"IdTwiceWithOtherContent", R"("N": [{"id": "x", "value": 1}, {"id": "x", "typedValue": {}}])",
     "Item x in N array must be defined only once."},
    {"IdTwiceInTwoSpellings", R"("N": [{"id": "x"}, {"id": "\u0078"}])",
     "Item x in N array must be defined only once."},
    {"EmptyIdTwice", R"("N": [{"id": ""}, {"id": ""}])", "Item  in N array must be defined only once."},
    {"IdTwiceBeforeAMalformedElement", R"("N": [{"id": "x"}, {"id": "x"}, 5])",
     "Item x in N array must be defined only once."},
    {"MalformedElementBeforeIdTwice", R"("N": [{"id": "x"}, 5, {"id": "x"}])",
     "Expected an object describing a property."},
    {"MalformedElementBeforeMissingId", R"("N": [5, {}])", "Expected an object describing a property."},
    {"MissingIdBeforeMalformedElement", R"("N": [{}, 5])", "A property definition must have an id attribute."},
    {"WrongIdBeforeMissingId", R"("N": [{"id": 5}, {}])", "A property's id attribute must be a string."},
    {"FirstOfTwoRepeatedIds", R"("N": [{"id": "y"}, {"id": "x"}, {"id": "x"}, {"id": "y"}])",
     "Item x in N array must be defined only once."},
};
INSTANTIATE_TEST_SUITE_P(Definitions, RefusedDefinitions, testing::ValuesIn(tableFaults), Support::nameOfRow);

TEST(Schema, NamesARepeatedIdWholeWhenItHoldsANul) {
    EXPECT_EQ(complaintOf([] { Text(withConstants(R"({"id": "a\u0000b"}, {"id": "a\u0000b"})")); }),
              std::string("Item a\0b in constants array must be defined only once.", 54));
}

TEST(Schema, AnswersItsTypeIdAndBase) {
    const Text text(R"({"typeid": "plant.spec:open-1.0.0", "inherits": ["norvex.spec:spec.bool-1.0.0"]})");
    EXPECT_EQ(text.schema.typeId(), "plant.spec:open-1.0.0");
    EXPECT_EQ(text.schema.base(), "norvex.spec:spec.bool-1.0.0");
}

TEST(Schema, HasEmptyTablesWhereTheTextHasNone) {
    const Text text(R"({"typeid": "t", "inherits": ["b"]})");
    EXPECT_TRUE(text.schema.constants().empty());
    EXPECT_TRUE(text.schema.properties().empty());
}

TEST(Schema, HasEmptyTablesWhereTheTextHasEmptyOnes) {
    const Text text(withMembers(R"("constants": [], "properties": [])"));
    EXPECT_TRUE(text.schema.constants().empty());
    EXPECT_TRUE(text.schema.properties().empty());
}

TEST(Schema, TakesMembersInAnyOrder) {
    const Text text(R"({"properties": [{"id": "p"}], "inherits": ["b"], "constants": [{"id": "c"}], "typeid": "t"})");
    EXPECT_EQ(text.schema.typeId(), "t");
    EXPECT_EQ(text.schema.base(), "b");
    EXPECT_TRUE(text.schema.constants().find("c"));
    EXPECT_TRUE(text.schema.properties().find("p"));
}

TEST(Schema, IgnoresOtherMembers) {
    const Text text(R"({"name": 5, "annotation": [{}], "typeid": "t", "Constants": 5, "inherits": ["b"]})");
    EXPECT_EQ(text.schema.typeId(), "t");
}

TEST(Schema, IgnoresOtherMembersOfADefinition) {
    const Text text(withConstants(R"({"note": [5], "id": "x", "Value": 5})"));
    EXPECT_TRUE(text.schema.constants().find("x"));
}

TEST(Schema, KeepsOneIdInBothTables) {
    const Text text(withMembers(R"("constants": [{"id": "x", "value": 1}], "properties": [{"id": "x", "value": 2}])"));
    EXPECT_EQ(Schema::valueOf(*text.schema.constants().find("x"))->integer(), 1);
    EXPECT_EQ(Schema::valueOf(*text.schema.properties().find("x"))->integer(), 2);
}

TEST(Schema, ListsDefinitionsInTheOrderOfTheText) {
    const Text text(withConstants(R"({"id": "b"}, {"id": "\u00e4"}, {"id": "a"}, {"id": "ab"}, {"id": "B"})"));
    std::vector<std::string> ids;
    for (const auto& [id, definition] : text.schema.constants()) {
        ids.emplace_back(id);
    }
    EXPECT_EQ(ids, (std::vector<std::string>{"b", "\xc3\xa4", "a", "ab", "B"}));
}

TEST(Schema, ReadsADefinitionWithoutAValue) {
    const Text text(withConstants(R"({"id": "x"})"));
    EXPECT_TRUE(text.schema.constants().find("x"));
}

TEST(Schema, KeepsTheEmptyId) {
    const Text text(withConstants(R"({"id": "", "value": 7})"));
    EXPECT_EQ(Schema::valueOf(*text.schema.constants().find(""))->integer(), 7);
}

TEST(Schema, TellsIdsApartBehindANul) {
    const Text text(withConstants(R"({"id": "a"}, {"id": "a\u0000"}, {"id": "a\u0000b"})"));
    EXPECT_EQ(text.schema.constants().size(), 3U);
    EXPECT_TRUE(text.schema.constants().find(std::string("a\0b", 3)));
}

TEST(Schema, KeepsBytesThatAreNoUtf8) {
    const Text text("{\"typeid\": \"t\xff\", \"inherits\": [\"b\xc3\"], \"constants\": [{\"id\": \"\xfe\"}]}");
    EXPECT_EQ(text.schema.typeId(), "t\xff");
    EXPECT_EQ(text.schema.base(), "b\xc3");
    EXPECT_TRUE(text.schema.constants().find("\xfe"));
}

TEST(Schema, KeepsNulsInItsTypeIdAndBase) {
    const Text text(R"({"typeid": "\u0000t", "inherits": ["\u0000"]})");
    EXPECT_EQ(text.schema.typeId(), std::string("\0t", 2));
    EXPECT_EQ(text.schema.base(), std::string(1, '\0'));
}

TEST(Schema, TakesTheFirstOfTwoMembersOfOneName) {
    const Text text(R"({"typeid": "first", "typeid": 5, "inherits": ["a"], "inherits": [],
        "constants": [{"id": "c", "id": 5, "value": 1, "value": 2}], "constants": 5,
        "properties": [{"id": "p", "typedValue": 3, "typedValue": 4}], "properties": 5})");
    EXPECT_EQ(text.schema.typeId(), "first");
    EXPECT_EQ(text.schema.base(), "a");
    EXPECT_EQ(Schema::valueOf(*text.schema.constants().find("c"))->integer(), 1);
    EXPECT_EQ(Schema::valueOf(*text.schema.properties().find("p"))->integer(), 3);
}

std::string withAThousandConstants() {
    std::string elements = R"({"id": "0", "value": 0})";
    for (int id = 1; id < 1000; ++id) {
        elements += R"(, {"id": ")" + std::to_string(id) + R"(", "value": )" + std::to_string(id) + "}";
    }
    return withConstants(elements);
}

TEST(Schema, HoldsMoreDefinitionsThanItsOwnBuffer) {
    const Text text(withAThousandConstants());
    EXPECT_EQ(text.schema.constants().size(), 1000U);
    EXPECT_EQ(Schema::valueOf(*text.schema.constants().find("999"))->integer(), 999);
}

TEST(Schema, InheritsFromEveryMinorVersionOfItsBase) {
    const Text text(R"({"typeid": "t", "inherits": ["norvex.parameter:group-1.9.3"]})");
    EXPECT_TRUE(text.schema.inherits(group));
    EXPECT_FALSE(text.schema.inherits(discipline));
}

TEST(Schema, InheritsFromABaseInsideALongerText) {
    const Text text(R"({"typeid": "t", "inherits": ["my norvex.parameter:group-1.0.0 too"]})");
    EXPECT_TRUE(text.schema.inherits(group));
}

TEST(Schema, InheritsFromABaseBehindOneMoreCharacter) {
    const Text text(R"({"typeid": "t", "inherits": ["xnorvex.parameter:group-1.0.0"]})");
    EXPECT_TRUE(text.schema.inherits(group));
}

TEST(Schema, DoesNotInheritFromAnotherMajorVersion) {
    const Text text(R"({"typeid": "t", "inherits": ["norvex.parameter:group-2.0.0"]})");
    EXPECT_FALSE(text.schema.inherits(group));
}

TEST(Schema, FailsThroughTheFactoryOnDemand) {
    const Text text(R"({"typeid": "t", "inherits": ["b"]})");
    EXPECT_EQ(messageOf<Complaint>([&] { static_cast<void>(text.schema.view().fail(messages("string-expected"))); }),
              "Expected a string.");
}

class DefinitionValue : public testing::Test {
protected:
    /// Returns the value of the one definition, as text.
    static std::string valueOf(const std::string& members) {
        const Text text(withConstants(R"({"id": "x")" + members + "}"));
        return Schema::valueOf(*text.schema.constants().find("x"))->toText();
    }
};

TEST_F(DefinitionValue, HasItsValue) { EXPECT_EQ(valueOf(R"(, "value": [1, "a"])"), R"([1,"a"])"); }

TEST_F(DefinitionValue, HasItsTypedValue) {
    EXPECT_EQ(valueOf(R"(, "typedValue": {"typeid": "a"})"), R"({"typeid":"a"})");
}

TEST_F(DefinitionValue, PrefersItsValueToATypedValueBehindIt) {
    EXPECT_EQ(valueOf(R"(, "value": 1, "typedValue": 2)"), "1");
}

TEST_F(DefinitionValue, PrefersItsValueToATypedValueBeforeIt) {
    EXPECT_EQ(valueOf(R"(, "typedValue": 2, "value": 1)"), "1");
}

TEST_F(DefinitionValue, PrefersItsValueEvenWhenThatIsNull) {
    EXPECT_EQ(valueOf(R"(, "typedValue": 2, "value": null)"), "null");
}

TEST_F(DefinitionValue, FailsWhenItsValueIsWantedAndItHasNone) {
    EXPECT_EQ(messageOf<Complaint>([] { valueOf(""); }),
              "A property definition must contain either a value or a typedValue.");
}

TEST_F(DefinitionValue, FailsWhenItsValueIsSpeltOtherwise) {
    EXPECT_EQ(messageOf<Complaint>([] { valueOf(R"(, "Value": 1, "typedvalue": 2)"); }),
              "A property definition must contain either a value or a typedValue.");
}

} // namespace

} // namespace Ostra
