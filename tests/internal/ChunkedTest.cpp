#include "engine/Chunked.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace Parameters::Internal {

namespace {

Chunked<std::size_t> numbersTo(std::size_t count) {
    Chunked<std::size_t> numbers;
    for (std::size_t number = 0; number < count; ++number) {
        numbers.reserve(number + 1);
        numbers.add(number);
    }
    return numbers;
}

TEST(Chunked, KeepsElementsInTheirPlaces) {
    for (const std::size_t count : {0U, 1U, 127U, 128U, 129U, 1000U}) {
        const auto numbers = numbersTo(count);
        ASSERT_EQ(numbers.size(), count);
        for (std::size_t place = 0; place < count; ++place) {
            EXPECT_EQ(numbers[place], place);
        }
    }
}

TEST(Chunked, DoesNotMoveWhatItHas) {
    Chunked<std::size_t> numbers = numbersTo(1);
    const std::size_t* const first = &numbers[0];
    for (std::size_t number = 1; number < 10'000; ++number) {
        numbers.reserve(number + 1);
        numbers.add(number);
    }
    EXPECT_EQ(&numbers[0], first);
}

TEST(Chunked, MakesRoomForMany) {
    Chunked<std::size_t> numbers;
    numbers.reserve(1000);
    for (std::size_t number = 0; number < 1000; ++number) {
        numbers.add(number);
    }
    EXPECT_EQ(numbers[999], 999U);
}

TEST(Chunked, CopiesAreApart) {
    Chunked<std::size_t> numbers = numbersTo(200);
    Chunked<std::size_t> copy(numbers);
    copy[150] = 1;
    copy.reserve(201);
    copy.add(2);
    EXPECT_EQ(numbers[150], 150U);
    EXPECT_EQ(numbers.size(), 200U);
    EXPECT_EQ(copy[150], 1U);
    EXPECT_EQ(copy[199], 199U);
    EXPECT_EQ(copy[200], 2U);
}

} // namespace

} // namespace Parameters::Internal
