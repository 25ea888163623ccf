#include "schema/BuiltIn.h"

#include <algorithm>

namespace Ostra::BuiltIn {

std::size_t findStart(std::string_view typeId, std::size_t position) {
    constexpr std::string_view word = "norvex.";
    constexpr std::size_t rarest = word.find('x'); // so most searches end without a look at the other letters
    for (std::size_t at = typeId.find(word[rarest], position + rarest); at != std::string_view::npos;
         at = typeId.find(word[rarest], at + 1)) {
        if (typeId.substr(at - rarest, word.size()) == word) {
            return at - rarest;
        }
    }
    return std::string_view::npos;
}

bool isReserved(std::string_view typeId) {
    for (std::size_t start = findStart(typeId); start != std::string_view::npos; start = findStart(typeId, start + 1)) {
        const auto startsHere = [tail = typeId.substr(start)](const Identifier& identifier) {
            return identifier.begins(tail);
        };
        if (std::any_of(reserved.begin(), reserved.end(), startsHere)) {
            return true;
        }
    }
    return false;
}

} // namespace Ostra::BuiltIn
