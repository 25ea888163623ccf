#include "harness/Fixtures.h"
#include "programs/Groups.h"

#include <parameters/Kinds.h>

#include <optional>
#include <string>

namespace Bench {

using Parameters::ParametersEngine;

namespace {

constexpr std::size_t rounds = 1000;

void copyEngine(const Catalogue& catalogue, Measurement& measurement) {
    const ParametersEngine& engine = resolvedEngine(catalogue);
    std::optional<ParametersEngine> copy;
    measurement.setItems(1);
    measurement.time([&] { copy.emplace(engine); });
}

/// A parameter that names nothing but built-in objects.
std::string newSchema(std::size_t number) {
    return R"({"typeid":"acme.hvac:parameter.later.isInsulated)" + std::to_string(number) + R"(-1.0.0","inherits":[")" +
           std::string(Parameters::Kinds::BoolParameter::info.bases()[0]) +
           R"("],"constants":[{"id":"name","value":"Later"},{"id":"description","value":"Added to what is there."}]})";
}

const std::vector<std::string>& newSchemas(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue&) {
        std::vector<std::string> schemas;
        for (std::size_t number = 0; number <= rounds; ++number) {
            schemas.push_back(newSchema(number));
        }
        return schemas;
    });
}

void add(const std::string& schema, ParametersEngine& engine) {
    engine.registerSchema(schema);
    engine.resolveSchemas();
}

/// The first schema is added beforehand: it pays for the tables of a copy.
void addToFull(const Catalogue& catalogue, Measurement& measurement) {
    const auto& schemas = newSchemas(catalogue);
    ParametersEngine engine(resolvedEngine(catalogue));
    add(schemas.back(), engine);
    measurement.setItems(rounds);
    measurement.time([&] {
        for (std::size_t number = 0; number < rounds; ++number) {
            add(schemas[number], engine);
        }
    });
}

void addToEmpty(const Catalogue& catalogue, Measurement& measurement) {
    const auto& schemas = newSchemas(catalogue);
    std::vector<ParametersEngine> engines(rounds);
    measurement.setItems(rounds);
    measurement.time([&] {
        for (std::size_t number = 0; number < rounds; ++number) {
            add(schemas[number], engines[number]);
        }
    });
}

} // namespace

Benchmarks engineBenchmarks() {
    return {{"engine-copy", copyEngine}, {"add-to-full", addToFull}, {"add-to-empty", addToEmpty}};
}

} // namespace Bench
