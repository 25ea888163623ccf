#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

/// Returns the content of each .json file below a folder by its path.
inline std::map<std::string, std::string> textsIn(const std::filesystem::path& folder) {
    std::map<std::string, std::string> texts;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".json") {
            std::ifstream stream(entry.path(), std::ios::binary);
            texts[entry.path().generic_string()] = {std::istreambuf_iterator<char>(stream), {}};
        }
    }
    return texts;
}
