#include "soak/Workload.h"
#include "support/HeapWatch.h"

#include <sys/resource.h>

#include <chrono>
#include <cstdint>
#include <exception>
#include <iostream>
#include <string>

/// Works on engines at random for so many seconds, and fails when memory does not come back to its level:
/// soak SECONDS [SEED]

namespace {

namespace HeapWatch = Support::HeapWatch;

using Clock = std::chrono::steady_clock;

/// After so many rounds all that is made once, such as built-in objects, is there.
constexpr int warmUpRounds = 10;

long peakMebibytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void report(const Soak::Workload& workload, int rounds, std::size_t level, std::size_t warmPeak) {
    std::cout << rounds << " rounds, after each of which " << level << " bytes were held\n"
              << "peak of the heap " << HeapWatch::peak() << " bytes, in the first rounds " << warmPeak
              << "; of the process " << peakMebibytes() << " MiB\n";
    for (std::size_t i = 0; i < Soak::Workload::operations.size(); ++i) {
        const auto& count = workload.countOf(i);
        std::cout << count.done << " x " << Soak::Workload::operations[i].name << ", " << count.refused
                  << " of them refused\n";
    }
}

bool soakFor(std::chrono::seconds time, std::uint64_t seed) {
    const auto end = Clock::now() + time;
    Soak::Workload workload(seed);
    int rounds = 0;
    for (; rounds < warmUpRounds; ++rounds) {
        workload.round();
    }
    const std::size_t level = HeapWatch::held();
    const std::size_t warmPeak = HeapWatch::peak();
    for (; Clock::now() < end; ++rounds) {
        workload.round();
        if (const std::size_t held = HeapWatch::held(); held != level) {
            std::cerr << "soak: " << held << " bytes are held after round " << rounds << " of seed " << seed << ", and "
                      << level << " were before\n";
            return false;
        }
    }
    report(workload, rounds, level, warmPeak);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: soak SECONDS [SEED]\n";
        return 2;
    }
    try {
        const std::uint64_t seed = argc == 3 ? std::stoull(argv[2]) : 1;
        std::cout << "seed " << seed << '\n';
        return soakFor(std::chrono::seconds(std::stoul(argv[1])), seed) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "soak: " << error.what() << '\n';
        return 1;
    }
}
