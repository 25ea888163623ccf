#include "generator/Catalogue.h"

#include "generator/Random.h"
#include "generator/Recipes.h"

#include <stdexcept>
#include <utility>

namespace Bench {

Catalogue makeCatalogue(std::size_t size, std::uint64_t seed) {
    if (size < minCatalogueSize) {
        throw std::invalid_argument("A catalogue of all kinds has at least " + std::to_string(minCatalogueSize) +
                                    " schemas.");
    }
    Random random(seed);
    Catalogue catalogue = makeKindByKind(size, random);
    for (std::size_t last = catalogue.size() - 1; last > 0; --last) {
        std::swap(catalogue[last], catalogue[random.below(static_cast<std::uint32_t>(last + 1))]);
    }
    return catalogue;
}

} // namespace Bench
