#include "schema/Spelling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace Ostra {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Distance, IsNoneBetweenEqualTexts) {
    EXPECT_EQ(distance("", "", 3), 0U);
    EXPECT_EQ(distance("name", "name", 0), 0U);
}

TEST(Distance, TakesUpperAndLowerCaseForTheSame) {
    EXPECT_EQ(distance("readOnly", "READonly", 3), 0U);
    EXPECT_EQ(distance("abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", 3), 0U);
}

TEST(Distance, TellsOtherLettersApartWhateverTheirBits) {
    EXPECT_EQ(distance("[", "{", 3), 1U);
    EXPECT_EQ(distance("@", "`", 3), 1U);
}

TEST(Distance, CountsWhatIsInsertedRemovedAndReplaced) {
    EXPECT_EQ(distance("name", "names", 3), 1U);
    EXPECT_EQ(distance("name", "nme", 3), 1U);
    EXPECT_EQ(distance("name", "nome", 3), 1U);
    EXPECT_EQ(distance("kitten", "sitting", 5), 3U);
    EXPECT_EQ(distance("", "abc", 5), 3U);
}

TEST(Distance, CountsNeighboursThatAreSwappedOnce) {
    EXPECT_EQ(distance("name", "nmae", 3), 1U);
    EXPECT_EQ(distance("nmae", "name", 3), 1U);
}

TEST(Distance, IsMoreThanTheLimitWhereThatDoesNotSuffice) {
    EXPECT_GT(distance("name", "value", 2), 2U);
    EXPECT_GT(distance("a", "abcdef", 2), 2U);
    EXPECT_GT(distance("a", "b", 0), 0U);
}

TEST(Distance, LooksAtTextsOfUpTo255DifferentBytes) {
    EXPECT_EQ(distance(std::string(255, 'a') + "x", std::string(255, 'a') + "y", 1), 1U);
    EXPECT_EQ(distance("x" + std::string(253, 'a') + "x", "y" + std::string(253, 'a') + "y", 2), 2U);
    EXPECT_GT(distance("x" + std::string(300, 'a') + "x", "y" + std::string(300, 'a') + "y", 2), 2U);
}

/// The same by the whole table of distances.
std::size_t plainDistance(std::string_view one, std::string_view other) {
    std::vector<std::vector<std::size_t>> table(one.size() + 1, std::vector<std::size_t>(other.size() + 1));
    for (std::size_t i = 0; i <= one.size(); ++i) {
        for (std::size_t j = 0; j <= other.size(); ++j) {
            if (i == 0 || j == 0) {
                table[i][j] = i + j;
                continue;
            }
            table[i][j] = std::min({table[i - 1][j] + 1, table[i][j - 1] + 1,
                                    table[i - 1][j - 1] + (one[i - 1] == other[j - 1] ? 0U : 1U)});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1]) {
                table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
            }
        }
    }
    return table[one.size()][other.size()];
}

TEST(Distance, IsThatOfTheWholeTableUpToTheLimit) {
    std::mt19937 random(5);
    const auto word = [&random] {
        std::string text;
        for (auto size = random() % 9; size > 0; --size) {
            text += static_cast<char>('a' + random() % 3);
        }
        return text;
    };
    for (int round = 0; round < 20'000; ++round) {
        const std::string one = word();
        const std::string other = word();
        const std::size_t limit = random() % 5;
        const std::size_t plain = plainDistance(one, other);
        const std::size_t found = distance(one, other, limit);
        if (plain <= limit) {
            ASSERT_EQ(found, plain) << one << ' ' << other << ' ' << limit;
        } else {
            ASSERT_GT(found, limit) << one << ' ' << other;
        }
    }
}

TEST(Nearest, IsTheCandidateThatIsMeant) {
    EXPECT_THAT(nearest("nmae", {"name", "group", "spec"}), ElementsAre("name"));
    EXPECT_THAT(nearest("readonly", {"name", "readOnly"}), ElementsAre("readOnly"));
}

TEST(Nearest, IsNoneWhereAllAreFar) {
    EXPECT_THAT(nearest("unit", {"name", "value"}), IsEmpty());
    EXPECT_THAT(nearest("unit", {}), IsEmpty());
}

TEST(Nearest, MayBeFartherFromLongerTexts) {
    EXPECT_THAT(nearest("abcdefg", {"abcdexx"}), IsEmpty());
    EXPECT_THAT(nearest("abcdefgh", {"abcdefxx"}), ElementsAre("abcdefxx"));
}

TEST(Nearest, IsTheNearestOfSeveral) {
    EXPECT_THAT(nearest("topBoundry", {"topBoundaries", "topBoundary", "toBoundary"}), ElementsAre("topBoundary"));
    EXPECT_THAT(nearest("size", {"sine", "Size"}), ElementsAre("Size"));
}

TEST(Nearest, AreAtMostThreeThatAreEquallyNear) {
    EXPECT_THAT(nearest("a1", {"a5", "a4", "a2", "a3", "a2"}), ElementsAre("a2", "a3", "a4"));
}

} // namespace

} // namespace Ostra
