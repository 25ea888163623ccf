#include "catalogue/Describe.h"

namespace Tool {

/// In place of the tool's own: forgets whatever was registered, as a list of kinds would that lacks some.
void describeEach(Parameters::ParametersEngine&, const std::function<bool(const Section&)>&,
                  const std::function<void(Object)>&) {}
std::vector<Object> describeAll(Parameters::ParametersEngine&) { return {}; }
std::vector<std::size_t> countAll(Parameters::ParametersEngine&) { return {}; }

} // namespace Tool
