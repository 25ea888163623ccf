#include "edit/Mending.h"

#include "edit/Edit.h"
#include "faults/Hints.h"

#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <utility>

namespace Tool {

namespace {

using Parameters::Fault;

std::size_t errorsAmong(const std::vector<Fault>& faults) {
    return static_cast<std::size_t>(
        std::count_if(faults.begin(), faults.end(), [](const Fault& fault) { return fault.isError(); }));
}

} // namespace

Mending::Mending(const std::vector<std::string>& paths) : input_(paths) {
    std::vector<Fault> found = faults();
    errors_ = errorsAmong(found);
    for (bool isChanged = true; isChanged;) { // each proposal is made once, so this ends
        isChanged = attempt(proposals(found));
        found = isChanged ? faults() : found;
    }
    const std::map<std::size_t, std::string> originals = std::exchange(mended_, {});
    for (const auto& [number, original] : originals) {
        mended_.emplace(number, input_.replace(number, original));
    }
}

std::vector<Fault> Mending::faults() const { return Parameters::ParametersEngine().findFaults(input_.texts()); }

std::vector<Mending::Proposal> Mending::proposals(const std::vector<Fault>& faults) {
    std::vector<bool> isFaulty(input_.sources().size());
    for (const Fault& fault : faults) {
        const std::size_t number = Input::numberOf(fault.place().text);
        isFaulty[number] = isFaulty[number] || fault.isError();
    }
    const Headings headings(input_.sources(), isFaulty);
    const std::vector<Hint> hints = hintsFor(input_, headings, faults);
    std::vector<Proposal> all;
    for (std::size_t i = 0; i < faults.size(); ++i) {
        const auto& [key, pointer, begin, end] = faults[i].place();
        const std::size_t number = Input::numberOf(key);
        if (!hints[i].meant.empty() && known_.emplace(number, pointer, hints[i].misspelt, hints[i].meant).second) {
            all.push_back({number, begin, hints[i].misspelt, hints[i].meant});
        }
    }
    // The last ones of a text come first, as offsets behind what is mended change.
    const auto place = [](const Proposal& proposal) { return std::pair(proposal.number, proposal.offset); };
    std::stable_sort(all.begin(), all.end(),
                     [&](const Proposal& one, const Proposal& other) { return place(one) > place(other); });
    return all;
}

bool Mending::attempt(std::span<const Proposal> proposals) {
    std::map<std::size_t, std::string> former;
    for (const auto& [number, offset, misspelt, meant] : proposals) {
        const std::string& text = *input_.sources()[number].text;
        if (auto edits = respellingsIn(text, offset, misspelt, meant); !edits.empty()) {
            std::string before = input_.replace(number, edited(text, std::move(edits)));
            former.emplace(number, std::move(before));
        }
    }
    if (former.empty()) {
        return false;
    }
    if (const std::size_t errors = errorsAmong(faults()); errors <= errors_) {
        errors_ = errors;
        mended_.merge(former); // which keeps what was read
        return true;
    }
    for (auto& [number, text] : former) {
        input_.replace(number, std::move(text));
    }
    const std::size_t half = proposals.size() / 2;
    const bool isFirstGood = half > 0 && attempt(proposals.first(half));
    return (half > 0 && attempt(proposals.subspan(half))) || isFirstGood;
}

} // namespace Tool
