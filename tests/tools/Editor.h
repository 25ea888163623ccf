#pragma once

#include "output/Json.h"
#include "server/Server.h"
#include "tools/Tool.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// A client of the language server, in one thread: the server does nothing behind its back.
class Editor {
public:
    using Json = Tool::Json;

    explicit Editor(const Folder& folder) : folder_(folder) {}

    /// Initializes the server with the folder.
    Json begin(Json capabilities = Json::object());
    /// Sends a request, and returns the whole answer.
    Json ask(const std::string& method, Json params = Json::object());
    /// Sends a request, and returns its result.
    Json resultOf(const std::string& method, Json params = Json::object()) {
        return ask(method, std::move(params)).at("result");
    }
    void tell(const std::string& method, Json params = Json::object());
    /// Lets the server look at the files and tell what is wrong.
    void look();

    /// Opens a file with this text, or one from the folder as it is; a bar in the text becomes the place of requests.
    void open(const std::string& name, std::string text, int version = 1);
    void open(const std::string& name);
    /// Replaces the text of an open file.
    void type(const std::string& name, std::string text, int version = 2);
    /// Puts the place of requests before a part of a file, so many bytes further.
    void goTo(const std::string& name, const std::string& part, std::size_t further = 0);
    /// Sends a request about the place.
    Json here(const std::string& method, const Json& more = Json::object());

    std::string uriOf(const std::string& name) const;
    /// Returns the name of a URI's file.
    std::string nameOf(const std::string& uri) const;
    /// Returns what the server last told about a file: a line "line:character-line:character code" for each fault.
    std::string faultsOf(const std::string& name) const;
    const Json& diagnosticsOf(const std::string& name) const { return diagnostics_.at(uriOf(name)); }
    /// Returns how often it told about a file.
    int timesToldOf(const std::string& name) const;
    /// Returns the messages of a method that it sent besides.
    std::vector<Json> sent(const std::string& method) const;
    const std::string& textOf(const std::string& name) const { return texts_.at(name); }

    /// Returns the texts of files as an edit of the server's leaves them, by their names.
    std::map<std::string, std::string> edited(const Json& workspaceEdit) const;

    Tool::Lsp::Server& server() { return server_; }

private:
    std::string taken(const std::string& name, std::string text);

    const Folder& folder_;
    std::vector<Json> messages_;
    std::map<std::string, Json> diagnostics_;
    std::map<std::string, int> told_;
    std::map<std::string, std::string> texts_;
    std::string place_;
    std::size_t offset_ = 0;
    int id_ = 0;
    Tool::Lsp::Server server_{[this](const std::string& text) {
        Json message = Json::parse(text);
        if (message.value("method", "") == "textDocument/publishDiagnostics") {
            diagnostics_[message["params"]["uri"]] = message["params"]["diagnostics"];
            ++told_[message["params"]["uri"]];
        }
        messages_.push_back(std::move(message));
    }};
};
