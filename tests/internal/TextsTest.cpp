#include "model/Texts.h"

#include "support/Messages.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace std::string_view_literals;
using Parameters::Internal::Texts;
using Support::messageOf;

static_assert(std::is_nothrow_default_constructible_v<Texts>);
static_assert(std::is_nothrow_copy_constructible_v<Texts>);
static_assert(std::is_nothrow_move_constructible_v<Texts>);
static_assert(std::is_nothrow_copy_assignable_v<Texts>);
static_assert(sizeof(Texts) == sizeof(void*));

std::vector<std::string_view> stringsOf(const Texts& texts) {
    std::vector<std::string_view> strings;
    for (const std::string_view string : texts) {
        strings.push_back(string);
    }
    return strings;
}

using Strings = std::vector<std::string_view>;

TEST(Texts, AreNoneAtFirst) {
    const Texts texts;
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(stringsOf(texts), Strings{});
}

TEST(Texts, OfNoStringsAreNone) {
    const Texts texts{std::span<const std::string_view>()};
    EXPECT_EQ(texts.size(), 0U);
    EXPECT_EQ(stringsOf(texts), Strings{});
}

TEST(Texts, KeepStringsInTheirOrder) {
    const Texts texts{"second", "first", "second"};
    EXPECT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0], "second");
    EXPECT_EQ(texts[1], "first");
    EXPECT_EQ(texts[2], "second");
    EXPECT_EQ(stringsOf(texts), (Strings{"second", "first", "second"}));
}

TEST(Texts, KeepEmptyStrings) {
    EXPECT_EQ(stringsOf(Texts{""}), Strings{""});
    EXPECT_EQ(stringsOf(Texts{"", "a", "", ""}), (Strings{"", "a", "", ""}));
    EXPECT_EQ(stringsOf(Texts{std::string_view()}), Strings{""});
}

TEST(Texts, KeepAllBytes) {
    const Texts texts{"a\0b"sv, "\0"sv, "\xff\"\\"sv, "\0\0"sv};
    EXPECT_EQ(stringsOf(texts), (Strings{"a\0b"sv, "\0"sv, "\xff\"\\"sv, "\0\0"sv}));
}

TEST(Texts, DoNotReferToWhatTheyWereMadeOf) {
    std::string string = "as it was";
    const Texts texts{string};
    string.assign("changed  ");
    EXPECT_EQ(texts[0], "as it was");
}

