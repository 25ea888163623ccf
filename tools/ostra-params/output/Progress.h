#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <string>

namespace Tool {

/// Shows on a terminal's standard error how much of the files is read, once that takes more than a second.
class Progress {
public:
    explicit Progress(const std::deque<std::string>& files);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    /// Says that so many bytes are read.
    void advance(std::uintmax_t bytes);

private:
    using Clock = std::chrono::steady_clock;

    bool isShown_; // whether anybody could see it
    bool isDrawn_ = false;
    std::uintmax_t total_ = 0;
    Clock::time_point nextDrawing_;
};

} // namespace Tool
