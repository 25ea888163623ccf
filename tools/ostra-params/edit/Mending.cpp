#include "edit/Mending.h"

#include "edit/Edit.h"
#include "edit/Slips.h"
#include "faults/Hints.h"

#include <parameters/ParametersEngine.h>

#include <utility>

namespace Tool {

using Parameters::Fault;

Mending::Mending(const std::vector<std::string>& paths) : input_(paths) {
    std::vector<Fault> found = faults();
    std::map<std::size_t, std::string> originals = mendSlips(found);
    found = originals.empty() ? found : faults();
    Trial trial(input_, errorsAmong(found));
    while (!trial.keep(respellings(found)).empty()) { // each is proposed once, so this ends
        found = faults();
    }
    errors_ = trial.errors();
    for (const auto& [number, text] : trial.originals()) {
        originals.emplace(number, text); // unless its slips were mended before
    }
    for (auto& [number, original] : originals) {
        mended_.emplace(number, input_.replace(number, std::move(original)));
    }
}

std::vector<Fault> Mending::faults() const { return Parameters::ParametersEngine().findFaults(input_.texts()); }

std::map<std::size_t, std::string> Mending::mendSlips(const std::vector<Fault>& faults) {
    std::map<std::size_t, std::string> originals;
    for (const Fault& fault : faults) {
        if (fault.code() != "json-syntax") {
            continue;
        }
        const std::size_t number = Input::numberOf(fault.place().text);
        const std::string& text = *input_.sources()[number].text;
        if (std::optional<Edit> mending = mendingOfSlips(text)) {
            std::string mended = edited(text, {*std::move(mending)});
            originals.emplace(number, input_.replace(number, std::move(mended)));
        }
    }
    return originals;
}

std::vector<Respelling> Mending::respellings(const std::vector<Fault>& faults) {
    std::vector<bool> isFaulty(input_.sources().size());
    for (const Fault& fault : faults) {
        const std::size_t number = Input::numberOf(fault.place().text);
        isFaulty[number] = isFaulty[number] || fault.isError();
    }
    const Headings headings(input_.sources(), isFaulty);
    const std::vector<Hint> hints = hintsFor(input_, headings, faults);
    std::vector<Respelling> all;
    for (std::size_t i = 0; i < faults.size(); ++i) {
        const auto& [key, pointer, begin, end] = faults[i].place();
        const std::size_t number = Input::numberOf(key);
        if (!hints[i].meant.empty() && known_.emplace(number, pointer, hints[i].misspelt, hints[i].meant).second) {
            all.push_back({number, begin, hints[i].misspelt, hints[i].meant});
        }
    }
    return all;
}

} // namespace Tool
