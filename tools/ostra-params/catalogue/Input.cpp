#include "catalogue/Input.h"

#include "catalogue/FileBuffer.h"
#include "catalogue/FileNames.h"
#include "output/Json.h"
#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <istream>
#include <iterator>
#include <set>
#include <sstream>
#include <system_error>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace Tool {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void failToRead(const std::string& path, const std::error_code& reason) {
    throw InputError(fmt::format("Cannot read {}: {}.", printable(nameOf(path)), System::messageOf(reason)));
}

std::error_code lastError() { return {errno, std::generic_category()}; }

/// Leaves out files that were there before, under another name perhaps.
class Once {
public:
    bool isNew(const fs::path& file) {
        std::error_code error;
        if (fs::is_symlink(file, error)) {
            const fs::path target = fs::canonical(file, error);
            return seen_.insert(System::textOf(error ? file : target)).second;
        }
        if (folder_ != file.parent_path()) { // which is that of many files in turn
            folder_ = file.parent_path();
            canonicalFolder_ = fs::canonical(folder_.empty() ? "." : folder_, error);
        }
        return seen_.insert(System::textOf(canonicalFolder_ / file.filename())).second;
    }

private:
    std::set<std::string> seen_;
    fs::path folder_ = "/";
    fs::path canonicalFolder_ = "/";
};

/// Finds the files of paths.
class Search {
public:
    explicit Search(const std::vector<std::string>& paths) : mayRepeat_(paths.size() > 1) {
        for (const std::string& path : paths) {
            find(path);
        }
        if (mayRepeat_) {
            Once once;
            std::erase_if(files_, [&](const std::string& file) { return !once.isNew(System::pathOf(file)); });
        }
        putCopiesLast(files_);
    }

    std::deque<std::string> take() { return std::move(files_); }

private:
    void find(const std::string& name);
    void findBelow(const fs::path& top);

    bool mayRepeat_;
    std::deque<std::string> files_;
};

void Search::find(const std::string& name) {
    const fs::path path = System::pathOf(name);
    std::error_code error;
    const fs::file_status status = name == standardInput ? fs::file_status() : fs::status(path, error);
    if (error) {
        failToRead(name, error);
    }
    if (fs::is_directory(status)) {
        findBelow(path);
    } else if (name == standardInput || isSchemaFile(name)) {
        files_.push_back(System::textOf(path));
    } else {
        throw InputError(fmt::format("{} is neither a folder nor a .json or .ndjson file.", printable(name)));
    }
}

void Search::findBelow(const fs::path& top) {
    std::vector<std::string> found;
    std::vector<fs::path> folders{top};
    while (!folders.empty()) {
        const fs::path folder = std::move(folders.back());
        folders.pop_back();
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
            const fs::path& path = entry->path();
            std::error_code unknown; // as of a link that leads nowhere
            const bool isFolder = entry->is_directory(unknown);
            mayRepeat_ = mayRepeat_ || entry->is_symlink(unknown);
            if (path.filename().native().front() == '.' || (isFolder && entry->is_symlink(unknown))) {
                continue;
            }
            if (isFolder) {
                folders.push_back(path);
            } else if (isSchemaFile(System::textOf(path))) {
                found.push_back(System::textOf(path));
            }
        }
        if (error) {
            found.push_back(System::textOf(folder)); // to be refused when it is its turn to be read
        }
    }
    if (found.empty()) {
        throw InputError(fmt::format("No .json or .ndjson file in {}.", printable(System::textOf(top))));
    }
    std::sort(found.begin(), found.end(), isNameBefore);
    std::move(found.begin(), found.end(), std::back_inserter(files_));
}

