#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Tool::Lsp {

/// Reads up to so many bytes, at least one; none at the end.
using Bytes = std::function<std::size_t(char* buffer, std::size_t size)>;

/// What one frame brought: the body, or what is wrong with the frame.
struct Frame {
    std::string body;
    std::string fault = {};
};

/// Takes messages out of a stream of bytes: each has a header with its length before it.
class FrameReader {
public:
    static constexpr std::size_t longestHeader = std::size_t{4} << 10U;
    static constexpr std::size_t longestBody = std::size_t{64} << 20U;

    explicit FrameReader(Bytes bytes) : bytes_(std::move(bytes)) {}

    /// Returns the next frame; nothing at the end of the stream, in the middle of a frame, too. Behind a header that
    /// makes no sense it goes on with the next one that does, since nobody knows how long its body is.
    std::optional<Frame> next();

private:
    bool readMore();
    /// Drops what stands before the next header.
    bool findHeader();

    Bytes bytes_;
    std::string buffer_;
    bool isLost_ = false; ///< Behind a broken header.
};

/// Returns a message with its header.
std::string framed(std::string_view body);

} // namespace Tool::Lsp
