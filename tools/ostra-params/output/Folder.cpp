#include "output/OutputFile.h"

#include "catalogue/Sections.h"
#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cctype>
#include <cstdint>
#include <fstream>
#include <future>
#include <iterator>
#include <map>
#include <set>

namespace Tool {

namespace {

namespace fs = std::filesystem;

/// Removes all files in a folder and below, several at once: some file systems wait for the device with each.
void removeFilesIn(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> files;
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (!entry->is_directory(error)) {
            files.push_back(entry->path());
        }
    }
    std::atomic<std::size_t> next = 0;
    const auto removeNext = [&] {
        for (std::size_t i = next++; i < files.size(); i = next++) {
            std::error_code ignored; // who removes the folder tries again
            fs::remove(files[i], ignored);
        }
    };
    constexpr std::size_t most = 8;
    std::vector<std::future<void>> removals(std::min(files.size() / 100, most)); // a few need no help
    for (std::future<void>& removal : removals) {
        removal = std::async(std::launch::async, removeNext);
    }
    removeNext();
}

/// A folder aside, which goes with this object unless it has been moved away.
class FolderAside {
public:
    explicit FolderAside(const fs::path& target) {
        try {
            path_ = System::makeFolderBeside(target);
        } catch (const std::system_error& error) {
            failToWrite(target, error.code());
        }
    }
    FolderAside(const FolderAside&) = delete;
    FolderAside& operator=(const FolderAside&) = delete;
    ~FolderAside() {
        if (isKept_) {
            return;
        }
        try {
            removeFilesIn(path_);
        } catch (const std::exception&) { // as of threads that there are no more of
        }
        std::error_code ignored; // what is left over is no reason to fail
        fs::remove_all(path_, ignored);
    }
    const fs::path& path() const { return path_; }
    /// Leaves it where it is.
    void keep() { isKept_ = true; }

private:
    fs::path path_;
    bool isKept_ = false;
};

bool isFromAnExport(const fs::path& folder, const fs::directory_entry& entry) {
    const fs::path relative = entry.path().lexically_relative(folder);
    const bool isInSection = findSection(&Section::id, System::textOf(*relative.begin())) != nullptr;
    const auto depth = std::distance(relative.begin(), relative.end());
    return isInSection && !entry.is_symlink() &&
           (entry.is_directory() ? depth == 1 : depth == 2 && entry.path().extension() == ".json");
}

void mustBeReplaceable(const fs::path& folder) {
    std::error_code error;
    if (fs::equivalent(folder, fs::current_path(), error)) { // which the shell would go on to look for
        throw OutputError(
            fmt::format("{} is not replaced: it is the working folder.", printable(System::textOf(folder))));
    }
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (!isFromAnExport(folder, *entry)) {
            throw OutputError(fmt::format("{} is not replaced: {} is not from an export.",
                                          printable(System::textOf(folder)), printable(System::textOf(entry->path()))));
        }
    }
    if (error) {
        failToWrite(folder, error);
    }
}

/// Returns whether some system takes a file name for that of a device, which it does whatever stands behind a dot.
bool isOfDevice(const std::string& name) {
    constexpr std::array<std::string_view, 4> devices{"con", "prn", "aux", "nul"};
    const std::string stem = lower(name.substr(0, name.find('.')));
    const bool isOfPort = stem.size() == 4 && (stem.starts_with("com") || stem.starts_with("lpt")) &&
                          std::isdigit(static_cast<unsigned char>(stem.back())) != 0;
    return isOfPort || std::find(devices.begin(), devices.end(), stem) != devices.end();
}

/// Names the files of one folder by texts: readable, the same on every system, and another one for each text wherever
/// case does not matter. But for names that are cut, the text can be read back.
class FileNames {
public:
    /// Takes a text to be named, before the first name is asked for.
    void add(const std::string& text) {
        if (const std::string name = nameOf(text, true); name.size() <= longest) {
            ++alike_[lower(name)];
        }
    }

