#include "schema/BuiltIn.h"

#include <algorithm>

namespace Ostra::BuiltIn {

bool isReserved(std::string_view typeId) {
    // Most typeids are told apart by this one search; it stands for all twelve, which begin with the same word.
    if (typeId.find("norvex.") == std::string_view::npos) {
        return false;
    }
    return std::any_of(reserved.begin(), reserved.end(),
                       [typeId](const Identifier& identifier) { return identifier.isIn(typeId); });
}

} // namespace Ostra::BuiltIn
