#include "engine/SortedOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace {

using Parameters::Internal::SortedOrder;
using Order = SortedOrder::Order;

/// A growing sequence of strings with its order.
class Sequence {
public:
    void add(const std::string& value) {
        values_.push_back(value);
        order_.grown();
    }
    const Order& order() const {
        return order_.of(static_cast<std::uint32_t>(values_.size()), [this](std::uint32_t place) {
            ++looks_;
            return std::string_view(values_[place]);
        });
    }
    Order expectedOrder() const {
        Order order(values_.size());
        std::iota(order.begin(), order.end(), 0U);
        std::sort(order.begin(), order.end(),
                  [this](std::uint32_t a, std::uint32_t b) { return values_[a] < values_[b]; });
        return order;
    }
    /// Returns how often values were looked at since the last call.
    std::size_t looks() const { return std::exchange(looks_, 0); }

private:
    std::vector<std::string> values_;
    SortedOrder order_;
    mutable std::size_t looks_ = 0;
};

Sequence sequenceOf(const std::vector<std::string>& values) {
    Sequence sequence;
    for (const std::string& value : values) {
        sequence.add(value);
    }
    return sequence;
}

TEST(SortedOrder, OfNothingIsEmpty) { EXPECT_EQ(Sequence().order(), Order{}); }

TEST(SortedOrder, OfOneIsItsPlace) { EXPECT_EQ(sequenceOf({"a"}).order(), Order{0}); }

TEST(SortedOrder, IsAscending) { EXPECT_EQ(sequenceOf({"c", "a", "d", "b"}).order(), (Order{1, 3, 0, 2})); }

TEST(SortedOrder, IsKeptUntilTheSequenceGrows) {
    const Sequence sequence = sequenceOf({"b", "a"});
    const Order* const first = &sequence.order();
    sequence.looks();
    EXPECT_EQ(&sequence.order(), first);
    EXPECT_EQ(sequence.looks(), 0U);
}

TEST(SortedOrder, FollowsTheSequence) {
    Sequence sequence = sequenceOf({"c", "a"});
    EXPECT_EQ(sequence.order(), (Order{1, 0}));
    sequence.add("b");
    EXPECT_EQ(sequence.order(), (Order{1, 2, 0}));
    sequence.add("0");
    sequence.add("z");
    EXPECT_EQ(sequence.order(), (Order{3, 1, 2, 0, 4}));
}

TEST(SortedOrder, IsFoundForWhatGrewFromNothing) {
    Sequence sequence;
    EXPECT_EQ(sequence.order(), Order{});
    sequence.add("b");
    sequence.add("a");
    EXPECT_EQ(sequence.order(), (Order{1, 0}));
}

TEST(SortedOrder, ComparesOldValuesOnlyWithNewOnes) {
    Sequence sequence;
    for (int i = 0; i < 1000; ++i) {
        sequence.add("x" + std::to_string(i * 617 % 1000));
    }
    sequence.order();
    sequence.add("x5555");
    sequence.looks();
    EXPECT_EQ(sequence.order(), sequence.expectedOrder());
    EXPECT_LE(sequence.looks(), 2100U); // comparing all with one another takes twenty thousand
}

TEST(SortedOrder, OfACopyIsTheSameWithoutSorting) {
    const Sequence sequence = sequenceOf({"c", "a", "b"});
    sequence.order();
    Sequence copy(sequence);
    copy.add("d");
    copy.looks();
    EXPECT_EQ(copy.order(), (Order{1, 2, 0, 3}));
    EXPECT_LE(copy.looks(), 7U);
}

TEST(SortedOrder, OfACopyGoesItsOwnWay) {
    Sequence sequence = sequenceOf({"c", "a"});
    sequence.order();
    Sequence copy(sequence);
    copy.add("b");
    sequence.add("0");
    EXPECT_EQ(copy.order(), (Order{1, 2, 0}));
    EXPECT_EQ(sequence.order(), (Order{2, 1, 0}));
}

TEST(SortedOrder, OfACopyIsFoundWhenNobodyAskedTheOriginalSinceItGrew) {
    Sequence sequence = sequenceOf({"c", "a"});
    sequence.order();
    sequence.add("b");
    const Sequence copy(sequence);
    EXPECT_EQ(copy.order(), (Order{1, 2, 0}));
    EXPECT_EQ(sequence.order(), (Order{1, 2, 0}));
}

TEST(SortedOrder, OfACopyIsFoundWhenNobodyAskedTheOriginalAtAll) {
    const Sequence copy(sequenceOf({"c", "a"}));
    EXPECT_EQ(copy.order(), (Order{1, 0}));
}

class RandomGrowth : public testing::TestWithParam<unsigned> {};

TEST_P(RandomGrowth, KeepsTheOrderOfASort) {
    std::mt19937 random(GetParam());
    std::vector<std::string> values;
    values.reserve(2000);
    for (int i = 0; i < 2000; ++i) {
        values.push_back(std::to_string(i));
    }
    std::shuffle(values.begin(), values.end(), random);
    Sequence sequence;
    for (const std::string& value : values) {
        sequence.add(value);
        if (random() % 50 == 0) {
            ASSERT_EQ(sequence.order(), sequence.expectedOrder());
        }
        if (random() % 200 == 0) {
            sequence.order();
            const Sequence copy(sequence);
            ASSERT_EQ(copy.order(), copy.expectedOrder());
        }
    }
    EXPECT_EQ(sequence.order(), sequence.expectedOrder());
}

INSTANTIATE_TEST_SUITE_P(SortedOrder, RandomGrowth, testing::Values(1, 2, 3, 4, 5),
                         [](const auto& test) { return "Seed" + std::to_string(test.param); });

TEST(SortedOrder, IsOneAndTheSameForThreadsThatAskAtOnce) {
    std::vector<std::string> values(1000);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = std::to_string(i * 617 % 1000);
    }
    SortedOrder order;
    const auto textAt = [&](std::uint32_t place) { return std::string_view(values[place]); };
    std::vector<const Order*> answers(2);
    std::vector<std::thread> threads;
    threads.reserve(answers.size());
    for (const Order*& answer : answers) {
        threads.emplace_back([&] { answer = &order.of(1000, textAt); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(answers[0], answers[1]);
    EXPECT_TRUE(std::is_sorted(answers[0]->begin(), answers[0]->end(),
                               [&](std::uint32_t a, std::uint32_t b) { return values[a] < values[b]; }));
    EXPECT_EQ(answers[0]->size(), 1000U);
}

TEST(SortedOrder, MayBeCopiedWhileAnotherThreadAsks) {
    const std::vector<std::string> values{"2", "0", "1"};
    const SortedOrder order;
    const auto textAt = [&](std::uint32_t place) { return std::string_view(values[place]); };
    std::thread asking([&] { EXPECT_EQ(order.of(3, textAt), (Order{1, 2, 0})); });
    const SortedOrder copy(order);
    EXPECT_EQ(copy.of(3, textAt), (Order{1, 2, 0}));
    asking.join();
}

} // namespace
