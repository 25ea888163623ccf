#include <units/Unit.h>

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_set>
#include <utility>

namespace {

using Units::Unit;

static_assert(!std::is_default_constructible_v<Unit>);
static_assert(std::is_nothrow_copy_constructible_v<Unit>);
static_assert(std::is_nothrow_copy_assignable_v<Unit>);
static_assert(std::is_nothrow_move_constructible_v<Unit>);
static_assert(std::is_nothrow_move_assignable_v<Unit>);
static_assert(std::is_nothrow_swappable_v<Unit>);
static_assert(noexcept(std::declval<const Unit&>().typeId()));
static_assert(noexcept(std::declval<const Unit&>().name()));
static_assert(noexcept(std::declval<const Unit&>().symbol()));

Unit unitOf(const std::string& typeId) { return {typeId, "Name", "Symbol"}; }

TEST(Unit, AnswersWhatItWasMadeFrom) {
    const Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    EXPECT_EQ(unit.getTypeId(), "ship.unit:knot-1.0.0");
    EXPECT_EQ(unit.getName(), "Knot");
    EXPECT_EQ(unit.getSymbol(), "kn");
}

TEST(Unit, ShowsWhatItWasMadeFrom) {
    const Unit unit("ship.unit:knot-1.0.0", std::string("K\0t", 3), "");
    EXPECT_EQ(unit.typeId(), "ship.unit:knot-1.0.0");
    EXPECT_EQ(unit.name(), std::string_view("K\0t", 3));
    EXPECT_EQ(unit.symbol(), "");
}

TEST(Unit, ViewsAreGoodAsLongAsACopy) {
    auto original = std::make_unique<Unit>("ship.unit:knot-1.0.0", "Knot, which is a nautical mile per hour", "kn");
    const std::string_view typeId = original->typeId();
    const std::string_view name = original->name();
    const std::string_view symbol = original->symbol();
    const Unit copy(*original);
    original.reset();
    EXPECT_EQ(typeId, "ship.unit:knot-1.0.0");
    EXPECT_EQ(name, "Knot, which is a nautical mile per hour");
    EXPECT_EQ(symbol, "kn");
    EXPECT_EQ(copy.name().data(), name.data());
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

TEST(Unit, SwapsWithAnother) {
    Unit knot("ship.unit:knot-1.0.0", "Knot", "kn");
    Unit mile("ship.unit:mile-1.0.0", "Nautical Mile", "M");
    const char* const bytesOfKnot = knot.typeId().data();
    swap(knot, mile);
    EXPECT_EQ(knot.name(), "Nautical Mile");
    EXPECT_EQ(mile.typeId().data(), bytesOfKnot);
}

TEST(Unit, SurvivesASwapWithItself) {
    Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    swap(unit, unit);
    EXPECT_EQ(unit.symbol(), "kn");
}

TEST(Unit, IsHashedByItsTypeIdWhateverTheRest) {
    const Unit unit("ship.unit:knot-1.0.0", "Knot", "kn");
    const Unit other("ship.unit:knot-1.0.0", "Knoten", "kt");
    EXPECT_EQ(std::hash<Unit>()(unit), std::hash<Unit>()(other));
    EXPECT_EQ((std::unordered_set<Unit>{unit, other, unitOf("a"), unitOf("b")}).size(), 3U);
    EXPECT_NE(std::hash<Unit>()(unitOf("a")), std::hash<Unit>()(unitOf("b")));
}

TEST(Unit, PrintsTheBytesOfItsTypeId) {
    std::ostringstream stream;
    stream << unitOf(std::string("a\0b", 3)) << '|' << unitOf("ship.unit:knot-1.0.0");
    EXPECT_EQ(stream.str(), std::string("a\0b|ship.unit:knot-1.0.0", 24));
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
