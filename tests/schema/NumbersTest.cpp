#include "schema/Numbers.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <locale>
#include <random>
#include <string>

namespace Ostra {

namespace {

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

std::string zeros(std::size_t count) { return std::string(count, '0'); }

struct DecimalComma final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

/// Gives C++ a decimal comma, and C too where such a locale is installed.
class DecimalCommaLocale {
public:
    DecimalCommaLocale() : before_(std::locale::global(std::locale(std::locale::classic(), new DecimalComma))) {
        for (const char* name : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8", "fr_FR"}) {
            if (std::setlocale(LC_NUMERIC, name) != nullptr) {
                break;
            }
        }
    }
    ~DecimalCommaLocale() {
        std::locale::global(before_);
        std::setlocale(LC_NUMERIC, "C");
    }
    DecimalCommaLocale(const DecimalCommaLocale&) = delete;
    DecimalCommaLocale& operator=(const DecimalCommaLocale&) = delete;

private:
    std::locale before_;
};

std::string randomDigits(std::mt19937_64& random, std::size_t maxCount) {
    std::string digits;
    for (std::uint64_t count = 1 + random() % maxCount; count > 0; --count) {
        digits += static_cast<char>('0' + random() % 10);
    }
    return digits;
}

std::string randomReal(std::mt19937_64& random) {
    std::string number = random() % 2 == 0 ? "-" : "";
    number += random() % 4 == 0 ? "0" : std::to_string(1 + random() % 9) + randomDigits(random, 20);
    number += "." + randomDigits(random, 25);
    if (random() % 2 == 0) {
        number += (random() % 2 == 0 ? "e-" : "E+") + std::to_string(random() % 345);
    }
    return number;
}

} // namespace

TEST(ToInteger, ReadsTheWholeRangeOfSigned64Bits) {
    EXPECT_EQ(toInteger<std::int64_t>("0"), 0);
    EXPECT_EQ(toInteger<std::int64_t>("-0"), 0);
    EXPECT_EQ(toInteger<std::int64_t>("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(toInteger<std::int64_t>("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
}

TEST(ToInteger, ReadsTheWholeRangeOfUnsigned64Bits) {
    EXPECT_EQ(toInteger<std::uint64_t>("9223372036854775808"), 9223372036854775808U);
    EXPECT_EQ(toInteger<std::uint64_t>("18446744073709551615"), std::numeric_limits<std::uint64_t>::max());
}

TEST(ToInteger, IsNothingOneBeyondTheRange) {
    EXPECT_EQ(toInteger<std::int64_t>("9223372036854775808"), std::nullopt);
    EXPECT_EQ(toInteger<std::int64_t>("-9223372036854775809"), std::nullopt);
    EXPECT_EQ(toInteger<std::uint64_t>("18446744073709551616"), std::nullopt);
    EXPECT_EQ(toInteger<std::uint64_t>("-1"), std::nullopt);
}

TEST(ToInteger, IsNothingForAFractionOrAnExponent) {
    EXPECT_EQ(toInteger<std::int64_t>("1.0"), std::nullopt);
    EXPECT_EQ(toInteger<std::int64_t>("1e0"), std::nullopt);
    EXPECT_EQ(toInteger<std::int64_t>("1E2"), std::nullopt);
}

struct Nearest {
    const char* name;
    std::string number;
    double expected;
};

class ToDoubleOf : public testing::TestWithParam<Nearest> {};

TEST_P(ToDoubleOf, IsTheNearestDouble) {
    const std::optional<double> nearest = toDouble(GetParam().number);
    ASSERT_TRUE(nearest.has_value());
    EXPECT_EQ(bitsOf(*nearest), bitsOf(GetParam().expected)) << *nearest << " for " << GetParam().expected;
}

const Nearest nearestDoubles[] = {
    {"Zero", "0.0", 0.0},
    {"NegativeZero", "-0.0", -0.0},
    {"Tenth", "0.1", 0.1},
    {"CapitalExponentWithPlus", "1.5E+2", 150.0},
    {"Max", "1.7976931348623157e308", DBL_MAX},
    {"NegativeMax", "-1.7976931348623157e308", -DBL_MAX},
    {"BelowHalfAStepBeyondMax", "1.797693134862315807e308", DBL_MAX},
    {"PowerOfTenNearMax", "1e308", 1e308},
    {"SmallestNormal", "2.2250738585072014e-308", DBL_MIN},
    {"LargestDenormal", "2.225073858507201e-308", 0x0.fffffffffffffp-1022},
    {"SmallestDenormal", "4.9406564584124654e-324", 0x1p-1074},
    {"SmallestDenormalInOneDigit", "5e-324", 0x1p-1074},
    {"JustAboveHalfTheSmallestDenormal", "2.4703282292062328e-324", 0x1p-1074},
    {"JustBelowHalfTheSmallestDenormal", "2.4703282292062327e-324", 0.0},
    {"BelowTheSmallestDenormal", "5e-325", 0.0},
    {"FarBelowTheSmallestDenormal", "1e-400", 0.0},
    {"NegativeFarBelowTheSmallestDenormal", "-1e-400", -0.0},
    {"ExponentBeyond32Bits", "1e-99999999999", 0.0},
    {"LeastExponentOf64Bits", "0.1e-9223372036854775808", 0.0},
    {"ExponentBeyond64Bits", "-1e-99999999999999999999", -0.0},
    {"ZeroWithAHugeExponent", "0e99999999999999999999", 0.0},
    {"IntegerBetweenTwoDoublesGoesToTheEvenOne", "9007199254740993", 9007199254740992.0},
    {"IntegerJustAboveTheMiddleOfTwoDoubles", "9007199254740993.0000000000000000000000000000001", 9007199254740994.0},
    {"IntegerBeyond64Bits", "18446744073709551616", 0x1p64},
    {"LongInteger", "1" + zeros(300), 1e300},
    {"ExponentThatCancelsAFraction", "0." + zeros(400) + "1e401", 1.0},
    {"ExponentThatCancelsAnInteger", "1" + zeros(400) + "e-400", 1.0},
    {"LongFractionOfZeros", "0." + zeros(100'000) + "1", 0.0},
    {"LongFractionOfZerosWithItsExponent", "0." + zeros(99'999) + "1e100000", 1.0},
    {"LongFractionOfNines", "0." + std::string(100'000, '9'), 1.0},
    {"FractionOfZerosThatItsExponentDoesNotOutweigh", "0." + zeros(700) + "1e+300", 0.0},
    {"LongIntegerWithItsExponent", "1" + zeros(99'999) + "e-99999", 1.0},
    {"LongTailThatBreaksATie", "9007199254740993." + zeros(100'000) + "1", 9007199254740994.0},
};

INSTANTIATE_TEST_SUITE_P(Numbers, ToDoubleOf, testing::ValuesIn(nearestDoubles), Support::nameOfRow);

struct TooBig {
    const char* name;
    std::string number;
};

class ToDoubleBeyondMax : public testing::TestWithParam<TooBig> {};

TEST_P(ToDoubleBeyondMax, IsNothing) { EXPECT_EQ(toDouble(GetParam().number), std::nullopt); }

const TooBig tooBigNumbers[] = {
    {"HalfAStepBeyondMax", "1.797693134862315808e308"},
    {"PowerOfTen", "1e309"},
    {"NegativePowerOfTen", "-1e309"},
    {"TwoDigits", "10e308"},
    {"GreatestExponentOf64Bits", "10e9223372036854775807"},
    {"ExponentBeyond64Bits", "1e99999999999999999999"},
    {"SmallSignificandWithABigExponent", "0.0000001e400"},
    {"LongInteger", "1" + zeros(100'000)},
    {"IntegerThatItsExponentDoesNotOutweigh", "1" + zeros(800) + "e-400"},
    {"FractionOfZerosOutweighedByItsExponent", "0." + zeros(400) + "1e800"},
    {"FractionOfZerosOutweighedByItsSignedExponent", "0." + zeros(400) + "1e+800"},
};

INSTANTIATE_TEST_SUITE_P(Numbers, ToDoubleBeyondMax, testing::ValuesIn(tooBigNumbers), Support::nameOfRow);

TEST(ToDouble, AgreesWithTheCLibraryOnRandomNumbers) {
    constexpr std::uint64_t seed = 20'260'701;
    std::mt19937_64 random(seed);
    for (int count = 0; count < 100'000; ++count) {
        const std::string number = randomReal(random);
        const double expected = std::strtod(number.c_str(), nullptr);
        const std::optional<double> nearest = toDouble(number);
        ASSERT_EQ(nearest.has_value(), std::isfinite(expected)) << number << " (seed " << seed << ")";
        ASSERT_EQ(bitsOf(nearest.value_or(expected)), bitsOf(expected)) << number << " (seed " << seed << ")";
    }
}

TEST(ToDouble, HeedsNoLocale) {
    const DecimalCommaLocale locale;
    EXPECT_EQ(toDouble("1.5"), 1.5);
    EXPECT_EQ(toDouble("-1.5e-400"), -0.0);
}

} // namespace Ostra
