#pragma once

#include <units/Unit.h>

#include <optional>
#include <string>

namespace Ostra {
class Schema;
}

namespace Units::Internal {

/// Makes the unit that a schema describes; one that means nothing, or none, where faults are kept.
/// @throws ValidationException if the base is not that of units, or a constant is missing or of the wrong type.
std::optional<Unit> readUnit(const Ostra::Schema& schema);

} // namespace Units::Internal
