#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string schema(const std::string& typeId, const std::string& base, const std::string& more = "") {
    return R"({"typeid":")" + typeId + R"(","inherits":[")" + base + R"("],"constants":[{"id":"name","value":"N"})" +
           more + "]}\n";
}
std::string group(const std::string& typeId) { return schema(typeId, "norvex.parameter:group-1.0.0"); }
std::string boolSpec(const std::string& typeId, const std::string& discipline) {
    return schema(typeId, "norvex.spec:spec.bool-1.0.0",
                  R"(,{"id":"discipline","typedValue":{"typeid":")" + discipline + "\"}}");
}
std::string parameter(const std::string& typeId, const std::string& spec) {
    return schema(typeId, "norvex.parameter:parameter.bool-2.0.0",
                  R"(,{"id":"spec","typedValue":{"typeid":")" + spec + "\"}}");
}
std::string regexRange(const std::string& typeId, const std::string& regex) {
    return schema(typeId, "norvex.range:range.string.regex-1.0.0", R"(,{"id":"regex","value":")" + regex + "\"}");
}

const std::string isMissing = " is missing or does not represent an object of the expected type.";
const std::string odd = R"(,{"id":"colour","value":"red"})"; // which nothing reads

TEST(Folding, PutsConsequencesBelowTheirCause) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", "s") + parameter("q", "s") + boolSpec("s", "gone") + boolSpec("t", "gone"));
    const Outcome outcome = folder.run({"check", "-q", "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "f.ndjson:3:139: Dependency gone in schema s" + isMissing +
                               "\n    1 other names it, too; 2 faults follow; --all shows each.\n");
}

TEST(Folding, PutsWhatNamesATextThatIsNoJsonBelowThat) {
    const Folder folder;
    std::string broken = boolSpec("s", "norvex.spec:discipline-1.0.0");
    broken.insert(broken.size() - 2, ",");
    folder.write("f.ndjson", parameter("p", "s") + broken);
    EXPECT_EQ(folder.run({"check", "-q", "f.ndjson"}).out,
              "f.ndjson:2:173: JSON parsing error at offset 172: Missing a name for object member.\n"
              "    hint: no comma stands before a closing bracket.\n"
              "    1 fault follows; --all shows each.\n");
}

TEST(Folding, IsUndoneWhenAllAreAskedFor) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", "s") + boolSpec("s", "gone") + boolSpec("t", "gone"));
    EXPECT_EQ(folder.run({"check", "-q", "--all", "f.ndjson"}).out,
              "f.ndjson:2:139: Dependency gone in schema s" + isMissing +
                  "\nf.ndjson:3:139: Dependency gone in schema t" + isMissing +
                  "\nf.ndjson:1:143: Dependency s in schema p" + isMissing +
                  "\n    hint: it is in f.ndjson:2:1, and faulty.\n");
}

TEST(Folding, ShowsWhatIsInACircle) {
    const std::string base = "norvex.talmo.category:subCategory-1.0.0";
    const Folder folder;
    folder.write("f.ndjson", schema("a", base, R"(,{"id":"parent","typedValue":{"typeid":"b"}})") +
                                 schema("b", base, R"(,{"id":"parent","typedValue":{"typeid":"a"}})"));
    const std::string out = folder.run({"check", "-q", "f.ndjson"}).out;
    EXPECT_THAT(out, HasSubstr(" schema a "));
    EXPECT_THAT(out, HasSubstr("a circle: "));
}

TEST(Folding, KeepsThreeWarningsThatAreAlike) {
    const Folder folder;
    std::string lines;
    for (const char* typeId : {"a", "b", "c", "d", "e"}) {
        lines += schema(typeId, "norvex.parameter:group-1.0.0", odd);
    }
    folder.write("f.ndjson", lines);
    const std::string out = folder.run({"check", "-q", "f.ndjson"}).out;
    EXPECT_THAT(out, HasSubstr("f.ndjson:3:"));
    EXPECT_THAT(out, Not(HasSubstr("f.ndjson:4:")));
    EXPECT_THAT(out, HasSubstr("\n    and 2 more of these; --all shows each.\n"));
}

