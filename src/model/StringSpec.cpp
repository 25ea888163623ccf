#include "model/StringSpec.h"

namespace Parameters {

StringSpec::StringSpec(const SpecCore& core) : StringSpec(Internal::Access::shared(core)) {}

SpecCore StringSpec::getCore() const { return Internal::Access::make<SpecCore>(data_); }

PARAMETERS_COMPARE_BY_TYPEID(StringSpec)

} // namespace Parameters
