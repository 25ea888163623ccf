#include <parameters/SubCategoryComponent.h>

#include "support/AwkwardStrings.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

namespace {

using Parameters::SubCategoryComponent;
using Support::awkwardStrings;

TEST(SubCategoryComponent, AnswersItsParent) {
    EXPECT_EQ(SubCategoryComponent("plant.category:gates-1.0.0").getParentCategory(), "plant.category:gates-1.0.0");
}

TEST(SubCategoryComponent, ChecksNothingOfWhatItIsMadeFrom) {
    EXPECT_EQ(SubCategoryComponent("").getParentCategory(), "");
}

class AwkwardSubCategoryComponent : public testing::TestWithParam<Support::AwkwardString> {};

TEST_P(AwkwardSubCategoryComponent, KeepsItsBytes) {
    EXPECT_EQ(SubCategoryComponent(GetParam().bytes).getParentCategory(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Strings, AwkwardSubCategoryComponent, testing::ValuesIn(awkwardStrings), Support::nameOfRow);

TEST(SubCategoryComponent, IsMadeOnlyOnPurpose) {
    EXPECT_FALSE((std::is_convertible_v<std::string, SubCategoryComponent>));
}

TEST(SubCategoryComponent, IsCopiedAndMovedWithoutFailAndNeverEmpty) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<SubCategoryComponent>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<SubCategoryComponent>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<SubCategoryComponent>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<SubCategoryComponent>);
    EXPECT_FALSE(std::is_default_constructible_v<SubCategoryComponent>);
}

TEST(SubCategoryComponent, StillAnswersAfterBeingMovedFrom) {
    SubCategoryComponent component("gates");
    const SubCategoryComponent moved(std::move(component));
    EXPECT_EQ(component.getParentCategory(), "gates");
    EXPECT_EQ(moved.getParentCategory(), "gates");
}

TEST(SubCategoryComponent, IsReplacedByAssignmentWhileCopiesStay) {
    SubCategoryComponent component("gates");
    const auto copy = component;
    component = SubCategoryComponent("tunnels");
    EXPECT_EQ(component.getParentCategory(), "tunnels");
    EXPECT_EQ(copy.getParentCategory(), "gates");
}

} // namespace
