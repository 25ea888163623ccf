#pragma once

#include "catalogue/Loader.h"
#include "faults/Finding.h"
#include "faults/Rules.h"
#include "output/Json.h"

#include <span>
#include <string>
#include <vector>

namespace Tool {

/// Returns a line "file:line:column: message" for each finding, with a hint below it and a line for what is folded into
/// it; what is folded is shown, too, when all are asked for.
std::string findingsAsText(const std::vector<Finding>& findings, bool isAll = false);

/// Returns the same as commands for the log of a workflow, by which a code host shows findings in place.
std::string findingsAsCommands(const std::vector<Finding>& findings, bool isAll);

/// Returns a table of the objects of a catalogue, a line per kind, and a line that sums up.
std::string summaryAsText(Loader& catalogue, const std::vector<Finding>& findings);

/// Returns both as one JSON object.
std::string checkAsJson(Loader& catalogue, const std::vector<Finding>& findings);

/// Returns the findings as a log in the Static Analysis Results Interchange Format 2.1.0, which code hosts show in
/// place, with the rules by which they were found.
std::string findingsAsSarif(const std::vector<Finding>& findings, std::span<const Rule> table = rules());

/// Returns a place of a file as members of a JSON object.
Json placeAsJson(const Place& place);

} // namespace Tool
