#pragma once

#include <string>

namespace Tool {

/// Returns the typeid of a schema text that an engine has accepted.
std::string typeIdOf(const std::string& schemaText);

} // namespace Tool
