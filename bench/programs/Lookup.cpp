#include "harness/Fixtures.h"
#include "programs/Groups.h"

#include <parameters/Kinds.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <unordered_map>

namespace Bench {

using Parameters::MeasurableParameter;
using Parameters::ParametersEngine;

namespace {

using Handle = std::shared_ptr<const MeasurableParameter>;
using Handles = std::unordered_map<std::string, Handle>;

/// The same objects in a plain hash map, filled in the order of the catalogue.
const Handles& handles(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        const ParametersEngine& engine = resolvedEngine(schemas);
        Handles result;
        for (const Schema& schema : schemas) {
            if (schema.kind == Parameters::Kinds::MeasurableParameter::info) {
                result.emplace(schema.typeId, std::make_shared<const MeasurableParameter>(
                                                  engine.getMeasurableParameter(schema.typeId)));
            }
        }
        return result;
    });
}

/// Looks every measurable parameter up once, in an order in which they do not lie.
template <class LookUp>
void measureHits(const Catalogue& catalogue, Measurement& measurement, LookUp lookUp) {
    const auto& typeIds = measurableParameters(catalogue);
    measurement.setItems(typeIds.size());
    measurement.time([&] {
        for (const std::string& typeId : typeIds) {
            benchmark::DoNotOptimize(lookUp(typeId));
        }
    });
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