TEST(Folding, KeepsTenWarningsOfOneCode) {
    const Folder folder;
    std::string lines;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        lines += schema(std::string(1, letter), "norvex.parameter:group-1.0.0",
                        R"(,{"id":"odd)" + std::string(5, letter) + R"(","value":1})");
    }
    folder.write("f.ndjson", lines);
    const std::string out = folder.run({"check", "-q", "f.ndjson"}).out;
    EXPECT_THAT(out, HasSubstr("f.ndjson:10:"));
    EXPECT_THAT(out, Not(HasSubstr("f.ndjson:11:")));
    EXPECT_THAT(out, HasSubstr("\n    and 16 more of these; --all shows each.\n"));
}

struct Choice {
    const char* name;
    std::vector<std::string> options;
    int exitCode;
    std::vector<std::string> codes;
};

class Choices : public testing::TestWithParam<Choice> {};

// The catalogue has a fault in its first line, and warnings in both.
TEST_P(Choices, TellWhatIsShownAndCounts) {
    const Folder folder;
    folder.write("f.ndjson", boolSpec("s", "gone") + schema("g", "norvex.parameter:group-1.0.0", odd));
    std::vector<std::string> arguments{"check", "--format", "json", "f.ndjson"};
    arguments.insert(arguments.end(), GetParam().options.begin(), GetParam().options.end());
    const Outcome outcome = folder.run(arguments);
    EXPECT_EQ(outcome.exitCode, GetParam().exitCode);
    std::vector<std::string> codes;
    const std::regex code("\"code\": \"([a-z-]*)\"");
    for (std::sregex_iterator match(outcome.out.begin(), outcome.out.end(), code), end; match != end; ++match) {
        codes.push_back(match->str(1));
    }
    EXPECT_EQ(codes, GetParam().codes);
}

INSTANTIATE_TEST_SUITE_P(
    Check, Choices,
    testing::Values(
        Choice{"Default", {}, 1, {"dependency-missing", "constant-unknown"}},
        Choice{"Warnings", {"--severity", "warning"}, 1, {"dependency-missing", "constant-unknown"}},
        Choice{"Errors", {"--severity", "error"}, 1, {"dependency-missing"}},
        Choice{"FaultIgnored", {"--ignore", "dependency-missing"}, 0, {"constant-unknown"}},
        Choice{"WarningsFail", {"--ignore", "dependency-missing", "--strict"}, 1, {"constant-unknown"}},
        Choice{"AllIgnored", {"--ignore", "dependency-missing", "--ignore", "constant-unknown", "--strict"}, 0, {}},
        Choice{"ListIgnored", {"--ignore", "dependency-missing,constant-unknown"}, 0, {}},
        Choice{"Only", {"--only", "constant-unknown"}, 0, {"constant-unknown"}},
        Choice{"OnlyAndIgnored", {"--only", "constant-unknown", "--ignore", "constant-unknown"}, 0, {}},
        Choice{"Lint",
               {"--lint", "object-unused", "--lint", "typeid-unversioned"},
               1,
               {"dependency-missing", "constant-unknown", "typeid-unversioned", "object-unused"}},
        Choice{"OnlyLint", {"--only", "object-unused"}, 0, {"object-unused"}},
        Choice{"LintIgnored",
               {"--lint", "object-unused", "--ignore", "object-unused"},
               1,
               {"dependency-missing", "constant-unknown"}},
        Choice{"LintsAreNoErrors", {"--lint", "object-unused", "--severity", "error"}, 1, {"dependency-missing"}}),
    Support::nameOfRow);

struct LintRow {
    const char* name;
    std::string bytes;
    const char* code;
    std::string out;
};

class Lints : public testing::TestWithParam<LintRow> {};

