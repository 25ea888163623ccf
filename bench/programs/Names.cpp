#include "harness/Fixtures.h"
#include "programs/Groups.h"
#include "programs/PlainMap.h"

#include <parameters/Kinds.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Bench {

using Parameters::MeasurableParameter;
using Parameters::ParameterCore;
using Parameters::ParametersEngine;

namespace {

/// How values and plain records are asked for their names.
struct NameOf {
    template <class Value>
    std::string_view operator()(const Value& value) const {
        return value.name();
    }
    std::string_view operator()(const PlainRecord& record) const { return record->name; }
};

/// Reads the name of each, of the bytes the first.
template <class Named>
void measureReading(const std::vector<Named>& all, Measurement& measurement) {
    measurement.setItems(all.size());
    measurement.time([&] {
        std::size_t sum = 0;
        for (const Named& each : all) {
            const std::string_view name = NameOf()(each);
            sum += name.size() + static_cast<unsigned char>(name.front());
        }
        benchmark::DoNotOptimize(sum);
    });
}

/// Sorts a copy, which is made beforehand, by name.
template <class Named>
void measureSorting(const std::vector<Named>& all, Measurement& measurement) {
    std::vector<Named> sorted(all);
    measurement.setItems(sorted.size());
    measurement.time([&] {
        std::sort(sorted.begin(), sorted.end(),
                  [](const Named& one, const Named& other) { return NameOf()(one) < NameOf()(other); });
    });
}

/// The measurable parameters of a catalogue in its order, as make(typeId) makes them.
template <class Make>
auto measurablesOf(const Catalogue& catalogue, Make make) {
    std::vector<decltype(make(std::string()))> all;
    for (const Schema& schema : catalogue) {
        if (schema.kind == Parameters::Kinds::MeasurableParameter::info) {
            all.push_back(make(schema.typeId));
        }
    }
    return all;
}

void readNames(const Catalogue& catalogue, Measurement& measurement) {
    measureReading(once(catalogue,
                        [](const Catalogue& schemas) {
                            const ParametersEngine& engine = resolvedEngine(schemas);
                            return measurablesOf(schemas, [&](const std::string& typeId) {
                                return engine.getMeasurableParameter(typeId);
                            });
                        }),
                   measurement);
}

void readPlainNames(const Catalogue& catalogue, Measurement& measurement) {
    measureReading(once(catalogue,
                        [](const Catalogue& schemas) {
                            const PlainMap& map = plainMap(schemas);
                            return measurablesOf(schemas, [&](const std::string& typeId) { return map.at(typeId); });
                        }),
                   measurement);
}

/// Of all parameters, whatever their kind: their cores are handles as they are themselves.
void sortByName(const Catalogue& catalogue, Measurement& measurement) {
    measureSorting(once(catalogue,
                        [](const Catalogue& schemas) {
                            std::vector<ParameterCore> cores;
                            forEachParameter(schemas,
                                             [&](const auto& parameter) { cores.push_back(parameter.core()); });
                            return cores;
                        }),
                   measurement);
}

void sortPlainByName(const Catalogue& catalogue, Measurement& measurement) {
    measureSorting(once(catalogue,
                        [](const Catalogue& schemas) {
                            std::vector<PlainRecord> records;
                            forEachParameter(schemas, [&](const auto& parameter) {
                                records.push_back(std::make_shared<const PlainParameter>(plain(parameter)));
                            });
                            return records;
                        }),
                   measurement);
}

} // namespace

Benchmarks nameBenchmarks() {
    return {{"read-names", readNames},
            {"read-plain-names", readPlainNames},
            {"sort-by-name", sortByName},
            {"sort-plain-by-name", sortPlainByName}};
}

} // namespace Bench
