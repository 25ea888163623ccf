#include <units/Unit.h>

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using Units::Unit;

static_assert(!std::is_default_constructible_v<Unit>);
static_assert(std::is_nothrow_copy_constructible_v<Unit>);
static_assert(std::is_nothrow_copy_assignable_v<Unit>);
static_assert(std::is_nothrow_move_constructible_v<Unit>);
static_assert(std::is_nothrow_move_assignable_v<Unit>);

Unit unitOf(const std::string& typeId) { return {typeId, "Name", "Symbol"}; }

TEST(Unit, AnswersWhatItWasMadeFrom) {
    const Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    EXPECT_EQ(unit.getTypeId(), "ship.unit:knot-1.0.0");
    EXPECT_EQ(unit.getName(), "Knot");
    EXPECT_EQ(unit.getSymbol(), "kn");
}

TEST(Unit, ChecksNothingOfWhatItIsMadeFrom) {
    const Unit unit("", "", "");
    EXPECT_EQ(unit.getTypeId(), "");
    EXPECT_EQ(unit.getName(), "");
    EXPECT_EQ(unit.getSymbol(), "");
}

TEST(Unit, KeepsBytesOfEveryValue) {
    const std::string bytes("a\0\xff\n", 4);
    const Unit unit(bytes, bytes, bytes);
    EXPECT_EQ(unit.getTypeId(), bytes);
    EXPECT_EQ(unit.getName(), bytes);
    EXPECT_EQ(unit.getSymbol(), bytes);
}

TEST(Unit, CopyAnswersAfterTheOriginalIsGone) {
    auto original = std::make_unique<Unit>("ship.unit:knot-1.0.0", "Knot", "kn");
    const Unit copy(*original);
    original.reset();
    EXPECT_EQ(copy.getTypeId(), "ship.unit:knot-1.0.0");
    EXPECT_EQ(copy.getName(), "Knot");
    EXPECT_EQ(copy.getSymbol(), "kn");
}

TEST(Unit, StillAnswersAfterBeingMovedFrom) {
    Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    const Unit moved(std::move(unit));
    EXPECT_EQ(unit.getName(), "Knot"); // NOLINT(bugprone-use-after-move): a unit is never empty
    EXPECT_EQ(moved.getName(), "Knot");
}

TEST(Unit, StillAnswersAfterBeingMovedByAssignment) {
    Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    Unit target("ship.unit:mile-1.0.0", "Nautical Mile", "M");
    target = std::move(unit);
    EXPECT_EQ(unit.getName(), "Knot"); // NOLINT(bugprone-use-after-move): a unit is never empty
    EXPECT_EQ(target.getName(), "Knot");
}

TEST(Unit, AssignmentLeavesOtherCopiesAlone) {
    Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    const Unit copy = unit;
    unit = Unit("ship.unit:mile-1.0.0", "Nautical Mile", "M");
    EXPECT_EQ(unit.getName(), "Nautical Mile");
    EXPECT_EQ(copy.getName(), "Knot");
}

TEST(Unit, SurvivesAssignmentToItself) {
    Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    const Unit& same = unit;
    unit = same;
    EXPECT_EQ(unit.getSymbol(), "kn");
}

TEST(Unit, IsEqualToAnotherOfItsTypeIdWhateverTheRest) {
    const Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    const Unit other("ship.unit:knot-1.0.0", "Knoten", "kt");
    EXPECT_TRUE(unit == other);
    EXPECT_FALSE(unit != other);
    EXPECT_FALSE(unit < other);
    EXPECT_FALSE(unit > other);
}

struct Order {
    const char* name;
    std::string lesser;
    std::string greater;
};

class OrderedUnits : public testing::TestWithParam<Order> {};

TEST_P(OrderedUnits, CompareByTheBytesOfTheirTypeIds) {
    const Unit lesser = unitOf(GetParam().lesser);
    const Unit greater = unitOf(GetParam().greater);
    EXPECT_TRUE(lesser < greater);
    EXPECT_FALSE(greater < lesser);
    EXPECT_TRUE(greater > lesser);
    EXPECT_FALSE(lesser > greater);
    EXPECT_TRUE(lesser != greater);
    EXPECT_FALSE(lesser == greater);
}

INSTANTIATE_TEST_SUITE_P(Unit, OrderedUnits,
                         testing::Values(Order{"FirstBytes", "a", "b"}, Order{"Length", "a", "ab"},
                                         Order{"Case", "B", "a"}, Order{"BytesAreUnsigned", "z", "\xc3\xa4"},
                                         Order{"BytesAfterANul", std::string("a\0a", 3), std::string("a\0b", 3)},
                                         Order{"EmptyIsLeast", "", "a"}),
                         Support::nameOfRow);

} // namespace
