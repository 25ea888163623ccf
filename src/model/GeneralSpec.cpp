#include "model/GeneralSpec.h"

namespace Parameters {

GeneralSpec::GeneralSpec(const SpecCore& core) : GeneralSpec(Internal::Access::shared(core)) {}

SpecCore GeneralSpec::getCore() const { return Internal::Access::make<SpecCore>(data_); }

PARAMETERS_COMPARE_BY_TYPEID(GeneralSpec)

} // namespace Parameters
