#pragma once

#include "schema/Message.h"

namespace Units::Internal {

/// What the units library says beside what is said of any document.
inline constexpr Ostra::Messages messages({
    {"base-unrecognized", "Inheritance from an unrecognized base schema."},
    {"typeid-taken", "Schema with typeid <typeid> is already registered."},
    {"unit-unknown", "Could not find unit with typeid <typeid>."},
});

} // namespace Units::Internal
