#include "schema/JSONWriter.h"

#include "AllocationWatch.h"
#include "schema/ExceptionFactory.h"
#include "schema/JSON.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

namespace {

using namespace std::string_view_literals;
using Support::messageOf;

std::string textOfString(std::string_view value) {
    JSONWriter writer;
    writer.string(value);
    return writer.text();
}

std::string textOfNumber(double value) {
    JSONWriter writer;
    writer.number(value);
    return writer.text();
}

double randomFinite(std::mt19937_64& random) {
    double value = 0;
    do {
        value = std::bit_cast<double>(random());
    } while (!std::isfinite(value));
    return value;
}

TEST(JSONWriter, PutsNoBlankAnywhere) {
    JSONWriter writer;
    writer.beginObject();
    writer.name("a b");
    writer.beginArray();
    writer.integer(1);
    writer.boolean(true);
    writer.boolean(false);
    writer.null();
    writer.beginObject();
    writer.endObject();
    writer.beginArray();
    writer.endArray();
    writer.endArray();
    writer.name("c");
    writer.string("d e");
    writer.endObject();
    EXPECT_EQ(writer.text(), R"({"a b":[1,true,false,null,{},[]],"c":"d e"})");
}

TEST(JSONWriter, EscapesWhatAStringMustNotHold) {
    EXPECT_EQ(textOfString("\"\\/\b\f\n\r\t\0\x1F\x7F"sv), "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0000\\u001F\x7F\"");
}

TEST(JSONWriter, WritesControlCharactersThatHaveNoNameByTheirNumbers) {
    EXPECT_EQ(textOfString("\1\2\3\4\5\6\7\x0B\x0E\x0F"sv),
              R"("\u0001\u0002\u0003\u0004\u0005\u0006\u0007\u000B\u000E\u000F")");
    EXPECT_EQ(textOfString("\x10\x11\x12\x13\x14\x15\x16\x17"sv),
              R"("\u0010\u0011\u0012\u0013\u0014\u0015\u0016\u0017")");
    EXPECT_EQ(textOfString("\x18\x19\x1A\x1B\x1C\x1D\x1E\x1F"sv),
              R"("\u0018\u0019\u001A\u001B\u001C\u001D\u001E\u001F")");
}

TEST(JSONWriter, EscapesOneCharacterInEveryPlaceOfAString) {
    for (std::size_t before = 0; before < 20; ++before) {
        for (std::size_t behind = 0; behind < 20; ++behind) {
            const std::string head(before, '~');
            const std::string tail(behind, '~');
            EXPECT_EQ(textOfString(head + "\x1F" + tail), "\"" + head + "\\u001F" + tail + "\"");
        }
    }
}

TEST(JSONWriter, LeavesOtherBytesAsTheyAre) {
    std::string plain;
    for (int byte = 0x20; byte < 0x100; ++byte) {
        if (byte != '"' && byte != '\\') {
            plain += static_cast<char>(byte);
        }
    }
    EXPECT_EQ(textOfString(plain), "\"" + plain + "\"");
    EXPECT_EQ(textOfString(plain + "\n"), "\"" + plain + "\\n\"");
}

TEST(JSONWriter, WritesTheEmptyString) { EXPECT_EQ(textOfString(std::string_view()), "\"\""); }

TEST(JSONWriter, EscapesNames) {
    JSONWriter writer;
    writer.beginObject();
    writer.name("a\"\0"sv);
    writer.integer(1);
    writer.endObject();
    EXPECT_EQ(writer.text(), R"({"a\"\u0000":1})");
}

TEST(JSONWriter, WritesIntegersInDecimal) {
    JSONWriter writer;
    writer.beginArray();
    writer.integer(0);
    writer.integer(-1);
    writer.integer(std::numeric_limits<std::int64_t>::max());
    writer.integer(std::numeric_limits<std::int64_t>::min());
    writer.unsignedInteger(std::numeric_limits<std::uint64_t>::max());
    writer.endArray();
    EXPECT_EQ(writer.text(), "[0,-1,9223372036854775807,-9223372036854775808,18446744073709551615]");
}

