#pragma once

#include "model/BoolSpec.h"
#include "model/ParameterCore.h"
#include "schema/Schema.h"

#include <parameters/BoolParameter.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct BoolParameterData : ParameterCoreData {
    BoolSpec spec;
};

struct BoolParameterKind : DescribedKind<Kinds::BoolParameter> {
    using Names = KindList<GroupKind, BoolSpecKind>;
    using Record = ParameterRecord;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const BoolParameter& parameter);
    static BoolParameter build(const Record& record, const Finder& finder, const BoolParameter* given);
    static std::string write(const BoolParameter& parameter);
};

} // namespace Parameters::Internal
