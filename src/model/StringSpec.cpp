#include "model/StringSpec.h"

namespace Parameters {

StringSpec::StringSpec(const SpecCore& core) : core_(core) {}

SpecCore StringSpec::getCore() const noexcept { return core_; }

PARAMETERS_COMPARE_BY_TYPEID(StringSpec)

} // namespace Parameters
