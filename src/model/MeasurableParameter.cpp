#include "model/MeasurableParameter.h"

namespace Parameters {

MeasurableParameter::MeasurableParameter(const ParameterCore& core, const MeasurableSpec& spec, const FloatRange& range)
    : MeasurableParameter(Internal::MeasurableParameterKind::make(core, spec, range)) {}

ParameterCore MeasurableParameter::getCore() const noexcept { return core_; }

MeasurableSpec MeasurableParameter::getSpec() const noexcept { return spec(); }

const MeasurableSpec& MeasurableParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

FloatRange MeasurableParameter::getRange() const noexcept { return range(); }

const FloatRange& MeasurableParameter::range() const noexcept { return Internal::Access::data(*this).range; }

PARAMETERS_COMPARE_BY_TYPEID(MeasurableParameter)

} // namespace Parameters
