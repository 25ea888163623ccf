#pragma once

#include "schema/BuiltIn.h"
#include "schema/SchemaWriter.h"
#include "schema/ValidationExceptionFactory.h"

#include <string_view>

namespace Parameters::Internal {

/// Returns a writer for the schema of that typeid, whose faults are this library's.
inline Ostra::SchemaWriter schemaWriter(std::string_view typeId, const Ostra::BuiltIn::Identifier& base) {
    return {typeId, base.full(), *ValidationExceptionFactory::shared()};
}

} // namespace Parameters::Internal