/// Shows on a terminal's standard error how much of the files is read, once that takes more than a second.
class Progress {
public:
    explicit Progress(const std::deque<std::string>& files) {
        for (const std::string& file : files) {
            std::error_code unknown; // the size of standard input, for one
            const std::uintmax_t size = isShown_ ? fs::file_size(System::pathOf(file), unknown) : 0;
            total_ += unknown ? 0 : size;
        }
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() {
        if (isDrawn_) {
            std::fputs("\r\x1B[K", stderr);
        }
    }

    /// Says that so many bytes are read.
    void advance(std::uintmax_t bytes) {
        if (!isShown_ || Clock::now() < nextDrawing_) {
            return;
        }
        isDrawn_ = true;
        nextDrawing_ = Clock::now() + std::chrono::milliseconds(100);
        const auto read = static_cast<double>(bytes);
        if (total_ == 0 || bytes > total_) { // more than was announced, as from standard input
            fmt::print(stderr, "\rreading: {:.1f} MB", read / 1e6);
        } else {
            const double part = read / static_cast<double>(total_);
            fmt::print(stderr, "\rreading [{:40}] {:3.0f} %", std::string(static_cast<std::size_t>(part * 40), '#'),
                       part * 100);
        }
    }

private:
    using Clock = std::chrono::steady_clock;

    bool isShown_ = System::canDraw(); // whether anybody could see it
    bool isDrawn_ = false;
    std::uintmax_t total_ = 0;
    Clock::time_point nextDrawing_ = Clock::now() + std::chrono::seconds(1);
};

std::string readAll(std::istream& stream) {
    std::string text;
    std::array<char, 65536> buffer;
    do {
        stream.read(buffer.data(), buffer.size());
        text.append(buffer.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream);
    text.shrink_to_fit(); // many are kept
    return text;
}

std::string keyOf(std::size_t number) { return fmt::format("{:010}", number); }

/// A text that is no value as a whole is taken for lines when its first line looks like an object of its own.
bool isOfLines(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string::npos || Json::accept(text)) {
        return false;
    }
    const std::string_view line = std::string_view(text).substr(begin, text.find('\n', begin) - begin);
    return line.front() == '{' && line[line.find_last_not_of(blanks)] == '}';
}

} // namespace

std::string bytesOf(const std::string& file) {
    errno = 0;
    const System::File opened = System::open(System::pathOf(file));
    FileBuffer buffer(opened.get());
    std::istream stream(&buffer);
    std::string bytes = opened ? readAll(stream) : "";
    if (!opened || stream.bad()) {
        failToRead(file, lastError());
    }
    return bytes;
}

std::deque<std::string> filesOf(const std::vector<std::string>& paths) { return Search(paths).take(); }

Input::Input(const std::vector<std::string>& paths) : files_(filesOf(paths)) {
    Progress progress(files_);
    for (const std::string& file : files_) {
        file == standardInput ? readStandardInput(file) : read(file);
        progress.advance(read_);
    }
}

Input::Input(const std::vector<KnownFile>& files) {
    for (const auto& [name, bytes] : files) {
        files_.push_back(name);
        if (holdsLines(name)) {
            std::istringstream lines(*bytes);
            readLines(lines, files_.back());
        } else {
            add(files_.back(), 1, *bytes);
        }
    }
}

std::size_t Input::numberOf(const std::string& key) {
    std::size_t number = 0;
    std::from_chars(key.data(), key.data() + key.size(), number);
    return number;
}

std::string Input::replace(std::size_t number, std::string text) {
    return std::exchange(texts_.at(keyOf(number)), std::move(text));
}

void Input::read(const std::string& file) {
    errno = 0;
    const fs::path path = System::pathOf(file);
    const System::File opened = System::open(path);
    FileBuffer buffer(opened.get());
    std::istream stream(&buffer);
    if (opened && holdsLines(file)) {
        readLines(stream, file);
    } else if (opened) {
        std::string text = readAll(stream);
        if (!stream.bad()) {
            add(file, 1, std::move(text));
        }
    }
    if (!opened || stream.bad()) {
        std::error_code error = lastError();
        if (error == std::errc::is_a_directory) { // which could not be searched, for a reason of its own
            std::ignore = fs::directory_iterator(path, error);
        }
        failures_.push_back({&file, System::messageOf(error), sources_.size()});
    }
}

void Input::readStandardInput(const std::string& file) {
    errno = 0;
    FileBuffer buffer(stdin);
    std::istream stream(&buffer);
    std::string text = readAll(stream);
    if (stream.bad()) {
        failToRead(file, lastError());
    }
    if (isOfLines(text)) {
        std::istringstream lines(text);
        readLines(lines, file);
    } else {
        add(file, 1, std::move(text));
    }
}

void Input::readLines(std::istream& stream, const std::string& file) {
    std::string text;
    for (std::size_t line = 1; std::getline(stream, text); ++line) {
        if (text.find_first_not_of(blanks) != std::string::npos) {
            add(file, line, text);
        }
    }
}

void Input::add(const std::string& file, std::size_t line, std::string text) {
    if (line == 1 && text.starts_with(byteOrderMark)) {
        text.erase(0, byteOrderMark.size());
    }
    read_ += text.size();
    const auto added = texts_.emplace_hint(texts_.end(), keyOf(sources_.size()), std::move(text));
    sources_.push_back({&file, line, &added->second});
}

} // namespace Tool
