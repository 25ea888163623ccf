#pragma once

#include "model/FloatRange.h"
#include "model/MeasurableSpec.h"
#include "model/RangedParameter.h"
#include "schema/Schema.h"

#include <parameters/MeasurableParameter.h>
#include <parameters/ValueType.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct MeasurableParameterKind {
    using Object = MeasurableParameter;
    using Record = RangedParameterRecord<FloatRange>;

    static constexpr std::string_view word = "measurable parameter";
    static constexpr ValueType valueType = Measurable;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const MeasurableParameter& parameter);
    static MeasurableParameter build(const Record& record, const Finder& finder);
    static std::string write(const MeasurableParameter& parameter);
};

} // namespace Parameters::Internal
