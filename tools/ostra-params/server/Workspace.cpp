#include "server/Workspace.h"

#include "catalogue/Input.h"
#include "output/Text.h"
#include "server/Message.h"
#include "server/Uri.h"
#include "system/System.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <utility>

namespace Tool::Lsp {

namespace {

namespace fs = std::filesystem;

/// Documents may be older versions of files, for one: these are not there beside the new ones.
bool isSchemaFile(const std::string& name) {
    return name.starts_with("untitled:") || name.find(':') <= 1 || name.starts_with('/');
}

/// What is installed there belongs to others, and may be very much.
bool isInstalled(const std::string& name) { return name.find("/node_modules/") != std::string::npos; }

/// Returns what a file holds, without the byte order mark, which editors do not count; nothing when it cannot be read,
/// or is gone.
Text contentOf(const std::string& name) {
    try {
        std::string bytes = bytesOf(name);
        bytes.erase(0, bytes.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
        return std::make_shared<const std::string>(std::move(bytes));
    } catch (const InputError&) {
        return nullptr;
    }
}

std::string changed(const std::string& text, const Json& change, Encoding encoding) {
    const auto& inserted = change.at("text").get_ref<const std::string&>();
    const auto range = change.find("range");
    if (range == change.end()) {
        return inserted;
    }
    const Lines lines(text, encoding);
    const auto offsetOf = [&](const char* end) {
        const Json& position = range->at(end);
        return lines.offsetOf({countOf(position.at("line")), countOf(position.at("character"))});
    };
    const auto [begin, end] = std::minmax({offsetOf("start"), offsetOf("end")});
    return text.substr(0, begin) + inserted + text.substr(end);
}

} // namespace

std::vector<Part> partsOf(const std::string& name, std::string_view text) {
    const std::size_t begin = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    if (!holdsLines(name)) {
        return {{begin, text.substr(begin)}};
    }
    std::vector<Part> parts;
    for (std::size_t i = begin; i < text.size();) {
        const std::string_view line = text.substr(i, text.find('\n', i) - i);
        if (line.find_first_not_of(blanks) != std::string_view::npos) {
            parts.push_back({i, line});
        }
        i += line.size() + 1;
    }
    return parts;
}

Part partAt(const std::string& name, std::string_view text, std::size_t offset) {
    const std::size_t begin = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    if (!holdsLines(name)) {
        return {begin, text.substr(begin)};
    }
    const std::size_t before = text.substr(0, offset).rfind('\n');
    const std::size_t line = before == std::string_view::npos ? begin : before + 1;
    return {line, text.substr(line, text.find('\n', line) - line)};
}

void Workspace::addFolder(std::string_view uri) {
    std::string path = pathOf(uri);
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    if (!path.empty() && std::find(folders_.begin(), folders_.end(), path) == folders_.end()) {
        folders_.push_back(std::move(path));
    }
}

void Workspace::removeFolder(std::string_view uri) {
    std::string path = pathOf(uri);
    std::erase_if(folders_, [&](const std::string& folder) { return folder == path || folder + "/" == path; });
}

void Workspace::scan() {
    std::vector<std::string> found;
    for (const std::string& folder : folders_) {
        try {
            const std::deque<std::string> files = filesOf({folder});
            found.insert(found.end(), files.begin(), files.end());
        } catch (const InputError&) { // it has none yet, or is gone
        }
    }
    order_.clear();
    std::map<std::string, Text> texts;
    for (std::string& name : found) {
        Text text = isInstalled(name) ? nullptr : contentOf(name);
        if (text && texts.emplace(name, std::move(text)).second) { // folders may lie within each other
            order_.push_back(std::move(name));
        }
    }
    texts_ = std::move(texts);
    ++revision_;
}

void Workspace::reread(std::string_view uri) {
    const auto known = texts_.find(nameOf(std::string(uri)));
    if (known == texts_.end()) {
        return;
    }
    if (Text text = contentOf(known->first)) {
        known->second = std::move(text);
    } else {
        std::erase(order_, known->first);
        texts_.erase(known);
    }
    ++revision_;
}

void Workspace::open(const std::string& uri, std::string text, std::optional<std::int64_t> version) {
    std::string name = nameOf(uri);
    uris_[name] = uri;
    documents_[uri] = {std::move(name), std::make_shared<const std::string>(std::move(text)), version};
    ++revision_;
}

void Workspace::change(const std::string& uri, const Json& changes, std::optional<std::int64_t> version,
                       Encoding encoding) {
    const auto document = documents_.find(uri);
    if (document == documents_.end()) {
        throw Refusal(ErrorCode::invalidParams, "The document is not open.");
    }
    std::string text = *document->second.text;
    for (const Json& change : changes) {
        text = changed(text, change, encoding);
    }
    document->second.text = std::make_shared<const std::string>(std::move(text));
    document->second.version = version;
    ++revision_;
}

void Workspace::close(const std::string& uri) {
    if (const auto document = documents_.find(uri); document != documents_.end()) {
        const std::string name = document->second.name;
        uris_.erase(name);
        documents_.erase(document);
        reread(uri);
        ++revision_;
    }
}

std::optional<File> Workspace::find(const std::string& uri) const {
    const std::string name = nameOf(uri);
    return uris_.contains(name) || texts_.contains(name) ? std::optional(fileOf(name)) : std::nullopt;
}

Snapshot Workspace::snapshot() const {
    Snapshot snapshot{{}, !folders_.empty(), revision_};
    for (const std::string& name : order_) {
        snapshot.files.push_back(fileOf(name));
    }
    for (const auto& [name, uri] : uris_) {
        if (!texts_.contains(name) && isSchemaFile(name)) {
            snapshot.files.push_back(fileOf(name));
        }
    }
    return snapshot;
}

std::string Workspace::folderOf(const std::string& name) {
    const std::size_t slash = name.rfind('/');
    return name.find("://") != std::string::npos || slash == std::string::npos ? std::string() : name.substr(0, slash);
}

/// A folder may be known by another path than that of the document: through a link, for one.
std::string Workspace::nameOf(const std::string& uri) const {
    std::string path = pathOf(uri);
    if (path.empty()) {
        return uri;
    }
    if (texts_.contains(path)) {
        return path;
    }
    std::error_code unknown;
    const std::string real = System::textOf(fs::weakly_canonical(System::pathOf(path), unknown));
    for (const std::string& folder : folders_) {
        const std::string top = System::textOf(fs::weakly_canonical(System::pathOf(folder), unknown)) + "/";
        if (!unknown && real.starts_with(top) && texts_.contains(folder + "/" + real.substr(top.size()))) {
            return folder + "/" + real.substr(top.size());
        }
    }
    return path;
}

File Workspace::fileOf(const std::string& name) const {
    if (const auto uri = uris_.find(name); uri != uris_.end()) {
        const Document& document = documents_.at(uri->second);
        return {name, uri->second, document.text, true, document.version};
    }
    return {name, uriOf(name), texts_.at(name)};
}

} // namespace Tool::Lsp
