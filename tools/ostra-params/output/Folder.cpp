#include "output/OutputFile.h"

#include "catalogue/Sections.h"
#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <cstdint>
#include <iterator>
#include <map>
#include <set>

namespace Tool {

namespace {

namespace fs = std::filesystem;

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
        std::error_code ignored; // what is left over is no reason to fail
        fs::remove_all(path_, ignored);
    }
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
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

/// Returns a file name for a text, the same on every platform: readable, and another one for each text. A name that
/// would be too long ends in a digest of the text instead.
std::string fileNameOf(const std::string& text, std::set<std::uint64_t>& digests) {
    constexpr std::size_t longest = 200;                                              // file systems take 255 bytes
    std::string name = percentEncoded(text, text.substr(0, 1) == "." ? "-_" : "-_."); // none is hidden
    if (name.size() <= longest) {
        return name;
    }
    std::uint64_t digest = digestOf(text);
    while (!digests.insert(digest).second) {
        ++digest; // texts of one digest can be made on purpose
    }
    return fmt::format("{}%{:016X}", name.substr(0, longest), digest);
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
    const FolderAside aside(target);
    const fs::path fresh = aside.path() / "new";
    const fs::path old = aside.path() / "old";
    try {
        fs::create_directory(fresh);
        std::map<std::string, std::set<std::uint64_t>> digests; // of the names in each folder
        for (const FolderEntry& entry : entries) {
            fs::create_directory(fresh / entry.folder);
            OutputFile file(fresh / entry.folder / (fileNameOf(entry.name, digests[entry.folder]) + ".json"));
            file.write(entry.content);
            file.commit();
        }
        if (isThere) {
            fs::rename(target, old);
        }
        fs::rename(fresh, target);
    } catch (const fs::filesystem_error& failure) {
        fs::rename(old, target, error); // if it was moved; the first reason is the one to tell
        failToWrite(target, failure.code());
    }
}

} // namespace Tool
