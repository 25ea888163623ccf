#include "server/Frames.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace Tool::Lsp {

namespace {

constexpr std::string_view lengthField = "content-length:";
constexpr std::string_view endOfLine = "\r\n";
constexpr std::string_view endOfHeader = "\r\n\r\n";

/// Returns the length that a header tells; nothing when it tells none, or one that cannot be.
std::optional<std::size_t> lengthIn(std::string_view header) {
    const std::string small = lower(header);
    const std::size_t field = small.starts_with(lengthField) ? 0 : small.find(fmt::format("\r\n{}", lengthField));
    if (field == std::string::npos) {
        return std::nullopt;
    }
    std::string_view value = header.substr(small.find(':', field) + 1);
    value = value.substr(0, value.find(endOfLine));
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    value = value.substr(0, value.find_last_not_of(" \t") + 1);
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), length);
    const bool isNumber = error == std::errc() && end == value.data() + value.size();
    return isNumber ? std::optional(length) : std::nullopt;
}

} // namespace

bool FrameReader::readMore() {
    std::array<char, 65536> more;
    const std::size_t count = bytes_(more.data(), more.size());
    buffer_.append(more.data(), count);
    return count != 0;
}

bool FrameReader::findHeader() {
    for (;;) {
        const std::size_t found = lower(buffer_).find(lengthField);
        if (found != std::string::npos) {
            buffer_.erase(0, found);
            return true;
        }
        buffer_.erase(0, buffer_.size() - std::min(buffer_.size(), lengthField.size() - 1));
        if (!readMore()) {
            return false;
        }
    }
}

std::optional<Frame> FrameReader::next() {
    if (isLost_ && !findHeader()) {
        return std::nullopt;
    }
    std::size_t end = buffer_.find(endOfHeader);
    while (end == std::string::npos && buffer_.size() <= longestHeader) {
        if (!readMore()) {
            return std::nullopt;
        }
        end = buffer_.find(endOfHeader);
    }
    const auto length = lengthIn(std::string_view(buffer_).substr(0, end));
    isLost_ = end > longestHeader || !length || *length > longestBody; // or its end was not found
    if (isLost_) {
        buffer_.erase(0, 1); // so that this header is not found again
        return Frame{{},
                     length && *length > longestBody
                         ? fmt::format("A message may not be longer than {} bytes.", longestBody)
                         : "A message must have a header with the field Content-Length."};
    }
    buffer_.erase(0, end + endOfHeader.size());
    while (buffer_.size() < *length) {
        if (!readMore()) {
            return std::nullopt;
        }
    }
    Frame frame{buffer_.substr(0, *length)};
    buffer_.erase(0, *length);
    return frame;
}

std::string framed(std::string_view body) { return fmt::format("Content-Length: {}\r\n\r\n{}", body.size(), body); }

} // namespace Tool::Lsp
