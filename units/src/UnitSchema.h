#pragma once

#include <units/Unit.h>

#include <string>

namespace Ostra {
class Schema;
}

namespace Units::Internal {

/// Makes the unit that a schema describes.
/// @throws ValidationException if the base is not that of units, or a constant is missing or of the wrong type.
Unit readUnit(const Ostra::Schema& schema);

} // namespace Units::Internal
