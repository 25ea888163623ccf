#pragma once

#include "model/CoreSpec.h"

#include <parameters/BoolSpec.h>

#include <string_view>

namespace Parameters::Internal {

struct BoolSpecKind : BuiltInCoreSpecKind<BoolSpec, Ostra::BuiltIn::boolSpec> {
    static constexpr std::string_view word = "Boolean spec";
};

} // namespace Parameters::Internal