TEST_P(Lints, AreFound) {
    const Folder folder;
    folder.write("f.ndjson", GetParam().bytes);
    const Outcome outcome = folder.run({"check", "-q", "--only", GetParam().code, "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, GetParam().out);
}

const std::string ranged = R"(,{"id":"range","typedValue":{"typeid":)";

const LintRow lintRows[] = {
    {"UnusedGroup", group("g") + boolSpec("s", "norvex.spec:discipline-1.0.0") + parameter("p", "s"), "object-unused",
     "f.ndjson:1:1: warning: Nothing names group g. [object-unused]\n"},
    {"UnusedUnit", schema("u", "norvex.unit:unit-1.0.0"), "object-unused",
     "f.ndjson:1:1: warning: Nothing names unit u. [object-unused]\n"},
    {"SameName", group("g") + group("h") + boolSpec("s", "norvex.spec:discipline-1.0.0"), "name-shared",
     "f.ndjson:2:1: warning: Group h has the name of g. [name-shared]\n"},
    {"SameContent", group("g") + group("h") + schema("i", "norvex.spec:discipline-1.0.0"), "content-shared",
     "f.ndjson:2:1: warning: Group h says the same as g. [content-shared]\n"},
    {"SameContentOfUnits", schema("u", "norvex.unit:unit-1.0.0") + schema("v", "norvex.unit:unit-1.0.0"),
     "content-shared", "f.ndjson:2:1: warning: Unit v says the same as u. [content-shared]\n"},
    {"NoVersion", group("g-1.0.0") + group("g-1.0") + group("1.0.0"), "typeid-unversioned",
     "f.ndjson:2:1: warning: Typeid g-1.0 has no version. [typeid-unversioned]\n"
     "f.ndjson:3:1: warning: Typeid 1.0.0 has no version. [typeid-unversioned]\n"},
    {"NoRegex", regexRange("r", "[a-z]+") + regexRange("q", "("), "regex-refused",
     "f.ndjson:2:1: warning: ( is no regular expression of ECMAScript. [regex-refused]\n"},
    {"NoRegexInAParameter",
     schema("p", "norvex.parameter:parameter.string-3.0.0",
            ranged + R"("norvex.range:range.string.regex-1.0.0","value":{"regex":"*"}}})"),
     "regex-refused", "f.ndjson:1:1: warning: * is no regular expression of ECMAScript. [regex-refused]\n"},
    {"NoRegexToldOnce",
     regexRange("r", "(") + schema("p", "norvex.parameter:parameter.string-3.0.0", ranged + R"("r"}})"),
     "regex-refused", "f.ndjson:1:1: warning: ( is no regular expression of ECMAScript. [regex-refused]\n"},
    {"LongRegexIsPassedOver", regexRange("r", std::string(2001, '(')), "regex-refused", ""},
    {"NoDescription",
     parameter("p", "norvex.spec:spec.bool-1.0.0") +
         schema("q", "norvex.parameter:parameter.bool-2.0.0", R"(,{"id":"description","value":"D"})"),
     "description-missing", "f.ndjson:1:1: warning: Boolean parameter p has no description. [description-missing]\n"},
};

INSTANTIATE_TEST_SUITE_P(Check, Lints, testing::ValuesIn(lintRows), Support::nameOfRow);

TEST(Lint, OfRegularExpressionsIsDoneByDefault) {
    const Folder folder;
    folder.write("f.ndjson", regexRange("r", "(") + group("g") + group("h"));
    EXPECT_EQ(folder.run({"check", "-q", "--ignore", "constant-unknown", "f.ndjson"}).out,
              "f.ndjson:1:1: warning: ( is no regular expression of ECMAScript. [regex-refused]\n");
}

TEST(Formats, JsonTellsAllThatIsKnown) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", "s") + boolSpec("s", "gone"));
    const Outcome outcome = folder.run({"check", "--format", "json", "f.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, StartsWith(R"({
  "files": 1,
  "schemas": 2,
  "faults": [
    {
      "code": "dependency-missing",
      "severity": "error",
      "message": "Dependency s in schema p is missing or does not represent an object of the expected type.",
      "typeid": "p",
      "file": "f.ndjson",
      "line": 1,
      "column": 143,
      "endLine": 1,
      "endColumn": 146,
      "pointer": "/constants/1/typedValue/typeid",
      "name": "s",
      "expected": "Boolean spec",
      "nearest": "",
      "other": {
        "file": "f.ndjson",
        "line": 2,
        "column": 11,
        "endLine": 2,
        "endColumn": 14,
        "pointer": "/typeid"
      },
      "root": {
        "file": "f.ndjson",
        "line": 2,
        "column": 139,
        "endLine": 2,
        "endColumn": 145,
        "pointer": "/constants/1/typedValue/typeid"
      },
      "hint": "it is in f.ndjson:2:1, and faulty."
    },
)"));
    EXPECT_THAT(outcome.out, HasSubstr("\"objects\": {\n    \"unit\": 0,\n"));
}

TEST(Formats, SarifHasRulesPlacesAndFingerprints) {
    const Folder folder;
    folder.write("a b.ndjson", parameter("p", "s") + boolSpec("s", "gone"));
    const Outcome outcome = folder.run({"check", "--format", "sarif", "a b.ndjson"});
    EXPECT_EQ(outcome.exitCode, 1);
    for (const char* part :
         {R"("version": "2.1.0")", R"("uri": "a%20b.ndjson")", R"("id": "dependency-missing")",
          R"("text": "The file cannot be read: <reason>.")", R"("ruleId": "dependency-missing")", R"("level": "error")",
          R"("startColumn": 143)", R"("endColumn": 146)", R"("text": "What this follows from")",
          R"("text": "The other side")", R"(  \"ostraFault/v1\": \")"}) {
        EXPECT_THAT(outcome.out, HasSubstr(std::regex_replace(std::string(part), std::regex(R"(\\")"), "\"")));
    }
}

TEST(Formats, FingerprintsStayWhenLinesAreAddedAndTellFaultsApart) {
    const std::regex fingerprint("ostraFault/v1\": \"([^\"]*)");
    const auto fingerprints = [&](const std::string& bytes) {
        const Folder folder;
        folder.write("f.json", bytes);
        const std::string out = folder.run({"check", "--format", "sarif", "f.json"}).out;
        std::vector<std::string> found;
        for (std::sregex_iterator match(out.begin(), out.end(), fingerprint), end; match != end; ++match) {
            found.push_back(match->str(1));
        }
        return found;
    };
    const std::vector<std::string> first = fingerprints(schema("s", "norvex.parameter:group-1.0.0", odd + odd));
    EXPECT_EQ(first, fingerprints("\n\n" + schema("s", "norvex.parameter:group-1.0.0", odd + odd)));
    ASSERT_EQ(first.size(), 2U);
    EXPECT_NE(first[0], first[1]);
}

TEST(Formats, GithubIsCommandsThatNothingBreaksOutOf) {
    const Folder folder;
    folder.write("a,b%.ndjson", parameter("p", "s:\\n::x,%") + "]\n");
    EXPECT_EQ(
        folder.run({"check", "--format", "github", "a,b%.ndjson"}).out,
        "::error file=a%2Cb%25.ndjson,line=1,col=143,endLine=1,endColumn=154,title=dependency-missing::Dependency "
        "s:\\x0A::x,%25 in schema p" +
            isMissing +
            "\n"
            "::error file=a%2Cb%25.ndjson,line=2,col=1,endLine=2,endColumn=2,title=json-syntax::JSON parsing error at "
            "offset 0: Invalid value.\n");
}

TEST(Formats, GithubFoldsAndHints) {
    const Folder folder;
    folder.write("f.ndjson", parameter("p", "s") + schema("s", "norvex.spec:spec.bol-1.0.0"));
    EXPECT_THAT(folder.run({"check", "--format", "github", "f.ndjson"}).out,
                HasSubstr("%0AHint: did you mean norvex.spec:spec.bool-1.0.0?%0A1 fault follows; --all shows each.\n"));
}

TEST(Files, ThatCannotBeReadAreFaultsAndTheRestIsChecked) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.write("c/f.json", "]");
    std::filesystem::create_symlink("nowhere", folder.path() / "c/a.json");
    folder.makeSocket("c/s.json"); // which refuses even the superuser
    const Outcome outcome = folder.run({"check", "-q", "c"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out, "c/a.json: The file cannot be read: No such file or directory.\n"
                           "c/f.json:1:1: JSON parsing error at offset 0: Invalid value.\n"
                           "c/s.json: The file cannot be read: No such device or address.\n");
    EXPECT_EQ(folder.run({"list", "c"}).err,
              "ostra-params: 3 faulty schemas left out; \"ostra-params check\" tells more.\n");
}

TEST(Files, ThatCannotBeReadHaveAPlaceInEachFormat) {
    SKIP_FOR_WINDOWS();
    const Folder folder;
    folder.makeFolder("c");
    std::filesystem::create_symlink("nowhere", folder.path() / "c/a.json");
    EXPECT_EQ(folder.run({"check", "--format", "github", "c"}).out,
              "::error file=c/a.json,title=file-unreadable::The file cannot be read: No such file or directory.\n");
    EXPECT_THAT(folder.run({"check", "--format", "json", "c"}).out,
                HasSubstr("\"file\": \"c/a.json\",\n      \"name\""));
    EXPECT_THAT(folder.run({"check", "--format", "sarif", "c"}).out, HasSubstr("\"uri\": \"c/a.json\""));
}

TEST(Files, ThatAreHiddenArePassedOverInFoldersAlone) {
    const Folder folder;
    folder.write("c/.hidden.json", "]");
    folder.write("c/.hidden/f.json", "]");
    folder.write("c/g.json", group("g"));
    EXPECT_EQ(folder.run({"check", "c"}).exitCode, 0);
    EXPECT_EQ(folder.run({"check", "c/.hidden.json"}).exitCode, 1);
    EXPECT_EQ(folder.run({"check", "c/.hidden"}).exitCode, 1);
}

TEST(Files, HaveExtensionsInWhateverCase) {
    const Folder folder;
    folder.write("c/a.JSON", group("a"));
    folder.write("c/b.jsonl", group("b") + group("c"));
    folder.write("c/d.NDJSON", group("d"));
    EXPECT_THAT(folder.run({"check", "c"}).out, HasSubstr("\n4 schemas in 3 files: 0 faults\n"));
}

class Copies : public testing::TestWithParam<const char*> {};

TEST_P(Copies, AreToBlameAndNotTheOriginal) {
    const Folder folder;
    folder.write("c/x.json", group("g"));
    folder.write(GetParam(), group("g"));
    EXPECT_THAT(folder.run({"check", "-q", "c"}).out,
                StartsWith(std::string(GetParam()) + ":1:11: Schema with typeid g is already registered.\n"
                                                     "    hint: it is that of c/x.json:1:1.\n"));
}

INSTANTIATE_TEST_SUITE_P(Files, Copies,
                         testing::Values("c/x (copy).json", "c/x (2).json", "c/x - Copy.json", "c/x - Copy (3).json",
                                         "c/x copy.json", "c/x.bak.json", "c/x-backup.json", "c/x_old.json",
                                         "c/Copy of x.json"));

TEST(Copies, OfNoOtherFileStayInTheirOrder) {
    const Folder folder;
    folder.write("c/a copy.json", group("g"));
    folder.write("c/x.json", group("g"));
    EXPECT_THAT(folder.run({"check", "-q", "c"}).out, StartsWith("c/x.json:1:11: "));
}

const std::string latin = schema("g\xE4", "norvex.parameter:group-1.0.0", R"(,{"id":"x","value":"y"})");

TEST(Encoding, OfOtherSortsIsAWarningWithItsPlace) {
    const Folder folder;
    folder.write("f.json", latin);
    const Outcome outcome = folder.run({"check", "-q", "--only", "encoding-invalid", "f.json"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "f.json:1:13: warning: The byte E4 is no UTF-8. [encoding-invalid]\n"
                           "    hint: save the file in UTF-8.\n");
}

class Utf8 : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(Utf8, IsWrittenByAllVerbs) {
    const Folder folder;
    folder.write("f.json", latin);
    folder.write("h.json", group("h"));
    const Outcome outcome = folder.run(GetParam());
    EXPECT_THAT(outcome.out + outcome.err, Not(HasSubstr("\xE4")));
    EXPECT_THAT(outcome.out + outcome.err, Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(Verbs, Utf8,
                         testing::Values(std::vector<std::string>{"check", "f.json"},
                                         std::vector<std::string>{"check", "--format", "json", "f.json"},
                                         std::vector<std::string>{"check", "--format", "sarif", "f.json"},
                                         std::vector<std::string>{"check", "--format", "github", "f.json"},
                                         std::vector<std::string>{"list", "f.json"},
                                         std::vector<std::string>{"list", "--json", "f.json"},
                                         std::vector<std::string>{"show", "g", "f.json"},
                                         std::vector<std::string>{"show", "--schema", "g", "f.json"},
                                         std::vector<std::string>{"deps", "g", "f.json"},
                                         std::vector<std::string>{"deps", "--dot", "g", "f.json"},
                                         std::vector<std::string>{"export", "f.json", "-o", "-"},
                                         std::vector<std::string>{"diff", "h.json", "f.json"},
                                         std::vector<std::string>{"diff", "--json", "h.json", "f.json"},
                                         std::vector<std::string>{"report", "f.json", "-o", "-"}));

TEST(Utf8, KeepsAnExportFromBeingWritten) {
    const Folder folder;
    folder.write("f.json", latin);
    EXPECT_EQ(folder.run({"export", "f.json", "-o", "out.ndjson"}).exitCode, 1);
    EXPECT_EQ(folder.files(), std::vector<std::string>{"f.json"});
}

} // namespace
