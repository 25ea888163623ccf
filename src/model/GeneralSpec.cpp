#include "model/GeneralSpec.h"

namespace Parameters {

GeneralSpec::GeneralSpec(const SpecCore& core) : core_(core) {}

SpecCore GeneralSpec::getCore() const noexcept { return core_; }

PARAMETERS_COMPARE_BY_TYPEID(GeneralSpec)

} // namespace Parameters
