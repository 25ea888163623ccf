#pragma once

#include "catalogue/Kinds.h"

#include <string_view>

namespace Tool {

/// Returns of which kind an object must be that a schema names in a constant or property; nullptr if that tells none.
const Kind* expectedKind(const Kind& schemaKind, std::string_view definitionId);

} // namespace Tool
