#include <parameters/SetStringRangeComponent.h>

#include "support/AwkwardStrings.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Parameters::SetStringRangeComponent;
using Strings = std::vector<std::string>;

TEST(SetStringRangeComponent, KeepsItsValuesInOrder) {
    EXPECT_EQ(SetStringRangeComponent({"b", "a", "c"}).getAllowedValues(), (Strings{"b", "a", "c"}));
}

TEST(SetStringRangeComponent, KeepsRepeatedAndEmptyValues) {
    EXPECT_EQ(SetStringRangeComponent({"a", "", "a", ""}).getAllowedValues(), (Strings{"a", "", "a", ""}));
}

TEST(SetStringRangeComponent, MayHaveNoValues) {
    EXPECT_TRUE(SetStringRangeComponent(Strings()).getAllowedValues().empty());
}

TEST(SetStringRangeComponent, StillAnswersAfterBeingMovedFrom) {
    SetStringRangeComponent component({"a"});
    const SetStringRangeComponent moved(std::move(component));
    EXPECT_EQ(component.getAllowedValues(), Strings{"a"});
    EXPECT_EQ(moved.getAllowedValues(), Strings{"a"});
}

TEST(SetStringRangeComponent, CopyAnswersAfterTheOriginalIsGone) {
    auto original = std::make_unique<SetStringRangeComponent>(Strings{"a"});
    const SetStringRangeComponent copy(*original);
    original.reset();
    EXPECT_EQ(copy.getAllowedValues(), Strings{"a"});
}

TEST(SetStringRangeComponent, AssignmentLeavesOtherCopiesAlone) {
    SetStringRangeComponent component({"a"});
    const SetStringRangeComponent copy = component;
    component = SetStringRangeComponent({"b"});
    EXPECT_EQ(component.getAllowedValues(), Strings{"b"});
    EXPECT_EQ(copy.getAllowedValues(), Strings{"a"});
}

TEST(SetStringRangeComponent, IsCopiedAndMovedWithoutFail) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<SetStringRangeComponent>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<SetStringRangeComponent>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<SetStringRangeComponent>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<SetStringRangeComponent>);
}

TEST(SetStringRangeComponent, IsMadeOnlyOnPurpose) {
    EXPECT_FALSE((std::is_convertible_v<Strings, SetStringRangeComponent>));
    EXPECT_FALSE(std::is_default_constructible_v<SetStringRangeComponent>);
}

class AwkwardAllowedValue : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardAllowedValue, IsKeptWithItsBytes) {
    const Strings values{"a", GetParam().bytes, "z"};
    EXPECT_EQ(SetStringRangeComponent(values).getAllowedValues(), values);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardAllowedValue, testing::ValuesIn(Support::awkwardStrings), Support::nameOfRow);

} // namespace
