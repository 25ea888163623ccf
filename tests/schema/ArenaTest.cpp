#include "schema/Arena.h"

#include "AllocationWatch.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

namespace Ostra {

namespace {

TEST(Arena, HandsOutPiecesThatAreAlignedAndApart) {
    struct Piece {
        unsigned char* bytes;
        std::size_t size;
        unsigned char mark;
    };
    Arena arena;
    std::vector<Piece> pieces;
    for (std::size_t count = 0; count < 1000; ++count) {
        const std::size_t size = 1 + count * 7919 % 100;
        auto* const bytes = static_cast<unsigned char*>(arena.allocate(size));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % alignof(std::max_align_t), 0U);
        pieces.push_back({bytes, size, static_cast<unsigned char>(count)});
        std::memset(bytes, pieces.back().mark, size);
    }
    for (const auto& [bytes, size, mark] : pieces) {
        for (std::size_t byte = 0; byte < size; ++byte) {
            ASSERT_EQ(bytes[byte], mark);
        }
    }
}

TEST(Arena, AsksForMemoryWhenItsOwnIsUsedUp) {
    if (!AllocationWatch::works()) {
        GTEST_SKIP() << "requests for memory are not seen in this build";
    }
    for (const std::size_t first : {2048U, 2047U, 2033U, 1U}) {
        const AllocationWatch watch;
        Arena arena;
        arena.allocate(first);
        EXPECT_EQ(watch.requests(), 0) << first;
        arena.allocate(2048);
        EXPECT_EQ(watch.requests(), 1) << first;
    }
}

TEST(Arena, AsksSeldomerTheMoreItHas) {
    if (!AllocationWatch::works()) {
        GTEST_SKIP() << "requests for memory are not seen in this build";
    }
    const AllocationWatch watch;
    Arena arena;
    for (int count = 0; count < 100'000; ++count) {
        arena.allocate(32);
    }
    EXPECT_LT(watch.requests(), 20);
    EXPECT_LT(watch.bytes(), 3U * 32 * 100'000);
}

TEST(Arena, LeaksNothingWhenMemoryEnds) {
    expectNoLeakWhenMemoryEnds([] {
        Arena arena;
        for (int count = 0; count < 10; ++count) {
            arena.allocate(3000);
        }
    });
}

TEST(FromArena, ServesContainers) {
    Arena arena;
    std::vector<int, FromArena<int>> numbers{FromArena<int>(arena)};
    for (int number = 0; number < 10'000; ++number) {
        numbers.push_back(number);
    }
    for (int number = 0; number < 10'000; ++number) {
        ASSERT_EQ(numbers[static_cast<std::size_t>(number)], number);
    }
}

TEST(FromArena, RefusesWhatNoMemoryHolds) {
    Arena arena;
    FromArena<std::uint64_t> allocator(arena);
    EXPECT_THROW(allocator.allocate(std::numeric_limits<std::size_t>::max() / 8 + 1), std::bad_alloc);
}

} // namespace

} // namespace Ostra
