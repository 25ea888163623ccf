#include "server/Trials.h"

#include "edit/Trial.h"

#include <set>
#include <utility>

namespace Tool::Lsp {

namespace {

Respelling respellingOf(const Problem& problem) {
    const auto& [finding, spot, other, root] = problem;
    const Part part = partAt(spot.file->name, *spot.file->text, spot.begin);
    return {finding.source, spot.begin - part.begin, finding.misspelt, finding.meant};
}

} // namespace

const std::vector<const Problem*>& Trials::harmlessOf(const std::vector<const Problem*>& problems) {
    const auto [found, isNew] = harmless_.try_emplace(problems);
    if (!isNew) {
        return found->second;
    }
    if (input_ == nullptr) {
        input_ = std::make_unique<Input>(knowledge_->known());
    }
    std::vector<Respelling> all;
    all.reserve(problems.size());
    for (const Problem* problem : problems) {
        all.push_back(respellingOf(*problem));
    }
    Trial trial(*input_, knowledge_->catalogue().errors());
    const std::vector<Respelling> list = trial.keep(all);
    const std::set<Respelling> kept(list.begin(), list.end());
    for (const auto& [number, original] : trial.originals()) {
        input_->replace(number, original);
    }
    for (std::size_t i = 0; i < problems.size(); ++i) {
        if (kept.contains(all[i])) {
            found->second.push_back(problems[i]);
        }
    }
    return found->second;
}

} // namespace Tool::Lsp
