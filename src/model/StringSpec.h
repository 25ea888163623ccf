#pragma once

#include "model/CoreSpec.h"

#include <parameters/StringSpec.h>

namespace Parameters::Internal {

using StringSpecKind = CoreSpecKind<Kinds::StringSpec>;

} // namespace Parameters::Internal
