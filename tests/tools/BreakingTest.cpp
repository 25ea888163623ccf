#include "compare/Breaking.h"

#include "ProjectFolder.h"
#include "catalogue/Catalogue.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Tool::Catalogue;
using namespace Tool::Compare;

/// A catalogue with an object of each kind and a faulty one, one a line. Lines begin with the typeid, so that rows can
/// find them.
const std::string original =
    R"({"typeid":"u.m-1.0.0","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name","value":"Metre"},{"id":"symbol","value":"m"}]}
{"typeid":"u.ft-1.0.0","inherits":["norvex.unit:unit-1.0.0"],"constants":[{"id":"name","value":"Foot"},{"id":"symbol","value":"ft"}]}
{"typeid":"d-1.0.0","inherits":["norvex.spec:discipline-1.0.0"],"constants":[{"id":"name","value":"Hydraulics"}]}
{"typeid":"g-1.0.0","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"Operation"}]}
{"typeid":"bad-1.0.0","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":5}]}
{"typeid":"dom-1.0.0","inherits":["norvex.talmo.category:domain-1.0.0"],"constants":[{"id":"name","value":"Station"}]}
{"typeid":"dom2-1.0.0","inherits":["norvex.talmo.category:domain-1.0.0"],"constants":[{"id":"name","value":"Network"}]}
{"typeid":"c-1.0.0","inherits":["norvex.talmo.category:majorCategory-1.0.0"],"constants":[{"id":"name","value":"Pumps"},{"id":"domain","typedValue":{"typeid":"dom-1.0.0"}},{"id":"disciplines","typedValue":[{"typeid":"d-1.0.0"}]}]}
{"typeid":"c2-1.0.0","inherits":["norvex.talmo.category:majorCategory-1.0.0"],"constants":[{"id":"name","value":"Valves"},{"id":"domain","typedValue":{"typeid":"dom-1.0.0"}}]}
{"typeid":"sub-1.0.0","inherits":["norvex.talmo.category:subCategory-1.0.0"],"constants":[{"id":"name","value":"Drain Pumps"},{"id":"parent","typedValue":{"typeid":"c-1.0.0"}}]}
{"typeid":"e-1.0.0","inherits":["Enum"],"properties":[{"id":"Duty","value":1},{"id":"Standby","value":2},{"id":"Spare","value":3}]}
{"typeid":"e2-1.0.0","inherits":["Enum"],"properties":[{"id":"Duty","value":1},{"id":"Standby","value":2}]}
{"typeid":"ir-1.0.0","inherits":["norvex.range:range.int64.bounded.static-1.0.0"],"constants":[{"id":"fromBottom","value":true},{"id":"bottomBoundary","value":1},{"id":"fromTop","value":true},{"id":"topBoundary","value":12}]}
{"typeid":"fr-1.0.0","inherits":["norvex.range:range.float64.bounded.static-1.0.0"],"constants":[{"id":"fromBottom","value":false},{"id":"fromTop","value":true},{"id":"topBoundary","value":62.5}]}
{"typeid":"set-1.0.0","inherits":["norvex.range:range.string.set.static-1.0.0"],"constants":[{"id":"allowedValues","value":["Packing","Seal"]}]}
{"typeid":"re-1.0.0","inherits":["norvex.range:range.string.regex-1.0.0"],"constants":[{"id":"regex","value":"P-[0-9]+"}]}
{"typeid":"any-1.0.0","inherits":["norvex.range:range.string-1.0.0"]}
{"typeid":"bs-1.0.0","inherits":["norvex.spec:spec.bool-1.0.0"],"constants":[{"id":"name","value":"Open/Closed"}]}
{"typeid":"gs-1.0.0","inherits":["norvex.spec:spec-1.0.0"],"constants":[{"id":"name","value":"Duty"}]}
{"typeid":"is-1.0.0","inherits":["norvex.spec:spec.int64-2.0.0"],"constants":[{"id":"name","value":"Count"}]}
{"typeid":"ms-1.0.0","inherits":["norvex.spec:spec.measurable-2.0.0"],"constants":[{"id":"name","value":"Head"},{"id":"applicableUnits","typedValue":[{"typeid":"u.m-1.0.0"},{"typeid":"u.ft-1.0.0"}]},{"id":"storageUnit","typedValue":{"typeid":"u.m-1.0.0"}}]}
{"typeid":"ms2-1.0.0","inherits":["norvex.spec:spec.measurable-2.0.0"],"constants":[{"id":"name","value":"Depth"},{"id":"storageUnit","typedValue":{"typeid":"u.ft-1.0.0"}}]}
{"typeid":"rs-1.0.0","inherits":["norvex.spec:spec.reference-1.0.0"],"constants":[{"id":"name","value":"Pump"},{"id":"category","typedValue":{"typeid":"c-1.0.0"}}]}
{"typeid":"ts-1.0.0","inherits":["norvex.spec:spec.string-2.0.0"],"constants":[{"id":"name","value":"Tag"}]}
{"typeid":"pb-1.0.0","inherits":["norvex.parameter:parameter.bool-2.0.0"],"constants":[{"id":"name","value":"Bypass"},{"id":"group","typedValue":{"typeid":"g-1.0.0"}},{"id":"spec","typedValue":{"typeid":"bs-1.0.0"}}]}
{"typeid":"pe-1.0.0","inherits":["norvex.parameter:parameter-2.0.0"],"constants":[{"id":"name","value":"Duty"},{"id":"spec","typedValue":{"typeid":"gs-1.0.0"}}],"properties":[{"id":"value","typedValue":{"typeid":"e-1.0.0"}}]}
{"typeid":"pi-1.0.0","inherits":["norvex.parameter:parameter.int64-3.0.0"],"constants":[{"id":"name","value":"Stages"},{"id":"range","typedValue":{"typeid":"ir-1.0.0"}}]}
{"typeid":"pm-1.0.0","inherits":["norvex.parameter:parameter.measurable-3.0.0"],"constants":[{"id":"name","value":"Delivery Head"},{"id":"spec","typedValue":{"typeid":"ms-1.0.0"}},{"id":"range","typedValue":{"typeid":"norvex.range:range.float64.bounded.static-1.0.0","value":{"fromBottom":true,"bottomBoundary":0,"fromTop":true,"topBoundary":48.5}}}]}
{"typeid":"pr-1.0.0","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[{"id":"name","value":"Standby Pump"},{"id":"spec","typedValue":{"typeid":"rs-1.0.0"}}]}
{"typeid":"pf-1.0.0","inherits":["norvex.parameter:parameter.reference-2.0.0"],"constants":[{"id":"name","value":"Pump Model"},{"id":"spec","typedValue":{"typeid":"norvex.talmo.spec:familyType-1.0.0","typedValue":{"category":{"typeid":"c-1.0.0"}}}}]}
{"typeid":"ps-1.0.0","inherits":["norvex.parameter:parameter.string-3.0.0"],"constants":[{"id":"name","value":"Shaft Seal"},{"id":"range","typedValue":{"typeid":"set-1.0.0"}}]}
{"typeid":"pt-1.0.0","inherits":["norvex.parameter:parameter.string-3.0.0"],"constants":[{"id":"name","value":"Tag"},{"id":"description","value":"What it is called."},{"id":"sampleText","value":"P-1"},{"id":"readOnly","value":true},{"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0","value":{"regex":"P.*"}}}]}
)";

