#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "support/HeapWatch.h"

namespace Bench {

using Parameters::ParametersEngine;

namespace {

/// The texts are the caller's and there before: they do not count.
void heapAfter(const Catalogue& catalogue, Measurement& measurement) {
    const std::size_t before = Support::HeapWatch::held();
    ParametersEngine engine;
    registerEach(catalogue, engine);
    engine.resolveSchemas();
    measurement.setBytes(Support::HeapWatch::held() - before);
}

void heapPeak(const Catalogue& catalogue, Measurement& measurement) {
    const std::size_t before = Support::HeapWatch::held();
    Support::HeapWatch::reset();
    ParametersEngine engine;
    registerEach(catalogue, engine);
    engine.resolveSchemas();
    measurement.setBytes(Support::HeapWatch::peak() - before);
}

void textBytes(const Catalogue& catalogue, Measurement& measurement) {
    std::size_t bytes = 0;
    for (const Schema& schema : catalogue) {
        bytes += schema.text.size();
    }
    measurement.setBytes(bytes);
}

} // namespace

Benchmarks memoryBenchmarks() {
    return {{"heap-after", heapAfter}, {"heap-peak", heapPeak}, {"text-bytes", textBytes}};
}

} // namespace Bench
