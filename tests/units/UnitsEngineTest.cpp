#include <units/UnitsEngine.h>

#include "support/Messages.h"
#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

using Units::Unit;
using Units::UnitsEngine;
using Units::ValidationException;

static_assert(std::is_nothrow_move_constructible_v<UnitsEngine>);
static_assert(std::is_nothrow_move_assignable_v<UnitsEngine>);
static_assert(std::is_base_of_v<std::logic_error, ValidationException>);

const std::string knot = R"({"typeid": "ship.unit:knot-1.0.0", "inherits": ["norvex.unit:unit-1.0.0"],
    "constants": [{"id": "name", "value": "Knot"}, {"id": "symbol", "value": "kn"}]})";
const std::string mile = R"({"typeid": "ship.unit:mile-1.0.0", "inherits": ["norvex.unit:unit-1.0.0"],
    "constants": [{"id": "name", "value": "Nautical Mile"}, {"id": "symbol", "value": "M"}]})";

/// Returns a unit schema with the given text in place of its constants.
std::string unitWith(const std::string& constants) {
    return R"({"typeid": "u", "inherits": ["norvex.unit:unit-1.0.0"], "constants": [)" + constants + "]}";
}

std::string unitOfBase(const std::string& base) {
    return R"({"typeid": "u", "inherits": [")" + base + R"("], "constants": [{"id": "name", "value": "N"}]})";
}

template <class Call>
std::string messageOf(Call&& call) {
    return Support::messageOf<ValidationException>(std::forward<Call>(call));
}

UnitsEngine resolved(const std::string& text) {
    UnitsEngine engine;
    engine.registerSchema(text);
    engine.resolveSchemas();
    return engine;
}

std::set<std::string> typeIdsOf(const UnitsEngine& engine) {
    std::set<std::string> typeIds;
    for (const auto& entry : engine.getAllUnits()) {
        typeIds.insert(entry.first);
    }
    return typeIds;
}

TEST(UnitsEngine, StartsWithoutUnits) {
    const UnitsEngine engine;
    EXPECT_TRUE(engine.getAllUnits().empty());
    EXPECT_FALSE(engine.isRegistered("ship.unit:knot-1.0.0"));
    EXPECT_FALSE(engine.isRegistered("norvex.unit:unit-1.0.0"));
}

TEST(UnitsEngine, HandsOutWhatTheSchemaSays) {
    const Unit unit = resolved(knot).getUnit("ship.unit:knot-1.0.0");
    EXPECT_EQ(unit.getTypeId(), "ship.unit:knot-1.0.0");
    EXPECT_EQ(unit.getName(), "Knot");
    EXPECT_EQ(unit.getSymbol(), "kn");
}

TEST(UnitsEngine, FindsWhatItHandsOut) {
    const UnitsEngine engine = resolved(knot);
    const std::string_view text = "in ship.unit:knot-1.0.0 a view need not end";
    const auto unit = engine.findUnit(text.substr(3, 20));
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->name(), "Knot");
    EXPECT_EQ(unit->name().data(), engine.getUnit("ship.unit:knot-1.0.0").name().data());
}

TEST(UnitsEngine, FindsNothingUnderAnotherTypeId) {
    const UnitsEngine engine = resolved(knot);
    EXPECT_FALSE(engine.findUnit("ship.unit:knot-1.0.1"));
    EXPECT_FALSE(engine.findUnit(""));
}

TEST(UnitsEngine, FindsNoUnitBeforeResolution) {
    UnitsEngine engine = resolved(mile);
    engine.registerSchema(knot);
    EXPECT_FALSE(engine.findUnit("ship.unit:knot-1.0.0"));
    engine.resolveSchemas();
    EXPECT_TRUE(engine.findUnit("ship.unit:knot-1.0.0"));
}

TEST(UnitsEngine, RegistrationReportsNothingMissing) {
    UnitsEngine engine;
    EXPECT_TRUE(engine.registerSchema(knot).empty());
}

TEST(UnitsEngine, CountsASchemaAsRegisteredAtOnce) {
    UnitsEngine engine;
    engine.registerSchema(knot);
    EXPECT_TRUE(engine.isRegistered("ship.unit:knot-1.0.0"));
    EXPECT_FALSE(engine.isRegistered("ship.unit:mile-1.0.0"));
}

