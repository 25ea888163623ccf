#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/PlainMap.h"

#include <map>
#include <optional>

namespace Bench {

using Parameters::MeasurableParameter;
using Parameters::ParametersEngine;

namespace {

void list(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
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
