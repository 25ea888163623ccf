#include "faults/Losses.h"

#include "ProjectFolder.h"
#include "catalogue/Catalogue.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

std::string schema(const std::string& typeId, const std::string& base, const std::string& constants) {
    return R"({"typeid":")" + typeId + R"(","inherits":[")" + base + R"("],"constants":[)" + constants + "]}\n";
}
std::string named(const std::string& name) { return R"({"id":"name","value":")" + name + "\"}"; }
std::string bounds(const std::string& bottom, const std::string& top) {
    return R"({"id":"fromBottom","value":)" + bottom + R"(},{"id":"fromTop","value":)" + top + "}";
}
std::string ranged(const std::string& kind, const std::string& range) {
    return schema("p", "norvex.parameter:parameter." + kind + "-3.0.0",
                  named("P") + R"(,{"id":"range","typedValue":)" + range + "}");
}

const std::string intRange = "norvex.range:range.int64.bounded.static-1.0.0";
const std::string floatRange = "norvex.range:range.float64.bounded.static-1.0.0";

struct Case {
    const char* name;
    std::string catalogue;
    std::string loss; ///< Behind the place, without the code; empty for none.
    std::string code = {};
};

const Case cases[] = {
    {"NamedRangeWithoutBounds", ranged("int64", R"({"typeid":"r"})") + schema("r", intRange, bounds("false", "false")),
     "f.ndjson:1:1: warning: Integer parameter p is written without its range r, which limits nothing.",
     "range-not-written"},
    {"NamedRangeOfAnyText", ranged("string", R"({"typeid":"r"})") + schema("r", "norvex.range:range.string-1.0.0", ""),
     "f.ndjson:2:1: warning: String range r allows any text, and is written with an empty regular expression.",
     "any-text-not-written"},
    {"RangeOfAnyText", schema("r", "norvex.range:range.string-1.0.0", ""),
     "f.ndjson:1:1: warning: String range r allows any text, and is written with an empty regular expression.",
     "any-text-not-written"},
    {"BoundaryOfASideWithoutBound",
     schema("r", intRange, bounds("false", "true") + R"(,{"id":"bottomBoundary","value":7})"),
     "f.ndjson:1:1: warning: Integer range r is written without its bottomBoundary, which reads back as 0.",
     "boundary-not-written"},
    {"BoundaryOfTheOtherSide", schema("r", intRange, bounds("true", "false") + R"(,{"id":"topBoundary","value":7})"),
     "f.ndjson:1:1: warning: Integer range r is written without its topBoundary, which reads back as 0.",
     "boundary-not-written"},
    {"BoundaryOfMinusZero",
     schema("r", floatRange, bounds("true", "false") + R"(,{"id":"bottomBoundary","value":-0.0})"),
     "f.ndjson:1:1: warning: Floating-point range r is written without its bottomBoundary, which reads back as 0.",
     "boundary-not-written"},
    {"BoundaryOfAnOwnRange",
     ranged("int64",
            R"({"typeid":")" + intRange + R"(","value":{"fromBottom":false,"bottomBoundary":7,"fromTop":false}})"),
     "f.ndjson:1:1: warning: Integer parameter p is written without its bottomBoundary, which reads back as 0.",
     "boundary-not-written"},
    {"FamilyTypeOfAnotherVersion",
     schema("c", "norvex.talmo.category:majorCategory-1.0.0",
            named("C") + R"(,{"id":"domain","typedValue":{"typeid":"d"}},{"id":"disciplines","typedValue":[]})") +
         schema("d", "norvex.talmo.category:domain-1.0.0", named("D")) +
         schema("p", "norvex.parameter:parameter.reference-2.0.0",
                named("P") + R"(,{"id":"spec","typedValue":{"typeid":"norvex.talmo.spec:familyType-1.2.5",)"
                             R"("typedValue":{"category":{"typeid":"c"}}}})"),
     "f.ndjson:3:1: warning: Reference parameter p is written with norvex.talmo.spec:familyType-1.0.0 in place of "
     "norvex.talmo.spec:familyType-1.2.5.",
     "version-not-written"},
    {"UnknownConstant", schema("g", "norvex.parameter:group-1.0.0", named("G") + R"(,{"id":"colour","value":1})"),
     "f.ndjson:1:104: warning: Nothing reads constant colour in a schema of this base.", "constant-unknown"},
    {"UnknownMember", schema("g", "norvex.parameter:group-1.0.0", R"({"id":"name","value":"G","note":1})"),
     "f.ndjson:1:104: warning: Nothing reads member note here.", "member-unknown"},
    {"UnknownConstantOfAUnit", // which is written as it is
     schema("u", "norvex.unit:unit-1.0.0", named("U") + R"(,{"id":"colour","value":1})"), ""},
    {"OtherVersionOfABase", schema("g", "norvex.parameter:group-1.2.3", named("G")), ""}, // which means the same
    {"Defaults",
     schema("p", "norvex.parameter:parameter.bool-2.0.0", named("P") + R"(,{"id":"readOnly","value":false})"), ""},
    {"BoundariesOfZero", schema("r", floatRange, bounds("true", "false") + R"(,{"id":"topBoundary","value":0})"), ""},
    {"OwnRange",
     ranged("int64",
            R"({"typeid":")" + intRange + R"(","value":{"fromBottom":true,"bottomBoundary":7,"fromTop":false}})"),
     ""},
};

class Losses : public testing::TestWithParam<Case> {};

