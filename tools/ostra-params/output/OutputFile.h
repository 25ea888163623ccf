#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace Tool {

/// Something that cannot be written. Its message names the path.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A file that is written aside, and takes the place of another only when it is whole. What is no file, such as a
/// device or a pipe, cannot be replaced and is written to at once.
class OutputFile {
public:
    /// Makes an empty file aside, in the same folder as the target or what the target is a link to.
    /// @throws OutputError
    explicit OutputFile(std::filesystem::path target);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    /// What was not committed goes without a trace.
    ~OutputFile();

    /// Returns where to write until the file is committed.
    const std::filesystem::path& path() const { return aside_.empty() ? target_ : aside_; }

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

/// Writes a file where it is, which must be aside already. Returns why that failed.
std::error_code writeAt(const std::filesystem::path& path, std::string_view content);

/// What names the standard output among paths.
constexpr std::string_view standardOutput = "-";

/// Writes a file as a whole, or not at all; or to standard output.
/// @throws OutputError
void writeTo(const std::string& file, std::string_view content);

/// A .json file to be written, one folder down.
struct FolderEntry {
    std::string folder;
    std::string name; ///< Any text, another one for each file.
    std::string content;
};

/// Replaces a folder by one that holds these files and nothing else; the old one stays until the new one is whole.
/// @throws OutputError if that fails, or the folder holds what such a replacement would not have written.
void replaceFolder(const std::string& name, const std::vector<FolderEntry>& entries);

/// Writes to standard output.
/// @throws OutputError
void print(std::string_view text);

/// Writes to standard error, where nobody can be told of a failure.
void printError(std::string_view text);

/// Throws an OutputError that names a path and the system's reason.
[[noreturn]] void failToWrite(const std::filesystem::path& path, const std::error_code& reason);

} // namespace Tool
