#include "server/Lines.h"

#include "output/Text.h"

#include <algorithm>

namespace Tool::Lsp {

namespace {

/// Returns how many units a character of so many bytes takes.
constexpr std::size_t unitsOf(std::size_t bytes, Encoding encoding) {
    return encoding == Encoding::utf8 ? bytes : bytes == 4 ? 2 : 1;
}

} // namespace

std::size_t bytesOfCharacter(std::string_view text, std::size_t offset) {
    const auto first = static_cast<unsigned char>(text[offset]);
    const std::size_t bytes = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    const std::string_view character = text.substr(offset, bytes);
    return bytes > 1 && findInvalid(character) == std::string_view::npos ? bytes : 1;
}

Lines::Lines(std::string_view text, Encoding encoding) : text_(text), encoding_(encoding) {
    for (std::size_t i = text.find_first_of("\r\n"); i != std::string_view::npos; i = text.find_first_of("\r\n", i)) {
        i += text.substr(i, 2) == "\r\n" ? 2 : 1;
        begins_.push_back(i);
    }
}

Position Lines::positionOf(std::size_t offset) const {
    offset = std::min(offset, text_.size());
    const auto line = std::upper_bound(begins_.begin(), begins_.end(), offset) - begins_.begin() - 1;
    Position position{static_cast<std::size_t>(line), 0};
    for (std::size_t i = begins_[position.line]; i < offset;) {
        const std::size_t bytes = bytesOfCharacter(text_, i);
        position.character += i + bytes <= offset ? unitsOf(bytes, encoding_) : 0;
        i += bytes;
    }
    return position;
}

std::size_t Lines::offsetOf(Position position) const {
    if (position.line >= begins_.size()) {
        return text_.size();
    }
    std::size_t offset = begins_[position.line];
    for (std::size_t units = 0; offset < text_.size() && text_[offset] != '\r' && text_[offset] != '\n';) {
        const std::size_t bytes = bytesOfCharacter(text_, offset);
        units += unitsOf(bytes, encoding_);
        if (units > position.character) {
            break;
        }
        offset += bytes;
    }
    return offset;
}

} // namespace Tool::Lsp
