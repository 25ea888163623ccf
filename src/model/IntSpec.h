#pragma once

#include "model/CoreSpec.h"

#include <parameters/IntSpec.h>

#include <string_view>

namespace Parameters::Internal {

struct IntSpecKind : BuiltInCoreSpecKind<IntSpec, Ostra::BuiltIn::intSpec> {
    static constexpr std::string_view word = "integer spec";
};

} // namespace Parameters::Internal
