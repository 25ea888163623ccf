#include "catalogue/Loss.h"

#include "output/Text.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace Tool {

void mustHaveAll(const std::vector<Object>& objects, const Entries& entries) {
    std::unordered_set<std::string_view> typeIds;
    for (const Object& object : objects) {
        typeIds.insert(object.typeId);
    }
    std::string lost;
    for (const auto& [typeId, entry] : entries) {
        if (entry.isSound && !typeIds.contains(typeId)) {
            lost += "\n  " + printable(typeId);
        }
    }
    if (!lost.empty()) {
        throw Loss("This program has a fault, please report it: it read schemas and lost them." + lost);
    }
}

} // namespace Tool
