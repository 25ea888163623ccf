#include "model/StringParameter.h"

namespace Parameters {

StringParameter::StringParameter(const ParameterCore& core, const StringRange& range)
    : StringParameter(core, Internal::standInOf<Internal::StringSpecKind>(), range) {}

StringParameter::StringParameter(const ParameterCore& core, const StringSpec& spec, const StringRange& range)
    : StringParameter(Internal::StringParameterKind::make(core, spec, range)) {}

ParameterCore StringParameter::getCore() const noexcept { return core_; }

StringSpec StringParameter::getSpec() const noexcept { return spec(); }

const StringSpec& StringParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

StringRange StringParameter::getRange() const noexcept { return range(); }

const StringRange& StringParameter::range() const noexcept { return Internal::Access::data(*this).range; }

PARAMETERS_COMPARE_BY_TYPEID(StringParameter)

} // namespace Parameters
