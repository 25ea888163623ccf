#include "report/Reach.h"
#include "report/Results.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <iostream>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace {

using Bench::Reach;
using Bench::Results;
using Words = std::span<const std::string>;

constexpr const char* usage = "usage: bench-report labels SIZE...\n"
                              "       bench-report held SIZE...\n"
                              "       bench-report table SIZE... -- FILE...\n"
                              "       bench-report instructions SIZE... -- FILE...\n"
                              "       bench-report compare FILE... -- FILE...\n";

std::string labelOf(std::string_view benchmark, std::size_t size) {
    return std::string(benchmark) + "/" + std::to_string(size);
}

/// Returns the ratios whose sizes are all among those given. A single size that none is for stands for all sizes: a run
/// that only shows that everything runs.
std::vector<Reach> reachesAt(Words sizeWords) {
    std::set<std::size_t> sizes;
    for (const std::string& word : sizeWords) {
        sizes.insert(std::stoull(word));
    }
    std::vector<Reach> chosen;
    std::copy_if(Bench::reaches.begin(), Bench::reaches.end(), std::back_inserter(chosen),
                 [&](const Reach& reach) { return sizes.contains(reach.size) && sizes.contains(reach.floorSize); });
    if (!chosen.empty() || sizes.size() != 1) {
        return chosen;
    }
    std::set<std::string_view> seen;
    for (const Reach& reach : Bench::reaches) {
        if (seen.insert(reach.ratio).second) {
            chosen.push_back(Bench::at(*sizes.begin(), reach.ratio, reach.ours, reach.floor));
        }
    }
    return chosen;
}

/// The benchmarks that the ratios need.
std::set<std::string> labelsOf(const std::vector<Reach>& reaches) {
    std::set<std::string> labels;
    for (const Reach& reach : reaches) {
        labels.insert(labelOf(reach.ours, reach.size));
        labels.insert(labelOf(reach.floor, reach.floorSize));
    }
    return labels;
}

/// Those of the library that are held to something, without their floors.
std::set<std::string> heldLabelsOf(const std::vector<Reach>& reaches) {
    std::set<std::string> labels;
    for (const Reach& reach : reaches) {
        if (reach.atMost) {
            labels.insert(labelOf(reach.ours, reach.size));
        }
    }
    return labels;
}

/// Prints a regular expression that fits these benchmarks and no others.
void printLabels(const std::set<std::string>& labels) {
    const char* separator = "^(";
    for (const std::string& label : labels) {
        std::cout << separator << label;
        separator = "|";
    }
    std::cout << ")/";
}

std::string figure(std::optional<double> value, const char* format = "%.2f") {
    if (!value) {
        return "";
    }
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), format, *value);
    return text.data();
}

std::string markOf(const Reach& reach, double measured) {
    if (!reach.atMost) {
        return "";
    }
    if (measured > *reach.atMost) {
        return "NOT MET";
    }
    return reach.goal && measured <= *reach.goal ? "goal" : "met";
}

void printRow(const Reach& reach, const Results& results, const char* format) {
    const auto ours = results.median(labelOf(reach.ours, reach.size));
    const auto floor = results.median(labelOf(reach.floor, reach.floorSize));
    const double ratio = *ours / *floor;
    std::printf("| %-50s | %7zu | %8s | %8s | %5s | %7s | %5s | %-7s |\n", std::string(reach.ratio).c_str(), reach.size,
                figure(ours, format).c_str(), figure(floor, format).c_str(),
                figure(ratio, ratio < 0.1 ? "%.4f" : "%.2f").c_str(), figure(reach.atMost).c_str(),
                figure(reach.goal).c_str(), markOf(reach, ratio).c_str());
}

void printHead(const char* unit) {
    std::printf("| %-50s | %7s | %8s | %8s | %5s | %7s | %5s | %-7s |\n", "ratio", "schemas", unit, "floor", "ratio",
                "at most", "goal", "");
    std::printf("|---|--:|--:|--:|--:|--:|--:|---|\n");
}

/// A ratio whose figures are missing is a fault: something was not run.
int printTable(Words sizes, const Results& results) {
    printHead("ns or B");
    int missing = 0;
    for (const Reach& reach : reachesAt(sizes)) {
        if (results.median(labelOf(reach.ours, reach.size)) && results.median(labelOf(reach.floor, reach.floorSize))) {
            printRow(reach, results, "%.1f");
        } else {
            std::cerr << "bench-report: nothing was measured of " << reach.ratio << '\n';
            ++missing;
        }
    }
    return missing == 0 ? 0 : 1;
}

int printInstructions(Words sizes, const Results& results) {
    printHead("instr.");
    for (Reach reach : reachesAt(sizes)) {
        reach.atMost.reset();
        reach.goal.reset();
        for (const Reach& held : Bench::instructionReaches) {
            if (held.ratio == reach.ratio && held.size == reach.size) {
                reach = held;
            }
        }
        if (results.median(labelOf(reach.ours, reach.size)) && results.median(labelOf(reach.floor, reach.floorSize))) {
            printRow(reach, results, "%.0f");
        }
    }
    return results.labels().empty() ? 1 : 0;
}

int printComparison(const Results& before, const Results& after) {
    std::printf("| %-40s | %10s | %10s | %s |\n|---|--:|--:|--:|\n", "benchmark", "before", "after", "after / before");
    bool any = false;
    for (const std::string& label : after.labels()) {
        if (const auto old = before.median(label)) {
            const auto now = after.median(label);
            std::printf("| %-40s | %10.1f | %10.1f | %14.2f |\n", label.c_str(), *old, *now, *now / *old);
            any = true;
        }
    }
    return any ? 0 : 1;
}

Results runsOf(Words files) {
    Results results;
    for (const std::string& file : files) {
        results.addRuns(file);
    }
    return results;
}

int run(Words words) {
    if (words.empty()) {
        std::cerr << usage;
        return 2;
    }
    const std::string& command = words.front();
    const Words arguments = words.subspan(1);
    const auto split =
        static_cast<std::size_t>(std::find(arguments.begin(), arguments.end(), "--") - arguments.begin());
    const Words first = arguments.first(split);
    const Words second = arguments.subspan(std::min(split + 1, arguments.size()));
    if (command == "labels") {
        printLabels(labelsOf(reachesAt(first)));
        return 0;
    }
    if (command == "held") {
        printLabels(heldLabelsOf(reachesAt(first)));
        return 0;
    }
    if (command == "table") {
        return printTable(first, runsOf(second));
    }
    if (command == "instructions") {
        Results results;
        for (const std::string& file : second) {
            results.addInstructions(file);
        }
        return printInstructions(first, results);
    }
    if (command == "compare") {
        return printComparison(runsOf(first), runsOf(second));
    }
    std::cerr << usage;
    return 2;
}

} // namespace

/// Turns what the benchmarks measured into tables.
int main(int argc, char** argv) {
    try {
        const std::vector<std::string> words(argv + 1, argv + argc);
        return run(words);
    } catch (const std::exception& error) {
        std::cerr << "bench-report: " << error.what() << '\n';
        return 1;
    }
}