/// A part of the line of a typeid that becomes another, at its first place; no part is the whole line.
struct Edit {
    std::string typeId;
    std::string part;
    std::string other;
};

std::string edited(std::string text, const std::vector<Edit>& edits) {
    for (const auto& [typeId, part, other] : edits) {
        const std::size_t line = text.find("{\"typeid\":\"" + typeId + "\"");
        EXPECT_NE(line, text.npos) << typeId;
        const std::size_t begin = part.empty() ? line : text.find(part, line);
        const std::size_t end = part.empty() ? text.find('\n', line) + 1 : begin + part.size();
        EXPECT_LT(begin, text.find('\n', line)) << part;
        text.replace(begin, end - begin, other);
    }
    return text;
}

std::unique_ptr<Catalogue> catalogueOf(const std::string& text) {
    return std::make_unique<Catalogue>(
        std::vector<Tool::KnownFile>{{"c.ndjson", std::make_shared<const std::string>(text)}});
}

/// Returns "code typeid constant" for each verdict.
std::vector<std::string> linesOf(const std::vector<Verdict>& verdicts) {
    std::vector<std::string> lines;
    for (const Verdict& verdict : verdicts) {
        lines.push_back(std::string(verdict.rule->code) + " " + verdict.atom.change->object().typeId);
        if (verdict.atom.constant != nullptr) {
            lines.back() += " " + std::string(verdict.atom.constant->id);
        }
    }
    return lines;
}

