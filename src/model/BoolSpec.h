#pragma once

#include "model/CoreSpec.h"

#include <parameters/BoolSpec.h>

namespace Parameters::Internal {

using BoolSpecKind = CoreSpecKind<Kinds::BoolSpec>;

} // namespace Parameters::Internal
