#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::HasSubstr;
using testing::Not;

/// Returns a schema in one line whose constants are a name and more.
std::string schema(const std::string& typeId, const std::string& base, const std::string& more = "") {
    return R"({"typeid":")" + typeId + R"(","inherits":[")" + base + R"("],"constants":[{"id":"name","value":"N"})" +
           more + "]}\n";
}

std::string group(const std::string& typeId) { return schema(typeId, "norvex.parameter:group-1.0.0"); }
std::string parameter(const std::string& groupTypeId) {
    return schema("p", "norvex.parameter:parameter.bool-2.0.0",
                  R"(,{"id":"group","typedValue":{"typeid":")" + groupTypeId + "\"}}");
}
std::string subCategory(const std::string& typeId, const std::string& parent) {
    return schema(typeId, "norvex.talmo.category:subCategory-1.0.0",
                  R"(,{"id":"parent","typedValue":{"typeid":")" + parent + "\"}}");
}
/// Returns an integer parameter with a range.
std::string ranged(const std::string& range) {
    return schema("p", "norvex.parameter:parameter.int64-3.0.0", R"(,{"id":"range","typedValue":)" + range + "}");
}

struct Hint {
    const char* name;
    std::string bytes;
    std::string hint;
};

class Hints : public testing::TestWithParam<Hint> {};

TEST_P(Hints, HelpToMendAFault) {
    const Folder folder;
    folder.write("f.ndjson", GetParam().bytes);
    EXPECT_THAT(folder.run({"check", "-q", "--all", "f.ndjson"}).out,
                HasSubstr("\n    hint: " + GetParam().hint + "\n"));
}

const std::string intRange = R"("norvex.range:range.int64.bounded.static-1.0.0")";

const Hint hints[] = {
    {"NearestBase", schema("a", "norvex.parameter:grup-1.0.0"), "did you mean norvex.parameter:group-1.0.0?"},
    {"NearestVersionOfABase", schema("a", "norvex.spec:spec.int64-1.0.0"),
     "did you mean norvex.spec:spec.int64-2.0.0?"},
    {"BaseWithoutVersion", schema("a", "norvex.parameter:group"), "did you mean norvex.parameter:group-1.0.0?"},
    {"BaseIsAnotherSchema", group("g") + schema("a", "g"),
     "only built-in bases can be inherited, and this is another schema."},
    {"TypeIdTaken", group("g") + group("g"), "it is that of f.ndjson:1:1."},
    {"TypeIdBuiltIn", group("norvex.parameter:group-1.0.0"), "it contains a built-in identifier."},
    {"MisspeltConstant",
     R"({"typeid":"a","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"nmae","value":"A"}]})",
     "there is nmae: did you mean name?"},
    {"ConstantAmongProperties",
     R"({"typeid":"a","inherits":["norvex.parameter:group-1.0.0"],"properties":[{"id":"name","value":"A"}]})",
     "name stands among the properties."},
    {"MisspeltArrayOfConstants",
     R"({"typeid":"a","inherits":["norvex.parameter:group-1.0.0"],"constant":[{"id":"name","value":"A"}]})",
     "there is constant: did you mean constants?"},
    {"TypeIdUnderAnotherName", // alone where a typeid belongs
     schema("p", "norvex.parameter:parameter.bool-2.0.0", R"(,{"id":"group","typedValue":{"kind":"g"}})"),
     "there is kind: did you mean typeid?"},
    {"MisspeltTypeId", R"({"typeId":"a","inherits":["norvex.parameter:group-1.0.0"]})",
     "there is typeId: did you mean typeid?"},
    {"MisspeltInherits", R"({"typeid":"a","inherit":["norvex.parameter:group-1.0.0"]})",
     "there is inherit: did you mean inherits?"},
    {"MisspeltOptionalConstant",
     schema("p", "norvex.parameter:parameter.bool-2.0.0", R"(,{"id":"decription","value":"D"})"),
     "did you mean description?"},
    {"MisspeltMember",
     schema("p", "norvex.parameter:parameter.bool-2.0.0", R"(,{"id":"group","typedvalue":{"typeid":"g"}})"),
     "there is typedvalue: did you mean typedValue?"},
    {"NearestTypeIds",
     group("x:safety-1.0.0") + group("x:safely-1.0.0") + group("x:other-1.0.0") + parameter("x:safey-1.0.0"),
     "did you mean x:safely-1.0.0 or x:safety-1.0.0?"},
    {"TypeIdWithoutVersion", group("x:safety-1.0.0") + parameter("x:safety"), "did you mean x:safety-1.0.0?"},
    {"FaultyItself",
     R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"]})"
     "\n" +
         parameter("g"),
     "it is in f.ndjson:1:1, and faulty."},
    {"NoJsonItself",
     R"({"typeid":"g","inherits":["norvex.parameter:group-1.0.0"],})"
     "\n" +
         parameter("g"),
     "it is in f.ndjson:1:1, and faulty."},
    {"WrongKind", schema("d", "norvex.spec:discipline-1.0.0") + parameter("d"),
     "f.ndjson:1:1 is of the kind discipline, and the kind group is expected."},
    {"BaseOfAnotherKind", ranged(R"({"typeid":"norvex.range:range.float64.bounded.static-1.0.0"})"),
     "this is the base of the kind floating-point range, and the kind integer range is expected."},
    {"BoundaryOfAnotherType",
     ranged(R"({"typeid":)" + intRange +
            R"(,"value":{"fromBottom":true,"bottomBoundary":0.5,"fromTop":true,"topBoundary":1}})"),
     "this is about bottomBoundary."},
    {"FlagOfAnotherType",
     schema("r", "norvex.range:range.int64.bounded.static-1.0.0",
            R"(,{"id":"fromTop","value":0},{"id":"fromBottom","value":false})"),
     "this is about fromTop."},
    {"OwnParent", subCategory("c", "c"), "the schema names itself."},
    {"ParentsInACircle", subCategory("a", "b") + subCategory("b", "a"), "they name each other in a circle: a, b."},
    {"NoSchema", R"({"name":"package","version":"1.0.0"})", "this is no schema; it need not be here."},
    {"SeveralSchemas", "[{}]", "a text is one schema, no list of them."},
    {"Utf16", std::string("\xFF\xFE{\0}\0", 6), "the text is in UTF-16, and must be in UTF-8."},
    {"NoUtf8",
     schema("g", "norvex.parameter:group-1.0.0",
            R"(,{"id":"x","value":")"
            "\xE4"
            R"("})"),
     "save the file in UTF-8."},
};

