#include "schema/PlainReader.h"

#include "ParseOutcome.h"
#include "ProjectFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace Ostra {

namespace {

using namespace std::string_literals;

bool isRead(const std::string& text) {
    Arena arena;
    JSONTape tape(arena);
    return PlainReader(text, tape, arena).read();
}

TEST(PlainReader, ReadsAllThatIsInTheExampleCatalogue) {
    int texts = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(OSTRA_SOURCE_DIR "/examples/catalogue")) {
        if (entry.path().extension() == ".json") {
            std::ifstream stream(entry.path(), std::ios::binary);
            EXPECT_TRUE(isRead({std::istreambuf_iterator<char>(stream), {}})) << entry.path();
            ++texts;
        }
    }
    EXPECT_GT(texts, 50);
}

TEST(PlainReader, ReadsValuesOfEveryType) {
    for (const std::string& text : {"{}"s,
                                    "[]"s,
                                    " [ ] "s,
                                    "\"\""s,
                                    "\"\xC3\xBC\xFF\""s,
                                    "0"s,
                                    "-0"s,
                                    "9223372036854775807"s,
                                    "-9223372036854775807"s,
                                    "-1.5"s,
                                    "1e5"s,
                                    "1.25E+10"s,
                                    "1e-99"s,
                                    "1.00000000000000001"s,
                                    "\"\\ud800\\udc00\\ue000\""s,
                                    "true"s,
                                    "false"s,
                                    "null"s,
                                    "\r\n\t {\"a\" : [ 1 , \"\\u00fc\" ] , \"a\" : { } }\n"s,
                                    std::string(64, '[') + std::string(64, ']')}) {
        EXPECT_TRUE(isRead(text)) << text;
        EXPECT_EQ(outcomeOf(text), outcomeByDefaultFlags(text)) << text;
    }
}

/// What it is not sure of, though it may be JSON.
TEST(PlainReader, GivesUpAtWhateverIsUnusual) {
    for (const std::string& text : {""s,
                                    " "s,
                                    "[1"s,
                                    "[1,]"s,
                                    "{\"a\":1,}"s,
                                    "{\"a\"}"s,
                                    "{1:2}"s,
                                    "tru"s,
                                    "nul"s,
                                    "falsy"s,
                                    "1 2"s,
                                    "01"s,
                                    "-"s,
                                    "1."s,
                                    ".5"s,
                                    "1e"s,
                                    "1e+"s,
                                    "+1"s,
                                    "9223372036854775808"s,
                                    "-9223372036854775808"s,
                                    "12345678901234567890"s,
                                    "1e100"s,
                                    "1.000000000000000001"s,
                                    "\"a"s,
                                    "\"\\"s,
                                    "\"\\x\""s,
                                    "\"\\u12\""s,
                                    "\"\\u12g4\""s,
                                    "\"\\ud800\""s,
                                    "\"\\udc00\""s,
                                    "\"\\udc00\\udc00\""s,
                                    "\"\\ud800\\ud800\""s,
                                    "\"\\ud800x\""s,
                                    "\"a\nb\""s,
                                    "\"a\0b\""s,
                                    "[1]\0"s,
                                    "\0"s,
                                    "\xEF\xBB\xBF[]"s,
                                    "[1}"s,
                                    "{\"a\":1]"s,
                                    std::string(65, '[') + std::string(65, ']')}) {
        EXPECT_FALSE(isRead(text)) << text;
        EXPECT_EQ(outcomeOf(text), outcomeByDefaultFlags(text)) << text;
    }
}

TEST(PlainReader, FindsTheEndOfAStringInEveryPlace) {
    for (std::size_t size = 0; size < 100; ++size) {
        const std::string plain(size, '~');
        EXPECT_TRUE(isRead("\"" + plain + "\""));
        EXPECT_FALSE(isRead("\"" + plain + "\x1F\""));
        EXPECT_FALSE(isRead("\"" + plain));
        EXPECT_FALSE(isRead("\"" + plain + "\\"));
        const std::string text = "[\"" + plain + "\\n" + plain + "\",\"" + plain + "\x20\"]";
        EXPECT_TRUE(isRead(text));
        EXPECT_EQ(outcomeOf(text), outcomeByDefaultFlags(text)) << text;
    }
}

TEST(JSONTape, KeepsValuesBeyondItsOwnMemory) {
    std::string text = "[";
    for (int i = 0; i < 5000; ++i) {
        text += "{\"a\":[" + std::to_string(i) + ",\"b\"]},";
    }
    text += "null]";
    EXPECT_TRUE(isRead(text));
    EXPECT_EQ(outcomeOf(text), outcomeByDefaultFlags(text));
}

} // namespace

} // namespace Ostra
