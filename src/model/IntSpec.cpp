#include "model/IntSpec.h"

namespace Parameters {

IntSpec::IntSpec(const SpecCore& core) : core_(core) {}

SpecCore IntSpec::getCore() const noexcept { return core_; }

PARAMETERS_COMPARE_BY_TYPEID(IntSpec)

} // namespace Parameters