TEST(Texts, MayBeMany) {
    std::vector<std::string> strings;
    strings.reserve(10'000);
    for (int i = 0; i < 10'000; ++i) {
        strings.emplace_back(static_cast<std::size_t>(i % 50), static_cast<char>('a' + i % 26));
    }
    const std::vector<std::string_view> views(strings.begin(), strings.end());
    EXPECT_EQ(stringsOf(Texts(views)), views);
}

TEST(Texts, MayBeLong) {
    const std::string million(1'000'000, 'x');
    const Texts texts{"before", million, "behind"};
    EXPECT_EQ(texts[1], million);
    EXPECT_EQ(texts[2], "behind");
}

// The lengths are checked before a byte is read, so that these views need no memory behind them.
#if SIZE_MAX > UINT32_MAX
TEST(Texts, MayNotBeLongerThanTheirEndsCanSay) {
    const std::string_view tooLong("x", std::size_t{1} << 32);
    EXPECT_EQ(messageOf<std::length_error>([&] { Texts({tooLong}); }),
              "The texts of one object are longer than 4 GiB.");
}

TEST(Texts, MayNotBeLongerTogetherThanTheirEndsCanSay) {
    const std::string_view half("x", std::size_t{1} << 31);
    EXPECT_THROW(Texts({half, half}), std::length_error);
}

TEST(Texts, MayNotBeSoLongThatThereIsNoPlaceForTheLast) {
    const std::string_view most("x", (std::size_t{1} << 32) - 12);
    EXPECT_THROW(Texts({most}), std::length_error);
}

TEST(Texts, MayNotBeMoreThanTheirCountCanSay) {
    const std::string_view text("x");
    const std::span tooMany(&text, std::size_t{1} << 32);
    EXPECT_EQ(messageOf<std::length_error>([&] { Texts{tooMany}; }), "One object has more than 2^32 - 1 texts.");
}
#else
TEST(Texts, MayNotNeedMoreThanAllMemory) {
    const std::string_view most("x", SIZE_MAX);
    EXPECT_THROW(Texts({most}), std::length_error);
    EXPECT_THROW(Texts({most, ""}), std::length_error);
}
#endif

TEST(Texts, MayNotOverflowTheSumOfTheirLengths) {
    const std::string_view most("x", static_cast<std::size_t>(-1) / 2);
    EXPECT_THROW(Texts({most, most, most}), std::length_error);
}

TEST(Texts, ShareTheirBytesWithCopies) {
    const Texts texts{"shared"};
    const Texts copy(texts); // NOLINT(performance-unnecessary-copy-initialization): the copy is what is tested
    EXPECT_EQ(copy[0].data(), texts[0].data());
    EXPECT_EQ(copy[0], "shared");
}

TEST(Texts, OutliveTheOriginal) {
    auto texts = std::make_unique<Texts>(Texts{"a string that is long enough for memory of its own", "b"});
    const Texts copy(*texts);
    texts.reset();
    EXPECT_EQ(stringsOf(copy), (Strings{"a string that is long enough for memory of its own", "b"}));
}

TEST(Texts, StayWhereTheyAreWhenMoved) {
    Texts texts{"moved"};
    const char* const place = texts[0].data();
    const Texts target(std::move(texts));
    EXPECT_EQ(target[0].data(), place);
    EXPECT_EQ(texts.size(), 0U);
}

TEST(Texts, TakeOthersByAssignment) {
    Texts texts{"before", "it"};
    const Texts others{"after"};
    texts = others;
    EXPECT_EQ(stringsOf(texts), Strings{"after"});
    EXPECT_EQ(stringsOf(others), Strings{"after"});
}

TEST(Texts, TakeOthersByMoveAssignment) {
    Texts texts{"before"};
    Texts others{"after"};
    texts = std::move(others);
    EXPECT_EQ(stringsOf(texts), Strings{"after"});
}

TEST(Texts, AssignedToAnotherLeaveCopiesAlone) {
    Texts texts{"before"};
    const Texts copy(texts);
    texts = Texts{"after"};
    EXPECT_EQ(stringsOf(copy), Strings{"before"});
}

TEST(Texts, SurviveAssignmentToThemselves) {
    Texts texts{"same"};
    const Texts& same = texts;
    texts = same;
    EXPECT_EQ(stringsOf(texts), Strings{"same"});
}

TEST(Texts, SurviveMoveAssignmentToThemselves) {
    Texts texts{"same"};
    Texts& same = texts;
    texts = std::move(same);
    EXPECT_EQ(stringsOf(texts), Strings{"same"});
}

TEST(Texts, OfNoneAreCopiedAndAssigned) {
    const Texts none;
    Texts texts(none);
    EXPECT_EQ(texts.size(), 0U);
    texts = Texts{"a"};
    texts = none;
    EXPECT_EQ(texts.size(), 0U);
}

TEST(Texts, AreCopiedAndDroppedInSeveralThreads) {
    const Texts texts{"shared", "by all"};
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([copy = texts] {
            for (int again = 0; again < 1000; ++again) {
                const Texts another(copy);
                ASSERT_EQ(another[1], "by all");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(stringsOf(texts), (Strings{"shared", "by all"}));
}

// The thread sanitizer sees when one thread frees what another may still read.
TEST(Texts, AreFreedByTheLastThreadThatReadThem) {
    for (int round = 0; round < 100; ++round) {
        std::vector<std::thread> threads;
        threads.reserve(2);
        for (Texts texts{"shared", "until both are through"}; threads.size() < 2;) {
            threads.emplace_back([own = texts]() mutable {
                EXPECT_EQ(own[0], "shared");
                own = Texts();
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
}

} // namespace