    std::string of(const std::string& text) {
        std::string name = nameOf(text, true);
        if (name.size() <= longest && alike_[lower(name)] > 1) {
            name = nameOf(text, false);
        }
        if (isOfDevice(name)) {
            name = encoded(name.substr(0, 1), [](char) { return false; }) + name.substr(1);
        }
        return name.size() <= longest ? name : cut(text, name);
    }

private:
    static std::string nameOf(const std::string& text, bool hasCapitals) {
        const std::string_view signs = text.starts_with('.') ? "-_" : "-_."; // none is hidden
        return encoded(text, [&](char byte) {
            const auto letter = static_cast<unsigned char>(byte);
            return signs.find(byte) != std::string_view::npos ||
                   (std::isalnum(letter) != 0 && (hasCapitals || std::isupper(letter) == 0));
        });
    }

    /// Lets a name that is too long end in a digest of its text.
    std::string cut(const std::string& text, const std::string& name) {
        std::uint64_t digest = digestOf(text);
        while (!digests_.insert(digest).second) {
            ++digest; // texts of one digest can be made on purpose
        }
        return fmt::format("{}%{:016X}", name.substr(0, longest), digest);
    }

    static constexpr std::size_t longest = 200; // file systems take 255 bytes
    std::map<std::string, int> alike_;          // how many names there are that case alone tells apart
    std::set<std::uint64_t> digests_;
};

/// Returns whether a file has these bytes and no others.
bool holds(const fs::path& file, std::string_view content) {
    std::error_code error;
    if (fs::file_size(file, error) != content.size() || error) {
        return false;
    }
    std::ifstream stream(file, std::ios::binary);
    std::string bytes(content.size(), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return stream && bytes == content;
}

/// Makes a file in a fresh folder, of the same file in the old one if that has this content: what stays needs neither
/// to be written nor to be removed. Returns why that failed.
std::error_code makeFile(const fs::path& fresh, const fs::path& old, std::string_view content) {
    std::error_code error;
    if (holds(old, content)) {
        fs::create_hard_link(old, fresh, error);
        if (!error) {
            return error;
        }
    }
    return writeAt(fresh, content);
}

} // namespace

void replaceFolder(const std::string& name, const std::vector<FolderEntry>& entries) {
    const fs::path folder = System::pathOf(name);
    std::error_code error;
    const bool isThere = fs::exists(folder, error);
    if (isThere) {
        mustBeReplaceable(folder);
    }
    const fs::path target = isThere                 ? fs::canonical(folder) // so that a link to a folder is kept
                            : folder.has_filename() ? folder
                                                    : folder.parent_path(); // "folder/" names the folder
    FolderAside aside(target);
    const fs::path fresh = aside.path() / "new";
    const fs::path old = aside.path() / "old";
    try {
        fs::create_directory(fresh);
        std::map<std::string, FileNames> names; // of each folder
        for (const FolderEntry& entry : entries) {
            names[entry.folder].add(entry.name);
        }
        for (const auto& [section, namesOfSection] : names) {
            fs::create_directory(fresh / section);
        }
        for (const FolderEntry& entry : entries) {
            const fs::path file = fs::path(entry.folder) / (names[entry.folder].of(entry.name) + ".json");
            if (const std::error_code failure = makeFile(fresh / file, target / file, entry.content)) {
                failToWrite(folder / file, failure);
            }
        }
        if (isThere) {
            fs::rename(target, old);
        }
        fs::rename(fresh, target);
    } catch (const fs::filesystem_error& failure) {
        if (fs::exists(old, error)) { // then it was moved
            fs::rename(old, target, error);
            if (error) {
                aside.keep(); // rather than remove the only copy
                throw OutputError(fmt::format("Cannot write {}: {}. What was there is in {}.",
                                              printable(System::textOf(target)), System::messageOf(failure.code()),
                                              printable(System::textOf(old))));
            }
        }
        failToWrite(target, failure.code()); // the first reason is the one to tell
    }
}

} // namespace Tool
