#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/PlainMap.h"

#include <benchmark/benchmark.h>

#include <map>
#include <optional>

namespace Bench {

using Parameters::MeasurableParameter;
using Parameters::ParametersEngine;

namespace {

/// An engine that was asked for the list before.
const ParametersEngine& listedEngine(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        ParametersEngine engine(resolvedEngine(schemas));
        benchmark::DoNotOptimize(engine.getAllMeasurableParameters());
        return engine;
    });
}

void list(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = listedEngine(catalogue);
    std::map<std::string, MeasurableParameter> all;
    measurement.setItems(1);
    measurement.time([&] { all = engine.getAllMeasurableParameters(); });
}

/// The first list after a catalogue was loaded, which has the order to find.
void firstList(const Catalogue& catalogue, Measurement& measurement) {
    ParametersEngine engine;
    registerEach(catalogue, engine);
    engine.resolveSchemas();
    std::map<std::string, MeasurableParameter> all;
    measurement.setItems(1);
    measurement.time([&] { all = engine.getAllMeasurableParameters(); });
}

void copyMap(const Catalogue& catalogue, Measurement& measurement) {
    const PlainMap& map = plainMap(catalogue);
    std::optional<PlainMap> copy;
    measurement.setItems(1);
    measurement.time([&] { copy = map; });
}

} // namespace

Benchmarks listBenchmarks() { return {{"list", list}, {"first-list", firstList}, {"map-copy", copyMap}}; }

} // namespace Bench
