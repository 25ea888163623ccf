#include "schema/Hash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;
using Ostra::hashOf;

TEST(Hash, IsTheSameForTheSameBytesWhereverTheyLie) {
    const std::string bytes = "norvex.spec:discipline-1.0.0 and twenty more";
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        const std::string_view text(bytes.data(), size);
        for (std::size_t offset = 1; offset < 9; ++offset) {
            const std::string moved = std::string(offset, '#') + std::string(text) + "#";
            ASSERT_EQ(hashOf(std::string_view(moved).substr(offset, size)), hashOf(text)) << size << " " << offset;
        }
    }
}

TEST(Hash, TellsLengthsOfEqualBytesApart) {
    for (const char byte : {'\0', 'x', '\xff'}) {
        std::set<std::uint64_t> hashes;
        for (std::size_t length = 0; length < 300; ++length) {
            hashes.insert(hashOf(std::string(length, byte)));
        }
        EXPECT_EQ(hashes.size(), 300U);
    }
}

TEST(Hash, DependsOnEveryBitOfEveryByte) {
    for (std::size_t length = 1; length <= 70; ++length) {
        std::set<std::uint64_t> hashes{hashOf(std::string(length, 'x'))};
        for (std::size_t bit = 0; bit < length * 8; ++bit) {
            std::string changed(length, 'x');
            changed[bit / 8] = static_cast<char>(changed[bit / 8] ^ (1 << (bit % 8)));
            hashes.insert(hashOf(changed));
        }
        EXPECT_EQ(hashes.size(), length * 8 + 1) << length;
    }
}

TEST(Hash, DependsOnTheOrderOfWords) {
    EXPECT_NE(hashOf("first wosecond w"), hashOf("second wfirst wo"));
    EXPECT_NE(hashOf("first words are 1second words are "), hashOf("second words are first words are 1"));
}

TEST(Hash, TellsApartWordsThatWereChosenToChangePlaces) {
    // The words of one are those of the other, with a constant of the hash taken out.
    EXPECT_NE(hashOf("AAAAAAAABBBBBBBB"), hashOf("\x57\x05\x28\xe9\x00\xda\x35\x50\x54\x06\x2b\xea\x03\xd9\x36\x53"s));
}

/// Returns how many of the typeids share the fullest of as many places as there are typeids.
std::size_t mostInOnePlace(const std::vector<std::string>& typeIds, unsigned shift) {
    std::vector<std::size_t> counts(typeIds.size());
    for (const std::string& typeId : typeIds) {
        ++counts[static_cast<std::size_t>((hashOf(typeId) >> shift) % counts.size())];
    }
    return *std::max_element(counts.begin(), counts.end());
}

// Of 65,536 random numbers, 8 or 9 share the fullest place; that more than 20 do happens once in ten billion runs.
TEST(Hash, SpreadsCountedTypeIds) {
    std::vector<std::string> typeIds;
    typeIds.reserve(65'536);
    for (int i = 0; i < 65'536; ++i) {
        typeIds.push_back("ship.parameter:cabin" + std::to_string(i) + "-1.0.0");
    }
    EXPECT_LE(mostInOnePlace(typeIds, 0), 20U);
    EXPECT_LE(mostInOnePlace(typeIds, 16), 20U);
}

TEST(Hash, SpreadsTypeIdsOfTwoBytes) {
    std::vector<std::string> typeIds;
    typeIds.reserve(65'536);
    for (int i = 0; i < 65'536; ++i) {
        typeIds.push_back({static_cast<char>(i & 0xff), static_cast<char>(i >> 8)});
    }
    EXPECT_LE(mostInOnePlace(typeIds, 0), 20U);
    EXPECT_LE(mostInOnePlace(typeIds, 16), 20U);
}

#if defined(GTEST_HAS_DEATH_TEST) && !defined(OSTRA_EMULATED) // where a program can start itself again

TEST(Hash, IsAnotherInEachProcess) {
    const auto tell = [] {
        std::cerr << hashOf("text");
        std::exit(0);
    };
    const std::string style = GTEST_FLAG_GET(death_test_style);
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // which starts the program anew
    EXPECT_EXIT(tell(), testing::ExitedWithCode(0),
                testing::AllOf(testing::ContainsRegex("[0-9]+"), testing::Not(std::to_string(hashOf("text")))));
    GTEST_FLAG_SET(death_test_style, style);
}

#endif

} // namespace
