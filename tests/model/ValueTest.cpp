#include "support/KindTypes.h"

#include <parameters/Kinds.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>

namespace OwnSwap {

void swap() = delete; // hides that of the standard library, so that only one of the class is found

template <class Value, class = void>
struct IsThere : std::false_type {};
template <class Value>
struct IsThere<Value, std::void_t<decltype(swap(std::declval<Value&>(), std::declval<Value&>()))>> : std::true_type {};

} // namespace OwnSwap

namespace {

/// The cores, as kinds of their own as far as values go.
struct SpecCores {
    using Value = Parameters::SpecCore;
    static constexpr const char* name = "SpecCore";
    static std::string typeIdOf(const Value& core) { return core.getTypeId(); }
};
struct ParameterCores {
    using Value = Parameters::ParameterCore;
    static constexpr const char* name = "ParameterCore";
    static std::string typeIdOf(const Value& core) { return core.getTypeId(); }
};

template <class... Ks>
testing::Types<SpecCores, ParameterCores, Ks...> withCores(Parameters::Kinds::List<Ks...>);
using AllValues = decltype(withCores(Parameters::Kinds::All{}));

struct NameOfValue {
    template <class Kind>
    static std::string GetName(int place) { // NOLINT(readability-identifier-naming): GoogleTest calls it
        if constexpr (requires { Kind::name; }) {
            return Kind::name;
        } else {
            return Support::NameOfKind::GetName<Kind>(place);
        }
    }
};

} // namespace

template <>
struct Support::Sample<SpecCores> {
    static Parameters::SpecCore make(const std::string& typeId, const std::string& content) {
        return {typeId, content};
    }
    static std::string contentOf(const Parameters::SpecCore& core) { return core.getName(); }
};

template <>
struct Support::Sample<ParameterCores> {
    static Parameters::ParameterCore make(const std::string& typeId, const std::string& content) {
        return {typeId, "Name", content, "", false};
    }
    static std::string contentOf(const Parameters::ParameterCore& core) { return core.getDescription(); }
};

namespace {

/// What holds for every value class.
template <class Kind>
class EveryValue : public testing::Test {
protected:
    using Value = typename Kind::Value;

