#pragma once

#include "harness/Benchmark.h"

/// The benchmarks, by the operation that they are about.
namespace Bench {

Benchmarks ingestBenchmarks();
Benchmarks linkerBenchmarks();
Benchmarks parserBenchmarks();
Benchmarks lookupBenchmarks();
Benchmarks findBenchmarks();
Benchmarks nameBenchmarks();
Benchmarks listBenchmarks();
Benchmarks walkBenchmarks();
Benchmarks dependentsBenchmarks();
Benchmarks writeBenchmarks();
Benchmarks engineBenchmarks();
Benchmarks memoryBenchmarks();

} // namespace Bench
