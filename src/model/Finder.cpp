#include "model/Finder.h"

#include <parameters/ValidationException.h>

namespace Parameters::Internal {

Units::Unit Finder::requireUnit(std::string_view typeId, std::string_view inConstant,
                                std::string_view schemaTypeId) const {
    const std::string named(typeId);
    if (auto unit = findUnit(named)) {
        return *unit;
    }
    if (binds()) {
        failMissing("unit", typeId, schemaTypeId);
    }
    throw ValidationException("Typeid " + named + " " + std::string(inConstant) +
                              " constant in measurable spec schema " + std::string(schemaTypeId) +
                              " does not belong to a unit.");
}

void Finder::failMissing(std::string_view word, std::string_view typeId, std::string_view schemaTypeId) const {
    const std::string named(typeId);
    if (binds()) {
        throw ValidationException("Could not find " + std::string(word) + " with typeid " + named + ".");
    }
    throw ValidationException("Dependency " + named + " in schema " + std::string(schemaTypeId) +
                              " is missing or does not represent an object of the expected type.");
}

} // namespace Parameters::Internal
