#pragma once

#include "faults/Outline.h"

#include <string>

namespace Tool {

/// Returns the constant or property at which the library stopped reading a schema with a message that does not name it;
/// nullptr when none of them is to blame. What is read when is the library's business, so it is asked.
const Outline::Node* lastDefinitionRead(const Outline& outline, const std::string& text, const std::string& message);

} // namespace Tool
