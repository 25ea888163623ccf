#include "output/Progress.h"

#include <fmt/format.h>

#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace Tool {

Progress::Progress(const std::deque<std::string>& files)
    : isShown_(::isatty(STDERR_FILENO) == 1), nextDrawing_(Clock::now() + std::chrono::seconds(1)) {
    for (const std::string& file : files) {
        std::error_code unknown; // the size of standard input, for one
        const std::uintmax_t size = isShown_ ? std::filesystem::file_size(file, unknown) : 0;
        total_ += unknown ? 0 : size;
    }
}

Progress::~Progress() {
    if (isDrawn_) {
        std::fputs("\r\x1B[K", stderr);
    }
}

void Progress::advance(std::uintmax_t bytes) {
    if (!isShown_ || Clock::now() < nextDrawing_) {
        return;
    }
    isDrawn_ = true;
    nextDrawing_ = Clock::now() + std::chrono::milliseconds(100);
    const auto read = static_cast<double>(bytes);
    if (total_ == 0 || bytes > total_) { // more than was announced, as from standard input
        fmt::print(stderr, "\rreading: {:.1f} MB", read / 1e6);
    } else {
        const double part = read / static_cast<double>(total_);
        fmt::print(stderr, "\rreading [{:40}] {:3.0f} %", std::string(static_cast<std::size_t>(part * 40), '#'),
                   part * 100);
    }
}

} // namespace Tool
