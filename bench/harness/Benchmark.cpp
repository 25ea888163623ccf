#include "harness/Benchmark.h"

#include "harness/Fixtures.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <iostream>
#include <sstream>
#include <string>

namespace Bench {

namespace {

constexpr std::string_view sizesOption = "--sizes=";

/// Memory that is given back to the system costs a page fault when it comes again, many times what is measured here.
void keepHeapWarm() {
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
}

/// Takes the option with the sizes off the command line.
std::vector<std::size_t> takeSizes(int& argc, char** argv) {
    char** const end = argv + argc;
    char** const option =
        std::find_if(argv, end, [](const char* word) { return std::string_view(word).starts_with(sizesOption); });
    if (option == end) {
        return {10'000};
    }
    std::istringstream list(std::string(*option).substr(sizesOption.size()));
    std::rotate(option, option + 1, end);
    --argc;
    std::vector<std::size_t> sizes;
    for (std::string size; std::getline(list, size, ',');) {
        sizes.push_back(std::stoull(size));
    }
    return sizes;
}

void run(const Benchmark& measured, const std::string& label, std::size_t size, benchmark::State& state) {
    const Catalogue& catalogue = catalogueOf(size);
    std::size_t items = 0;
    while (state.KeepRunning()) {
        Measurement measurement(size);
        measured.run(catalogue, measurement);
        state.SetIterationTime(measurement.seconds());
        items = measurement.items();
        if (measurement.bytes() > 0) {
            state.counters["bytes"] = static_cast<double>(measurement.bytes());
        }
    }
    state.counters["items"] = static_cast<double>(items);
    const std::string dump = label + " " + std::to_string(items * static_cast<std::size_t>(state.iterations()));
    CALLGRIND_DUMP_STATS_AT(dump.c_str());
}

void registerAll(const Benchmarks& benchmarks, std::size_t size) {
    for (const Benchmark& measured : benchmarks) {
        const std::string label = std::string(measured.name) + "/" + std::to_string(size);
        benchmark::RegisterBenchmark(label.c_str(), [measured, label, size](benchmark::State& state) {
            run(measured, label, size, state);
        })->UseManualTime();
    }
}

} // namespace

int runBenchmarks(const std::vector<Benchmarks>& groups, int argc, char** argv) {
    keepHeapWarm();
    try {
        for (const std::size_t size : takeSizes(argc, argv)) {
            for (const Benchmarks& group : groups) {
                registerAll(group, size);
            }
        }
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
            return 2;
        }
        return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << argv[0] << ": " << error.what() << '\n';
        return 1;
    }
}

} // namespace Bench
