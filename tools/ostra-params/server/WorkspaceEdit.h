#pragma once

#include "server/Session.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tool::Lsp {

/// Changes of several files, in the form that the client understands.
class WorkspaceEdit {
public:
    explicit WorkspaceEdit(const Session& session) : session_(session) {}

    /// Replaces a stretch of a file. What is replaced twice in the same way is replaced once.
    void replace(const File& file, std::size_t begin, std::size_t end, std::string text);
    /// Makes a file that is not there yet.
    void create(const std::string& uri, std::string text);

    bool isEmpty() const { return changes_.empty() && created_.empty(); }
    Json json() const;

private:
    struct Change {
        File file;
        std::map<std::pair<std::size_t, std::size_t>, std::string> edits;
    };

    const Session& session_;
    std::map<std::string, Change> changes_; // by the URI of the file
    std::map<std::string, std::string> created_;
};

} // namespace Tool::Lsp
