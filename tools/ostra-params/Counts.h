#pragma once

#include <parameters/ParametersEngine.h>

#include <string>

namespace Tool {

/// Returns a table of the objects in an engine: a line per kind, and their sum.
std::string tableOfCounts(Parameters::ParametersEngine& engine);

} // namespace Tool
