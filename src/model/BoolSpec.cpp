#include "model/BoolSpec.h"

namespace Parameters {

BoolSpec::BoolSpec(const SpecCore& core) : core_(core) {}

SpecCore BoolSpec::getCore() const noexcept { return core_; }

PARAMETERS_COMPARE_BY_TYPEID(BoolSpec)

} // namespace Parameters
