#pragma once

#include "model/CoreSpec.h"

#include <parameters/GeneralSpec.h>

namespace Parameters::Internal {

using GeneralSpecKind = CoreSpecKind<Kinds::GeneralSpec>;

} // namespace Parameters::Internal
