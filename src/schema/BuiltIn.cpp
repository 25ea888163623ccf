#include "schema/BuiltIn.h"

#include <algorithm>

namespace Ostra::BuiltIn {

bool mayBeIn(std::string_view typeId, std::size_t position) {
    constexpr std::string_view word = "norvex.";
    constexpr std::size_t rarest = word.find('x'); // so most searches end without a look at the other letters
    for (std::size_t at = typeId.find(word[rarest], position + rarest); at != std::string_view::npos;
         at = typeId.find(word[rarest], at + 1)) {
        if (typeId.substr(at - rarest, word.size()) == word) {
            return true;
        }
    }
    return false;
}

bool isReserved(std::string_view typeId) {
    return mayBeIn(typeId) && std::any_of(reserved.begin(), reserved.end(),
                                          [typeId](const Identifier& identifier) { return identifier.isIn(typeId); });
}

} // namespace Ostra::BuiltIn
