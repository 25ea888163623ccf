#include "model/IntSpec.h"

namespace Parameters {

IntSpec::IntSpec(const SpecCore& core) : IntSpec(Internal::Access::shared(core)) {}

SpecCore IntSpec::getCore() const { return Internal::Access::make<SpecCore>(data_); }

PARAMETERS_COMPARE_BY_TYPEID(IntSpec)

} // namespace Parameters
