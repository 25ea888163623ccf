#pragma once

#include "model/RangedParameter.h"
#include "model/StringRange.h"
#include "model/StringSpec.h"
#include "schema/Schema.h"

#include <parameters/StringParameter.h>
#include <parameters/ValueType.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct StringParameterKind {
    using Object = StringParameter;
    using Record = RangedParameterRecord<StringRange>;

    static constexpr std::string_view word = "string parameter";
    static constexpr ValueType valueType = String;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const StringParameter& parameter);
    static StringParameter build(const Record& record, const Finder& finder);
    static std::string write(const StringParameter& parameter);
};

} // namespace Parameters::Internal
