#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace Tool {

/// A file to be written, one folder down.
struct FolderEntry {
    std::string folder;
    std::string file;
    std::string content;
};

/// The names of the files in one folder, the same on every platform.
class FileNames {
public:
    /// Returns a file name for a text: readable, and another one for each text. A name that would be too long ends in a
    /// digest of the text instead.
    std::string nameOf(const std::string& text);

private:
    std::set<std::uint64_t> digests_;
};

/// Replaces a folder by one that holds these files and nothing else; the old one stays until the new one is whole.
/// @throws OutputError if that fails, or the folder holds what such a replacement would not have written.
void replaceFolder(const std::filesystem::path& folder, const std::vector<FolderEntry>& entries);

} // namespace Tool
