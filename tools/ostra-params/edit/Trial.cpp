#include "edit/Trial.h"

#include "edit/Edit.h"

#include <parameters/ParametersEngine.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace Tool {

std::vector<Respelling> Trial::keep(std::vector<Respelling> all) {
    // The last ones of a text come first, as offsets behind what is changed change.
    const auto place = [](const Respelling& each) { return std::pair(each.number, each.offset); };
    std::stable_sort(all.begin(), all.end(),
                     [&](const Respelling& one, const Respelling& other) { return place(one) > place(other); });
    return attempt(all);
}

std::vector<Respelling> Trial::attempt(std::span<const Respelling> some) {
    std::map<std::size_t, std::string> former;
    std::vector<Respelling> made;
    for (const Respelling& each : some) {
        const std::string& text = *input_.sources()[each.number].text;
        if (auto edits = respellingsIn(text, each.offset, each.misspelt, each.meant); !edits.empty()) {
            std::string before = input_.replace(each.number, edited(text, std::move(edits)));
            former.emplace(each.number, std::move(before));
            made.push_back(each);
        }
    }
    if (made.empty()) {
        return made;
    }
    const std::size_t errors = errorsAmong(Parameters::ParametersEngine().findFaults(input_.texts()));
    if (errors <= errors_) {
        errors_ = errors;
        originals_.merge(former); // which keeps what was read
        return made;
    }
    for (auto& [number, text] : former) {
        input_.replace(number, std::move(text));
    }
    const std::size_t half = some.size() / 2;
    if (half == 0) {
        return {};
    }
    made = attempt(some.first(half));
    std::vector<Respelling> more = attempt(some.subspan(half));
    std::move(more.begin(), more.end(), std::back_inserter(made));
    return made;
}

std::size_t errorsAmong(const std::vector<Parameters::Fault>& faults) {
    return static_cast<std::size_t>(
        std::count_if(faults.begin(), faults.end(), std::mem_fn(&Parameters::Fault::isError)));
}

} // namespace Tool
