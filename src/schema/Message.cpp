#include "schema/Message.h"

#include <cassert>

namespace Ostra {

std::string Message::with(std::initializer_list<std::string_view> inserted) const {
    assert(static_cast<std::size_t>(std::count(sentence.begin(), sentence.end(), '<')) == inserted.size());
    std::string text;
    std::string_view rest = sentence;
    for (const std::string_view each : inserted) {
        text.append(rest.substr(0, rest.find('<'))).append(each);
        rest.remove_prefix(rest.find('>') + 1);
    }
    return text.append(rest);
}

std::string_view Message::subjectOf(std::initializer_list<std::string_view> inserted) const {
    std::string_view rest = sentence;
    for (const std::string_view each : inserted) {
        rest.remove_prefix(rest.find('<') + 1);
        const std::string_view placeholder = rest.substr(0, rest.find('>'));
        if (placeholder != "schema" && placeholder != "offset" && placeholder != "reason") {
            return each;
        }
    }
    return {};
}

} // namespace Ostra
