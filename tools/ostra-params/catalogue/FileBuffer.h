#pragma once

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <streambuf>
#include <system_error>

namespace Tool {

/// What a stream reads of a file. Other than the file streams of some standard libraries, it does not take a file that
/// cannot be read on for one that ends: the stream is bad then.
class FileBuffer : public std::streambuf {
public:
    explicit FileBuffer(std::FILE* file) : file_(file) {}

protected:
    int_type underflow() override {
        const std::size_t size = std::fread(buffer_.data(), 1, buffer_.size(), file_);
        if (size == 0 && std::ferror(file_) != 0) {
            throw std::system_error(errno, std::generic_category());
        }
        setg(buffer_.data(), buffer_.data(), buffer_.data() + size);
        return size == 0 ? traits_type::eof() : traits_type::to_int_type(buffer_.front());
    }

private:
    std::FILE* file_;
    std::array<char, 65536> buffer_ = {};
};

} // namespace Tool
