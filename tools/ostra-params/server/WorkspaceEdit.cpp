#include "server/WorkspaceEdit.h"

namespace Tool::Lsp {

void WorkspaceEdit::replace(const File& file, std::size_t begin, std::size_t end, std::string text) {
    Change& change = changes_.try_emplace(file.uri, Change{file, {}}).first->second;
    change.edits.emplace(std::pair(begin, end), std::move(text));
}

void WorkspaceEdit::create(const std::string& uri, std::string text) { created_.emplace(uri, std::move(text)); }

Json WorkspaceEdit::json() const {
    const bool isVersioned = session_.can("/workspace/workspaceEdit/documentChanges") || !created_.empty();
    Json all = isVersioned ? Json::array() : Json::object();
    for (const auto& [uri, text] : created_) {
        const Json start{{"line", 0}, {"character", 0}};
        const Json edit{{"range", {{"start", start}, {"end", start}}}, {"newText", text}};
        all.push_back({{"kind", "create"}, {"uri", uri}, {"options", {{"ignoreIfExists", false}}}});
        all.push_back({{"textDocument", {{"uri", uri}, {"version", nullptr}}}, {"edits", Json::array({edit})}});
    }
    for (const auto& [uri, change] : changes_) {
        const Lines lines(*change.file.text, session_.encoding);
        Json edits = Json::array();
        for (const auto& [stretch, text] : change.edits) {
            edits.push_back({{"range", rangeOf(lines, stretch.first, stretch.second)}, {"newText", text}});
        }
        if (isVersioned) {
            const Json version = change.file.version ? Json(*change.file.version) : Json();
            all.push_back({{"textDocument", {{"uri", uri}, {"version", version}}}, {"edits", std::move(edits)}});
        } else {
            all[uri] = std::move(edits);
        }
    }
    return {{isVersioned ? "documentChanges" : "changes", std::move(all)}};
}

} // namespace Tool::Lsp
