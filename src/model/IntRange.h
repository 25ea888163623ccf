#pragma once

#include "model/NumericRange.h"

#include <parameters/IntRange.h>

namespace Parameters::Internal {

struct IntRangeTraits {
    using Public = Kinds::IntRange;
    using Number = long long;
    using Reader = Ostra::Integer;

    static bool isNumber(Ostra::JSONView value) { return value.isInteger(); }
    static void write(Ostra::SchemaWriter& writer, Number number) { writer.integer(number); }
};

using IntRangeKind = NumericRangeKind<IntRangeTraits>;

} // namespace Parameters::Internal
