#include "model/MeasurableParameter.h"

namespace Parameters {

MeasurableParameter::MeasurableParameter(const ParameterCore& core, const MeasurableSpec& spec, const FloatRange& range)
    : MeasurableParameter(Internal::MeasurableParameterKind::make(
          Internal::ParameterCoreData(Internal::Access::data(core)), spec, range)) {}

ParameterCore MeasurableParameter::getCore() const { return Internal::parameterCoreOf(data_); }

MeasurableSpec MeasurableParameter::getSpec() const { return data_->spec; }

FloatRange MeasurableParameter::getRange() const { return data_->range; }

PARAMETERS_COMPARE_BY_TYPEID(MeasurableParameter)

} // namespace Parameters
