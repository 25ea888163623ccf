#include "schema/SchemaWriter.h"

#include "schema/Schema.h"
#include "support/Complaint.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

namespace Ostra {

namespace {

using Support::Complaint;
using Support::complaintOf;
using Support::Complaints;
using Support::messageOf;

std::string textOf(SchemaWriter&& writer) { return std::move(writer).finish(); }

/// Returns the text of a schema whose one constant, "x", has the given value.
std::string textWith(void (*writeValue)(SchemaWriter&)) {
    SchemaWriter schema("t", "b", Complaints::shared());
    writeValue(schema.constant("x"));
    return textOf(std::move(schema));
}

TEST(SchemaWriter, LeavesOutTablesWithoutElements) {
    EXPECT_EQ(textOf(SchemaWriter("plant.group:safety-1.0.0", "norvex.parameter:group-1.0.0", Complaints::shared())),
              R"({"typeid":"plant.group:safety-1.0.0","inherits":["norvex.parameter:group-1.0.0"]})");
}

TEST(SchemaWriter, WritesConstantsAfterTheBase) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.constant("name").string("Safety");
    EXPECT_EQ(textOf(std::move(schema)),
              R"({"typeid":"t","inherits":["b"],"constants":[{"id":"name","value":"Safety"}]})");
}

TEST(SchemaWriter, WritesPropertiesAfterTheBaseWhereThereIsNoConstant) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.property("value").boolean(true);
    EXPECT_EQ(textOf(std::move(schema)),
              R"({"typeid":"t","inherits":["b"],"properties":[{"id":"value","value":true}]})");
}

TEST(SchemaWriter, WritesPropertiesAfterConstants) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.constant("c").integer(2);
    schema.property("p").integer(1);
    EXPECT_EQ(
        textOf(std::move(schema)),
        R"({"typeid":"t","inherits":["b"],"constants":[{"id":"c","value":2}],"properties":[{"id":"p","value":1}]})");
}

TEST(SchemaWriter, RefusesConstantsAfterProperties) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.property("p").integer(1);
    EXPECT_EQ(messageOf<std::logic_error>([&] { schema.constant("c"); }),
              "A schema's constants are written before its properties.");
}

TEST(SchemaWriter, KeepsTheOrderOfDefinitions) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.constant("b").integer(1);
    schema.typedConstant("a").typedValue("x");
    schema.constant("b").integer(2);
    schema.typedProperty("d").typedValue("y");
    schema.property("c").integer(3);
    EXPECT_EQ(textOf(std::move(schema)),
              R"({"typeid":"t","inherits":["b"],)"
              R"("constants":[{"id":"b","value":1},{"id":"a","typedValue":{"typeid":"x"}},{"id":"b","value":2}],)"
              R"("properties":[{"id":"d","typedValue":{"typeid":"y"}},{"id":"c","value":3}]})");
}

TEST(SchemaWriter, WritesArraysAndObjectsAsValues) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.constant("x").beginObject();
    schema.name("list");
    schema.beginArray();
    schema.string("a");
    schema.typedValue("b");
    schema.endArray();
    schema.name("flag");
    schema.boolean(false);
    schema.endObject();
    schema.constant("y").beginArray();
    schema.endArray();
    schema.typedConstant("z").beginTypedValue("c");
    schema.name("value");
    schema.integer(1);
    schema.endObject();
    EXPECT_EQ(textOf(std::move(schema)),
              R"({"typeid":"t","inherits":["b"],"constants":[)"
              R"({"id":"x","value":{"list":["a",{"typeid":"b"}],"flag":false}},{"id":"y","value":[]},)"
              R"({"id":"z","typedValue":{"typeid":"c","value":1}}]})");
}

TEST(SchemaWriter, WritesIntegersInDecimal) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.constant("a").integer(std::numeric_limits<std::int64_t>::min());
    schema.constant("b").integer(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(textOf(std::move(schema)), R"({"typeid":"t","inherits":["b"],"constants":[)"
                                         R"({"id":"a","value":-9223372036854775808},)"
                                         R"({"id":"b","value":9223372036854775807}]})");
}

