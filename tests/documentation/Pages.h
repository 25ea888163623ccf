#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Documentation {

inline std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("Cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Returns the lines of a text, without their ends.
inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

/// Returns the fenced blocks of a language in a page.
inline std::vector<std::string> blocksOf(const std::string& page, const std::string& language) {
    std::vector<std::string> blocks;
    bool inside = false;
    for (const std::string& line : linesOf(page)) {
        if (inside && line == "```") {
            inside = false;
        } else if (inside) {
            blocks.back() += line + "\n";
        } else if (line == "```" + language) {
            inside = true;
            blocks.emplace_back();
        }
    }
    return blocks;
}

/// Returns what stands as code outside the fenced blocks of a page. Code may go on over the end of a line.
inline std::vector<std::string> codesOf(const std::string& page) {
    std::string prose;
    bool inside = false;
    for (const std::string& line : linesOf(page)) {
        if (line.starts_with("```")) {
            inside = !inside;
        } else if (!inside) {
            prose += line + " ";
        }
    }
    std::vector<std::string> codes;
    for (std::size_t begin = prose.find('`'); begin != std::string::npos;) {
        const std::size_t end = prose.find('`', begin + 1);
        if (end == std::string::npos) {
            throw std::runtime_error("Code without end: " + prose.substr(begin));
        }
        codes.push_back(prose.substr(begin + 1, end - begin - 1));
        begin = prose.find('`', end + 1);
    }
    return codes;
}

/// Returns the code with which rows of tables begin.
inline std::vector<std::string> codesOfFirstColumn(const std::string& page) {
    std::vector<std::string> codes;
    for (const std::string& line : linesOf(page)) {
        if (line.starts_with("| `")) {
            codes.push_back(line.substr(3, line.find('`', 3) - 3));
        }
    }
    return codes;
}

} // namespace Documentation
