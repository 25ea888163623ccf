#pragma once

#include "model/Enumeration.h"
#include "model/GeneralSpec.h"
#include "model/ParameterCore.h"
#include "schema/Schema.h"

#include <parameters/EnumerationParameter.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct EnumerationParameterData {
    ParameterCoreData core;
    GeneralSpec spec;
    Enumeration enumeration;

    std::string_view typeId() const { return core.typeId(); }
};

struct EnumerationParameterKind {
    using Object = EnumerationParameter;
    using Record = ParameterRecord; // the enumeration is the third reference

    static constexpr std::string_view word = "enumeration parameter";

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const EnumerationParameter& parameter);
    static EnumerationParameter build(const Record& record, const Finder& finder);
    static std::string write(const EnumerationParameter& parameter);
};

} // namespace Parameters::Internal
