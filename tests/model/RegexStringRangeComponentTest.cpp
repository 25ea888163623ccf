#include <parameters/RegexStringRangeComponent.h>

#include "support/AwkwardStrings.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using Parameters::RegexStringRangeComponent;

TEST(RegexStringRangeComponent, KeepsItsExpression) {
    EXPECT_EQ(RegexStringRangeComponent("[A-Z]+").getRegex(), "[A-Z]+");
}

TEST(RegexStringRangeComponent, KeepsAnExpressionThatIsMalformed) {
    EXPECT_EQ(RegexStringRangeComponent("((").getRegex(), "((");
}

TEST(RegexStringRangeComponent, KeepsTheEmptyExpression) { EXPECT_EQ(RegexStringRangeComponent("").getRegex(), ""); }

TEST(RegexStringRangeComponent, StillAnswersAfterBeingMovedFrom) {
    RegexStringRangeComponent component("a*");
    const RegexStringRangeComponent moved(std::move(component));
    EXPECT_EQ(component.getRegex(), "a*");
    EXPECT_EQ(moved.getRegex(), "a*");
}

TEST(RegexStringRangeComponent, CopyAnswersAfterTheOriginalIsGone) {
    auto original = std::make_unique<RegexStringRangeComponent>("a*");
    const RegexStringRangeComponent copy(*original);
    original.reset();
    EXPECT_EQ(copy.getRegex(), "a*");
}

TEST(RegexStringRangeComponent, AssignmentLeavesOtherCopiesAlone) {
    RegexStringRangeComponent component("a*");
    const RegexStringRangeComponent copy = component;
    component = RegexStringRangeComponent("b*");
    EXPECT_EQ(component.getRegex(), "b*");
    EXPECT_EQ(copy.getRegex(), "a*");
}

TEST(RegexStringRangeComponent, IsCopiedAndMovedWithoutFail) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<RegexStringRangeComponent>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<RegexStringRangeComponent>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<RegexStringRangeComponent>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<RegexStringRangeComponent>);
}

TEST(RegexStringRangeComponent, IsMadeOnlyOnPurpose) {
    EXPECT_FALSE((std::is_convertible_v<std::string, RegexStringRangeComponent>));
    EXPECT_FALSE(std::is_default_constructible_v<RegexStringRangeComponent>);
}

class AwkwardRegex : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardRegex, IsKeptWithItsBytes) {
    EXPECT_EQ(RegexStringRangeComponent(GetParam().bytes).getRegex(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardRegex, testing::ValuesIn(Support::awkwardStrings), Support::nameOfRow);

} // namespace
