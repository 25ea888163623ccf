#pragma once

#include "harness/Fixtures.h"
#include "harness/Measurement.h"

#include <parameters/Kinds.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

/// What the benchmarks of look-ups share.
namespace Bench {

using Handle = std::shared_ptr<const Parameters::MeasurableParameter>;

/// The measurable parameters of a catalogue in a map by typeid, filled in the order of the catalogue.
template <class Map>
Map handlesOf(const Catalogue& catalogue) {
    const Parameters::ParametersEngine& engine = resolvedEngine(catalogue);
    Map result;
    for (const Schema& schema : catalogue) {
        if (schema.kind == Parameters::Kinds::MeasurableParameter::info) {
            result.emplace(schema.typeId, std::make_shared<const Parameters::MeasurableParameter>(
                                              engine.getMeasurableParameter(schema.typeId)));
        }
    }
    return result;
}

/// Looks each typeid up once.
template <class LookUp>
void measureLookUps(const std::vector<std::string>& typeIds, Measurement& measurement, LookUp lookUp) {
    measurement.setItems(typeIds.size());
    measurement.time([&] {
        for (const std::string& typeId : typeIds) {
            benchmark::DoNotOptimize(lookUp(typeId));
        }
    });
}

} // namespace Bench