TEST(UnitsEngine, HandsOutNoUnitBeforeResolution) {
    UnitsEngine engine;
    engine.registerSchema(knot);
    EXPECT_TRUE(engine.getAllUnits().empty());
    EXPECT_EQ(messageOf([&] { engine.getUnit("ship.unit:knot-1.0.0"); }),
              "Could not find unit with typeid ship.unit:knot-1.0.0.");
    EXPECT_EQ(messageOf([&] { engine.getDependencies("ship.unit:knot-1.0.0"); }),
              "Could not find unit with typeid ship.unit:knot-1.0.0.");
}

TEST(UnitsEngine, RemainsRegisteredAfterResolution) {
    EXPECT_TRUE(resolved(knot).isRegistered("ship.unit:knot-1.0.0"));
}

TEST(UnitsEngine, ResolvesTwiceWithoutHarm) {
    UnitsEngine engine = resolved(knot);
    engine.resolveSchemas();
    EXPECT_EQ(typeIdsOf(engine), std::set<std::string>{"ship.unit:knot-1.0.0"});
}

TEST(UnitsEngine, ResolvesNothingWithoutHarm) {
    UnitsEngine engine;
    engine.resolveSchemas();
    EXPECT_TRUE(engine.getAllUnits().empty());
}

TEST(UnitsEngine, HandsOutWhatWasRegisteredLaterAfterTheNextResolution) {
    UnitsEngine engine = resolved(knot);
    engine.registerSchema(mile);
    EXPECT_EQ(typeIdsOf(engine), (std::set<std::string>{"ship.unit:knot-1.0.0"}));
    engine.resolveSchemas();
    EXPECT_EQ(typeIdsOf(engine), (std::set<std::string>{"ship.unit:knot-1.0.0", "ship.unit:mile-1.0.0"}));
}

TEST(UnitsEngine, ListsEachUnitUnderItsTypeId) {
    UnitsEngine engine;
    engine.registerSchema(mile);
    engine.registerSchema(knot);
    engine.resolveSchemas();
    const auto units = engine.getAllUnits();
    EXPECT_EQ(units.size(), 2U);
    EXPECT_EQ(units.at("ship.unit:knot-1.0.0").getName(), "Knot");
    EXPECT_EQ(units.at("ship.unit:mile-1.0.0").getName(), "Nautical Mile");
}

TEST(UnitsEngine, AUnitDependsOnNothing) {
    EXPECT_TRUE(resolved(knot).getDependencies("ship.unit:knot-1.0.0").empty());
}

TEST(UnitsEngine, DoesNotKnowUnitsThatNobodyRegistered) {
    const UnitsEngine engine = resolved(knot);
    EXPECT_EQ(messageOf([&] { engine.getUnit("x"); }), "Could not find unit with typeid x.");
    EXPECT_EQ(messageOf([&] { engine.getDependencies("x"); }), "Could not find unit with typeid x.");
}

TEST(UnitsEngine, SymbolIsEmptyByDefault) {
    EXPECT_EQ(resolved(unitWith(R"({"id": "name", "value": "Piece"})")).getUnit("u").getSymbol(), "");
}

TEST(UnitsEngine, SymbolMayBeEmpty) {
    const std::string constants = R"({"id": "name", "value": "Piece"}, {"id": "symbol", "value": ""})";
    EXPECT_EQ(resolved(unitWith(constants)).getUnit("u").getSymbol(), "");
}

TEST(UnitsEngine, IgnoresOtherConstantsAndProperties) {
    const Unit unit = resolved(R"({"typeid": "u", "inherits": ["norvex.unit:unit-1.0.0"], "comment": 1,
        "constants": [{"id": "name", "value": "N"}, {"id": "factor", "value": 2}],
        "properties": [{"id": "name", "value": "other"}]})")
                          .getUnit("u");
    EXPECT_EQ(unit.getName(), "N");
}

class AcceptedBase : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(AcceptedBase, MakesAUnit) { EXPECT_EQ(resolved(unitOfBase(GetParam().second)).getUnit("u").getName(), "N"); }

INSTANTIATE_TEST_SUITE_P(UnitsEngine, AcceptedBase,
                         testing::Values(std::pair("FullForm", "norvex.unit:unit-1.0.0"),
                                         std::pair("OtherMinorVersion", "norvex.unit:unit-1.7.2"),
                                         std::pair("PrefixAlone", "norvex.unit:unit-1."),
                                         std::pair("PrefixInsideALongerText", "my norvex.unit:unit-1.x of old")),
                         [](const auto& test) { return std::string(test.param.first); });

class RefusedBase : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(RefusedBase, IsUnrecognized) {
    UnitsEngine engine;
    EXPECT_EQ(messageOf([&] { engine.registerSchema(unitOfBase(GetParam().second)); }),
              "Inheritance from an unrecognized base schema.");
    EXPECT_FALSE(engine.isRegistered("u"));
}

