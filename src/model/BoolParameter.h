#pragma once

#include "model/BoolSpec.h"
#include "model/ParameterCore.h"
#include "schema/Schema.h"

#include <parameters/BoolParameter.h>

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace Parameters::Internal {

struct BoolParameterData : ParameterCoreData {
    BoolSpec spec;

    auto links() { return std::tie(group, spec); }
};

struct BoolParameterKind : ParameterKind<BoolParameterKind, Kinds::BoolParameter, BoolParameterData> {
    using Names = KindList<GroupKind, BoolSpecKind>;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const BoolParameter& parameter);
    static Links find(const Data& data, const References& named, const Finder& finder, const BoolParameter* given);
    static std::string write(const BoolParameter& parameter);
};

} // namespace Parameters::Internal
