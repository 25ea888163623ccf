#pragma once

#include "output/Json.h"

#include <string>

namespace Tool {

class Catalogue;

/// Returns what the script of the report's page reads of the changes from an earlier catalogue, which goes by a name:
/// "changes", the worst first, each with its "rules", whom it affects, and the schema text that was. That is a text or,
/// where the object is still there, how much of its text begins like the present one, what follows, and how much then
/// ends like it. What a constant says is a text, {"typeId"} of what it names, a list of these, or null for nothing.
Json reviewDataOf(const Catalogue& before, const Catalogue& after, const std::string& name);

} // namespace Tool
