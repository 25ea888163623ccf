#pragma once

#include <fstream>
#include <string>
#include <vector>

namespace Bench {

/// Reads a file with one schema a line.
inline std::vector<std::string> linesOf(const char* file) {
    std::ifstream stream(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace Bench
