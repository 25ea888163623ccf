#include "output/Json.h"

#include <string_view>

namespace Tool {

namespace {

std::string dump(const Json& json, int indentation) {
    return json.dump(indentation, ' ', false, Json::error_handler_t::replace);
}

} // namespace

std::string toText(const Json& json) { return dump(json, 2) + "\n"; }

std::string toTextInHtml(const Json& json) {
    std::string text;
    for (const char character : dump(json, -1)) {
        // Outside strings JSON has none of these; inside, their escapes mean the same.
        switch (character) {
        case '<':
            text += "\\u003c";
            break;
        case '>':
            text += "\\u003e";
            break;
        case '&':
            text += "\\u0026";
            break;
        default:
            text += character;
        }
    }
    return text;
}

} // namespace Tool
