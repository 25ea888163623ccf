#pragma once

#include "model/ParameterCore.h"
#include "model/ReferenceSpec.h"
#include "schema/Schema.h"

#include <parameters/ReferenceParameter.h>
#include <parameters/ValueType.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct ReferenceParameterData {
    ParameterCoreData core;
    ReferenceSpec spec;
    bool ranged;

    std::string_view typeId() const { return core.typeId(); }
};

struct ReferenceParameterKind {
    using Object = ReferenceParameter;
    struct Record : ParameterRecord { // the category of a family type is the third reference
        bool ranged;
    };

    static constexpr std::string_view word = "reference parameter";
    static constexpr ValueType valueType = Reference;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const ReferenceParameter& parameter);
    static ReferenceParameter build(const Record& record, const Finder& finder);
    static std::string write(const ReferenceParameter& parameter);
};

} // namespace Parameters::Internal