struct Row {
    const char* name;
    std::vector<Edit> edits;
    std::vector<std::string> verdicts;
};

class ChangedCatalogue : public testing::TestWithParam<Row> {};

TEST_P(ChangedCatalogue, IsJudged) {
    const auto before = catalogueOf(original);
    const auto after = catalogueOf(edited(original, GetParam().edits));
    EXPECT_EQ(linesOf(judge(compare(*before, *after), *before, *after)), GetParam().verdicts);
}

const std::vector<Row> rows{
    // Nothing changes.
    {"Nothing", {}, {}},
    {"DefaultWrittenOut", {{"pb-1.0.0", R"({"id":"spec")", R"({"id":"readOnly","value":false},{"id":"spec")"}}, {}},
    {"MinorVersionOfABase", {{"pb-1.0.0", "parameter.bool-2.0.0", "parameter.bool-2.3.1"}}, {}},
    {"NumberWrittenOtherwise", {{"fr-1.0.0", "62.5", "6.25e1"}}, {}},
    {"LimitThatDoesNotCount",
     {{"fr-1.0.0", R"("value":false})", R"("value":false},{"id":"bottomBoundary","value":7})"}},
     {}},
    {"RangeWithoutLimits",
     {{"pi-1.0.0", R"({"typeid":"ir-1.0.0"})",
       R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{"fromBottom":false,"fromTop":false}})"}},
     {"range-exchanged pi-1.0.0 range", "range-widened pi-1.0.0 bottomBoundary", "range-widened pi-1.0.0 topBoundary"}},
    {"ConstantsInAnotherOrder",
     {{"u.m-1.0.0", R"({"id":"name","value":"Metre"},{"id":"symbol","value":"m"})",
       R"({"id":"symbol","value":"m"},{"id":"name","value":"Metre"})"}},
     {}},
    // Objects.
    {"ObjectRemoved", {{"pb-1.0.0", "", ""}}, {"object-removed pb-1.0.0"}},
    {"ObjectAdded",
     {{"g-1.0.0", "{",
       R"({"typeid":"new","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"N"}]})"
       "\n{"}},
     {"object-added new"}},
    {"ObjectSucceeded", {{"pb-1.0.0", "pb-1.0.0", "pb-2.0.0"}}, {"object-succeeded pb-2.0.0"}},
    {"ObjectOfALesserVersion",
     {{"pb-1.0.0", "pb-1.0.0", "pb-0.9.0"}, {"pb-0.9.0", "Bypass", "By-pass"}},
     {"object-removed pb-1.0.0", "object-added pb-0.9.0"}},
    {"ObjectSucceededByAnotherContent",
     {{"pb-1.0.0", "Bypass", "By-pass"}, {"pb-1.0.0", "pb-1.0.0", "pb-1.0.1"}},
     {"object-succeeded pb-1.0.1"}},
    {"ObjectRenamed", {{"pb-1.0.0", "pb-1.0.0", "bypass-1.0.0"}}, {"object-renamed bypass-1.0.0"}},
    {"ObjectRenamedWithWhatNamesIt",
     {{"bs-1.0.0", "bs-1.0.0", "valve-1.0.0"}, {"pb-1.0.0", "bs-1.0.0", "valve-1.0.0"}},
     {"object-renamed valve-1.0.0", "reference-followed pb-1.0.0 spec"}},
    {"ObjectsRenamedThatNameEachOther",
     {{"c-1.0.0", "c-1.0.0", "pumps"},
      {"sub-1.0.0", "c-1.0.0", "pumps"},
      {"sub-1.0.0", "sub-1.0.0", "drains"},
      {"rs-1.0.0", "c-1.0.0", "pumps"},
      {"pf-1.0.0", "c-1.0.0", "pumps"}},
     {"object-renamed drains", "object-renamed pumps", "reference-followed rs-1.0.0 category",
      "reference-followed pf-1.0.0 category"}},
    {"ObjectRenamedAndChanged",
     {{"pb-1.0.0", "pb-1.0.0", "bypass-1.0.0"}, {"bypass-1.0.0", "Bypass", "By-pass"}},
     {"object-removed pb-1.0.0", "object-added bypass-1.0.0"}},
    {"ObjectBroken", {{"pb-1.0.0", "\"Bypass\"", "5"}}, {"object-broken pb-1.0.0"}},
    {"ObjectMended", {{"bad-1.0.0", "5", "\"Bad\""}}, {"object-mended bad-1.0.0"}},
    {"KindChanged",
     {{"pb-1.0.0", "parameter.bool-2.0.0", "parameter.int64-3.0.0"}, {"pb-1.0.0", "bs-1.0.0", "is-1.0.0"}},
     {"kind-changed pb-1.0.0 inherits"}},
    // Parameters.
    {"Ranged",
     {{"pr-1.0.0", "parameter.reference-2", "parameter.reference.ranged-2"}},
     {"ranged-changed pr-1.0.0 inherits"}},
    {"SpecToTheBuiltInOne",
     {{"pb-1.0.0", R"(,{"id":"spec","typedValue":{"typeid":"bs-1.0.0"}})", ""}},
     {"spec-changed pb-1.0.0 spec"}},
    {"SpecInAnotherUnit",
     {{"pm-1.0.0", "ms-1.0.0", "ms2-1.0.0"}},
     {"storage-unit-changed pm-1.0.0 storageUnit", "spec-changed pm-1.0.0 spec"}},
    {"SpecAndLimitInAnotherUnit",
     {{"pm-1.0.0", "ms-1.0.0", "ms2-1.0.0"}, {"pm-1.0.0", "48.5", "160"}},
     {"storage-unit-changed pm-1.0.0 storageUnit", "spec-changed pm-1.0.0 spec",
      "limit-incomparable pm-1.0.0 topBoundary"}},
    {"LimitOfASpecInAnotherUnit",
     {{"ms-1.0.0", R"("storageUnit","typedValue":{"typeid":"u.m-1.0.0")",
       R"("storageUnit","typedValue":{"typeid":"u.ft-1.0.0")"},
      {"pm-1.0.0", "48.5", "160"}},
     {"storage-unit-changed ms-1.0.0 storageUnit", "limit-incomparable pm-1.0.0 topBoundary"}},
    {"SpecOfReferences",
     {{"pr-1.0.0", R"(,{"id":"spec","typedValue":{"typeid":"rs-1.0.0"}})", ""}},
     {"spec-changed pr-1.0.0 spec", "category-widened pr-1.0.0 category"}},
    {"ReadOnlyOn",
     {{"pb-1.0.0", R"({"id":"spec")", R"({"id":"readOnly","value":true},{"id":"spec")"}},
     {"read-only-on pb-1.0.0 readOnly"}},
    {"ReadOnlyOff", {{"pt-1.0.0", "true", "false"}}, {"read-only-off pt-1.0.0 readOnly"}},
    {"Group",
     {{"pb-1.0.0", R"({"id":"group","typedValue":{"typeid":"g-1.0.0"}},)", ""}},
     {"group-changed pb-1.0.0 group"}},
    {"Name", {{"pb-1.0.0", "Bypass", "By-pass"}}, {"name-changed pb-1.0.0 name"}},
    {"Description", {{"pt-1.0.0", "What it is called.", "Its name."}}, {"description-changed pt-1.0.0 description"}},
    {"SampleText", {{"pt-1.0.0", "P-1", "P-2"}}, {"sample-text-changed pt-1.0.0 sampleText"}},
    {"FamilyTypeOfAnotherCategory", {{"pf-1.0.0", "c-1.0.0", "c2-1.0.0"}}, {"category-changed pf-1.0.0 category"}},
    // Specs.
    {"NameOfASpec", {{"bs-1.0.0", "Open/Closed", "Open/Shut"}}, {"name-changed bs-1.0.0 name"}},
    {"Discipline",
     {{"bs-1.0.0", "}]}", R"(},{"id":"discipline","typedValue":{"typeid":"d-1.0.0"}}]})"}},
     {"discipline-changed bs-1.0.0 discipline"}},
    {"StorageUnit", {{"ms2-1.0.0", "u.ft-1.0.0", "u.m-1.0.0"}}, {"storage-unit-changed ms2-1.0.0 storageUnit"}},
    {"ApplicableUnitRemoved",
     {{"ms-1.0.0", R"(,{"typeid":"u.ft-1.0.0"})", ""}},
     {"applicable-unit-removed ms-1.0.0 applicableUnits"}},
    {"ApplicableUnitAdded",
     {{"ms2-1.0.0", R"({"id":"storageUnit")",
       R"({"id":"applicableUnits","typedValue":[{"typeid":"u.m-1.0.0"}]},{"id":"storageUnit")"}},
     {"applicable-unit-added ms2-1.0.0 applicableUnits"}},
    {"ApplicableUnitsInAnotherOrder",
     {{"ms-1.0.0", R"({"typeid":"u.m-1.0.0"},{"typeid":"u.ft-1.0.0"})",
       R"({"typeid":"u.ft-1.0.0"},{"typeid":"u.m-1.0.0"})"}},
     {"order-changed ms-1.0.0 applicableUnits"}},
    {"UnitRenamed",
     {{"u.ft-1.0.0", "u.ft-1.0.0", "foot"}, {"ms-1.0.0", "u.ft-1.0.0", "foot"}, {"ms2-1.0.0", "u.ft-1.0.0", "foot"}},
     {"object-renamed foot", "reference-followed ms-1.0.0 applicableUnits",
      "reference-followed ms2-1.0.0 storageUnit"}},
    {"CategoryOfReferences", {{"rs-1.0.0", "c-1.0.0", "c2-1.0.0"}}, {"category-changed rs-1.0.0 category"}},
    {"CategoryOfReferencesThatIsAnyNow",
     {{"rs-1.0.0", R"(,{"id":"category","typedValue":{"typeid":"c-1.0.0"}})", ""}},
     {"category-widened rs-1.0.0 category"}},
    // Enumerations.
    {"ChoiceRemoved", {{"e-1.0.0", R"(,{"id":"Spare","value":3})", ""}}, {"choice-removed e-1.0.0 choices"}},
    {"ChoiceAdded",
     {{"e-1.0.0", R"("value":3})", R"("value":3},{"id":"Off","value":4})"}},
     {"choice-added e-1.0.0 choices"}},
    {"ChoiceWithAnotherInteger",
     {{"e-1.0.0", R"("value":3)", R"("value":7)"}},
     {"choice-integer-changed e-1.0.0 choices"}},
    {"ChoiceRenamed", {{"e-1.0.0", "Spare", "Reserve"}}, {"choice-renamed e-1.0.0 choices"}},
    {"ChoicesSwapped",
     {{"e-1.0.0", R"("value":1)", R"("value":8)"},
      {"e-1.0.0", R"("value":2)", R"("value":1)"},
      {"e-1.0.0", R"("value":8)", R"("value":2)"}},
     {"choice-integer-changed e-1.0.0 choices", "choice-integer-changed e-1.0.0 choices"}},
    {"ChoiceWithTheIntegerOfAnother",
     {{"e2-1.0.0", R"("properties":[)", R"("properties":[{"id":"Main","value":1},)"}},
     {"choice-ambiguous e2-1.0.0 choices"}},
    {"AnotherEnumeration",
     {{"pe-1.0.0", R"("e-1.0.0")", R"("e2-1.0.0")"}},
     {"choice-removed pe-1.0.0 choices", "enumeration-changed pe-1.0.0 value"}},
    // Ranges.
    {"BottomRaised",
     {{"ir-1.0.0", R"("bottomBoundary","value":1)", R"("bottomBoundary","value":2)"}},
     {"range-narrowed ir-1.0.0 bottomBoundary"}},
    {"BottomLowered",
     {{"ir-1.0.0", R"("bottomBoundary","value":1)", R"("bottomBoundary","value":0)"}},
     {"range-widened ir-1.0.0 bottomBoundary"}},
    {"TopLowered", {{"fr-1.0.0", "62.5", "62.4"}}, {"range-narrowed fr-1.0.0 topBoundary"}},
    {"TopRaised", {{"fr-1.0.0", "62.5", "1e3"}}, {"range-widened fr-1.0.0 topBoundary"}},
    {"NewBottom", {{"fr-1.0.0", R"("value":false)", R"("value":true)"}}, {"range-narrowed fr-1.0.0 bottomBoundary"}},
    {"NoTop",
     {{"fr-1.0.0", R"("fromTop","value":true)", R"("fromTop","value":false)"}},
     {"range-widened fr-1.0.0 topBoundary"}},
    {"RangeMoved",
     {{"ir-1.0.0", R"("bottomBoundary","value":1)", R"("bottomBoundary","value":3)"}, {"ir-1.0.0", "12", "20"}},
     {"range-narrowed ir-1.0.0 bottomBoundary", "range-widened ir-1.0.0 topBoundary"}},
    {"LeastInteger",
     {{"ir-1.0.0", R"("fromTop","value":true)", R"("fromTop","value":false)"},
      {"ir-1.0.0", R"("bottomBoundary","value":1)", R"("bottomBoundary","value":-9223372036854775808)"}},
     {"range-widened ir-1.0.0 bottomBoundary", "range-widened ir-1.0.0 topBoundary"}},
    {"OwnTopLowered", {{"pm-1.0.0", "48.5", "48"}}, {"range-narrowed pm-1.0.0 topBoundary"}},
    {"RangeNamedInPlaceOfTheSameOwnOne",
     {{"pi-1.0.0", R"({"typeid":"ir-1.0.0"})",
       R"({"typeid":"norvex.range:range.int64.bounded.static-1.0.0","value":{"fromBottom":true,"bottomBoundary":1,"fromTop":true,"topBoundary":12}})"}},
     {"range-exchanged pi-1.0.0 range"}},
    {"RangeGone",
     {{"pi-1.0.0", R"(,{"id":"range","typedValue":{"typeid":"ir-1.0.0"}})", ""}},
     {"range-exchanged pi-1.0.0 range", "range-widened pi-1.0.0 bottomBoundary", "range-widened pi-1.0.0 topBoundary"}},
    {"AllowedValueRemoved", {{"set-1.0.0", R"(,"Seal")", ""}}, {"allowed-value-removed set-1.0.0 allowedValues"}},
    {"AllowedValueAdded",
     {{"set-1.0.0", R"("Seal")", R"("Seal","None")"}},
     {"allowed-value-added set-1.0.0 allowedValues"}},
    {"AllowedValuesInAnotherOrder",
     {{"set-1.0.0", R"("Packing","Seal")", R"("Seal","Packing")"}},
     {"order-changed set-1.0.0 allowedValues"}},
    {"AnyTextToASet",
     {{"any-1.0.0", R"(range.string-1.0.0"])",
       R"(range.string.set.static-1.0.0"],"constants":[{"id":"allowedValues","value":["A"]}])"}},
     {"range-narrowed any-1.0.0 allowedValues", "base-changed any-1.0.0 inherits"}},
    {"SetToARegex",
     {{"set-1.0.0", "string.set.static", "string.regex"},
      {"set-1.0.0", R"({"id":"allowedValues","value":["Packing","Seal"]})", R"({"id":"regex","value":"P.*"})"}},
     {"texts-exchanged set-1.0.0 regex", "base-changed set-1.0.0 inherits"}},
    {"RegexToASet",
     {{"re-1.0.0", "string.regex", "string.set.static"},
      {"re-1.0.0", R"({"id":"regex","value":"P-[0-9]+"})", R"({"id":"allowedValues","value":["P-1"]})"}},
     {"texts-exchanged re-1.0.0 allowedValues", "base-changed re-1.0.0 inherits"}},
    {"RegexToTheSameInOtherWords",
     {{"any-1.0.0", R"(range.string-1.0.0"])",
       R"(range.string.regex-1.0.0"],"constants":[{"id":"regex","value":""}])"}},
     {"base-changed any-1.0.0 inherits", "range-widened any-1.0.0 regex"}},
    {"Regex", {{"re-1.0.0", "[0-9]+", "[0-9]*"}}, {"regex-changed re-1.0.0 regex"}},
    {"OwnRegex", {{"pt-1.0.0", R"("P.*")", R"(".*")"}}, {"regex-changed pt-1.0.0 regex"}},
    {"OwnRegexGone",
     {{"pt-1.0.0",
       R"(,{"id":"range","typedValue":{"typeid":"norvex.range:range.string.regex-1.0.0","value":{"regex":"P.*"}}})",
       ""}},
     {"range-widened pt-1.0.0 regex"}},
    // Categories and what else there is.
    {"Parent", {{"sub-1.0.0", R"("c-1.0.0")", R"("c2-1.0.0")"}}, {"parent-changed sub-1.0.0 parent"}},
    {"SubcategoryOfWhatWasMajor",
     {{"c2-1.0.0", "majorCategory", "subCategory"},
      {"c2-1.0.0", R"("domain","typedValue":{"typeid":"dom-1.0.0"})", R"("parent","typedValue":{"typeid":"c-1.0.0"})"}},
     {"parent-changed c2-1.0.0 parent", "domain-changed c2-1.0.0 domain", "base-changed c2-1.0.0 inherits"}},
    {"Domain", {{"c-1.0.0", "dom-1.0.0", "dom2-1.0.0"}}, {"domain-changed c-1.0.0 domain"}},
    {"DisciplinesOfACategory",
     {{"c-1.0.0", R"([{"typeid":"d-1.0.0"}])", "[]"}},
     {"discipline-changed c-1.0.0 disciplines"}},
    {"Symbol", {{"u.m-1.0.0", R"("m")", R"("cm")"}}, {"symbol-changed u.m-1.0.0 symbol"}},
    {"NameOfAUnit", {{"u.m-1.0.0", "Metre", "Meter"}}, {"name-changed u.m-1.0.0 name"}},
    {"NameOfAGroup", {{"g-1.0.0", "Operation", "Running"}}, {"name-changed g-1.0.0 name"}},
};

