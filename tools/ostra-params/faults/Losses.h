#pragma once

#include "faults/Finding.h"

#include <vector>

namespace Tool {

class Catalogue;

/// Returns what a catalogue says that is not there any more once it was written by the library and read again: of the
/// objects that are another then, and of what nothing reads. In the order of reading.
std::vector<Finding> lossesBetween(Catalogue& before, Catalogue& after);

} // namespace Tool
