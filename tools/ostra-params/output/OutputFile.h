#pragma once

#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace Tool {

/// Something that cannot be written. Its message names the path.
class OutputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file that is written aside, and takes the place of another only when it is whole.
class OutputFile {
public:
    /// Makes an empty file aside, in the same folder.
    /// @throws OutputError
    explicit OutputFile(std::filesystem::path target);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    /// What was not committed goes without a trace.
    ~OutputFile();

    /// Returns where the file is until it is committed.
    const std::filesystem::path& path() const { return aside_; }

    /// Replaces the content.
    /// @throws OutputError
    void write(std::string_view content) const;

    /// Puts the file where it belongs.
    /// @throws OutputError
    void commit();

private:
    std::filesystem::path target_;
    std::filesystem::path aside_;
};

/// Writes a file as a whole, or not at all.
/// @throws OutputError
void writeFile(const std::filesystem::path& file, std::string_view content);

/// Throws an OutputError that names a path and the system's reason.
[[noreturn]] void failToWrite(const std::filesystem::path& path, const std::error_code& reason);

} // namespace Tool
