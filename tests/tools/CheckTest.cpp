#include "support/RowNames.h"
#include "tools/Tool.h"

#include <parameters/Kinds.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string discipline = R"({"typeid": "ship.discipline:hull-1.0.0", "inherits": ["norvex.spec:discipline-1.0.0"],
 "constants": [{"id": "name", "value": "Hull"}]})";
const std::string domain = R"({"typeid": "d", "inherits": ["norvex.talmo.category:domain-1.0.0"],
 "constants": [{"id": "name", "value": "Engine Room"}]})";
const std::string group = R"({"typeid": "g", "inherits": ["norvex.parameter:group-1.0.0"],
 "constants": [{"id": "name", "value": "Safety"}]})";
const std::string boolSpec = R"({"typeid": "ship.spec:watertight-1.0.0", "inherits": ["norvex.spec:spec.bool-1.0.0"],
 "constants": [{"id": "name", "value": "Watertight/Open"},
  {"id": "discipline", "typedValue": {"typeid": "ship.discipline:hull-1.0.0"}}]})";
const std::string generalSpec = R"({"typeid": "s", "inherits": ["norvex.spec:spec-1.0.0"],
 "constants": [{"id": "name", "value": "Hull Form"}]})";
const std::string boolParameter = R"({"typeid": "p", "inherits": ["norvex.parameter:parameter.bool-2.0.0"],
 "constants": [{"id": "name", "value": "Bulkhead Door"},
  {"id": "spec", "typedValue": {"typeid": "ship.spec:watertight-1.0.0"}},
  {"id": "group", "typedValue": {"typeid": "g"}}]})";
const std::string unit = R"({"typeid": "u", "inherits": ["norvex.unit:unit-1.0.0"],
 "constants": [{"id": "name", "value": "Knot"}, {"id": "symbol", "value": "kn"}]})";

/// Returns a schema in one line.
std::string groupLine(const std::string& typeId) {
    return R"({"typeid":")" + typeId +
           R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"G"}]})";
}

/// Returns a Boolean spec in one line that names a discipline.
std::string specLine(const std::string& typeId, const std::string& disciplineTypeId) {
    return R"({"typeid":")" + typeId +
           R"(","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[{"id":"name","value":"S"},)" +
           R"({"id":"discipline","typedValue":{"typeid":")" + disciplineTypeId + R"("}}]})";
}

TEST(Check, FindsNoFaultInASoundCatalogueAndCountsItsObjects) {
    const Folder folder;
    folder.write("catalogue/a.json", boolParameter);
    folder.write("catalogue/below/b.json", discipline);
    folder.write("catalogue/below/deeper/c.json", boolSpec);
    folder.write("catalogue/d.json", domain);
    folder.write("catalogue/g.json", group);
    folder.write("catalogue/s.json", generalSpec);
    folder.write("catalogue/u.json", unit);
    folder.write("catalogue/more.ndjson", groupLine("g2") + "\n" + groupLine("g3") + "\n");
    const Outcome outcome = folder.run({"check", "catalogue"});
    EXPECT_EQ(outcome.exitCode, 0);
    const std::map<std::string_view, int> counts{{"disciplines", 1}, {"Boolean specs", 1},      {"general specs", 1},
                                                 {"groups", 3},      {"Boolean parameters", 1}, {"domains", 1}};
    std::string rows;
    Parameters::forEachKind([&](auto kind) {
        const auto count = counts.find(kind.info.plural());
        const std::string plural(kind.info.plural());
        rows += plural + std::string(33 - plural.size(), ' ') +
                (count != counts.end() ? std::to_string(count->second) : "0") + "\n";
    });
    EXPECT_EQ(outcome.out, "kind                       objects\n"
                           "units                            1\n" +
                               rows +
                               "total                            9\n"
                               "9 schemas in 8 files: 0 faults\n");
    EXPECT_EQ(outcome.err, "");
}

