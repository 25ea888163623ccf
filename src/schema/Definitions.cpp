#include "schema/Definitions.h"

#include "schema/Bytes.h"

#include <algorithm>

namespace Ostra {

bool Definitions::add(std::string_view id, JSONView definition) {
    if (hasSizeOf(id) && search(id)) {
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

MaybeView Definitions::search(std::string_view id) const {
    if (definitions_.size() > few) {
        const auto found = index_.find(id);
        return found != index_.end() ? MaybeView(definitions_[found->second].definition) : std::nullopt;
    }
    for (const Definition& definition : definitions_) {
        if (isSame(definition.id, id)) {
            return definition.definition;
        }
    }
    return std::nullopt;
}

MaybeView Definitions::findAndNote(std::string_view id) const {
    const MaybeView found = search(id);
    array_->noteLookForDefinition(id, found ? found->member("id") : std::nullopt);
    return found;
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
