#include "schema/Bytes.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using Ostra::isSame;
using Ostra::wordAt;

TEST(Bytes, AreReadAsWordsWhereverTheyLie) {
    const std::string bytes = "0123456789";
    for (std::size_t at = 0; at < 3; ++at) {
        std::uint64_t word = 0;
        bytes.copy(reinterpret_cast<char*>(&word), sizeof word, at);
        EXPECT_EQ(wordAt(bytes.data() + at), word);
    }
    EXPECT_EQ(wordAt<std::uint8_t>(bytes.data()), '0');
}

TEST(SameBytes, AreTheSameWhereverTheyLie) {
    const std::string bytes = "norvex.spec:discipline-1.0.0 and twenty more";
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        for (std::size_t offset = 0; offset < 9; ++offset) {
            const std::string moved = std::string(offset, '#') + bytes.substr(0, size) + "#";
            EXPECT_TRUE(isSame(std::string_view(moved).substr(offset, size), std::string_view(bytes).substr(0, size)))
                << size << " " << offset;
        }
    }
}

TEST(SameBytes, DifferWithAnyBitOfAnyByte) {
    for (std::size_t size = 1; size <= 40; ++size) {
        const std::string bytes(size, 'x');
        for (std::size_t at = 0; at < size; ++at) {
            for (int bit = 0; bit < 8; ++bit) {
                std::string changed = bytes;
                changed[at] = static_cast<char>(changed[at] ^ (1 << bit));
                EXPECT_FALSE(isSame(bytes, changed)) << size << " " << at << " " << bit;
            }
        }
    }
}

TEST(SameBytes, DifferInTheirNumber) {
    for (std::size_t size = 0; size < 40; ++size) {
        EXPECT_FALSE(isSame(std::string(size, '\0'), std::string(size + 1, '\0'))) << size;
        EXPECT_FALSE(isSame(std::string(size + 1, '\0'), std::string(size, '\0'))) << size;
    }
}

TEST(SameBytes, MayBeNone) {
    EXPECT_TRUE(isSame({}, ""));
    EXPECT_TRUE(isSame("", {}));
    EXPECT_FALSE(isSame({}, "x"));
}

} // namespace