INSTANTIATE_TEST_SUITE_P(Check, Hints, testing::ValuesIn(hints), Support::nameOfRow);

class Slips : public testing::TestWithParam<Hint> {};

TEST_P(Slips, AreToldWhereATextCeasesToBeJson) {
    const Folder folder;
    folder.write("f.json", GetParam().bytes);
    const std::string out = folder.run({"check", "-q", "f.json"}).out;
    EXPECT_THAT(out, HasSubstr(": JSON parsing error at offset "));
    EXPECT_THAT(out, GetParam().hint.empty() ? testing::Matcher<std::string>(Not(HasSubstr("hint")))
                                             : HasSubstr("\n    hint: " + GetParam().hint + "\n"));
}

const std::string quotes = "strings stand between \" and nothing else.";
const std::string noNumber = "JSON has no such number; a range without a limit has a flag that says so.";
const std::string merge = "this is left from a merge: keep one of its sides.";

const Hint slips[] = {
    {"Comment", "{\"a\": 1 // x\n}", "JSON has no comments."},
    {"LongComment", "{/* x */\"a\": 1}", "JSON has no comments."},
    {"HashComment", "{\n# x\n\"a\": 1}", "JSON has no comments."},
    {"CommaBehindTheLastMember", "{\"a\": 1,\n}", "no comma stands before a closing bracket."},
    {"CommaBehindTheLastElement", "{\"a\": [1, ]}", "no comma stands before a closing bracket."},
    {"SingleQuotes", "{'a': 1}", quotes},
    {"TypographicQuotes", "{\"a\": \u201Cb\u201D}", quotes},
    {"CapitalTrue", "{\"a\": True}", "true and false are written in small letters."},
    {"CapitalFalse", "{\"a\": FALSE}", "true and false are written in small letters."},
    {"None", "{\"a\": None}", "leave out what has no value."},
    {"PlusSign", "{\"a\": +1}", "a number has no plus sign."},
    {"PointFirst", "{\"a\": .5}", "a number begins with a digit."},
    {"ZeroFirst", "{\"a\": 01}", "a number does not begin with zeros."},
    {"NaN", "{\"a\": NaN}", noNumber},
    {"MinusInfinity", "{\"a\": -Infinity}", noNumber},
    {"MergeMarker", "{\"a\": 1,\n<<<<<<< HEAD\n\"b\": 1}", merge},
    {"MergeMarkerBehindAValue", "{\"a\": 1\n=======\n}", merge},
    {"NoBreakSpace", "{\"a\":\u00A01}", "this is no plain blank, though it looks like one or like nothing."},
    {"SecondByteOrderMark", "\uFEFF\uFEFF{}", "this is a second byte order mark."},
    {"OpenString", "{\"a\": \"b\n}", "the string is not closed in its line."},
    {"OpenStringAtTheEnd", "{\"a\": \"b", "the text ends too early."},
    {"OpenObject", "{\"a\": 1\n", "the text ends too early."},
    {"TabInAString", "{\"a\": \"b\tc\"}", "a tab within a string is written as \\t."},
    {"BackslashInAString", "{\"a\": \"C:\\Users\"}", "a backslash within a string is written as \\\\."},
    {"NameWithoutQuotes", "{\"b\": 1, typeid: 2}", "names stand in quotation marks, too."},
    {"MissingComma", "{\"a\": \"x\"\n\"b\": 1}", "a comma is missing before it."},
    {"EqualSign", "{\"a\" = 1}", "a colon stands between a name and its value."},
    {"Semicolon", "{\"a\": 1; \"b\": 2}", "commas stand between members and between elements."},
    {"SecondSchema", "{\"a\": \"}\\\"\"}\n{\"b\": 1}",
     "a .json file holds one schema; a .ndjson file holds one a line."},
    {"Empty", "", ""},
    {"NoUsualSlip", "{\"a\": %}", ""},
};

INSTANTIATE_TEST_SUITE_P(Check, Slips, testing::ValuesIn(slips), Support::nameOfRow);

} // namespace
