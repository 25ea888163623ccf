#pragma once

#include "model/IntRange.h"
#include "model/IntSpec.h"
#include "model/RangedParameter.h"
#include "schema/Schema.h"

#include <parameters/IntParameter.h>
#include <parameters/ValueType.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct IntParameterKind {
    using Object = IntParameter;
    struct Record : RangedParameterRecord<IntRange> {
        const IntSpec* givenSpec = nullptr; // of an object made in code, which outlives the record
    };

    static constexpr std::string_view word = "integer parameter";
    static constexpr ValueType valueType = Int;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const IntParameter& parameter);
    static IntParameter build(const Record& record, const Finder& finder);
    static std::string write(const IntParameter& parameter);
};

} // namespace Parameters::Internal
