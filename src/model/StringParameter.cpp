#include "model/StringParameter.h"

namespace Parameters {

StringParameter::StringParameter(const ParameterCore& core, const StringRange& range)
    : StringParameter(core, Internal::standInOf<Internal::StringSpecKind>(), range) {}

StringParameter::StringParameter(const ParameterCore& core, const StringSpec& spec, const StringRange& range)
    : StringParameter(Internal::StringParameterKind::make(Internal::ParameterCoreData(Internal::Access::data(core)),
                                                          spec, range)) {}

ParameterCore StringParameter::getCore() const { return Internal::parameterCoreOf(data_); }

StringSpec StringParameter::getSpec() const { return data_->spec; }

StringRange StringParameter::getRange() const { return data_->range; }

PARAMETERS_COMPARE_BY_TYPEID(StringParameter)

} // namespace Parameters
