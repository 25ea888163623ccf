#pragma once

#include "model/BoolSpec.h"
#include "model/ParameterCore.h"
#include "schema/Schema.h"

#include <parameters/BoolParameter.h>
#include <parameters/ValueType.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct BoolParameterData {
    ParameterCoreData core;
    BoolSpec spec;

    std::string_view typeId() const { return core.typeId(); }
};

struct BoolParameterKind {
    using Object = BoolParameter;
    struct Record : ParameterRecord {
        const BoolSpec* givenSpec = nullptr; // of an object made in code, which outlives the record
    };

    static constexpr std::string_view word = "Boolean parameter";
    static constexpr ValueType valueType = Bool;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const BoolParameter& parameter);
    static BoolParameter build(const Record& record, const Finder& finder);
    static std::string write(const BoolParameter& parameter);
};

} // namespace Parameters::Internal
