#include "programs/HeapWatch.h"
#include "soak/Soak.h"

#include <sys/resource.h>

#include <chrono>
#include <cstdint>
#include <exception>
#include <iostream>
#include <string>

/// Works on engines at random for so many seconds, and fails when memory does not come back to its level:
/// bench-soak SECONDS [SEED]

namespace {

using Clock = std::chrono::steady_clock;

/// After so many rounds all that is made once, such as built-in objects, is there.
constexpr int warmUpRounds = 10;

long peakMebibytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void report(const Bench::Soak& soak, int rounds, std::size_t level, std::size_t warmPeak) {
    std::cout << rounds << " rounds, after each of which " << level << " bytes were held\n"
              << "peak of the heap " << Bench::HeapWatch::peak() << " bytes, in the first rounds " << warmPeak
              << "; of the process " << peakMebibytes() << " MiB\n";
    for (std::size_t i = 0; i < Bench::Soak::operations.size(); ++i) {
        const auto& count = soak.countOf(i);
        std::cout << count.done << " x " << Bench::Soak::operations[i].name << ", " << count.refused
                  << " of them refused\n";
    }
}

bool soakFor(std::chrono::seconds time, std::uint64_t seed) {
    const auto end = Clock::now() + time;
    Bench::Soak soak(seed);
    int rounds = 0;
    for (; rounds < warmUpRounds; ++rounds) {
        soak.round();
    }
    const std::size_t level = Bench::HeapWatch::held();
    const std::size_t warmPeak = Bench::HeapWatch::peak();
    for (; Clock::now() < end; ++rounds) {
        soak.round();
        if (const std::size_t held = Bench::HeapWatch::held(); held != level) {
            std::cerr << "bench-soak: " << held << " bytes are held after round " << rounds << " of seed " << seed
                      << ", and " << level << " were before\n";
            return false;
        }
    }
    report(soak, rounds, level, warmPeak);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: bench-soak SECONDS [SEED]\n";
        return 2;
    }
    try {
        const std::uint64_t seed = argc == 3 ? std::stoull(argv[2]) : 1;
        std::cout << "seed " << seed << '\n';
        return soakFor(std::chrono::seconds(std::stoul(argv[1])), seed) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "bench-soak: " << error.what() << '\n';
        return 1;
    }
}
