#pragma once

#include <parameters/KindInfo.h>

#include <string>

namespace Support {

// The messages that are the same for all kinds.

/// Returns the message of a look-up, or of an object that names what is not registered.
inline std::string notFound(Parameters::KindInfo kind, const std::string& typeId) {
    return "Could not find " + std::string(kind.word()) + " with typeid " + typeId + ".";
}

/// Returns the message of a schema that cannot be resolved for what it names.
inline std::string unresolvable(const std::string& dependency, const std::string& schema) {
    return "Dependency " + dependency + " in schema " + schema +
           " is missing or does not represent an object of the expected type.";
}

} // namespace Support
