#include "catalogue/Input.h"

#include "output/Text.h"

#include <fmt/format.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace Tool {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t\r\n";

[[noreturn]] void failToRead(const fs::path& path, const std::error_code& reason) {
    throw InputError(fmt::format("Cannot read {}: {}.", printable(nameOf(path)), reason.message()));
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
        throw InputError(fmt::format("No .json or .ndjson file in {}.", printable(folder.string())));
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<fs::path> filesOf(const fs::path& path) {
    if (path == standardInput) {
        return {path};
    }
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error) {
        failToRead(path, error);
    }
    if (fs::is_directory(status)) {
        return schemaFilesBelow(path);
    }
    if (!isSchemaFile(path)) {
        throw InputError(fmt::format("{} is neither a folder nor a .json or .ndjson file.", printable(path.string())));
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

bool isWellFormed(const std::string& text) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(text.data(), text.size());
    rapidjson::BaseReaderHandler<> anything;
    return !rapidjson::Reader().Parse<flags>(stream, anything).IsError();
}

/// A text that is no value as a whole is taken for lines when its first line looks like an object of its own.
bool isOfLines(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string::npos || isWellFormed(text)) {
        return false;
    }
    const std::string_view line = std::string_view(text).substr(begin, text.find('\n', begin) - begin);
    return line.front() == '{' && line[line.find_last_not_of(blanks)] == '}';
}

void readStandardInput(const std::function<void(const Source&)>& visit) {
    const fs::path name = standardInput;
    std::string text = readAll(std::cin);
    if (isOfLines(text)) {
        std::istringstream lines(text);
        readLines(lines, name, visit);
    } else {
        dropByteOrderMark(text);
        visit({name, 1, std::move(text)});
    }
}

} // namespace

std::string nameOf(const fs::path& file) { return file == standardInput ? "<stdin>" : file.string(); }

std::vector<fs::path> findFiles(const std::vector<std::string>& paths) {
    std::vector<fs::path> files;
    std::set<fs::path> seen;
    for (const std::string& path : paths) {
        for (fs::path& file : filesOf(path)) {
            std::error_code error;
            const fs::path canonical = file == standardInput ? file : fs::canonical(file, error);
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
    if (file == standardInput) {
        readStandardInput(visit);
        if (std::cin.bad() || std::ferror(stdin) != 0) {
            failToRead(file, {errno, std::generic_category()});
        }
        return;
    }
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
