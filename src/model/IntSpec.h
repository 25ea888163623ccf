#pragma once

#include "model/CoreSpec.h"

#include <parameters/IntSpec.h>

namespace Parameters::Internal {

using IntSpecKind = CoreSpecKind<Kinds::IntSpec>;

} // namespace Parameters::Internal
