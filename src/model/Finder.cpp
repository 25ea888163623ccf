#include "model/Finder.h"

#include "model/Messages.h"

#include <parameters/ValidationException.h>

namespace Parameters::Internal {

Units::Unit Finder::requireUnit(std::string_view typeId, std::string_view inConstant,
                                std::string_view schemaTypeId) const {
    if (auto unit = findUnit(std::string(typeId))) {
        return *unit;
    }
    if (binds()) {
        failMissing("unit", typeId, schemaTypeId);
    }
    throw ValidationException(messages("unit-missing").with({typeId, inConstant, schemaTypeId}));
}

void Finder::failMissing(std::string_view word, std::string_view typeId, std::string_view schemaTypeId) const {
    if (binds()) {
        throw ValidationException(messages("object-unknown").with({word, typeId}));
    }
    throw ValidationException(messages("dependency-missing").with({typeId, schemaTypeId}));
}

} // namespace Parameters::Internal
