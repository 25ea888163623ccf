#include <units/UnitsEngine.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <new>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr long never = -1;
long allocationsUntilFailure = never;

/// Lets the n-th allocation from now on fail, counted from 0, as long as it lives.
class FailingAllocation {
public:
    explicit FailingAllocation(long n) { allocationsUntilFailure = n; }
    ~FailingAllocation() { allocationsUntilFailure = never; }
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

} // namespace

void* operator new(std::size_t size) {
    if (allocationsUntilFailure != never && allocationsUntilFailure-- == 0) {
        throw std::bad_alloc();
    }
    if (void* const block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept { std::free(block); }

void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace {

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
            const FailingAllocation failing(n);
            operation(engine);
            return n;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(pictureOf(engine), before) << "allocation " << n;
        }
    }
}

TEST(UnitsEngineOutOfMemory, RegistersNothing) {
    const std::string text = unit(newId);
    EXPECT_GT(failEachAllocationOf([&](UnitsEngine& engine) { engine.registerSchema(text); }), 0);
}

TEST(UnitsEngineOutOfMemory, KeepsWhatAnAssignmentWouldReplace) {
    const UnitsEngine other;
    EXPECT_GT(failEachAllocationOf([&](UnitsEngine& engine) { engine = other; }), 0);
}

TEST(UnitsEngineOutOfMemory, ResolvesAllTheSame) {
    EXPECT_EQ(failEachAllocationOf([](UnitsEngine& engine) { engine.resolveSchemas(); }), 0);
}

} // namespace
