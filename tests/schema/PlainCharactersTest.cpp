#include "schema/PlainCharacters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra::PlainCharacters {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t longest = 50; // several steps of each width, and what is left behind them

TEST(PlainCharacters, AreAllButMarksAndControlCharacters) {
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        const std::string text(longest, character);
        const bool isOther = byte < 0x20 || character == '"' || character == '\\';
        EXPECT_EQ(isPlain(character), !isOther) << byte;
        EXPECT_EQ(endOf(text.data(), text.data() + text.size()) == text.data(), isOther) << byte;
    }
}

TEST(PlainCharacters, EndAtTheFirstOther) {
    for (std::size_t size = 0; size <= longest; ++size) {
        std::string text(size, '~');
        const char* const begin = text.data();
        EXPECT_EQ(endOf(begin, begin + size), begin + size);
        for (std::size_t place = size; place-- > 0;) { // all that lies behind is no longer plain either
            text[place] = "\x1F\"\\"sv[place % 3];
            EXPECT_EQ(endOf(begin, begin + size) - begin, static_cast<std::ptrdiff_t>(place)) << size;
        }
    }
}

/// Copies between two other characters, which neither count nor change; returns what copyAll does.
bool copies(const std::string& text) {
    std::vector<char> from(text.size() + 2, '"');
    std::copy(text.begin(), text.end(), from.begin() + 1);
    std::vector<char> to(text.size() + 2, '!');
    const bool arePlain = copyAll({from.data() + 1, text.size()}, to.data() + 1);
    EXPECT_EQ(std::string_view(to.data(), to.size()), "!" + text + "!");
    return arePlain;
}

TEST(PlainCharacters, AreCopiedWithOthersAndNothingMore) {
    for (std::size_t size = 0; size <= longest; ++size) {
        std::string text;
        for (std::size_t place = 0; place < size; ++place) {
            text += static_cast<char>('A' + place);
        }
        std::replace(text.begin(), text.end(), '\\', '~');
        EXPECT_TRUE(copies(text)) << size;
        for (std::size_t place = 0; place < size; ++place) {
            std::string other = text;
            other[place] = "\x1F\"\\"sv[place % 3];
            EXPECT_FALSE(copies(other)) << size << ", " << place;
        }
    }
}

} // namespace

} // namespace Ostra::PlainCharacters
