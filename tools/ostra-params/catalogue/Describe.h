#pragma once

#include "catalogue/Object.h"

#include <parameters/ParametersEngine.h>

#include <cstddef>
#include <vector>

namespace Tool {

/// Returns all objects of an engine and of its units engine, by section, then by typeid: in texts, what each says by
/// its accessors.
std::vector<Object> describeAll(Parameters::ParametersEngine& engine);

/// Returns how many objects there are in each section.
std::vector<std::size_t> countAll(Parameters::ParametersEngine& engine);

} // namespace Tool
