#include "engine/AnyUnits.h"

#include <units/UnitsEngine.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace AnyUnits = Parameters::Internal::AnyUnits;
using Lines = std::vector<std::string>;

/// What every units engine has.
struct PlainEngine {
    bool isRegistered(const std::string& typeId) const { return typeId == "known"; }
    Units::Unit getUnit(const std::string& typeId) const {
        if (!isRegistered(typeId)) {
            throw Units::ValidationException("no " + typeId);
        }
        return {typeId, "by getUnit", ""};
    }
    void registerSchema(const std::string& text) {
        if (text.empty()) {
            throw Units::ValidationException("nothing there");
        }
        registered = text;
    }

    std::string registered = {};
};

/// An engine that must be asked in the better way: in the other way it answers wrong.
struct RichEngine {
    bool isRegistered(const std::string&) const { return false; }
    bool isRegistered(std::string_view typeId) const { return typeId == "known"; }
    Units::Unit getUnit(const std::string& typeId) const { return {typeId, "by getUnit", ""}; }
    std::optional<Units::Unit> findUnit(std::string_view typeId) const {
        return isRegistered(typeId) ? std::optional(Units::Unit(std::string(typeId), "by findUnit", "")) : std::nullopt;
    }
    void registerSchema(const std::string&) {}
    static Lines registerSoundSchema(const std::string& text) { return {text, "faulty"}; }
};

static_assert(AnyUnits::tellsFaults<RichEngine>);
static_assert(!AnyUnits::tellsFaults<PlainEngine>);

template <class Engine>
Lines registerSound(Engine& engine, const std::string& text) {
    Lines lines;
    AnyUnits::registerSound(
        engine, text, [&](const auto& fault) { lines.push_back("fault " + fault); },
        [&](const std::string& message) { lines.push_back("refusal " + message); });
    return lines;
}

TEST(AnyUnits, KnowsWhatIsRegisteredWithAnEngineOfEitherSort) {
    const std::string_view view = std::string_view("known and more").substr(0, 5);
    EXPECT_TRUE(AnyUnits::isRegistered(PlainEngine(), view));
    EXPECT_TRUE(AnyUnits::isRegistered(RichEngine(), view));
    EXPECT_FALSE(AnyUnits::isRegistered(PlainEngine(), "other"));
    EXPECT_FALSE(AnyUnits::isRegistered(RichEngine(), "other"));
}

TEST(AnyUnits, FindsUnitsOfAnEngineOfEitherSort) {
    EXPECT_EQ(AnyUnits::find(PlainEngine(), "known").value().getName(), "by getUnit");
    EXPECT_EQ(AnyUnits::find(RichEngine(), "known").value().getName(), "by findUnit");
    EXPECT_FALSE(AnyUnits::find(PlainEngine(), "other"));
    EXPECT_FALSE(AnyUnits::find(RichEngine(), "other"));
}

TEST(AnyUnits, TakesARefusalFromAnEngineThatTellsNoFaults) {
    PlainEngine engine;
    EXPECT_EQ(registerSound(engine, ""), Lines{"refusal nothing there"});
    EXPECT_EQ(registerSound(engine, "unit"), Lines());
    EXPECT_EQ(engine.registered, "unit");
}

TEST(AnyUnits, TakesEachFaultOfAnEngineThatTellsThem) {
    RichEngine engine;
    EXPECT_EQ(registerSound(engine, "unit"), (Lines{"fault unit", "fault faulty"}));
}

TEST(AnyUnits, AsksTheUnitsEngineAtHand) {
    Units::UnitsEngine engine;
    engine.registerSchema(R"({"typeid": "known", "inherits": ["norvex.unit:unit-1.0.0"],
        "constants": [{"id": "name", "value": "Known"}]})");
    EXPECT_TRUE(AnyUnits::isRegistered(engine, "known"));
    EXPECT_FALSE(AnyUnits::find(engine, "known"));
    engine.resolveSchemas();
    EXPECT_EQ(AnyUnits::find(engine, "known").value().getName(), "Known");
}

} // namespace
