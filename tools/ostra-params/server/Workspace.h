#pragma once

#include "server/Lines.h"

#include "output/Json.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tool::Lsp {

/// A text that is never changed, and may be read by any thread.
using Text = std::shared_ptr<const std::string>;

/// A file of the workspace, as the client has it or else the disk.
struct File {
    std::string name; ///< Its path; the URI of a document that is no file.
    std::string uri;
    Text text;
    bool isOpen = false;
    std::optional<std::int64_t> version = {}; ///< As the client counts the changes of what is open.
};

/// All files at one moment.
struct Snapshot {
    std::vector<File> files; ///< In the order in which the tool reads a catalogue.
    bool hasFolders = false;
    std::size_t revision = 0;
};

/// A part of a file with a text of a schema: all of it, or a line.
struct Part {
    std::size_t begin; ///< Where it begins in the file.
    std::string_view text;
};

/// Returns the parts of a file; those that are blank are left out if they are lines.
std::vector<Part> partsOf(const std::string& name, std::string_view text);
/// Returns the part around an offset in a file.
Part partAt(const std::string& name, std::string_view text, std::size_t offset);

/// The files that the client works on: those in its folders, and those that it has opened.
class Workspace {
public:
    /// Adds a folder, the files of which are read with the next scan, or takes it out.
    /// @{
    void addFolder(std::string_view uri);
    void removeFolder(std::string_view uri);
    /// @}

    /// Reads all files in the folders.
    void scan();
    /// Reads one file again, if it is one of the folders'.
    void reread(std::string_view uri);

    void open(const std::string& uri, std::string text, std::optional<std::int64_t> version);
    /// Makes changes one after the other: each replaces a range, or all.
    /// @throws Refusal if the document is not open, or a change cannot be read; nothing is changed then
    void change(const std::string& uri, const Json& changes, std::optional<std::int64_t> version, Encoding encoding);
    void close(const std::string& uri);

    /// Returns an open document or else a file in a folder; nothing when it is neither.
    std::optional<File> find(const std::string& uri) const;
    Snapshot snapshot() const;
    /// Returns the number of the changes so far.
    std::size_t revision() const { return revision_; }
    /// Returns the folder in which a new file belongs beside another one; empty when that is none.
    static std::string folderOf(const std::string& name);

private:
    struct Document {
        std::string name;
        Text text;
        std::optional<std::int64_t> version;
    };

    std::string nameOf(const std::string& uri) const;
    File fileOf(const std::string& name) const;

    std::vector<std::string> folders_;
    std::vector<std::string> order_; // of the files in the folders
    std::map<std::string, Text> texts_;
    std::map<std::string, Document> documents_; // by URI
    std::map<std::string, std::string> uris_;   // of open documents, by name
    std::size_t revision_ = 0;
};

} // namespace Tool::Lsp
