#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Bench {

/// What the runs of benchmarks gave, each figure spread over the items of its benchmark.
class Results {
public:
    /// Adds the runs of a file that Google Benchmark wrote as JSON.
    void addRuns(const std::string& path);
    /// Adds what a file of callgrind counted, if it was written at the end of a benchmark.
    void addInstructions(const std::string& path);

    /// Returns the median of the runs of a benchmark; empty if there was none.
    std::optional<double> median(const std::string& label) const;
    std::vector<std::string> labels() const;

private:
    std::map<std::string, std::vector<double>> figures_;
};

} // namespace Bench
