#include "catalogue/Loader.h"

#include "output/Text.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <string_view>
#include <unordered_set>

namespace Tool {

Loader::Loader(const std::vector<std::string>& paths) : input_(paths), isFaulty_(input_.sources().size()) { load(); }

Loader::Loader(const std::vector<KnownFile>& files) : input_(files), isFaulty_(input_.sources().size()) { load(); }

void Loader::load() {
    const std::vector<Parameters::Fault> faults = engine_.registerSoundSchemas(input_.texts());
    for (const Parameters::Fault& fault : faults) {
        if (fault.isError()) {
            isFaulty_[Input::numberOf(fault.place().text)] = true;
            ++errors_;
        }
    }
    findings_ = findingsOf(input_, headings_, faults);
}

std::vector<std::size_t> Loader::counts() {
    std::vector<std::size_t> counts = countAll(engine_);
    const std::size_t sound = schemas() + input_.failures().size() - leftOut();
    if (std::reduce(counts.begin(), counts.end()) != sound) { // the rare case, as it costs time to tell which
        mustHaveAll(describeAll(engine_));
    }
    return counts;
}

std::size_t Loader::leftOut() const {
    return static_cast<std::size_t>(std::count(isFaulty_.begin(), isFaulty_.end(), true)) + input_.failures().size();
}

void Loader::mustHaveAll(const std::vector<Object>& objects) const {
    std::unordered_set<std::string_view> typeIds;
    for (const Object& object : objects) {
        typeIds.insert(object.typeId);
    }
    std::set<std::string_view> lost;
    for (std::size_t number = 0; number < headings_.all().size(); ++number) {
        if (headings_.isSound(number) && !typeIds.contains(headings_.of(number).typeId)) {
            lost.insert(headings_.of(number).typeId);
        }
    }
    if (!lost.empty()) {
        std::string message = "This program has a fault, please report it: it read schemas and lost them.";
        for (const std::string_view typeId : lost) {
            message += "\n  " + printable(typeId);
        }
        throw Loss(message);
    }
}

} // namespace Tool
