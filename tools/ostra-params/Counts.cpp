#include "Counts.h"

#include <fmt/format.h>

#include <cstddef>
#include <iterator>
#include <string_view>

namespace Tool {

namespace {

using Parameters::ParametersEngine;

struct Row {
    std::string_view kind;
    std::size_t (*count)(ParametersEngine& engine);
};

template <auto getAll>
std::size_t countOf(ParametersEngine& engine) {
    return (engine.*getAll)().size();
}

std::size_t countOfUnits(ParametersEngine& engine) { return engine.getUnitsEngine().getAllUnits().size(); }

constexpr Row rows[] = {
    {"units", countOfUnits},
    {"disciplines", countOf<&ParametersEngine::getAllDisciplines>},
    {"domains", countOf<&ParametersEngine::getAllDomains>},
    {"groups", countOf<&ParametersEngine::getAllGroups>},
    {"Boolean specs", countOf<&ParametersEngine::getAllBoolSpecs>},
    {"general specs", countOf<&ParametersEngine::getAllGeneralSpecs>},
    {"Boolean parameters", countOf<&ParametersEngine::getAllBoolParameters>},
};

} // namespace

std::string tableOfCounts(ParametersEngine& engine) {
    constexpr auto line = "{:<24}{:>10}\n";
    std::string table = fmt::format(line, "kind", "objects");
    std::size_t total = 0;
    for (const Row& row : rows) {
        const std::size_t count = row.count(engine);
        fmt::format_to(std::back_inserter(table), line, row.kind, count);
        total += count;
    }
    fmt::format_to(std::back_inserter(table), line, "total", total);
    return table;
}

} // namespace Tool