    static Value valueOf(const std::string& typeId, const std::string& content = "1") {
        return Support::Sample<Kind>::make(typeId, content);
    }
    static void expectThat(const Value& value, const std::string& typeId, const std::string& content = "1") {
        EXPECT_EQ(Kind::typeIdOf(value), typeId);
        EXPECT_EQ(Support::Sample<Kind>::contentOf(value), content);
        EXPECT_EQ(Support::describe(value), Support::describe(valueOf(typeId, content)));
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

TYPED_TEST_SUITE(EveryValue, AllValues, NameOfValue);

TYPED_TEST(EveryValue, IsCopiedAndMovedWithoutFail) {
    using Object = typename TypeParam::Value;
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<Object>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<Object>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<Object>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<Object>);
    EXPECT_TRUE(std::is_nothrow_destructible_v<Object>);
}

TYPED_TEST(EveryValue, IsNeverEmpty) {
    using Object = typename TypeParam::Value;
    // A string range made of nothing is the default range.
    EXPECT_EQ(std::is_default_constructible_v<Object>, (std::is_same_v<Object, Parameters::StringRange>));
}

TYPED_TEST(EveryValue, IsMadeOnlyOnPurpose) {
    EXPECT_FALSE((std::is_convertible_v<std::string, typename TypeParam::Value>));
}

TYPED_TEST(EveryValue, HasNoVirtualOperations) { EXPECT_FALSE(std::is_polymorphic_v<typename TypeParam::Value>); }

TYPED_TEST(EveryValue, IsComparedWithoutFail) {
    using Object = typename TypeParam::Value;
    const Object value = this->valueOf("a");
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
    using Object = typename TypeParam::Value;
    auto original = std::make_unique<Object>(this->valueOf("a"));
    const Object copy(*original);
    original.reset();
    this->expectThat(copy, "a");
}

TYPED_TEST(EveryValue, StillAnswersAfterBeingMovedFrom) {
    using Object = typename TypeParam::Value;
    Object value = this->valueOf("a");
    const Object moved(std::move(value));
    this->expectThat(value, "a");
    this->expectThat(moved, "a");
}

TYPED_TEST(EveryValue, StillAnswersAfterBeingMovedByAssignment) {
    using Object = typename TypeParam::Value;
    Object value = this->valueOf("a");
    Object target = this->valueOf("b");
    target = std::move(value);
    this->expectThat(value, "a");
    this->expectThat(target, "a");
}

TYPED_TEST(EveryValue, StillComparesAfterBeingMovedFrom) {
    using Object = typename TypeParam::Value;
    Object value = this->valueOf("a");
    const Object moved(std::move(value));
    EXPECT_TRUE(value == moved);
}

TYPED_TEST(EveryValue, AssignmentLeavesOtherCopiesAlone) {
    using Object = typename TypeParam::Value;
    Object value = this->valueOf("a");
    const Object copy = value;
    value = this->valueOf("b");
    this->expectThat(value, "b");
    this->expectThat(copy, "a");
}

TYPED_TEST(EveryValue, AssignmentTakesTheContentOfAnEqualValue) {
    using Object = typename TypeParam::Value;
    Object value = this->valueOf("a");
    value = this->valueOf("a", "2");
    this->expectThat(value, "a", "2");
}

TYPED_TEST(EveryValue, SurvivesAssignmentToItself) {
    using Object = typename TypeParam::Value;
    Object value = this->valueOf("a");
    const Object& same = value;
    value = same;
    this->expectThat(value, "a");
}

TYPED_TEST(EveryValue, SurvivesBeingSwapped) {
    using Object = typename TypeParam::Value;
    Object a = this->valueOf("a");
    Object b = this->valueOf("b");
    std::swap(a, b);
    this->expectThat(a, "b");
    this->expectThat(b, "a");
}

TYPED_TEST(EveryValue, IsSwappedWithoutACopy) {
    using Object = typename TypeParam::Value;
    using std::swap;
    Object a = this->valueOf("a");
    Object b = this->valueOf("b");
    swap(a, b);
    this->expectThat(a, "b");
    this->expectThat(b, "a");
    EXPECT_TRUE(OwnSwap::IsThere<Object>::value); // std::swap would copy
}

TYPED_TEST(EveryValue, IsHashedByItsTypeIdAlone) {
    using Object = typename TypeParam::Value;
    const std::hash<Object> hash;
    EXPECT_EQ(hash(this->valueOf("a", "1")), hash(this->valueOf("a", "2")));
    EXPECT_NE(hash(this->valueOf("a")), hash(this->valueOf("b")));
    const std::unordered_set<Object> set{this->valueOf("a", "1"), this->valueOf("b"), this->valueOf("a", "2")};
    EXPECT_EQ(set.size(), 2U);
    EXPECT_EQ(set.count(this->valueOf("b")), 1U);
}

TYPED_TEST(EveryValue, IsPrintedAsItsTypeId) {
    std::ostringstream stream;
    stream << this->valueOf(std::string("a\0b", 3)) << "; " << this->valueOf("c");
    EXPECT_EQ(stream.str(), std::string("a\0b; c", 6));
}

TYPED_TEST(EveryValue, ShowsItsTypeIdWithoutACopy) {
    const auto value = this->valueOf("a typeid");
    EXPECT_EQ(value.typeId(), "a typeid");
    EXPECT_TRUE(noexcept(value.typeId()));
    const auto copy = value;
    EXPECT_EQ(copy.typeId().data(), value.typeId().data());
}

TYPED_TEST(EveryValue, IsEqualToItsCopy) {
    using Object = typename TypeParam::Value;
    const Object value = this->valueOf("a");
    const Object copy = value;
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
