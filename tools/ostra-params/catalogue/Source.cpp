#include "catalogue/Source.h"

#include "catalogue/Input.h"
#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace Tool {

Place placeOf(const Source& source, std::size_t offset) {
    const std::string_view before = std::string_view(source.text).substr(0, offset);
    const auto breaks = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t lineBegin = before.rfind('\n') + 1; // npos + 1 is the beginning of the text
    return {source.file, source.line + breaks, widthOf(before.substr(lineBegin)) + 1};
}

Place beginningOf(const Source& source) { return placeOf(source, source.text.find_first_not_of(" \t\r\n")); }

std::string toString(const Place& place) {
    return fmt::format("{}:{}:{}", printable(nameOf(place.file)), place.line, place.column);
}

} // namespace Tool
