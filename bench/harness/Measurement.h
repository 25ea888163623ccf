#pragma once

#include <valgrind/callgrind.h>

#include <cstddef>
#include <ctime>

namespace Bench {

/// What one run of a benchmark measures: the processor time of the part that counts, or a number of bytes.
class Measurement {
public:
    explicit Measurement(std::size_t items) : items_(items) {}

    /// Measures a piece of work; what stands around the call is not counted. Processor time, since neighbours on the
    /// machine take wall-clock time. Under callgrind its instructions are collected, and no others.
    template <class Work>
    void time(Work work) {
        const double begin = processorSeconds();
        CALLGRIND_TOGGLE_COLLECT;
        work();
        CALLGRIND_TOGGLE_COLLECT;
        seconds_ += processorSeconds() - begin;
    }

    void setBytes(std::size_t bytes) { bytes_ = bytes; }
    /// Says over how many items the result is to be spread, where these are not the schemas of the catalogue.
    void setItems(std::size_t items) { items_ = items; }

    double seconds() const { return seconds_; }
    std::size_t bytes() const { return bytes_; }
    std::size_t items() const { return items_; }

private:
    static double processorSeconds() {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
    }

    double seconds_ = 0;
    std::size_t bytes_ = 0;
    std::size_t items_;
};

} // namespace Bench
