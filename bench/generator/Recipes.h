#pragma once

#include "generator/Catalogue.h"
#include "generator/Random.h"

#include <cstddef>

namespace Bench {

/// Makes the schemas of a catalogue of so many, kind by kind.
Catalogue makeKindByKind(std::size_t size, Random& random);

} // namespace Bench
