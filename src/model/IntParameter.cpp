#include "model/IntParameter.h"

namespace Parameters {

IntParameter::IntParameter(const ParameterCore& core, const IntRange& range)
    : IntParameter(core, Internal::standInOf<Internal::IntSpecKind>(), range) {}

IntParameter::IntParameter(const ParameterCore& core, const IntSpec& spec, const IntRange& range)
    : IntParameter(Internal::IntParameterKind::make(core, spec, range)) {}

ParameterCore IntParameter::getCore() const noexcept { return core_; }

IntSpec IntParameter::getSpec() const noexcept { return spec(); }

const IntSpec& IntParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

IntRange IntParameter::getRange() const noexcept { return range(); }

const IntRange& IntParameter::range() const noexcept { return Internal::Access::data(*this).range; }

PARAMETERS_COMPARE_BY_TYPEID(IntParameter)

} // namespace Parameters
