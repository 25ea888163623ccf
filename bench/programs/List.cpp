#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/PlainMap.h"

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
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

void timeCopyOf(const PlainMap& map, Measurement& measurement) {
    std::optional<PlainMap> copy;
    measurement.setItems(1);
    measurement.time([&] { copy = map; });
}

void copyMap(const Catalogue& catalogue, Measurement& measurement) { timeCopyOf(plainMap(catalogue), measurement); }

/// A map that was filled in the order of its keys lies in memory as it is walked.
void copySortedMap(const Catalogue& catalogue, Measurement& measurement) {
    timeCopyOf(once(catalogue,
                    [](const Catalogue& schemas) {
                        PlainMap sorted;
                        for (const auto& [typeId, record] : plainMap(schemas)) {
                            sorted.emplace_hint(sorted.end(), typeId, std::make_shared<const PlainParameter>(*record));
                        }
                        return sorted;
                    }),
               measurement);
}

} // namespace

Benchmarks listBenchmarks() {
    return {{"list", list}, {"first-list", firstList}, {"map-copy", copyMap}, {"sorted-map-copy", copySortedMap}};
}

} // namespace Bench
