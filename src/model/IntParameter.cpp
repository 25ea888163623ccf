#include "model/IntParameter.h"

namespace Parameters {

IntParameter::IntParameter(const ParameterCore& core, const IntRange& range)
    : IntParameter(core, Internal::standInOf<Internal::IntSpecKind>(), range) {}

IntParameter::IntParameter(const ParameterCore& core, const IntSpec& spec, const IntRange& range)
    : IntParameter(
          Internal::IntParameterKind::make(Internal::ParameterCoreData(Internal::Access::data(core)), spec, range)) {}

ParameterCore IntParameter::getCore() const { return Internal::parameterCoreOf(data_); }

IntSpec IntParameter::getSpec() const { return data_->spec; }

IntRange IntParameter::getRange() const { return data_->range; }

PARAMETERS_COMPARE_BY_TYPEID(IntParameter)

} // namespace Parameters
