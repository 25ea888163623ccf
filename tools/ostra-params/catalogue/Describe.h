#pragma once

#include "catalogue/Object.h"

#include <parameters/ParametersEngine.h>

#include <vector>

namespace Tool {

/// Returns all objects of an engine and of its units engine, by section, then by typeid: in texts, what each says by
/// its accessors.
std::vector<Object> describeAll(Parameters::ParametersEngine& engine);

} // namespace Tool
