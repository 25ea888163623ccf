#pragma once

#include "generator/Catalogue.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

/// What benchmarks work on. All of it is made once for each catalogue and kept.
namespace Bench {

const Catalogue& catalogueOf(std::size_t size);

/// Returns what a lambda makes of a catalogue; it is called once for each catalogue.
template <class Make>
const auto& once(const Catalogue& catalogue, Make make) {
    static_assert(std::is_class_v<Make>, "Two functions of one type would share what is kept.");
    static std::map<const Catalogue*, decltype(make(catalogue))> made;
    auto found = made.find(&catalogue);
    if (found == made.end()) {
        found = made.emplace(&catalogue, make(catalogue)).first;
    }
    return found->second;
}

/// Registers each text of a catalogue, units with the units engine.
void registerEach(const Catalogue& catalogue, Parameters::ParametersEngine& engine);

/// An engine that holds the whole catalogue, resolved.
const Parameters::ParametersEngine& resolvedEngine(const Catalogue& catalogue);

/// The type identifiers of all measurable parameters, the most numerous kind, in no particular order.
const std::vector<std::string>& measurableParameters(const Catalogue& catalogue);

} // namespace Bench
