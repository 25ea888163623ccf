#include "harness/Fixtures.h"
#include "programs/Groups.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

namespace Bench {

using Parameters::MeasurableParameter;
using Parameters::ParametersEngine;

namespace {

/// Reads something of each object of what shows them.
template <class Show>
void measureWalk(Measurement& measurement, Show show) {
    measurement.setItems(1);
    measurement.time([&] {
        std::size_t characters = 0;
        for (const MeasurableParameter& parameter : show()) {
            characters += parameter.typeId().size();
        }
        benchmark::DoNotOptimize(characters);
    });
}

/// An engine whose objects were walked before.
const ParametersEngine& walkedEngine(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        ParametersEngine engine(resolvedEngine(schemas));
        benchmark::DoNotOptimize(engine.allMeasurableParameters());
        return engine;
    });
}

void walk(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = walkedEngine(catalogue);
    measureWalk(measurement, [&] { return engine.allMeasurableParameters(); });
}

/// The first walk after a catalogue was loaded, which has the order to find.
void firstWalk(const Catalogue& catalogue, Measurement& measurement) {
    ParametersEngine engine;
    registerEach(catalogue, engine);
    engine.resolveSchemas();
    measureWalk(measurement, [&] { return engine.allMeasurableParameters(); });
}

void walkVector(const Catalogue& catalogue, Measurement& measurement) {
    const auto& handles = once(catalogue, [](const Catalogue& schemas) {
        std::vector<MeasurableParameter> result;
        for (const auto& [typeId, parameter] : resolvedEngine(schemas).getAllMeasurableParameters()) {
            result.push_back(parameter);
        }
        return result;
    });
    measureWalk(measurement, [&]() -> const std::vector<MeasurableParameter>& { return handles; });
}

} // namespace

Benchmarks walkBenchmarks() { return {{"walk", walk}, {"first-walk", firstWalk}, {"vector-walk", walkVector}}; }

} // namespace Bench
