#include "Input.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

namespace Tool {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t\r\n";

[[noreturn]] void failToRead(const fs::path& path, const std::error_code& reason) {
    throw InputError(fmt::format("Cannot read {}: {}.", path.string(), reason.message()));
}

bool holdsLines(const fs::path& file) { return file.extension() == ".ndjson"; }

bool isSchemaFile(const fs::path& file) { return file.extension() == ".json" || holdsLines(file); }

std::vector<fs::path> schemaFilesBelow(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (isSchemaFile(entry->path()) && !entry->is_directory()) {
            files.push_back(entry->path());
        }
    }
    if (error) {
        failToRead(folder, error);
    }
    if (files.empty()) {
        throw InputError(fmt::format("No .json or .ndjson file in {}.", folder.string()));
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<fs::path> filesOf(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error) {
        failToRead(path, error);
    }
    if (fs::is_directory(status)) {
        return schemaFilesBelow(path);
    }
    if (!isSchemaFile(path)) {
        throw InputError(fmt::format("{} is neither a folder nor a .json or .ndjson file.", path.string()));
    }
    return {path};
}

void dropByteOrderMark(std::string& text) {
    if (std::string_view(text).substr(0, byteOrderMark.size()) == byteOrderMark) {
        text.erase(0, byteOrderMark.size());
    }
}

std::string readAll(std::istream& stream) {
    std::string text;
    std::array<char, 65536> buffer;
    do {
        stream.read(buffer.data(), buffer.size());
        text.append(buffer.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream);
    return text;
}

void readLines(std::istream& stream, const fs::path& file, const std::function<void(const Source&)>& visit) {
    Source source{file, 0, {}};
    while (std::getline(stream, source.text)) {
        if (++source.line == 1) {
            dropByteOrderMark(source.text);
        }
        if (source.text.find_first_not_of(blanks) != std::string::npos) {
            visit(source);
        }
    }
}

} // namespace

std::vector<fs::path> findFiles(const std::vector<std::string>& paths) {
    std::vector<fs::path> files;
    std::set<fs::path> seen;
    for (const std::string& path : paths) {
        for (fs::path& file : filesOf(path)) {
            std::error_code error;
            const fs::path canonical = fs::canonical(file, error);
            if (error) {
                failToRead(file, error);
            }
            if (seen.insert(canonical).second) {
                files.push_back(std::move(file));
            }
        }
    }
    return files;
}

void readTexts(const fs::path& file, const std::function<void(const Source&)>& visit) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        failToRead(file, {errno, std::generic_category()});
    }
    if (holdsLines(file)) {
        readLines(stream, file, visit);
    } else {
        std::string text = readAll(stream);
        dropByteOrderMark(text);
        if (!stream.bad()) {
            visit({file, 1, std::move(text)});
        }
    }
    if (stream.bad()) {
        failToRead(file, {errno, std::generic_category()});
    }
}

} // namespace Tool
