#pragma once

#include "model/RangedParameter.h"
#include "model/StringRange.h"
#include "model/StringSpec.h"

#include <parameters/StringParameter.h>

namespace Parameters::Internal {

struct StringParameterTraits {
    using Public = Kinds::StringParameter;
    using SpecKind = StringSpecKind;
    using RangeKind = StringRangeKind;

    static constexpr bool bindsRangeFirst = true;

    static StringSpec findSpec(const Name& spec, std::string_view typeId, const Finder& finder, const StringSpec*) {
        return finder.requireOrUsualStandIn<StringSpecKind>(spec, typeId);
    }
};

using StringParameterKind = RangedParameterKind<StringParameterTraits>;

} // namespace Parameters::Internal