TEST_P(Losses, AreToldByExport) {
    const auto& [name, catalogue, loss, code] = GetParam();
    const Folder folder;
    folder.write("f.ndjson", catalogue);
    const Outcome outcome = folder.run({"export", "f.ndjson", "-o", "out.ndjson"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              loss.empty() ? ""
                           : loss + " [" + code + "]\nostra-params: 1 detail not written; --strict refuses that.\n");
    EXPECT_NE(folder.read("out.ndjson"), "");
    // What was written has nothing to lose.
    EXPECT_EQ(folder.run({"export", "out.ndjson", "-o", "again.ndjson", "--strict"}).err, "");
}

TEST_P(Losses, AreRefusedWhenThatIsWanted) {
    const auto& [name, catalogue, loss, code] = GetParam();
    const Folder folder;
    folder.write("f.ndjson", catalogue);
    folder.write("out.ndjson", "as it was");
    const Outcome outcome = folder.run({"export", "--strict", "f.ndjson", "-o", "out.ndjson"});
    EXPECT_EQ(outcome.exitCode, loss.empty() ? 0 : 1);
    EXPECT_EQ(folder.read("out.ndjson") == "as it was", !loss.empty());
    EXPECT_EQ(outcome.err,
              loss.empty() ? ""
                           : loss + " [" + code + "]\nostra-params: Nothing is written, as 1 detail would be lost.\n");
}

INSTANTIATE_TEST_SUITE_P(Export, Losses, testing::ValuesIn(cases), Support::nameOfRow);

Tool::Catalogue catalogueOf(const std::string& lines) {
    return Tool::Catalogue({Tool::KnownFile{"f.ndjson", std::make_shared<const std::string>(lines)}});
}

/// Returns a code and a message for each loss.
std::vector<std::string> lossesBetween(const std::string& before, const std::string& after) {
    Tool::Catalogue one = catalogueOf(before);
    Tool::Catalogue other = catalogueOf(after);
    std::vector<std::string> losses;
    for (const Tool::Finding& finding : Tool::lossesBetween(one, other)) {
        losses.push_back(finding.code + ": " + finding.message);
    }
    return losses;
}

TEST(LossesOfALibraryWithAFault, AreTold) {
    const std::string group = "norvex.parameter:group-1.0.0";
    const std::string changed = "object-changed: Group g does not read back as it is.";
    EXPECT_THAT(lossesBetween(schema("g", group, named("G")), schema("g", group, named("H"))),
                testing::ElementsAre(changed));
    EXPECT_THAT(lossesBetween(schema("g", group, named("G")), schema("h", group, named("G"))),
                testing::ElementsAre(changed));
    EXPECT_THAT(lossesBetween(schema("g", group, named("G")), schema("g", "norvex.spec:discipline-1.0.0", named("G"))),
                testing::ElementsAre(changed));
    EXPECT_THAT(lossesBetween(schema("g", group, named("G")), schema("g", group, named("G"))), IsEmpty());
}

/// Returns the first group of each match in a text.
std::set<std::string> matchesIn(const std::string& text, const std::string& pattern) {
    const std::regex regex(pattern);
    std::set<std::string> matches;
    for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
        matches.insert(match->str(1));
    }
    return matches;
}

TEST(CodesOfLosses, AreThoseOfTheTable) {
    const std::string page = contentOf(OSTRA_SOURCE_DIR "/docs/tool.md");
    const std::size_t begin = page.find("\n## export\n");
    const std::string section = page.substr(begin, page.find("\n## ", begin + 1) - begin);
    std::set<std::string> codes{"object-changed"};
    for (const Case& each : cases) {
        if (each.code.find("-written") != std::string::npos) {
            codes.insert(each.code);
        }
    }
    EXPECT_EQ(matchesIn(section, "\\n\\| `[^`]*` \\| `([a-z-]*)` \\| "), codes);
    EXPECT_EQ(matchesIn(contentOf(OSTRA_SOURCE_DIR "/tools/ostra-params/faults/Losses.cpp"), "add\\(\"([a-z-]*)\""),
              codes);
}

TEST(LossesOfACatalogue, AreFoldedUnlessAllAreAskedFor) {
    const Folder folder;
    std::string lines;
    for (const char* typeId : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"}) {
        lines += schema(typeId, "norvex.range:range.string-1.0.0", "");
    }
    folder.write("f.ndjson", lines);
    const std::string folded = folder.run({"export", "f.ndjson", "-o", "out.ndjson"}).err;
    EXPECT_THAT(folded, HasSubstr("more of these; --all shows each.\nostra-params: 12 details not written"));
    const std::string all = folder.run({"export", "f.ndjson", "-o", "out.ndjson", "--all"}).err;
    EXPECT_THAT(all, HasSubstr("f.ndjson:12:1: "));
    EXPECT_THAT(all, testing::Not(HasSubstr("more of these")));
}

TEST(LossesOfACatalogue, AreThoseOfTheLargeOne) {
    const char* const catalogue = std::getenv("OSTRA_CATALOGUE");
    if (catalogue == nullptr) {
        GTEST_SKIP() << "OSTRA_CATALOGUE names no folder.";
    }
    const Outcome outcome = Folder().run({"export", "--all", catalogue, "-o", "-"});
    EXPECT_EQ(outcome.exitCode, 0);
    const auto count = [&](const std::string& code) {
        const std::regex regex("\\[" + code + "\\]\n");
        return std::distance(std::sregex_iterator(outcome.err.begin(), outcome.err.end(), regex), {});
    };
    EXPECT_EQ(count("range-not-written"), 8);
    EXPECT_EQ(count("version-not-written"), 8);
    EXPECT_EQ(count("any-text-not-written"), 2);
    EXPECT_EQ(count("boundary-not-written"), 6);
    EXPECT_THAT(outcome.err, HasSubstr("\nostra-params: 24 details not written; --strict refuses that.\n"));
}

} // namespace
