#include "catalogue/Source.h"

#include "catalogue/Input.h"
#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace Tool {

Positions::Position Positions::positionOf(std::size_t offset) const {
    const std::size_t mark = std::min(offset / markEvery, marks_.size() - 1);
    auto [line, column] = marks_[mark];
    for (const char byte : std::string_view(*text_).substr(mark * markEvery, offset - mark * markEvery)) {
        line += byte == '\n' ? 1 : 0;
        column = byte == '\n' ? 1 : column + (isFirstOfCharacter(byte) ? 1 : 0);
    }
    return {line, column};
}

Place Positions::placeOf(const Source& source, std::size_t begin, std::size_t end) {
    if (source.text != text_) {
        text_ = source.text;
        marks_ = {{0, 1}};
        for (std::size_t offset = markEvery; offset < text_->size(); offset += markEvery) {
            marks_.push_back(positionOf(offset));
        }
    }
    const auto [line, column] = positionOf(begin);
    const auto [endLine, endColumn] = positionOf(end);
    return {source.file, source.line + line, column, source.line + endLine, endColumn};
}

Place beginningOf(const Source& source) {
    const std::size_t begin = std::min(source.text->find_first_not_of(blanks), source.text->size());
    return Positions().placeOf(source, begin, begin);
}

std::string nameOf(const std::string& file) { return file == standardInput ? "<stdin>" : file; }

std::string toString(const Place& place) {
    const std::string file = printable(nameOf(*place.file));
    return place.line == 0 ? file : fmt::format("{}:{}:{}", file, place.line, place.column);
}

} // namespace Tool
