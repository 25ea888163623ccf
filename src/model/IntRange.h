#pragma once

#include "model/NumericRange.h"

#include <parameters/IntRange.h>

#include <string_view>

namespace Parameters::Internal {

struct IntRangeTraits {
    using Range = IntRange;
    using Number = long long;
    using Reader = Ostra::Integer;

    static constexpr const auto& base = Ostra::BuiltIn::intRange;

    static void write(Ostra::SchemaWriter& writer, Number number) { writer.integer(number); }
};

struct IntRangeKind : NumericRangeKind<IntRangeTraits> {
    static constexpr std::string_view word = "integer range";
};

} // namespace Parameters::Internal
