#pragma once

#include "engine/Registry.h"

#include <parameters/Fault.h>
#include <units/UnitsEngine.h>

#include <map>
#include <string>
#include <vector>

namespace Parameters::Internal {

/// Whether what is sound becomes objects, or is only found to be sound.
enum class Outcome { objects, faults };

/// Reads texts, files those that are sound as pending beside what is pending already, resolves, and returns what is
/// wrong with the rest. Changes the registry and the units engine also when it throws, and for faults alone leaves them
/// in no state to be used: both are to be copies.
std::vector<Fault> review(const std::map<std::string, std::string>& texts, Registry& registry,
                          Units::UnitsEngine& units, Outcome outcome);

} // namespace Parameters::Internal
