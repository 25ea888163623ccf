#include <parameters/MajorCategoryComponent.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Parameters::MajorCategoryComponent;
using Parameters::Taxon;

std::vector<std::string> namesOf(const std::vector<Taxon>& taxa) {
    std::vector<std::string> names;
    for (const Taxon& taxon : taxa) {
        names.push_back(taxon.getName());
    }
    return names;
}

MajorCategoryComponent sample() { return {Taxon("waterway", "Waterway"), {Taxon("b", "B"), Taxon("a", "A")}}; }

TEST(MajorCategoryComponent, AnswersItsDomain) {
    EXPECT_EQ(sample().getDomain().getTypeId(), "waterway");
    EXPECT_EQ(sample().getDomain().getName(), "Waterway");
}

TEST(MajorCategoryComponent, AnswersItsDisciplinesInTheOrderGiven) {
    EXPECT_EQ(namesOf(sample().getDisciplines()), (std::vector<std::string>{"B", "A"}));
    EXPECT_EQ(sample().getDisciplines()[0].getTypeId(), "b");
}

TEST(MajorCategoryComponent, KeepsADisciplineAsOftenAsItIsGiven) {
    const MajorCategoryComponent component(Taxon("d", "D"), {Taxon("a", "A1"), Taxon("b", "B"), Taxon("a", "A2")});
    EXPECT_EQ(namesOf(component.getDisciplines()), (std::vector<std::string>{"A1", "B", "A2"}));
}

TEST(MajorCategoryComponent, MayHaveNoDisciplines) {
    EXPECT_TRUE(MajorCategoryComponent(Taxon("d", "D"), {}).getDisciplines().empty());
}

TEST(MajorCategoryComponent, ChecksNothingOfWhatItIsMadeFrom) {
    const MajorCategoryComponent component(Taxon("", ""), {Taxon("", "")});
    EXPECT_EQ(component.getDomain().getTypeId(), "");
    EXPECT_EQ(component.getDisciplines().size(), 1U);
}

TEST(MajorCategoryComponent, IsCopiedAndMovedWithoutFailAndNeverEmpty) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<MajorCategoryComponent>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<MajorCategoryComponent>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<MajorCategoryComponent>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<MajorCategoryComponent>);
    EXPECT_FALSE(std::is_default_constructible_v<MajorCategoryComponent>);
}

TEST(MajorCategoryComponent, StillAnswersAfterBeingMovedFrom) {
    auto component = sample();
    const MajorCategoryComponent moved(std::move(component));
    EXPECT_EQ(component.getDomain().getName(), "Waterway");
    EXPECT_EQ(moved.getDisciplines().size(), 2U);
}

TEST(MajorCategoryComponent, IsReplacedByAssignmentWhileCopiesStay) {
    auto component = sample();
    const auto copy = component;
    component = MajorCategoryComponent(Taxon("other", "Other"), {});
    EXPECT_EQ(component.getDomain().getName(), "Other");
    EXPECT_EQ(copy.getDomain().getName(), "Waterway");
    EXPECT_EQ(copy.getDisciplines().size(), 2U);
}

} // namespace
