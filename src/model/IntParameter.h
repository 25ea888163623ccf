#pragma once

#include "model/IntRange.h"
#include "model/IntSpec.h"
#include "model/RangedParameter.h"

#include <parameters/IntParameter.h>

namespace Parameters::Internal {

struct IntParameterTraits {
    using Public = Kinds::IntParameter;
    using SpecKind = IntSpecKind;
    using RangeKind = IntRangeKind;

    static constexpr bool bindsRangeFirst = true;

    static IntSpec findSpec(const Name& spec, std::string_view typeId, const Finder& finder, const IntSpec* given) {
        return finder.requireOrStandIn<IntSpecKind>(spec, typeId, given);
    }
};

using IntParameterKind = RangedParameterKind<IntParameterTraits>;

} // namespace Parameters::Internal