/// Returns the table of the rules as the page has to show it.
std::string tableOfRules() {
    std::string table = "| Code | Severity | What changed | Why |\n|---|---|---|---|\n";
    for (const BreakingRule& rule : breakingRules()) {
        for (const std::string_view part : {"| `", rule.code.data(), "` | ", wordOf(rule.severity).data(), " | ",
                                            rule.what.data(), " | ", rule.why.data(), " |\n"}) {
            table += part;
        }
    }
    return table;
}

TEST(BreakingRules, AreInThePageAsTheyAre) {
    EXPECT_THAT(contentOf(OSTRA_SOURCE_DIR "/docs/breaking-changes.md"), testing::HasSubstr(tableOfRules() + "\n"));
}

TEST(BreakingRules, HaveACodeEach) {
    std::set<std::string_view> codes;
    for (const BreakingRule& rule : breakingRules()) {
        EXPECT_TRUE(codes.insert(rule.code).second) << rule.code;
    }
}

/// No rule is there that nothing can break: each stands in the rows, but for that of what no rule knows.
TEST(BreakingRules, AreAllShownByARow) {
    std::set<std::string> unseen;
    for (const BreakingRule& rule : breakingRules()) {
        unseen.emplace(rule.code);
    }
    for (const Row& row : rows) {
        for (const std::string& verdict : row.verdicts) {
            unseen.erase(verdict.substr(0, verdict.find(' ')));
        }
    }
    EXPECT_THAT(unseen, testing::ElementsAre("constant-changed"));
    const Tool::Compare::ConstantChange unknown{"colour"};
    const Change change{Fate::changed, nullptr, nullptr};
    const auto rule = std::find_if(breakingRules().begin(), breakingRules().end(), [&](const BreakingRule& each) {
        return each.applies({&change, &unknown});
    });
    EXPECT_EQ(rule->code, "constant-changed");
}

INSTANTIATE_TEST_SUITE_P(FiftyWays, ChangedCatalogue, testing::ValuesIn(rows), Support::nameOfRow);

} // namespace
