#pragma once

#include <parameters/KindInfo.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Bench {

struct Schema {
    std::optional<Parameters::KindInfo> kind; ///< Nothing for units.
    std::string typeId;
    std::string text;

    bool isUnit() const { return !kind; }
};

using Catalogue = std::vector<Schema>;

/// The smallest catalogue that has all kinds.
inline constexpr std::size_t minCatalogueSize = 40;

/// Makes a catalogue of so many schemas: nine tenths are parameters, the rest is what they name, units included. The
/// schemas are shuffled, so that half of what is named comes later. The bytes depend on size and seed alone.
/// @throws std::invalid_argument if the size is below minCatalogueSize.
Catalogue makeCatalogue(std::size_t size, std::uint64_t seed);

} // namespace Bench
