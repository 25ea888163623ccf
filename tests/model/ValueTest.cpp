#include "Values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using Values::Sample;
using Values::typeIdOf;

/// What holds for every value class.
template <class Value>
class EveryValue : public testing::Test {
protected:
    static Value valueOf(const std::string& typeId, const std::string& content = "1") {
        return Sample<Value>::make(typeId, content);
    }
    static void expectThat(const Value& value, const std::string& typeId, const std::string& content = "1") {
        EXPECT_EQ(typeIdOf(value), typeId);
        EXPECT_EQ(Sample<Value>::contentOf(value), content);
    }
    static void expectEqual(const Value& value, const Value& other) {
        EXPECT_TRUE(value == other);
        EXPECT_FALSE(value != other);
        EXPECT_FALSE(value < other);
        EXPECT_FALSE(value > other);
    }
    static void expectOrder(const std::string& lesser, const std::string& greater) {
        const Value a = valueOf(lesser, "2");
        const Value b = valueOf(greater, "1");
        EXPECT_TRUE(a < b);
        EXPECT_TRUE(b > a);
        EXPECT_TRUE(a != b);
        EXPECT_TRUE(b != a);
        EXPECT_FALSE(b < a);
        EXPECT_FALSE(a > b);
        EXPECT_FALSE(a == b);
        EXPECT_FALSE(b == a);
    }
};

TYPED_TEST_SUITE(EveryValue, Values::AllValues);

TYPED_TEST(EveryValue, IsCopiedAndMovedWithoutFail) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<TypeParam>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<TypeParam>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<TypeParam>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<TypeParam>);
    EXPECT_TRUE(std::is_nothrow_destructible_v<TypeParam>);
}

TYPED_TEST(EveryValue, IsNeverEmpty) {
    // A string range made of nothing is the default range.
    EXPECT_EQ(std::is_default_constructible_v<TypeParam>, (std::is_same_v<TypeParam, Parameters::StringRange>));
}

TYPED_TEST(EveryValue, IsMadeOnlyOnPurpose) { EXPECT_FALSE((std::is_convertible_v<std::string, TypeParam>)); }

TYPED_TEST(EveryValue, HasNoVirtualOperations) { EXPECT_FALSE(std::is_polymorphic_v<TypeParam>); }

TYPED_TEST(EveryValue, IsComparedWithoutFail) {
    const TypeParam value = this->valueOf("a");
    EXPECT_TRUE(noexcept(value == value));
    EXPECT_TRUE(noexcept(value != value));
    EXPECT_TRUE(noexcept(value < value));
    EXPECT_TRUE(noexcept(value > value));
}

TYPED_TEST(EveryValue, AnswersWhatItWasMadeFrom) {
    const std::string typeId("plant:\"a\"\0\xff", 11);
    this->expectThat(this->valueOf(typeId, "1"), typeId, "1");
    this->expectThat(this->valueOf(typeId, "2"), typeId, "2");
}

TYPED_TEST(EveryValue, CopyAnswersAfterTheOriginalIsGone) {
    auto original = std::make_unique<TypeParam>(this->valueOf("a"));
    const TypeParam copy(*original);
    original.reset();
    this->expectThat(copy, "a");
}

TYPED_TEST(EveryValue, StillAnswersAfterBeingMovedFrom) {
    TypeParam value = this->valueOf("a");
    const TypeParam moved(std::move(value));
    this->expectThat(value, "a");
    this->expectThat(moved, "a");
}

TYPED_TEST(EveryValue, StillAnswersAfterBeingMovedByAssignment) {
    TypeParam value = this->valueOf("a");
    TypeParam target = this->valueOf("b");
    target = std::move(value);
    this->expectThat(value, "a");
    this->expectThat(target, "a");
}

TYPED_TEST(EveryValue, StillComparesAfterBeingMovedFrom) {
    TypeParam value = this->valueOf("a");
    const TypeParam moved(std::move(value));
    EXPECT_TRUE(value == moved);
}

TYPED_TEST(EveryValue, AssignmentLeavesOtherCopiesAlone) {
    TypeParam value = this->valueOf("a");
    const TypeParam copy = value;
    value = this->valueOf("b");
    this->expectThat(value, "b");
    this->expectThat(copy, "a");
}

TYPED_TEST(EveryValue, AssignmentTakesTheContentOfAnEqualValue) {
    TypeParam value = this->valueOf("a");
    value = this->valueOf("a", "2");
    this->expectThat(value, "a", "2");
}

TYPED_TEST(EveryValue, SurvivesAssignmentToItself) {
    TypeParam value = this->valueOf("a");
    const TypeParam& same = value;
    value = same;
    this->expectThat(value, "a");
}

TYPED_TEST(EveryValue, SurvivesBeingSwapped) {
    TypeParam a = this->valueOf("a");
    TypeParam b = this->valueOf("b");
    std::swap(a, b);
    this->expectThat(a, "b");
    this->expectThat(b, "a");
}

TYPED_TEST(EveryValue, IsEqualToItsCopy) {
    const TypeParam value = this->valueOf("a");
    const TypeParam copy = value;
    this->expectEqual(value, copy);
}

TYPED_TEST(EveryValue, IsEqualToAnotherOfItsTypeIdWhateverItsContent) {
    this->expectEqual(this->valueOf("a", "1"), this->valueOf("a", "2"));
    this->expectEqual(this->valueOf("a", "2"), this->valueOf("a", "1"));
}

TYPED_TEST(EveryValue, ComparesByTheBytesOfItsTypeId) { this->expectOrder("a", "b"); }

TYPED_TEST(EveryValue, ComparesLessThanALongerTypeIdThatBeginsWithItsOwn) { this->expectOrder("a", "ab"); }

TYPED_TEST(EveryValue, ComparesCapitalsLessThanSmallLetters) { this->expectOrder("B", "a"); }

TYPED_TEST(EveryValue, ComparesBytesAsUnsigned) {
    this->expectOrder("z", "\xc3\xa4");
    this->expectOrder("\x7f", "\x80");
    this->expectOrder("\xfe", "\xff");
}

TYPED_TEST(EveryValue, ComparesBytesBehindANul) {
    this->expectOrder(std::string("a\0a", 3), std::string("a\0b", 3));
    this->expectOrder("a", std::string("a\0", 2));
}

TYPED_TEST(EveryValue, ComparesTheEmptyTypeIdAsTheLeast) { this->expectOrder("", std::string(1, '\0')); }

TYPED_TEST(EveryValue, ComparesFirstBytesBeforeLengths) { this->expectOrder("ab", "b"); }

} // namespace
