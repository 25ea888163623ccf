#include "catalogue/Revision.h"

#include "catalogue/FileNames.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

namespace fs = std::filesystem;

/// Runs git with its streams in files of its own: no pipe can be full, whatever is in them.
class Git {
public:
    /// Returns what git prints about a folder; nothing when it fails.
    /// @throws InputError if there is no git
    std::optional<std::string> ask(const std::string& folder, std::vector<std::string> arguments,
                                   std::string_view input = "") const {
        arguments.insert(arguments.begin(), {"-C", folder});
        arguments.insert(arguments.begin(), repository_.begin(), repository_.end());
        input_.write(input);
        for (const OutputFile* stream : {&output_, &errors_}) {
            stream->write("");
        }
        const auto exitCode = System::run("git", arguments, {input_.path(), output_.path(), errors_.path()});
        if (!exitCode || *exitCode == 127) { // as some systems say that there is no such program
            throw InputError("Cannot run git, which is needed to read a revision.");
        }
        return *exitCode == 0 ? std::optional(bytesOf(System::textOf(output_.path()))) : std::nullopt;
    }

    /// Returns the first line of what git complained of.
    std::string complaint() const {
        const std::string text = bytesOf(System::textOf(errors_.path()));
        const std::string line = text.substr(0, text.find('\n'));
        return line.starts_with("fatal: ") ? line.substr(7) : line;
    }

private:
    static fs::path place(const char* name) { return fs::temp_directory_path() / name; }

    /// Returns what the environment says of the repository, as it does in a hook: in the words of options, since git
    /// takes it to be said of the folder in which it works.
    static std::vector<std::string> repository() {
        const auto option = [](const char* name, const std::string& path) {
            return name + System::textOf(fs::absolute(System::pathOf(path)));
        };
        const auto folder = System::environment("GIT_DIR");
        if (!folder) {
            return {};
        }
        return {option("--git-dir=", *folder),
                option("--work-tree=", System::environment("GIT_WORK_TREE").value_or("."))};
    }

    std::vector<std::string> repository_ = repository();
    OutputFile input_{place("ostra-params-git-in")};
    OutputFile output_{place("ostra-params-git-out")};
    OutputFile errors_{place("ostra-params-git-err")};
};

/// Takes the next part of a text, up to a byte.
std::string_view next(std::string_view& text, char end) {
    const std::string_view part = text.substr(0, text.find(end));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

bool isHidden(std::string_view name) { return name.starts_with('.') || name.find("/.") != std::string_view::npos; }

/// The files of a revision by their names, and what git knows their contents by.
class Tree {
public:
    Tree(const Git& git, std::string revision) : git_(git), revision_(std::move(revision)) {}

    /// Adds the schema files of a folder and below, or a file.
    void add(const std::string& name) {
        if (name == standardInput) {
            throw InputError("Standard input has no revisions.");
        }
        const fs::path path = System::pathOf(name);
        std::error_code unknown; // as of what is not there, which git tells
        const bool isFolder = fs::is_directory(path, unknown);
        folder_ = System::textOf(isFolder ? path : path.parent_path());
        folder_ = folder_.empty() ? "." : folder_;
        // The folder is asked for as it is called; its files are listed below it, and a file by its name.
        std::vector<std::string> arguments{"ls-tree", "-r", "-z", commit()};
        if (!isFolder) {
            arguments.insert(arguments.end(), {"--", System::textOf(path.filename())});
        }
        const auto list = git_.ask(folder_, arguments);
        if (!list) {
            fail();
        }
        Contents found(isNameBefore);
        for (std::string_view rest = *list; !rest.empty();) {
            addEntry(next(rest, '\0'), isFolder ? path : path.parent_path(), isFolder, found);
        }
        read(found);
    }

    std::vector<KnownFile> files() {
        putCopiesLast(names_);
        std::vector<KnownFile> files;
        for (const std::string& name : names_) {
            files.push_back({name, files_.at(name)});
        }
        return files;
    }

private:
    /// What git knows contents by, by the names of files in the order of reading.
    using Contents = std::map<std::string, std::string, bool (*)(const std::string&, const std::string&)>;

    /// Reads the contents of files that were found.
    void read(const Contents& found) {
        std::string wanted;
        for (const auto& [name, content] : found) {
            wanted += content + "\n";
        }
        const auto all = git_.ask(folder_, {"cat-file", "--batch"}, wanted);
        if (!all) {
            fail();
        }
        std::string_view rest = *all;
        for (const auto& [name, content] : found) {
            const std::string_view heading = next(rest, '\n'); // "NAME TYPE SIZE"
            const std::string_view digits = heading.substr(heading.rfind(' ') + 1);
            std::size_t size = 0;
            const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), size);
            if (error != std::errc() || size > rest.size()) {
                throw InputError(
                    fmt::format("Cannot read {} of {}: git lacks it.", printable(name), printable(revision_)));
            }
            names_.push_back(name);
            files_.emplace(name, std::make_shared<const std::string>(rest.substr(0, size)));
            rest.remove_prefix(std::min(size + 1, rest.size()));
        }
    }

    /// Returns what the revision is, which git cannot take for an option.
    std::string commit() {
        const auto known =
            git_.ask(folder_, {"rev-parse", "--verify", "--quiet", "--end-of-options", revision_ + "^{tree}"});
        if (!known && !git_.ask(folder_, {"rev-parse", "--git-dir"})) {
            fail();
        }
        if (!known) {
            throw InputError(fmt::format("There is no revision {}.", printable(revision_)));
        }
        const std::string text = known->substr(0, known->find_last_not_of("\r\n") + 1);
        return text.substr(text.rfind('\n') + 1); // behind what older ones repeat of their arguments
    }

    /// Takes a line "MODE TYPE NAME\tPATH".
    void addEntry(std::string_view entry, const fs::path& folder, bool isFolder, Contents& found) const {
        const std::string_view mode = next(entry, ' ');
        const std::string_view type = next(entry, ' ');
        const std::string_view content = next(entry, '\t');
        constexpr std::string_view link = "120000";
        if (type != "blob" || mode == link || (isFolder && isHidden(entry))) {
            return;
        }
        const std::string name = System::textOf(folder / System::pathOf(entry));
        if (isSchemaFile(name) && !files_.contains(name)) {
            found.emplace(name, content);
        }
    }

    [[noreturn]] void fail() const {
        throw InputError(fmt::format("Cannot read {} of {}: {}.", printable(revision_), printable(folder_),
                                     printable(git_.complaint())));
    }

    const Git& git_;
    std::string revision_;
    std::string folder_; // the last one that was asked for
    std::deque<std::string> names_;
    std::map<std::string, std::shared_ptr<const std::string>> files_;
};

} // namespace

std::vector<KnownFile> filesOfRevision(const std::string& revision, const std::vector<std::string>& paths) {
    const Git git;
    Tree tree(git, revision);
    for (const std::string& path : paths) {
        tree.add(path);
    }
    return tree.files();
}

} // namespace Tool
