#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Bench {

/// What a schema of a catalogue describes: one of the twenty kinds, or a unit.
enum class Kind {
    unit,
    discipline,
    domain,
    group,
    enumeration,
    floatRange,
    intRange,
    stringRange,
    boolSpec,
    generalSpec,
    intSpec,
    stringSpec,
    referenceSpec,
    measurableSpec,
    category,
    boolParameter,
    enumerationParameter,
    referenceParameter,
    stringParameter,
    intParameter,
    measurableParameter
};
inline constexpr std::size_t kindCount = 21;

struct Schema {
    Kind kind;
    std::string typeId;
    std::string text;
};

using Catalogue = std::vector<Schema>;

/// The smallest catalogue that has all kinds.
inline constexpr std::size_t minCatalogueSize = 40;

/// Makes a catalogue of so many schemas: nine tenths are parameters, the rest is what they name, units included. The
/// schemas are shuffled, so that half of what is named comes later. The bytes depend on size and seed alone.
/// @throws std::invalid_argument if the size is below minCatalogueSize.
Catalogue makeCatalogue(std::size_t size, std::uint64_t seed);

} // namespace Bench
