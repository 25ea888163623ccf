#include "tools/Editor.h"

#include "server/Lines.h"
#include "server/Uri.h"

#include <algorithm>
#include <utility>

using Tool::Lsp::Encoding;
using Tool::Lsp::Lines;

namespace {

Tool::Json positionOf(const std::string& text, std::size_t offset) {
    const auto [line, character] = Lines(text, Encoding::utf16).positionOf(offset);
    return {{"line", line}, {"character", character}};
}

std::size_t offsetOf(const std::string& text, const Tool::Json& position) {
    return Lines(text, Encoding::utf16).offsetOf({position.at("line"), position.at("character")});
}

} // namespace

Editor::Json Editor::begin(Json capabilities) {
    Json result = resultOf("initialize",
                           {{"processId", nullptr}, {"rootUri", uriOf("")}, {"capabilities", std::move(capabilities)}});
    tell("initialized");
    look();
    return result;
}

Editor::Json Editor::ask(const std::string& method, Json params) {
    server_.handle(Tool::Lsp::read(
        Json{{"jsonrpc", "2.0"}, {"id", ++id_}, {"method", method}, {"params", std::move(params)}}.dump()));
    const auto isAnswer = [&](const Json& message) {
        return !message.contains("method") && message.value("id", 0) == id_;
    };
    return *std::find_if(messages_.begin(), messages_.end(), isAnswer);
}

void Editor::tell(const std::string& method, Json params) {
    server_.handle(Tool::Lsp::read(Json{{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}}.dump()));
}

void Editor::look() {
    if (server_.isBehind()) {
        server_.learn([] {});
        server_.publish();
    }
}

void Editor::open(const std::string& name, std::string text, int version) {
    tell("textDocument/didOpen", {{"textDocument",
                                   {{"uri", uriOf(name)},
                                    {"languageId", "json"},
                                    {"version", version},
                                    {"text", taken(name, std::move(text))}}}});
}

void Editor::open(const std::string& name) { open(name, folder_.read(name)); }

void Editor::type(const std::string& name, std::string text, int version) {
    const Json change{{"text", taken(name, std::move(text))}};
    tell("textDocument/didChange",
         {{"textDocument", {{"uri", uriOf(name)}, {"version", version}}}, {"contentChanges", Json::array({change})}});
}

void Editor::goTo(const std::string& name, const std::string& part, std::size_t further) {
    place_ = name;
    offset_ = textOf(name).find(part) + further;
}

Editor::Json Editor::here(const std::string& method, const Json& more) {
    Json params{{"textDocument", {{"uri", uriOf(place_)}}}, {"position", positionOf(textOf(place_), offset_)}};
    params.update(more);
    return resultOf(method, std::move(params));
}

std::string Editor::uriOf(const std::string& name) const {
    const std::string path = folder_.path().string() + (name.empty() ? "" : "/" + name);
    return Tool::Lsp::uriOf(path);
}

std::string Editor::nameOf(const std::string& uri) const {
    return Tool::Lsp::pathOf(uri).substr(folder_.path().string().size() + 1);
}

std::string Editor::faultsOf(const std::string& name) const {
    std::string lines;
    const auto found = diagnostics_.find(uriOf(name));
    for (const Json& each : found == diagnostics_.end() ? Json::array() : found->second) {
        const auto write = [](const Json& position) {
            return position["line"].dump() + ":" + position["character"].dump();
        };
        lines += write(each["range"]["start"]) + "-" + write(each["range"]["end"]) + " " +
                 each["code"].get<std::string>() + "\n";
    }
    return lines;
}

int Editor::timesToldOf(const std::string& name) const {
    const auto found = told_.find(uriOf(name));
    return found == told_.end() ? 0 : found->second;
}

std::vector<Editor::Json> Editor::sent(const std::string& method) const {
    std::vector<Json> sent;
    std::copy_if(messages_.begin(), messages_.end(), std::back_inserter(sent),
                 [&](const Json& message) { return message.value("method", "") == method; });
    return sent;
}

std::map<std::string, std::string> Editor::edited(const Json& workspaceEdit) const {
    std::map<std::string, std::string> texts;
    for (const Json& change : workspaceEdit.at("documentChanges")) {
        if (change.contains("kind")) {
            texts[nameOf(change.at("uri"))] = "";
            continue;
        }
        const std::string name = nameOf(change.at("textDocument").at("uri"));
        const auto open = texts_.find(name);
        std::string text = texts.contains(name)   ? texts[name]
                           : open == texts_.end() ? folder_.read(name)
                                                  : open->second;
        std::vector<Json> edits = change.at("edits");
        std::sort(edits.begin(), edits.end(), [&](const Json& one, const Json& other) {
            return offsetOf(text, one["range"]["start"]) > offsetOf(text, other["range"]["start"]);
        });
        const std::string before = text;
        for (const Json& edit : edits) {
            const std::size_t begin = offsetOf(before, edit["range"]["start"]);
            text.replace(begin, offsetOf(before, edit["range"]["end"]) - begin, edit["newText"].get<std::string>());
        }
        texts[name] = text;
    }
    return texts;
}

std::string Editor::taken(const std::string& name, std::string text) {
    if (const std::size_t bar = text.find('|'); bar != std::string::npos) {
        text.erase(bar, 1);
        place_ = name;
        offset_ = bar;
    }
    return texts_[name] = std::move(text);
}
