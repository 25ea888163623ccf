#include "schema/Definitions.h"

#include <algorithm>

namespace Ostra {

bool Definitions::add(std::string_view id, JSONView definition) {
    if (search(id) != nullptr) {
        return false;
    }
    definitions_.push_back({id, definition});
    sizes_ |= sizeBit(id);
    if (definitions_.size() > few) {
        for (std::size_t place = index_.size(); place < definitions_.size(); ++place) {
            index_.emplace(definitions_[place].id, place);
        }
    }
    return true;
}

const Definitions::Definition* Definitions::search(std::string_view id) const {
    if ((sizes_ & sizeBit(id)) == 0) {
        return nullptr;
    }
    if (definitions_.size() > few) {
        const auto found = index_.find(id);
        return found != index_.end() ? &definitions_[found->second] : nullptr;
    }
    const auto found = std::find_if(definitions_.begin(), definitions_.end(),
                                    [id](const Definition& definition) { return definition.id == id; });
    return found != definitions_.end() ? &*found : nullptr;
}

std::vector<Definitions::Definition> Definitions::sorted() const {
    std::vector<Definition> sorted(definitions_.begin(), definitions_.end());
    std::sort(sorted.begin(), sorted.end(), [](const Definition& a, const Definition& b) { return a.id < b.id; });
    if (isInspected_) {
        for (const Definition& definition : definitions_) {
            definition.definition.member("id")->noteRead();
        }
    }
    return sorted;
}

} // namespace Ostra
