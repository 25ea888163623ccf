#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/LookUps.h"

#include <string>
#include <unordered_map>

namespace Bench {

using Parameters::ParametersEngine;

namespace {

using Handles = std::unordered_map<std::string, Handle>;

/// The same objects in a plain hash map.
const Handles& handles(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) { return handlesOf<Handles>(schemas); });
}

/// Looks every measurable parameter up once, in an order in which they do not lie.
template <class LookUp>
void measureHits(const Catalogue& catalogue, Measurement& measurement, LookUp lookUp) {
    measureLookUps(measurableParameters(catalogue), measurement, lookUp);
}

void get(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    measureHits(catalogue, measurement,
                [&](const std::string& typeId) { return engine.getMeasurableParameter(typeId); });
}

void isRegistered(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    measureHits(catalogue, measurement, [&](const std::string& typeId) { return engine.isRegistered(typeId); });
}

void find(const Catalogue& catalogue, Measurement& measurement) {
    const Handles& map = handles(catalogue);
    measureHits(catalogue, measurement, [&](const std::string& typeId) { return map.find(typeId)->second.get(); });
}

void findAndCopy(const Catalogue& catalogue, Measurement& measurement) {
    const Handles& map = handles(catalogue);
    measureHits(catalogue, measurement, [&](const std::string& typeId) -> Handle { return map.find(typeId)->second; });
}

} // namespace

Benchmarks lookupBenchmarks() {
    return {{"get", get},
            {"is-registered", isRegistered},
            {"unordered-map-find", find},
            {"unordered-map-find-and-copy", findAndCopy}};
}

} // namespace Bench
