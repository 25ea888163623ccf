#pragma once

#include "model/CoreSpec.h"

#include <parameters/GeneralSpec.h>

#include <string_view>

namespace Parameters::Internal {

struct GeneralSpecKind : CoreSpecKind<GeneralSpec, Ostra::BuiltIn::generalSpec> {
    static constexpr std::string_view word = "general spec";
};

} // namespace Parameters::Internal
