#pragma once

#include "model/FloatRange.h"
#include "model/MeasurableSpec.h"
#include "model/RangedParameter.h"

#include <parameters/MeasurableParameter.h>

namespace Parameters::Internal {

struct MeasurableParameterTraits {
    using Public = Kinds::MeasurableParameter;
    using SpecKind = MeasurableSpecKind;
    using RangeKind = FloatRangeKind;

    static constexpr bool bindsRangeFirst = false;

    static MeasurableSpec findSpec(const Name& spec, std::string_view typeId, const Finder& finder,
                                   const MeasurableSpec*) {
        return finder.require<MeasurableSpecKind>(spec, typeId);
    }
};

using MeasurableParameterKind = RangedParameterKind<MeasurableParameterTraits>;

} // namespace Parameters::Internal
