#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <iostream>

namespace Support {

/// A count of what a program of tests tried, which the program prints in the end.
class Tally : public testing::Environment {
public:
    explicit Tally(const char* what) : what_(what) {}

    /// Counts some more; it puts threads into no order, so it hides no race between them.
    void add(long count) { count_.fetch_add(count, std::memory_order_relaxed); }

    void TearDown() override {
        if (count_ > 0) {
            std::cout << "Tried: " << count_ << ' ' << what_ << '\n';
        }
    }

private:
    const char* what_;
    std::atomic<long> count_ = 0;
};

/// Makes a tally that lives as long as the program.
inline Tally& addTally(const char* what) {
    auto* tally = new Tally(what);
    testing::AddGlobalTestEnvironment(tally); // which owns it
    return *tally;
}

} // namespace Support
