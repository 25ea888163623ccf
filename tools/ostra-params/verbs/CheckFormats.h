#pragma once

#include "catalogue/Catalogue.h"

#include <string>

namespace Tool {

/// Returns what is wrong with a catalogue: a line "file:line:column: message" for each fault, with a hint below it.
std::string faultsAsText(const Catalogue& catalogue);

/// Returns a table of the objects of a catalogue, a line per kind, and a line that sums up.
std::string summaryAsText(const Catalogue& catalogue);

/// Returns both as one JSON object.
std::string checkAsJson(const Catalogue& catalogue);

/// Returns the faults as a log in the Static Analysis Results Interchange Format 2.1.0, which code hosts show in place.
std::string checkAsSarif(const Catalogue& catalogue);

} // namespace Tool
