#include "harness/Fixtures.h"
#include "programs/Groups.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Bench {

using Parameters::ParametersEngine;

namespace {

/// What an object names, and the object.
struct Edge {
    std::string named;
    std::string object;
};

const std::vector<std::string>& objects(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        std::vector<std::string> typeIds;
        for (const Schema& schema : schemas) {
            if (!schema.isUnit()) {
                typeIds.push_back(schema.typeId);
            }
        }
        return typeIds;
    });
}

const std::vector<Edge>& edges(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& schemas) {
        const ParametersEngine& engine = resolvedEngine(schemas);
        std::vector<Edge> result;
        for (const Schema& schema : schemas) {
            if (schema.kind && schema.kind->hasDependencies()) {
                for (const std::string& named : engine.getDependencies(schema.typeId)) {
                    result.push_back({named, schema.typeId});
                }
            }
        }
        return result;
    });
}

/// In an engine that was loaded anew: copies share what was found, even the order of their objects.
void dependents(const Catalogue& catalogue, Measurement& measurement) {
    const auto& typeIds = objects(catalogue);
    ParametersEngine engine;
    registerEach(catalogue, engine);
    engine.resolveSchemas();
    measurement.setItems(typeIds.size());
    measurement.time([&] {
        std::size_t found = 0;
        for (const std::string& typeId : typeIds) {
            found += engine.dependentsOf(typeId).size();
        }
        benchmark::DoNotOptimize(found);
    });
}

/// Turns the edges round, as a program would that has them.
template <class Text>
void writeEdges(const Catalogue& catalogue, Measurement& measurement) {
    const auto& given = edges(catalogue);
    std::multimap<Text, Text> objectsByNamed;
    measurement.setItems(objects(catalogue).size());
    measurement.time([&] {
        for (const auto& [named, object] : given) {
            objectsByNamed.emplace(named, object);
        }
    });
}

} // namespace

Benchmarks dependentsBenchmarks() {
    return {{"dependents", dependents},
            {"multimap-of-strings", writeEdges<std::string>},
            {"multimap-of-views", writeEdges<std::string_view>}};
}

} // namespace Bench
