#pragma once

#include "compare/Breaking.h"
#include "compare/Comparison.h"
#include "faults/Finding.h"

#include <string>
#include <vector>

namespace Tool {

/// Returns a line for each object that changed, with lines below it for what is another than before.
std::string changesAsText(const std::vector<Compare::Change>& changes);

/// Returns all that is known of changes as a JSON object; of verdicts, too, where there are any to be told.
std::string changesAsJson(const std::vector<Compare::Change>& changes,
                          const std::vector<Compare::Verdict>* verdicts = nullptr);

/// Returns a line "file:line:column: message [code]" for each verdict, with the reason and what depends on the object
/// below it; what is safe or accepted is shown, too, when all are asked for, and counted in any case.
std::string verdictsAsText(const std::vector<Compare::Verdict>& verdicts, bool isAll);

/// Returns verdicts as findings, for the formats of code hosts: what breaks as errors, what is to be reviewed as
/// warnings. What is safe or accepted is left out.
std::vector<Finding> findingsOf(const std::vector<Compare::Verdict>& verdicts);

} // namespace Tool
