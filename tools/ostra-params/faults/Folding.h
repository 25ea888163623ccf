#pragma once

#include "faults/Finding.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Tool {

/// A finding that is shown, and those that are folded into a line below it.
struct Fold {
    const Finding* shown;
    std::size_t alike = 0;        ///< Which are of one cause or one kind with it.
    std::size_t consequences = 0; ///< Which go when they are mended.
    std::vector<const Finding*> folded = {};
};

/// Folds findings, which must outlive the result: consequences into their roots; what names one thing that is missing
/// into the first of it; warnings into the third of those of one code and
/// name, or the tenth of one code.
std::vector<Fold> fold(const std::vector<Finding>& findings);

/// Returns the line that stands for what is folded; empty when nothing is.
std::string summaryOf(const Fold& fold);

} // namespace Tool
