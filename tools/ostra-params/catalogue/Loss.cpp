#include "catalogue/Loss.h"

#include "output/Text.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>

namespace Tool {

void mustHaveAll(const std::vector<Object>& objects, const Headings& headings) {
    std::unordered_set<std::string_view> typeIds;
    for (const Object& object : objects) {
        typeIds.insert(object.typeId);
    }
    std::set<std::string_view> lost;
    for (std::size_t number = 0; number < headings.all().size(); ++number) {
        if (headings.isSound(number) && !typeIds.contains(headings.of(number).typeId)) {
            lost.insert(headings.of(number).typeId);
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
