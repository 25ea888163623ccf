#include "schema/Product.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace Ostra {

namespace {

struct Row {
    std::uint64_t a;
    std::uint64_t b;
    std::uint64_t low;
    std::uint64_t high;
};

constexpr std::uint64_t all = 0xFFFFFFFFFFFFFFFF;

class ProductOf : public testing::TestWithParam<Row> {};

TEST_P(ProductOf, IsTheSameInHalvesAndAtOnce) {
    const auto& [a, b, low, high] = GetParam();
    for (const auto& product : {multiplyHalves(a, b), multiply(a, b), multiplyHalves(b, a), multiply(b, a)}) {
        EXPECT_EQ(product.low, low);
        EXPECT_EQ(product.high, high);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Words, ProductOf,
    testing::Values(Row{0, all, 0, 0}, Row{1, all, all, 0}, Row{all, all, 1, all - 1},
                    Row{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFE00000001, 0}, Row{0x100000000, 0x100000000, 0, 1},
                    Row{0xFFFFFFFF00000000, 0x00000000FFFFFFFF, 0x0000000100000000, 0xFFFFFFFE},
                    Row{0x9E3779B97F4A7C15, 0xD6E8FEB86659FD93, 0x4D0A2BBE35B3010F, 0x84D25F74626AE15A}));

TEST(Product, OfRandomWordsIsTheSameInHalvesAndAtOnce) {
    constexpr std::uint64_t seed = 20'261'122;
    std::mt19937_64 random(seed);
    for (int count = 0; count < 100'000; ++count) {
        const std::uint64_t a = random() >> (random() % 64);
        const std::uint64_t b = random() >> (random() % 64);
        const Product halves = multiplyHalves(a, b);
        const Product whole = multiply(a, b);
        ASSERT_EQ(halves.low, whole.low) << a << " * " << b;
        ASSERT_EQ(halves.high, whole.high) << a << " * " << b;
    }
}

} // namespace

} // namespace Ostra
