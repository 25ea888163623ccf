#pragma once

#include "output/Json.h"

#include <string>

namespace Tool {

class Catalogue;

/// Returns what the script of the report's page reads of the changes from an earlier catalogue, which goes by a name:
/// "changes", the worst first, each with what it says of its "rules", whom it affects, and the schema text that was.
/// What a constant says is a text, {"typeId"} of what it names, a list of these, or null where it says nothing.
Json reviewDataOf(const Catalogue& before, const Catalogue& after, const std::string& name);

} // namespace Tool
