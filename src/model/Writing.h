#pragma once

#include "model/ValidationExceptionFactory.h"
#include "schema/Identifier.h"
#include "schema/SchemaWriter.h"

#include <string_view>

namespace Parameters::Internal {

/// Returns a writer for the schema of that typeid, whose faults are this library's.
inline Ostra::SchemaWriter schemaWriter(std::string_view typeId, const Ostra::Identifier& base) {
    return {typeId, base.full(), ValidationExceptionFactory::shared()};
}

} // namespace Parameters::Internal