INSTANTIATE_TEST_SUITE_P(UnitsEngine, RefusedBase,
                         testing::Values(std::pair("OtherMajorVersion", "norvex.unit:unit-2.0.0"),
                                         std::pair("MajorVersionTen", "norvex.unit:unit-10.0.0"),
                                         std::pair("NoVersion", "norvex.unit:unit"),
                                         std::pair("OtherKind", "norvex.spec:discipline-1.0.0"),
                                         std::pair("OtherCase", "Norvex.Unit:Unit-1.0.0")),
                         [](const auto& test) { return std::string(test.param.first); });

struct Fault {
    const char* name;
    std::string text;
    const char* message;
};

class RefusedUnit : public testing::TestWithParam<Fault> {};

TEST_P(RefusedUnit, NamesTheFaultAndRegistersNothing) {
    UnitsEngine engine = resolved(knot);
    EXPECT_EQ(messageOf([&] { engine.registerSchema(GetParam().text); }), GetParam().message);
    engine.resolveSchemas();
    EXPECT_FALSE(engine.isRegistered("u"));
    EXPECT_EQ(typeIdsOf(engine), std::set<std::string>{"ship.unit:knot-1.0.0"});
}

const Fault structureFaults[] = {
    {"Empty", "", "JSON parsing error at offset 0: The document is empty."},
    {"NotJson", "{]", "JSON parsing error at offset 1: Missing a name for object member."},
    {"TwoValues", "{} {}", "JSON parsing error at offset 3: The document root must not be followed by other values."},
    {"NotAnObject", "[]", "Schema must specify a typeid string."},
    {"NoTypeId", R"({"inherits": ["norvex.unit:unit-1.0.0"]})", "Schema must specify a typeid string."},
    {"EmptyTypeId", R"({"typeid": "", "inherits": ["norvex.unit:unit-1.0.0"]})", "The typeid string may not be empty."},
    {"NoBase", R"({"typeid": "u"})", "Schema must specify an inheritance array."},
    {"TwoBases", R"({"typeid": "u", "inherits": ["norvex.unit:unit-1.0.0", "norvex.unit:unit-1.0.0"]})",
     "Inheritance clause must specify exactly one base schema."},
    {"ConstantsAreNoArray", R"({"typeid": "u", "inherits": ["norvex.unit:unit-1.0.0"], "constants": {}})",
     "Expected schema constants to be an array."},
    {"ConstantTwice", unitWith(R"({"id": "name", "value": "N"}, {"id": "name", "value": "N"})"),
     "Item name in constants array must be defined only once."},
};

const Fault constantFaults[] = {
    {"NoConstants", R"({"typeid": "u", "inherits": ["norvex.unit:unit-1.0.0"]})",
     "Schema u has an undefined name constant."},
    {"NoName", unitWith(R"({"id": "symbol", "value": "N"})"), "Schema u has an undefined name constant."},
    {"EmptyName", unitWith(R"({"id": "name", "value": ""})"), "Expected a non-empty string."},
    {"NameIsNoString", unitWith(R"({"id": "name", "value": 1})"), "Expected a non-empty string."},
    {"NameWithoutValue", unitWith(R"({"id": "name"})"),
     "A property definition must contain either a value or a typedValue."},
    {"SymbolIsNoString", unitWith(R"({"id": "name", "value": "N"}, {"id": "symbol", "value": null})"),
     "Expected a string."},
};

/// Texts with two faults, of which the one that is looked for first must be named.
const Fault orderedFaults[] = {
    {"StructureBeforeKnownTypeId", R"({"typeid": "ship.unit:knot-1.0.0", "inherits": []})",
     "Inheritance clause must specify exactly one base schema."},
    {"KnownTypeIdBeforeBase", R"({"typeid": "ship.unit:knot-1.0.0", "inherits": ["x"]})",
     "Schema with typeid ship.unit:knot-1.0.0 is already registered."},
    {"BaseBeforeConstants", R"({"typeid": "u", "inherits": ["x"]})", "Inheritance from an unrecognized base schema."},
    {"NameBeforeSymbol", unitWith(R"({"id": "symbol", "value": 1}, {"id": "name", "value": ""})"),
     "Expected a non-empty string."},
};

INSTANTIATE_TEST_SUITE_P(Structure, RefusedUnit, testing::ValuesIn(structureFaults), Support::nameOfRow);
INSTANTIATE_TEST_SUITE_P(Constants, RefusedUnit, testing::ValuesIn(constantFaults), Support::nameOfRow);
INSTANTIATE_TEST_SUITE_P(Order, RefusedUnit, testing::ValuesIn(orderedFaults), Support::nameOfRow);