TEST(SchemaWriter, WritesNumbersAsDoubles) {
    SchemaWriter schema("t", "b", Complaints::shared());
    schema.constant("a").number(3);
    schema.constant("b").number(-2.5);
    schema.constant("c").number(0.1);
    schema.constant("d").number(-0.0);
    EXPECT_EQ(textOf(std::move(schema)),
              R"({"typeid":"t","inherits":["b"],"constants":[{"id":"a","value":3.0},{"id":"b","value":-2.5},)"
              R"({"id":"c","value":0.1},{"id":"d","value":-0.0}]})");
}

TEST(SchemaWriter, WritesTheGreatestAndTheLeastFiniteNumber) {
    EXPECT_EQ(textWith([](SchemaWriter& schema) { schema.number(std::numeric_limits<double>::max()); }),
              R"({"typeid":"t","inherits":["b"],"constants":[{"id":"x","value":1.7976931348623157e308}]})");
    EXPECT_EQ(textWith([](SchemaWriter& schema) { schema.number(-1e-300); }),
              R"({"typeid":"t","inherits":["b"],"constants":[{"id":"x","value":-1e-300}]})");
}

TEST(SchemaWriter, RefusesNumbersThatAreNotFinite) {
    for (const double number : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(
            messageOf<Complaint>([&] { SchemaWriter("t", "b", Complaints::shared()).constant("x").number(number); }),
            "Schema t has a number that is not finite.");
    }
}

TEST(SchemaWriter, NamesATypeIdWholeWhenItRefusesANumber) {
    const std::string typeId("t\0u", 3);
    SchemaWriter schema(typeId, "b", Complaints::shared());
    EXPECT_EQ(complaintOf([&] { schema.number(std::numeric_limits<double>::infinity()); }),
              std::string("Schema t\0u has a number that is not finite.", 43));
}

TEST(SchemaWriter, EscapesQuotesBackslashesAndControlCharacters) {
    EXPECT_EQ(textWith([](SchemaWriter& schema) { schema.string(std::string("\"\\/\b\f\n\r\t\0\x1f\x7f", 11)); }),
              R"({"typeid":"t","inherits":["b"],"constants":[{"id":"x","value":"\"\\/\b\f\n\r\t\u0000\u001F)"
              "\x7f\"}]}");
}

TEST(SchemaWriter, LeavesBytesBeyondAsciiAsTheyAre) {
    EXPECT_EQ(textWith([](SchemaWriter& schema) { schema.string("\xc3\xa4 \xff\xc3"); }),
              "{\"typeid\":\"t\",\"inherits\":[\"b\"],\"constants\":[{\"id\":\"x\",\"value\":\"\xc3\xa4 \xff\xc3\"}]}");
}

TEST(SchemaWriter, EscapesInEveryPlaceOfAString) {
    SchemaWriter schema("\"", "\\", Complaints::shared());
    schema.typedConstant(std::string("\0", 1)).typedValue("\n");
    EXPECT_EQ(textOf(std::move(schema)),
              R"({"typeid":"\"","inherits":["\\"],"constants":[{"id":"\u0000","typedValue":{"typeid":"\n"}}]})");
}

TEST(SchemaWriter, WritesWhatTheReaderReads) {
    SchemaWriter schema("\"t\xff", "b\\", Complaints::shared());
    schema.constant(std::string("a\0b", 3)).string("\x1f");
    schema.typedProperty("\xc3\xa4").typedValue("c");
    const std::string text = textOf(std::move(schema));
    const Schema read(text, Complaints::shared());
    EXPECT_EQ(read.typeId(), "\"t\xff");
    EXPECT_EQ(read.base(), "b\\");
    EXPECT_EQ(Schema::valueOf(*read.constants().find(std::string("a\0b", 3)))->string(), "\x1f");
    EXPECT_EQ(Schema::valueOf(*read.properties().find("\xc3\xa4"))->toText(), R"({"typeid":"c"})");
}

} // namespace

} // namespace Ostra
