#include "model/BoolSpec.h"

namespace Parameters {

BoolSpec::BoolSpec(const SpecCore& core) : BoolSpec(Internal::Access::shared(core)) {}

SpecCore BoolSpec::getCore() const { return Internal::Access::make<SpecCore>(data_); }

PARAMETERS_COMPARE_BY_TYPEID(BoolSpec)

} // namespace Parameters
