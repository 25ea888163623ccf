#include "schema/AllocationWatch.h"

#include <units/UnitsEngine.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <new>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

using Ostra::AllocationWatch;
using Units::UnitsEngine;

std::string unit(const std::string& typeId) {
    return R"({"typeid": ")" + typeId + R"(", "inherits": ["norvex.unit:unit-1.0.0"], "constants": [
        {"id": "name", "value": "a name that is too long for a string without memory of its own"},
        {"id": "symbol", "value": "a symbol that is too long for a string without memory of its own"}]})";
}

const std::string resolvedId = "a resolved unit with a long typeid";
const std::string pendingId = "a pending unit with a long typeid";
const std::string newId = "a new unit with a long typeid";

UnitsEngine prepared() {
    UnitsEngine engine;
    engine.registerSchema(unit(resolvedId));
    engine.resolveSchemas();
    engine.registerSchema(unit(pendingId));
    return engine;
}

/// Everything that can be told of an engine, also of what it would hand out after resolution.
auto pictureOf(const UnitsEngine& engine) {
    std::map<std::string, std::tuple<std::string, std::string>> resolved;
    for (const auto& [typeId, found] : engine.getAllUnits()) {
        resolved.emplace(typeId, std::tuple(found.getName(), found.getSymbol()));
    }
    UnitsEngine later = engine;
    later.resolveSchemas();
    std::vector<std::string> all;
    for (const auto& entry : later.getAllUnits()) {
        all.push_back(entry.first);
    }
    return std::tuple(resolved, all, engine.isRegistered(newId));
}

/// Runs the operation with each of its allocations failing once, and returns how many they were.
template <class Operation>
long failEachAllocationOf(Operation&& operation) {
    for (long n = 0;; ++n) {
        UnitsEngine engine = prepared();
        const auto before = pictureOf(engine);
        try {
            const AllocationWatch failing(n);
            operation(engine);
            return n;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(pictureOf(engine), before) << "allocation " << n;
        }
    }
}

class UnitsEngineOutOfMemory : public testing::Test {
protected:
    void SetUp() override {
        if (!AllocationWatch::sees([] { const UnitsEngine engine; })) {
            GTEST_SKIP() << "requests for memory are not seen in this build";
        }
    }
};

TEST_F(UnitsEngineOutOfMemory, RegistersNothing) {
    const std::string text = unit(newId);
    EXPECT_GT(failEachAllocationOf([&](UnitsEngine& engine) { engine.registerSchema(text); }), 0);
}

TEST_F(UnitsEngineOutOfMemory, KeepsWhatAnAssignmentWouldReplace) {
    const UnitsEngine other;
    EXPECT_GT(failEachAllocationOf([&](UnitsEngine& engine) { engine = other; }), 0);
}

TEST_F(UnitsEngineOutOfMemory, FindsUnitsAllTheSame) {
    const UnitsEngine engine = prepared();
    const AllocationWatch watch;
    const bool findsResolved = engine.findUnit(std::string_view(resolvedId)).has_value();
    const bool findsPending = engine.findUnit(std::string_view(pendingId)).has_value();
    const bool findsNew = engine.findUnit(std::string_view(newId)).has_value();
    EXPECT_EQ(watch.requests(), 0);
    EXPECT_TRUE(findsResolved);
    EXPECT_FALSE(findsPending);
    EXPECT_FALSE(findsNew);
}

TEST_F(UnitsEngineOutOfMemory, ShowsUnitsAllTheSame) {
    const Units::Unit unit = prepared().getUnit(resolvedId);
    const AllocationWatch watch;
    const std::size_t shown = unit.typeId().size() + unit.name().size() + unit.symbol().size();
    EXPECT_EQ(watch.requests(), 0);
    EXPECT_GT(shown, resolvedId.size());
}

TEST_F(UnitsEngineOutOfMemory, CopiesCostTheSameWhateverIsInThem) {
    UnitsEngine engine;
    const auto requestsOfACopy = [&engine] {
        const AllocationWatch watch;
        const UnitsEngine copy(engine);
        return watch.requests();
    };
    if (!AllocationWatch::sees([] { const UnitsEngine other; })) {
        GTEST_SKIP() << "the library's requests for memory are not seen in this build";
    }
    const auto requests = requestsOfACopy();
    for (int i = 0; i < 100; ++i) {
        engine.registerSchema(unit("ship.unit:" + std::to_string(i)));
    }
    EXPECT_EQ(requestsOfACopy(), requests);
    EXPECT_LE(requests, 2);
}

TEST_F(UnitsEngineOutOfMemory, ResolvesAllTheSame) {
    EXPECT_EQ(failEachAllocationOf([](UnitsEngine& engine) { engine.resolveSchemas(); }), 0);
}

} // namespace
