#pragma once

#include "schema/ExceptionFactory.h"

#include <parameters/ValidationException.h>

namespace Parameters::Internal {

/// Makes the exceptions of documents that are read for this library.
using ValidationExceptionFactory = Ostra::ExceptionFactoryOf<ValidationException>;

} // namespace Parameters::Internal
