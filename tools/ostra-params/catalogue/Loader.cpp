#include "catalogue/Loader.h"

#include "catalogue/Describe.h"
#include "catalogue/Loss.h"
#include "faults/Findings.h"

#include <algorithm>
#include <numeric>

namespace Tool {

Loader::Loader(const std::vector<std::string>& paths) : input_(paths), isFaulty_(input_.sources().size()) {
    const std::vector<Parameters::Fault> faults = engine_.registerSoundSchemas(input_.texts());
    for (const Parameters::Fault& fault : faults) {
        if (fault.isError()) {
            isFaulty_[Input::numberOf(fault.place().text)] = true;
        }
    }
    findings_ = findingsOf(input_, headings_, faults);
    counts_ = countAll(engine_);
    const std::size_t sound = schemas() + input_.failures().size() - leftOut();
    if (std::reduce(counts_.begin(), counts_.end()) != sound) { // the rare case, as it costs time to tell which
        mustHaveAll(describeAll(engine_), headings_);
    }
}

std::size_t Loader::leftOut() const {
    return static_cast<std::size_t>(std::count(isFaulty_.begin(), isFaulty_.end(), true)) + input_.failures().size();
}

} // namespace Tool
