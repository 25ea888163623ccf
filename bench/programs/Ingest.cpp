#include "harness/Fixtures.h"
#include "programs/Groups.h"

#include <benchmark/benchmark.h>

namespace Bench {

using Parameters::ParametersEngine;

namespace {

const std::map<std::string, std::string>& batch(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        std::map<std::string, std::string> texts;
        for (const Schema& schema : schemas) {
            texts.emplace(schema.typeId, schema.text);
        }
        return texts;
    });
}

void ingest(const Catalogue& catalogue, Measurement& measurement) {
    ParametersEngine engine;
    measurement.time([&] {
        registerEach(catalogue, engine);
        engine.resolveSchemas();
    });
}

void ingestBatch(const Catalogue& catalogue, Measurement& measurement) {
    const auto& texts = batch(catalogue);
    ParametersEngine engine;
    measurement.time([&] { engine.registerSchemas(texts); });
}

void resolve(const Catalogue& catalogue, Measurement& measurement) {
    ParametersEngine engine;
    registerEach(catalogue, engine);
    measurement.time([&] { engine.resolveSchemas(); });
}

void findUnresolvable(const Catalogue& catalogue, Measurement& measurement) {
    ParametersEngine engine;
    registerEach(catalogue, engine);
    measurement.time([&] { benchmark::DoNotOptimize(engine.findUnresolvable()); });
}

/// What findFaults is held to: the same work in a copy of an engine, which is then thrown away.
void tryBatch(const Catalogue& catalogue, Measurement& measurement) {
    const auto& texts = batch(catalogue);
    const ParametersEngine engine;
    measurement.time([&] {
        ParametersEngine copy = engine;
        copy.registerSchemas(texts);
    });
}

void findFaults(const Catalogue& catalogue, Measurement& measurement) {
    const auto& texts = batch(catalogue);
    const ParametersEngine engine;
    measurement.time([&] { benchmark::DoNotOptimize(engine.findFaults(texts)); });
}

} // namespace

Benchmarks ingestBenchmarks() {
    return {{"ingest", ingest},      {"ingest-batch", ingestBatch},
            {"resolve", resolve},    {"find-unresolvable", findUnresolvable},
            {"try-batch", tryBatch}, {"find-faults", findFaults}};
}

} // namespace Bench