TEST(JSONWriter, WritesDoublesShort) {
    EXPECT_EQ(textOfNumber(1), "1.0");
    EXPECT_EQ(textOfNumber(-0.0), "-0.0");
    EXPECT_EQ(textOfNumber(0.1), "0.1");
    EXPECT_EQ(textOfNumber(1e20), "100000000000000000000.0");
    EXPECT_EQ(textOfNumber(1e21), "1e21");
    EXPECT_EQ(textOfNumber(1.5e-7), "1.5e-7");
    EXPECT_EQ(textOfNumber(0x1p-1074), "5e-324");
    EXPECT_EQ(textOfNumber(std::numeric_limits<double>::max()), "1.7976931348623157e308");
}

TEST(JSONWriter, WritesDoublesThatReadBackAsTheSame) {
    constexpr std::uint64_t seed = 4711;
    std::mt19937_64 random(seed);
    JSONWriter writer;
    writer.beginArray();
    std::vector<double> doubles;
    for (int count = 0; count < 100'000; ++count) {
        doubles.push_back(randomFinite(random));
        writer.number(doubles.back());
    }
    writer.endArray();
    const std::string text = writer.text();
    const JSON read(text, ExceptionFactoryOf<std::runtime_error>::shared());
    std::size_t index = 0;
    read.view().forEachElement([&](JSONView element) {
        const double expected = doubles.at(index++);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(element.number()), std::bit_cast<std::uint64_t>(expected))
            << expected << " (seed " << seed << ")";
    });
    EXPECT_EQ(index, doubles.size());
}

TEST(JSONWriter, RefusesNumbersThatAreNotFinite) {
    for (const double value : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(messageOf<std::domain_error>([&] { textOfNumber(value); }),
                  "A number that is not finite cannot be written as JSON.");
    }
}

TEST(JSONWriter, RefusesAStringThatIsTooLongBeforeReadingIt) {
    const std::string_view tooLong("x", 715'827'883); // NOLINT(bugprone-string-constructor): it is not read
    EXPECT_EQ(messageOf<std::length_error>([&] { textOfString(tooLong); }),
              "A string is too long to be written as JSON.");
}

TEST(JSONWriter, WritesMoreThanItsOwnMemoryHolds) {
    JSONWriter writer;
    writer.beginObject();
    std::string expected;
    for (int count = 0; count < 1000; ++count) {
        const std::string name = "a member of the number " + std::to_string(count);
        writer.name(name);
        writer.integer(count);
        expected += (count == 0 ? "{\"" : ",\"") + name + "\":" + std::to_string(count);
    }
    writer.endObject();
    EXPECT_EQ(writer.text(), expected + "}");
}

TEST(JSONWriter, WritesValuesOfAnyDepth) {
    constexpr int depth = 100'000;
    JSONWriter writer;
    for (int level = 0; level < depth; ++level) {
        writer.beginArray();
    }
    for (int level = 0; level < depth; ++level) {
        writer.endArray();
    }
    EXPECT_EQ(writer.text(), std::string(depth, '[') + std::string(depth, ']'));
}

TEST(JSONWriter, LeaksNothingWhenMemoryEnds) {
    expectNoLeakWhenMemoryEnds([] {
        JSONWriter writer;
        writer.beginArray();
        writer.string(std::string(10'000, 'x'));
        writer.string(std::string(10'000, '\n'));
        writer.endArray();
        writer.text();
    });
}

TEST(JSONWriter, AsksForMemoryOnlyForItsText) {
    if (!AllocationWatch::works()) {
        GTEST_SKIP() << "requests for memory are not seen in this build";
    }
    const AllocationWatch watch;
    JSONWriter writer;
    writer.beginArray();
    for (int count = 0; count < 20; ++count) {
        writer.string("a string that is not short");
    }
    writer.endArray();
    EXPECT_EQ(watch.requests(), 0);
    EXPECT_EQ(writer.text().size(), 20U * 29 + 1);
    EXPECT_EQ(watch.requests(), 1);
}

} // namespace

} // namespace Ostra
