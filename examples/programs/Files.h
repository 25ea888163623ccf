#pragma once

#include <parameters/Fault.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <ostream>
#include <string>
#include <vector>

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

/// Prints the errors among the faults of files: the name of the file, the place in it, and what is wrong there.
inline void printErrors(std::ostream& out, const std::vector<Parameters::Fault>& faults) {
    for (const Parameters::Fault& fault : faults) {
        if (fault.isError()) {
            const Parameters::Fault::Place& place = fault.place();
            out << std::filesystem::path(place.text).filename().string() << (place.pointer.empty() ? "" : " ")
                << place.pointer << ": " << fault.message() << '\n';
        }
    }
}
