#pragma once

#include "model/NumericRange.h"

#include <parameters/FloatRange.h>

#include <string_view>

namespace Parameters::Internal {

struct FloatRangeTraits {
    using Range = FloatRange;
    using Number = double;
    using Reader = Ostra::Number;

    static constexpr const auto& base = Ostra::BuiltIn::floatRange;

    static void write(Ostra::SchemaWriter& writer, Number number) { writer.number(number); }
};

struct FloatRangeKind : NumericRangeKind<FloatRangeTraits> {
    static constexpr std::string_view word = "floating-point range";
};

} // namespace Parameters::Internal
