#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Tool {

/// A file to be written, one folder down.
struct FolderEntry {
    std::string folder;
    std::string file;
    std::string content;
};

/// Returns a file name for a text: readable, and another one for each text.
std::string fileNameOf(const std::string& text);

/// Replaces a folder by one that holds these files and nothing else; the old one stays until the new one is whole.
/// @throws OutputError if that fails, or the folder holds what such a replacement would not have written.
void replaceFolder(const std::filesystem::path& folder, const std::vector<FolderEntry>& entries);

} // namespace Tool
