#pragma once

#include "catalogue/Headings.h"
#include "catalogue/Input.h"
#include "faults/Finding.h"

#include <parameters/Fault.h>

#include <vector>

namespace Tool {

/// The code of files that cannot be read, and of texts that are no UTF-8.
constexpr const char* fileUnreadable = "file-unreadable";
constexpr const char* encodingInvalid = "encoding-invalid";

/// Returns what is wrong with the input: what cannot be read, and the faults that the library found in the texts, with
/// hints. They are in the order of reading.
std::vector<Finding> findingsOf(const Input& input, const Headings& headings,
                                const std::vector<Parameters::Fault>& faults);

/// Puts findings, each list in the order of reading, into one such list.
void addTo(std::vector<Finding>& findings, std::vector<Finding> more);

} // namespace Tool
