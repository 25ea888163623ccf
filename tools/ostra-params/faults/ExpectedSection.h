#pragma once

#include "catalogue/Sections.h"

#include <string_view>

namespace Tool {

/// Returns of which section an object must be that a schema of another names in a constant or property; nullptr if that
/// tells none.
const Section* expectedSection(const Section& ofSchema, std::string_view definitionId);

} // namespace Tool
