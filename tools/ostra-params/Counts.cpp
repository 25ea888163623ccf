#include "Counts.h"

#include <fmt/format.h>

#include <array>
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

constexpr std::array rows{
    Row{"units", countOfUnits},
    Row{"enumerations", countOf<&ParametersEngine::getAllEnumerations>},
    Row{"floating-point ranges", countOf<&ParametersEngine::getAllFloatRanges>},
    Row{"integer ranges", countOf<&ParametersEngine::getAllIntRanges>},
    Row{"string ranges", countOf<&ParametersEngine::getAllStringRanges>},
    Row{"disciplines", countOf<&ParametersEngine::getAllDisciplines>},
    Row{"Boolean specs", countOf<&ParametersEngine::getAllBoolSpecs>},
    Row{"general specs", countOf<&ParametersEngine::getAllGeneralSpecs>},
    Row{"integer specs", countOf<&ParametersEngine::getAllIntSpecs>},
    Row{"measurable specs", countOf<&ParametersEngine::getAllMeasurableSpecs>},
    Row{"reference specs", countOf<&ParametersEngine::getAllReferenceSpecs>},
    Row{"string specs", countOf<&ParametersEngine::getAllStringSpecs>},
    Row{"groups", countOf<&ParametersEngine::getAllGroups>},
    Row{"enumeration parameters", countOf<&ParametersEngine::getAllEnumerationParameters>},
    Row{"Boolean parameters", countOf<&ParametersEngine::getAllBoolParameters>},
    Row{"integer parameters", countOf<&ParametersEngine::getAllIntParameters>},
    Row{"measurable parameters", countOf<&ParametersEngine::getAllMeasurableParameters>},
    Row{"reference parameters", countOf<&ParametersEngine::getAllReferenceParameters>},
    Row{"string parameters", countOf<&ParametersEngine::getAllStringParameters>},
    Row{"domains", countOf<&ParametersEngine::getAllDomains>},
    Row{"categories", countOf<&ParametersEngine::getAllCategories>},
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
