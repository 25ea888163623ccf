#include "schema/Identifier.h"

namespace Ostra {

std::size_t Identifier::findStart(std::string_view typeId, std::size_t position) {
    constexpr std::size_t rarest = firstWord.find('x'); // so most searches end without a look at the other letters
    for (std::size_t at = typeId.find(firstWord[rarest], position + rarest); at != std::string_view::npos;
         at = typeId.find(firstWord[rarest], at + 1)) {
        if (typeId.substr(at - rarest, firstWord.size()) == firstWord) {
            return at - rarest;
        }
    }
    return std::string_view::npos;
}

} // namespace Ostra
