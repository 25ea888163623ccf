#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/LookUps.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Bench {

using Parameters::ParametersEngine;

namespace {

/// Not noexcept: then the map keeps the hashes, and is faster.
struct ViewHash {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the name that standard tables look for
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

/// A plain hash map that can be asked for a view.
using Handles = std::unordered_map<std::string, Handle, ViewHash, std::equal_to<>>;

const Handles& handles(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) { return handlesOf<Handles>(schemas); });
}

/// Type identifiers that are not there, of another version than those that are.
const std::vector<std::string>& absent(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        std::vector<std::string> typeIds = measurableParameters(schemas);
        for (std::string& typeId : typeIds) {
            typeId.back() = '1';
        }
        return typeIds;
    });
}

void kindOf(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    measureLookUps(measurableParameters(catalogue), measurement,
                   [&](std::string_view typeId) { return engine.kindOf(typeId); });
}

void findInMap(const Catalogue& catalogue, Measurement& measurement) {
    const Handles& map = handles(catalogue);
    measureLookUps(measurableParameters(catalogue), measurement,
                   [&](std::string_view typeId) { return map.find(typeId)->second.get(); });
}

void findAbsent(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    measureLookUps(absent(catalogue), measurement,
                   [&](std::string_view typeId) { return engine.findMeasurableParameter(typeId).has_value(); });
}

/// Of a kind with a built-in object, which many identifiers stand for.
void findAbsentSpec(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    measureLookUps(absent(catalogue), measurement,
                   [&](std::string_view typeId) { return engine.findIntSpec(typeId).has_value(); });
}

void findAbsentInMap(const Catalogue& catalogue, Measurement& measurement) {
    const Handles& map = handles(catalogue);
    measureLookUps(absent(catalogue), measurement,
                   [&](std::string_view typeId) { return map.find(typeId) != map.end(); });
}

} // namespace

Benchmarks findBenchmarks() {
    return {{"kind-of", kindOf},
            {"unordered-map-find-view", findInMap},
            {"find-absent", findAbsent},
            {"find-absent-spec", findAbsentSpec},
            {"unordered-map-find-absent", findAbsentInMap}};
}

} // namespace Bench
