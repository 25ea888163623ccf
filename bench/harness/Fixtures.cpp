#include "harness/Fixtures.h"

#include "generator/Random.h"

#include <parameters/Kinds.h>

#include <utility>

namespace Bench {

namespace {

constexpr std::uint64_t catalogueSeed = 1;
constexpr std::uint64_t orderSeed = 2;

} // namespace

const Catalogue& catalogueOf(std::size_t size) {
    static std::map<std::size_t, Catalogue> made;
    auto found = made.find(size);
    if (found == made.end()) {
        found = made.emplace(size, makeCatalogue(size, catalogueSeed)).first;
    }
    return found->second;
}

void registerEach(const Catalogue& catalogue, Parameters::ParametersEngine& engine) {
    for (const Schema& schema : catalogue) {
        if (schema.isUnit()) {
            engine.getUnitsEngine().registerSchema(schema.text);
        } else {
            engine.registerSchema(schema.text);
        }
    }
}

const Parameters::ParametersEngine& resolvedEngine(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& texts) {
        Parameters::ParametersEngine engine;
        registerEach(texts, engine);
        engine.resolveSchemas();
        return engine;
    });
}

const std::vector<std::string>& measurableParameters(const Catalogue& catalogue) {
    return once(catalogue, [](const Catalogue& texts) {
        std::vector<std::string> typeIds;
        for (const Schema& schema : texts) {
            if (schema.kind == Parameters::Kinds::MeasurableParameter::info) {
                typeIds.push_back(schema.typeId);
            }
        }
        Random random(orderSeed);
        for (std::size_t last = typeIds.size() - 1; last > 0; --last) {
            std::swap(typeIds[last], typeIds[random.below(static_cast<std::uint32_t>(last + 1))]);
        }
        return typeIds;
    });
}

} // namespace Bench
