#include "report/Results.h"

#include <rapidjson/document.h>
#include <rapidjson/istreamwrapper.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace Bench {

namespace {

constexpr std::string_view dumpMark = "desc: Trigger: Client Request: ";
constexpr std::string_view totalsMark = "totals: ";

/// Google Benchmark adds to a name how it measured.
std::string labelOf(const std::string& name) { return name.substr(0, name.find("/manual_time")); }

} // namespace

void Results::addRuns(const std::string& path) {
    std::ifstream file(path);
    rapidjson::IStreamWrapper stream(file);
    rapidjson::Document document;
    document.ParseStream(stream);
    if (document.HasParseError() || !document.IsObject() || !document.HasMember("benchmarks")) {
        throw std::runtime_error(path + " is not what Google Benchmark writes");
    }
    for (const auto& run : document["benchmarks"].GetArray()) {
        if (run["run_type"] == "iteration") {
            const char* const figure = run.HasMember("bytes") ? "bytes" : "real_time";
            figures_[labelOf(run["name"].GetString())].push_back(run[figure].GetDouble() / run["items"].GetDouble());
        }
    }
}

void Results::addInstructions(const std::string& path) {
    std::ifstream file(path);
    std::string label;
    double items = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(dumpMark)) {
            std::istringstream(line.substr(dumpMark.size())) >> label >> items;
        } else if (line.starts_with(totalsMark) && !label.empty()) {
            figures_[label].push_back(std::stod(line.substr(totalsMark.size())) / items);
        }
    }
}

std::optional<double> Results::median(const std::string& label) const {
    const auto found = figures_.find(label);
    if (found == figures_.end()) {
        return {};
    }
    std::vector<double> sorted = found->second;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

std::vector<std::string> Results::labels() const {
    std::vector<std::string> result;
    for (const auto& [label, figures] : figures_) {
        result.push_back(label);
    }
    return result;
}

} // namespace Bench
