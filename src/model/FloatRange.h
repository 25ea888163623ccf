#pragma once

#include "model/NumericRange.h"

#include <parameters/FloatRange.h>

namespace Parameters::Internal {

struct FloatRangeTraits {
    using Public = Kinds::FloatRange;
    using Number = double;
    using Reader = Ostra::Number;

    static bool isNumber(Ostra::JSONView value) { return value.isNumber(); }
    static void write(Ostra::SchemaWriter& writer, Number number) { writer.number(number); }
};

using FloatRangeKind = NumericRangeKind<FloatRangeTraits>;

} // namespace Parameters::Internal
