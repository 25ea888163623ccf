#include "schema/Inspection.h"

#include "schema/Constants.h"
#include "schema/JSON.h"
#include "schema/Messages.h"
#include "schema/Schema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

namespace {

using testing::IsEmpty;

using Lines = std::vector<std::string>;

/// Shows a fault: its code, name and near name, and the bytes that it points at and those beside them.
std::string lineOf(const DocumentFault& fault, std::string_view text) {
    const auto bytesOf = [text](const Spot& spot) {
        return spot.pointer + " " + std::string(text.substr(spot.begin, spot.end - spot.begin));
    };
    std::string line = std::string(fault.message->code) + " " + fault.name + "/" + fault.nearest + " at ";
    line += bytesOf(fault.place);
    return fault.other ? line + " beside " + bytesOf(*fault.other) : line;
}

Lines linesOf(const std::vector<DocumentFault>& faults, std::string_view text) {
    Lines lines;
    for (const DocumentFault& fault : faults) {
        lines.push_back(lineOf(fault, text));
    }
    return lines;
}

/// Reads a schema that has the constants "name", which is required, "count" and "units".
void readConstants(const Schema& schema) {
    const Constants constants(schema);
    constants.required<NonEmptyString>("name");
    constants.optional<Integer>("count", 0);
    constants.optional<TypedValues>("units", {});
    schema.tellUnread();
}

/// Returns the faults of a text, which is read again where more can be said of it.
Lines read(const std::string& text, Inspection& inspection) {
    const Schema schema(text, inspection);
    if (schema.isReadable()) {
        readConstants(schema);
    }
    if (!inspection.wantsLooks()) {
        return linesOf(inspection.faults(), text);
    }
    inspection.noteLooks();
    const Schema again(text, inspection);
    readConstants(again);
    return linesOf(inspection.faults(), text);
}

Lines read(const std::string& text) {
    Inspection inspection;
    return read(text, inspection);
}

std::string with(const std::string& constants) {
    return R"({"typeid":"t","inherits":["b"],"constants":[)" + constants + "]}";
}

TEST(Inspection, FindsNothingInASoundText) {
    EXPECT_THAT(read(with(R"({"id":"name","value":"N"},{"id":"count","value":2})")), IsEmpty());
}

TEST(Inspection, KeepsAllFaultsAndThenTellsWhatNothingReadsInTheOrderOfTheText) {
    EXPECT_EQ(read(R"({"z":1,"typeid":"t","inherits":["b"],"constants":[{"id":"extra","value":3,"y":4},)"
                   R"({"id":"count","value":"2","x":5},{"id":"name","value":""}],"w":6})"),
              (Lines{R"(non-empty-string-expected name/ at /constants/2/value "")",
                     R"(integer-expected count/ at /constants/1/value "2")", "member-unknown z/ at /z 1",
                     R"(constant-unknown extra/ at /constants/0/id "extra")", "member-unknown x/ at /constants/1/x 5",
                     "member-unknown w/ at /w 6"}));
}

TEST(Inspection, SaysNothingOfWhatIsUnreadWhereReadingDidNotComeToItsEnd) {
    EXPECT_EQ(read(R"({"typeid":"t","more":1,"constants":[{"id":"a"}]})"),
              (Lines{R"(inherits-missing inherits/ at  {"typeid":"t","more":1,"constants":[{"id":"a"}]})"}));
}

TEST(Inspection, BeginsAnewWithEachText) {
    Inspection inspection;
    EXPECT_EQ(read(with(""), inspection).size(), 1U);
    EXPECT_TRUE(inspection.hasErrors());
    EXPECT_THAT(read(with(R"({"id":"name","value":"N"})"), inspection), IsEmpty());
    EXPECT_FALSE(inspection.hasErrors());
    EXPECT_EQ(read("{", inspection), (Lines{"json-syntax / at  "}));
    EXPECT_TRUE(inspection.hasErrors());
    EXPECT_EQ(read("7", inspection), (Lines{"typeid-missing typeid/ at  7"}));
    EXPECT_THAT(read(with(R"({"id":"name","value":"N"})"), inspection), IsEmpty());
}

/// Returns the faults of an object of which one member alone is looked for. Values of like texts lie in the same
/// places.
Lines lookFor(std::string_view name, const std::string& text, Inspection& inspection) {
    const JSON json(text, inspection);
    inspection.noteLooks();
    static_cast<void>(json.view().member(name));
    static_cast<void>(json.view().noteReadWhole(0));
    return linesOf(inspection.faults(), text);
}

TEST(Inspection, ForgetsWhatWasLookedForInTheTextBefore) {
    Inspection inspection;
    EXPECT_EQ(lookFor("colour", R"({"color":1})", inspection), (Lines{"member-unknown color/colour at /color 1"}));
    EXPECT_EQ(lookFor("size", R"({"color":1})", inspection), (Lines{"member-unknown color/ at /color 1"}));
}

TEST(Inspection, ForgetsWhatWasPassedOverInTheTextBefore) {
    Inspection inspection;
    EXPECT_EQ(read(with(R"({"id":7,"value":"N","x":2})"), inspection).size(), 2U);
    EXPECT_EQ(read(with(R"({"id":"name","value":"N","x":2})"), inspection),
              (Lines{"member-unknown x/ at /constants/0/x 2"}));
}

TEST(Inspection, SaysNothingOfWhatIsInsideOfWhatIsPassedOver) {
    EXPECT_EQ(read(with(R"({"id":7,"value":{"x":[{"y":1}]}},{"id":"name","value":"N"})")),
              (Lines{"definition-id-string-expected / at /constants/0/id 7"}));
}

TEST(Inspection, SaysNothingOfWhatIsInsideOfWhatIsWrongAsAWholeThoughItWasRead) {
    Inspection inspection;
    const std::string text = R"({"a":{"b":{"x":1}}})";
    const JSON json(text, inspection);
    EXPECT_TRUE(json.view().member("a")->member("b").has_value());
    json.view().member("a")->report(messages("string-expected"));
    EXPECT_FALSE(json.view().noteReadWhole(0));
    EXPECT_EQ(linesOf(inspection.faults(), text), (Lines{R"(string-expected a/ at /a {"b":{"x":1}})"}));
}

TEST(Inspection, CountsWarningsForNoErrors) {
    Inspection inspection;
    EXPECT_EQ(
        read(with(R"({"id":"name","value":"N"},{"id":"units","value":[{"typeid":"u"},{"typeid":"u"}]})"), inspection),
        (Lines{R"(typeid-repeated u/ at /constants/1/value/1/typeid "u" beside /constants/1/value/0/typeid "u")"}));
    EXPECT_FALSE(inspection.hasErrors());
}

TEST(Inspection, ExplainsWhatIsLackingByWhatStandsThereMisspelt) {
    EXPECT_EQ(read(with(R"({"id":"Nam","value":"N"},{"id":"other","value":1})")),
              (Lines{R"(constant-undefined name/Nam at /constants/0/id "Nam")",
                     R"(constant-unknown other/ at /constants/1/id "other")"}));
}

TEST(Inspection, ExplainsWhatIsLackingByWhatStandsAmongTheProperties) {
    EXPECT_EQ(read(R"({"typeid":"t","inherits":["b"],"constants":[],"properties":[{"id":"name","value":1}]})"),
              (Lines{R"(constant-undefined name/name at /properties/0/id "name")"}));
}

TEST(Inspection, ExplainsNothingThatIsLackingByAnotherAmongTheProperties) {
    EXPECT_EQ(
        read(R"({"typeid":"t","inherits":["b"],"constants":[],"properties":[{"id":"other","value":1}]})"),
        (Lines{"constant-undefined name/ at /constants []", R"(property-unknown other/ at /properties/0/id "other")"}));
}

TEST(Inspection, ExplainsConstantsThatAreLackingByTheirNameMisspelt) {
    EXPECT_EQ(read(R"({"typeid":"t","inherits":["b"],"konstant":[]})"),
              (Lines{"constant-undefined name/konstant at /konstant []"}));
}

TEST(Inspection, ExplainsTwoThatAreLackingByOneEach) {
    EXPECT_EQ(read(R"({"typeId":"t","inherit":["b"]})"),
              (Lines{R"(typeid-missing typeid/typeId at /typeId "t")",
                     R"(inherits-missing inherits/inherit at /inherit ["b"])"}));
}

TEST(Inspection, TellsOfMembersThatStandTwice) {
    EXPECT_EQ(read(R"({"typeid":"t","inherits":["b"],"constants":[{"id":"name","value":"N","id":"count"}],)"
                   R"("typeid":"u"})"),
              (Lines{R"(member-duplicate typeid/ at /typeid "t" beside /typeid "u")",
                     R"(member-duplicate id/ at /constants/0/id "name" beside /constants/0/id "count")"}));
}

TEST(Inspection, TellsOfValuesThatAreNotReadBesideOthers) {
    EXPECT_EQ(read(with(R"({"id":"name","typedValue":{"a":1},"value":"N"})")),
              (Lines{R"(value-ignored typedValue/ at /constants/0/typedValue {"a":1})"}));
}

TEST(Inspection, TellsOfValuesThatAreNotReadBesideTypedOnes) {
    Inspection inspection;
    EXPECT_EQ(lookFor("typedValue", R"({"value":1,"typedValue":2})", inspection),
              (Lines{"value-ignored value/ at /value 1"}));
    EXPECT_EQ(lookFor("typedValue", R"({"value":1})", inspection), (Lines{"member-unknown value/ at /value 1"}));
}

TEST(Inspection, UnescapesNames) {
    EXPECT_EQ(read(with(R"({"\u0069d":"n\u0061me","val\u0075e":"N","\u0078\/~":"\u00e4"})")),
              (Lines{"member-unknown x/~/ at /constants/0/x~1~0 \"\\u00e4\""}));
}

TEST(Inspection, PlacesFaultsInTextsWithBlanksAndLineEndsOfAllSorts) {
    const std::string text = "\r\n{ \"typeid\" : \"t\",\r\n\t\"inherits\":[ \"b\" ] ,\r\"constants\" : [\r\n"
                             "{\"id\" : \"name\" , \"value\" :\r\n 5.0 } ] }\r\n";
    EXPECT_EQ(read(text), (Lines{"non-empty-string-expected name/ at /constants/0/value 5.0"}));
}

TEST(Inspection, HoldsNothingOfWhatIsNoJSON) {
    Inspection inspection;
    const std::string text = R"({"a":[1,)";
    EXPECT_EQ(JSON(text, inspection).toText(), "null");
}

TEST(Inspection, PlacesWhatIsNoJSONUpToItsEnd) {
    EXPECT_EQ(read("{\"a\": 1,, }\n"), (Lines{"json-syntax / at  , }\n"}));
    EXPECT_EQ(read(""), (Lines{"json-syntax / at  "}));
}

TEST(Inspection, TellsOneFaultOfOneValueOnce) {
    Inspection inspection;
    const std::string text = "[1]";
    const JSON json(text, inspection);
    json.view().report(messages("string-expected"));
    json.view().report(messages("string-expected"));
    json.view().report(messages("integer-expected"));
    EXPECT_EQ(linesOf(inspection.faults(), text), (Lines{"string-expected / at  [1]", "integer-expected / at  [1]"}));
}

TEST(Inspection, FindsWhereTheTypeIdStands) {
    Inspection inspection;
    {
        const std::string text = R"( {"a":{"typeid":1}, "typeid" : "t"})";
        const JSON json(text, inspection);
        EXPECT_EQ(inspection.placeOfTypeId().pointer, "/typeid");
        EXPECT_EQ(inspection.placeOfTypeId().begin, 31U);
        EXPECT_EQ(inspection.placeOfTypeId().end, 34U);
    }
    {
        const std::string text = " [1]";
        const JSON json(text, inspection);
        EXPECT_EQ(inspection.placeOfTypeId().pointer, "");
        EXPECT_EQ(inspection.placeOfTypeId().begin, 1U);
    }
    {
        const std::string text = " {} ";
        const JSON json(text, inspection);
        EXPECT_EQ(inspection.placeOfTypeId().end, 3U);
    }
}

} // namespace

} // namespace Ostra