TEST(UnitsEngine, RefusesATypeIdThatIsRegisteredAndNotResolved) {
    UnitsEngine engine;
    engine.registerSchema(knot);
    EXPECT_EQ(messageOf([&] { engine.registerSchema(knot); }),
              "Schema with typeid ship.unit:knot-1.0.0 is already registered.");
}

TEST(UnitsEngine, RefusesATypeIdThatIsResolved) {
    UnitsEngine engine = resolved(knot);
    EXPECT_EQ(messageOf([&] { engine.registerSchema(knot); }),
              "Schema with typeid ship.unit:knot-1.0.0 is already registered.");
}

TEST(UnitsEngine, KeepsTheFirstUnitOfATypeId) {
    UnitsEngine engine = resolved(unitWith(R"({"id": "name", "value": "First"})"));
    EXPECT_THROW(engine.registerSchema(unitWith(R"({"id": "name", "value": "Second"})")), ValidationException);
    engine.resolveSchemas();
    EXPECT_EQ(engine.getUnit("u").getName(), "First");
}

TEST(UnitsEngine, CopyHasUnitsAndPendingSchemas) {
    UnitsEngine original = resolved(knot);
    original.registerSchema(mile);
    UnitsEngine copy(original);
    EXPECT_EQ(typeIdsOf(copy), std::set<std::string>{"ship.unit:knot-1.0.0"});
    EXPECT_TRUE(copy.isRegistered("ship.unit:mile-1.0.0"));
    copy.resolveSchemas();
    EXPECT_EQ(copy.getUnit("ship.unit:mile-1.0.0").getSymbol(), "M");
}

TEST(UnitsEngine, ChangesOfACopyLeaveTheOriginalAlone) {
    UnitsEngine original;
    original.registerSchema(knot);
    UnitsEngine copy(original);
    copy.registerSchema(mile);
    copy.resolveSchemas();
    EXPECT_FALSE(original.isRegistered("ship.unit:mile-1.0.0"));
    EXPECT_TRUE(original.getAllUnits().empty());
}

TEST(UnitsEngine, ChangesOfTheOriginalLeaveACopyAlone) {
    UnitsEngine original = resolved(knot);
    const UnitsEngine copy(original);
    original = UnitsEngine();
    EXPECT_EQ(copy.getUnit("ship.unit:knot-1.0.0").getName(), "Knot");
}

TEST(UnitsEngine, CopyAssignmentReplacesEverything) {
    UnitsEngine engine = resolved(knot);
    const UnitsEngine other = resolved(mile);
    engine = other;
    EXPECT_EQ(typeIdsOf(engine), std::set<std::string>{"ship.unit:mile-1.0.0"});
    EXPECT_FALSE(engine.isRegistered("ship.unit:knot-1.0.0"));
    EXPECT_EQ(typeIdsOf(other), std::set<std::string>{"ship.unit:mile-1.0.0"});
}

TEST(UnitsEngine, SurvivesAssignmentToItself) {
    UnitsEngine engine = resolved(knot);
    UnitsEngine& same = engine;
    engine = same;
    engine = std::move(same);
    EXPECT_EQ(typeIdsOf(engine), std::set<std::string>{"ship.unit:knot-1.0.0"});
}

TEST(UnitsEngine, MoveTakesTheUnits) {
    UnitsEngine original = resolved(knot);
    UnitsEngine constructed(std::move(original));
    EXPECT_EQ(typeIdsOf(constructed), std::set<std::string>{"ship.unit:knot-1.0.0"});
    UnitsEngine assigned = resolved(mile);
    assigned = std::move(constructed);
    EXPECT_EQ(typeIdsOf(assigned), std::set<std::string>{"ship.unit:knot-1.0.0"});
}

TEST(UnitsEngine, MovedFromEngineCanBeAssignedTo) {
    UnitsEngine engine = resolved(knot);
    const UnitsEngine taken(std::move(engine));
    engine = resolved(mile);
    EXPECT_EQ(typeIdsOf(engine), std::set<std::string>{"ship.unit:mile-1.0.0"});
    EXPECT_EQ(typeIdsOf(taken), std::set<std::string>{"ship.unit:knot-1.0.0"});
}

TEST(ValidationException, IsALogicErrorWithItsMessage) {
    try {
        UnitsEngine().getUnit("x");
        FAIL() << "nothing thrown";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "Could not find unit with typeid x.");
    }
}

} // namespace
