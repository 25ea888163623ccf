#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Tool {

/// A .json file to be written, one folder down.
struct FolderEntry {
    std::string folder;
    std::string name; ///< Any text, another one for each file.
    std::string content;
};

/// Replaces a folder by one that holds these files and nothing else; the old one stays until the new one is whole.
/// @throws OutputError if that fails, or the folder holds what such a replacement would not have written.
void replaceFolder(const std::filesystem::path& folder, const std::vector<FolderEntry>& entries);

} // namespace Tool
