#pragma once

#include "generator/Catalogue.h"
#include "harness/Measurement.h"

#include <string_view>
#include <vector>

namespace Bench {

/// Something to measure on a catalogue. The name is that by which the table of reach refers to it.
struct Benchmark {
    std::string_view name;
    void (*run)(const Catalogue& catalogue, Measurement& measurement);
};

using Benchmarks = std::vector<Benchmark>;

/// Runs benchmarks as the command line says: --sizes=10000,100000 for the sizes of the catalogues, the rest as in all
/// programs of Google Benchmark.
int runBenchmarks(const std::vector<Benchmarks>& groups, int argc, char** argv);

} // namespace Bench
