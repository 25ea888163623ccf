#include "engine/SortedTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;

using Parameters::Internal::PlacedText;
using Parameters::Internal::sortTexts;

/// Expects texts to be sorted as the standard library sorts them, each with its place.
void expectSorted(std::vector<std::string> texts) {
    std::vector<PlacedText> placed;
    for (const std::string& text : texts) {
        placed.push_back({text, static_cast<std::uint32_t>(placed.size())});
    }
    sortTexts(placed);
    for (const auto& [text, place] : placed) {
        ASSERT_EQ(text, texts[place]);
    }
    std::vector<std::string> sorted;
    for (const PlacedText& each : placed) {
        sorted.emplace_back(each.text);
    }
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(sorted, texts);
}

TEST(SortedTexts, AreInAscendingByteOrder) {
    expectSorted({});
    expectSorted({"b"});
    expectSorted({"b", "a", "", "ab", "aa"});
    expectSorted({"z", "\xFF", "\x7F", "\x80", "Z"});
}

TEST(SortedTexts, MayBeTheBeginningOfOthers) {
    expectSorted({"12345678", "1234567", "123456789", "1234567890123456", "", "12345678901234567", "1", "123456781"});
}

TEST(SortedTexts, MayHoldBytesZero) {
    expectSorted({"a\0"s, "a"s, "a\0\0"s, "a\1"s, "\0"s, ""s, "1234567\0"s, "1234567"s, "12345678\0"s, "1234567\0\0"s});
}

TEST(SortedTexts, MayBeEqual) { expectSorted({"b", "a", "b", "12345678", "12345678", "123456789", "123456789"}); }

TEST(SortedTexts, MayAgreeForLong) {
    const std::string same(1000, 'x');
    expectSorted(
        {same + "b", same + "a", same, same + std::string(1000, 'y') + "2", same + std::string(1000, 'y') + "1"});
}

TEST(SortedTexts, MayEachBeginWithTheOneBefore) {
    std::vector<std::string> texts;
    for (std::size_t size = 3000; size > 0; --size) {
        texts.emplace_back(size, 'x');
    }
    expectSorted(texts);
}

TEST(SortedTexts, AreSortedWhateverTheyAre) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::vector<std::string> texts(random() % 60);
        for (std::string& text : texts) {
            for (auto size = random() % 30; size > 0; --size) {
                text += static_cast<char>(random() % 3 == 0 ? random() % 256 : random() % 2);
            }
        }
        expectSorted(texts);
    }
}

} // namespace