TEST(Check, ReadsOnlySchemaFilesOfAFolder) {
    const Folder folder;
    folder.write("c/README.md", "# no schema");
    folder.write("c/old.json.bak", "no schema");
    folder.write("c/g.json", group);
    folder.makeFolder("c/folder.json");
    const Outcome outcome = folder.run({"check", "c"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
    EXPECT_THAT(outcome.out, HasSubstr("\n1 schema in 1 file: 0 faults\n"));
}

TEST(Check, ReadsAFileOnceThoughItIsNamedTwice) {
    const Folder folder;
    folder.write("c/g.json", group);
    const Outcome outcome = folder.run({"check", "c/g.json", "c", "./c/../c/g.json"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
    EXPECT_THAT(outcome.out, HasSubstr("\n1 schema in 1 file: 0 faults\n"));
}

TEST(Check, ReportsFaultsInTheOrderOfThePathsAndOfTheNamesInAFolder) {
    const Folder folder;
    folder.write("z.json", "]");
    folder.write("c/b.json", "]");
    folder.write("c/a/z.json", "]");
    folder.write("c/a.ndjson", "]\n");
    EXPECT_THAT(folder.run({"check", "z.json", "c"}).out,
                StartsWith("z.json:1:1: JSON parsing error at offset 0: Invalid value.\n"
                           "c/a/z.json:1:1: JSON parsing error at offset 0: Invalid value.\n"
                           "c/a.ndjson:1:1: JSON parsing error at offset 0: Invalid value.\n"
                           "c/b.json:1:1: JSON parsing error at offset 0: Invalid value.\n"));
}

struct Fault {
    const char* name;
    const char* file;
    std::string bytes;
    const char* line;
};

class FaultyFile : public testing::TestWithParam<Fault> {};

TEST_P(FaultyFile, GetsALineWithItsPlace) {
    const Folder folder;
    folder.write(GetParam().file, GetParam().bytes);
    const Outcome outcome = folder.run({"check", GetParam().file});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, StartsWith(std::string(GetParam().line) + "\n"));
    EXPECT_THAT(outcome.out, HasSubstr(": 1 fault\n"));
    EXPECT_EQ(outcome.err, "");
}

const std::string bom = "\xEF\xBB\xBF";

const Fault faults[] = {
    {"SchemaInFirstLine", "f.json",
     R"({"inherits": ["norvex.parameter:group-1.0.0"], "constants": [{"id": "name", "value": "N"}]})",
     "f.json:1:1: Schema must specify a typeid string."},
    {"SchemaAfterEmptyLines", "f.json",
     "\n \n\t{\n\"inherits\": [\"norvex.parameter:group-1.0.0\"], \"constants\": [{\"id\": \"name\", \"value\": "
     "\"N\"}]}",
     "f.json:3:2: Schema must specify a typeid string."},
    {"ParseErrorInALaterLine", "f.json", "{\n  \"typeid\": \"a\",\n  \"inherits\": [,]\n}",
     "f.json:3:16: JSON parsing error at offset 34: Invalid value."},
    {"ParseErrorAfterCarriageReturns", "f.json", "{\r\n  \"typeid\": \"a\",\r\n  \"inherits\": [,]\r\n}",
     "f.json:3:16: JSON parsing error at offset 36: Invalid value."},
    {"ParseErrorAtTheEnd", "f.json", "{\n\n",
     "f.json:3:1: JSON parsing error at offset 3: "
     "Missing a name for object member."},
    {"EmptyFile", "f.json", "", "f.json:1:1: JSON parsing error at offset 0: The document is empty."},
    {"BlankFile", "f.json", "\n\n", "f.json:3:1: JSON parsing error at offset 2: The document is empty."},
    {"OffsetWithoutByteOrderMark", "f.json", bom + "]", "f.json:1:1: JSON parsing error at offset 0: Invalid value."},
    {"OneOfTwoByteOrderMarks", "f.json", bom + bom + group,
     "f.json:1:1: JSON parsing error at offset 0: Invalid value."},
    {"MissingConstant", "f.json", R"({"typeid": "a", "inherits": ["norvex.parameter:group-1.0.0"]})",
     "f.json:1:1: Schema a has an undefined name constant."},
    {"UnknownBase", "f.json", R"({"typeid": "a", "inherits": ["norvex.parameter:group-2.0.0"]})",
     "f.json:1:30: Inheritance from an unrecognized base schema."},
    {"FaultyUnit", "f.json", R"({"typeid": "a", "inherits": ["norvex.unit:unit-1.0.0"]})",
     "f.json:1:1: Schema a has an undefined name constant."},
    {"LineOfMany", "f.ndjson", groupLine("a") + "\n" + groupLine("a") + "\n" + groupLine("b") + "\n",
     "f.ndjson:2:11: Schema with typeid a is already registered."},
    {"LineAfterBlankLines", "f.ndjson", "\n \t\n" + groupLine("a") + "\n\n{}",
     "f.ndjson:5:1: Schema must specify a typeid string."},
    {"LineAfterCarriageReturns", "f.ndjson", groupLine("a") + "\r\n\r\n" + "{}\r\n",
     "f.ndjson:3:1: Schema must specify a typeid string."},
    {"ByteZeroInALine", "f.ndjson", groupLine("a") + std::string("\0\n", 2),
     "f.ndjson:1:99: JSON parsing error at offset 98: The document root must not be followed by other values."},
    {"ControlCharactersInAMessage", "f.ndjson", groupLine("a\\n\\u001b") + "\n" + groupLine("a\\n\\u001b"),
     "f.ndjson:2:11: Schema with typeid a\\x0A\\x1B is already registered."},
    {"TextNestedDeeply", "f.json", std::string(1000000, '['),
     "f.json:1:1000001: JSON parsing error at offset 1000000: "
     "Invalid value."},
};

INSTANTIATE_TEST_SUITE_P(Check, FaultyFile, testing::ValuesIn(faults), Support::nameOfRow);

TEST(Check, DropsTheByteOrderMarkAtTheStartOfAFile) {
    const Folder folder;
    folder.write("f.json", bom + group);
    folder.write("f.ndjson", bom + groupLine("a") + "\n" + groupLine("b"));
    const Outcome outcome = folder.run({"check", "."});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
    EXPECT_THAT(outcome.out, HasSubstr("\ngroups                           3\n"));
}

TEST(Check, KeepsAByteOrderMarkInsideAFile) {
    const Folder folder;
    folder.write("f.ndjson", groupLine("a") + "\n" + bom + groupLine("b"));
    EXPECT_THAT(folder.run({"check", "."}).out,
                StartsWith("./f.ndjson:2:1: JSON parsing error at offset 0: Invalid value.\n"));
}

TEST(Check, ReportsEachFaultyTextAndReadsOn) {
    const Folder folder;
    folder.write("f.ndjson", "{}\n" + groupLine("a") + "\n[]\n" + groupLine("b") + "\n\"\n");
    const Outcome outcome = folder.run({"check", "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(
        outcome.out,
        StartsWith("f.ndjson:1:1: Schema must specify a typeid string.\n"
                   "    hint: this is no schema; it need not be here.\n"
                   "f.ndjson:3:1: Schema must specify a typeid string.\n"
                   "    hint: a text is one schema, no list of them.\n"
                   "f.ndjson:5:2: JSON parsing error at offset 1: Missing a closing quotation mark in string.\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\ngroups                           2\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\n5 schemas in 1 file: 3 faults\n"));
}

TEST(Check, ReportsAMissingDependencyAtTheSchemaThatNamesIt) {
    const Folder folder;
    folder.write("a.json", "\n" + discipline);
    folder.write("b.ndjson", groupLine("g") + "\n" + specLine("ok", "ship.discipline:hull-1.0.0") + "\n" +
                                 specLine("bad", "x") + "\n");
    const Outcome outcome = folder.run({"check", "."});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out,
                StartsWith("./b.ndjson:3:141: Dependency x in schema bad is missing or does not represent an "
                           "object of the expected type.\nkind "));
    EXPECT_THAT(outcome.out, HasSubstr("\nBoolean specs                    1\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\n4 schemas in 2 files: 1 fault\n"));
}

TEST(Check, ReportsEveryFaultOfResolutionInTheOrderOfTheFiles) {
    const Folder folder;
    folder.write("b.ndjson", specLine("b", "x") + "\n" + groupLine("g") + "\n" + specLine("a", "y") + "\n");
    folder.write("a.ndjson", specLine("c", "z") + "\n");
    const Outcome outcome = folder.run({"check", "."});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(
        outcome.out,
        StartsWith("./a.ndjson:1:139: Dependency z in schema c is missing or does not represent an object of the "
                   "expected type.\n"
                   "./b.ndjson:1:139: Dependency x in schema b is missing or does not represent an object of the "
                   "expected type.\n"
                   "./b.ndjson:3:139: Dependency y in schema a is missing or does not represent an object of the "
                   "expected type.\nkind "));
    EXPECT_THAT(outcome.out, HasSubstr("\n4 schemas in 2 files: 3 faults\n"));
}

TEST(Check, ReportsWhatNamesAFaultySchemaAndCountsWhatIsSound) {
    const Folder folder;
    folder.write("f.ndjson", groupLine("g") + "\n" + specLine("ship.spec:watertight-1.0.0", "x") + "\n" +
                                 specLine("sound", "norvex.spec:discipline-1.0.0") + "\n");
    folder.write("p.json", boolParameter);
    const std::string out = folder.run({"check", "--all", "f.ndjson", "p.json"}).out;
    EXPECT_THAT(out,
                HasSubstr("\np.json:3:43: Dependency ship.spec:watertight-1.0.0 in schema p is missing or does not "
                          "represent an object of the expected type.\n"));
    EXPECT_THAT(out, HasSubstr("\nBoolean specs                    1\n"));
    EXPECT_THAT(out, HasSubstr("\ngroups                           1\n"));
}

// A thousand faults take about the time of none; a message that is looked up in all that was added would not.
TEST(Check, ReportsAThousandFaultsAmongTenThousandSchemas) {
    const Folder folder;
    std::string lines;
    for (int i = 0; i < 10000; ++i) {
        const bool faulty = i % 10 == 3;
        lines += specLine("s" + std::to_string(i), faulty ? "missing" : "norvex.spec:discipline-1.0.0") + "\n";
    }
    folder.write("f.ndjson", lines);
    const Outcome outcome = folder.run({"check", "--all", "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    for (int i = 3; i < 10000; i += 10) {
        ASSERT_THAT(outcome.out, HasSubstr("f.ndjson:" + std::to_string(i + 1) + ":" +
                                           std::to_string(139 + std::to_string(i).size()) +
                                           ": Dependency missing in schema s" + std::to_string(i) + " is"));
    }
    EXPECT_THAT(outcome.out, HasSubstr("\nBoolean specs                 9000\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\n10000 schemas in 1 file: 1000 faults\n"));
}

TEST(Check, ReportsAMissingDependencyWhereItIsNamed) {
    const Folder folder;
    folder.write("f.json", "\n\n" + boolSpec);
    EXPECT_THAT(folder.run({"check", "f.json"}).out, StartsWith("f.json:5:49: Dependency ship.discipline:hull-1.0.0 in "
                                                                "schema ship.spec:watertight-1.0.0 is missing"));
}

TEST(Check, TellsTypeIdsApartThatBeginAlike) {
    const Folder folder;
    folder.write("f.ndjson", groupLine("my") + "\n" + specLine("my spec", "x") + "\n" + groupLine("spec") + "\n");
    EXPECT_THAT(folder.run({"check", "f.ndjson"}).out, StartsWith("f.ndjson:2:145: Dependency x in schema my spec is"));
}

TEST(Check, FindsTheTypeIdAmongOtherMembers) {
    const Folder folder;
    folder.write("f.json", R"({"a": {"typeid": "no"}, "b": [{"typeid": "no"}, "typeid", "no"], "typeId": "no",
        "type\u0069d": "yes", "typeid": "no", "inherits": ["norvex.spec:spec.bool-1.0.0"],
        "constants": [{"id": "name", "value": "S"}, {"id": "discipline", "typedValue": {"typeid": "x"}}]})");
    EXPECT_THAT(folder.run({"check", "--severity", "error", "f.json"}).out,
                StartsWith("f.json:3:99: Dependency x in schema yes is missing"));
}

TEST(Check, FindsTheTypeIdBehindDeepNesting) {
    const Folder folder;
    folder.write("f.json", "{\"deep\":" + std::string(1000000, '[') + std::string(1000000, ']') + "," +
                               specLine("a", "x").substr(1));
    EXPECT_THAT(folder.run({"check", "--severity", "error", "f.json"}).out,
                StartsWith("f.json:1:2000147: Dependency x in schema a is missing"));
}

TEST(Check, RegistersUnitsBesideParameters) {
    const Folder folder;
    folder.write("u.json", unit);
    folder.write("v.json", R"({"typeid": "u", "inherits": ["norvex.parameter:group-1.0.0"],
        "constants": [{"id": "name", "value": "G"}]})");
    const Outcome outcome = folder.run({"check", "u.json", "v.json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, StartsWith("v.json:1:12: Schema with typeid u is already registered.\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\nunits                            1\n"));
}

TEST(Check, CountsUnitsEvenWhenResolutionFails) {
    const Folder folder;
    folder.write("u.json", unit);
    folder.write("s.json", boolSpec);
    const std::string out = folder.run({"check", "."}).out;
    EXPECT_THAT(out, HasSubstr("\nunits                            1\n"));
    EXPECT_THAT(out, HasSubstr("\nBoolean specs                    0\n"));
}

} // namespace
