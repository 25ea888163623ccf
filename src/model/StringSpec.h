#pragma once

#include "model/CoreSpec.h"

#include <parameters/StringSpec.h>

#include <string_view>

namespace Parameters::Internal {

struct StringSpecKind : BuiltInCoreSpecKind<StringSpec, Ostra::BuiltIn::stringSpec> {
    static constexpr std::string_view word = "string spec";
};

} // namespace Parameters::Internal
