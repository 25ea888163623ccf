#include "server/Server.h"

#include "output/Text.h"
#include "server/Features.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string_view>
#include <thread>
#include <utility>

namespace Tool::Lsp {

namespace {

/// A request that is about the files, and what answers it.
struct Handler {
    std::string_view method;
    Json (*answer)(Session& session, const Json& params);
};

constexpr std::array handlers{Handler{"textDocument/hover", hover},
                              Handler{"textDocument/definition", definition},
                              Handler{"textDocument/references", references},
                              Handler{"textDocument/documentSymbol", documentSymbol},
                              Handler{"workspace/symbol", workspaceSymbol},
                              Handler{"textDocument/completion", completion},
                              Handler{"textDocument/prepareRename", prepareRename},
                              Handler{"textDocument/rename", rename},
                              Handler{"textDocument/codeAction", codeAction},
                              Handler{"textDocument/formatting", formatting}};

const Handler* findHandler(std::string_view method) {
    for (const Handler& each : handlers) {
        if (each.method == method) {
            return &each;
        }
    }
    return nullptr;
}

std::string uriIn(const Json& params) { return params.at("textDocument").at("uri").get<std::string>(); }

/// Returns the version of a document; nothing when the client does not tell one, or no integer.
std::optional<std::int64_t> versionIn(const Json& params) {
    const Json& document = params.at("textDocument");
    const auto version = document.find("version");
    return version != document.end() && version->is_number_integer() ? std::optional(version->get<std::int64_t>())
                                                                     : std::nullopt;
}

/// Returns the folders that the client names, be it in the old way or the new one.
std::vector<std::string> foldersIn(const Json& params) {
    std::vector<std::string> uris;
    const auto folders = params.find("workspaceFolders");
    if (folders != params.end() && folders->is_array()) {
        for (const Json& folder : *folders) {
            uris.push_back(folder.at("uri"));
        }
    } else if (const auto root = params.find("rootUri"); root != params.end() && root->is_string()) {
        uris.push_back(*root);
    }
    return uris;
}

} // namespace

void Server::handle(const Refusal& refusal) { send_(Lsp::refusal({}, refusal.code, refusal.what())); }

void Server::handle(const Message& message) {
    const auto refuse = [&](ErrorCode code, const std::string& why) {
        if (message.isRequest) {
            send_(refusal(message.id, code, why));
        }
    };
    if (message.isReply()) {
        return; // of what we ask for nothing hangs on the answer
    }
    try {
        if (message.isCancelled) {
            throw Refusal(ErrorCode::requestCancelled, "The request was cancelled.");
        }
        if (message.isRequest) {
            send_(reply(message.id, answer(message)));
        } else {
            obey(message);
        }
    } catch (const Refusal& refusal) {
        refuse(refusal.code, refusal.what());
    } catch (const Json::exception&) {
        refuse(ErrorCode::invalidParams, fmt::format("The parameters are not those of {}.", printable(message.method)));
    } catch (const std::exception& failure) {
        refuse(ErrorCode::internalError, failure.what());
    }
}

Json Server::answer(const Message& message) {
    if (state_ == State::created && message.method == "initialize") {
        return initialize(message.params);
    }
    if (state_ == State::created) {
        throw Refusal(ErrorCode::serverNotInitialized, "The first request must be initialize.");
    }
    if (state_ == State::shutDown || message.method == "initialize") {
        throw Refusal(ErrorCode::invalidRequest,
                      message.method == "initialize" ? "The server is initialized." : "The server is shut down.");
    }
    if (message.method == "shutdown") {
        state_ = State::shutDown;
        return {};
    }
    if (const Handler* const handler = findHandler(message.method)) {
        return handler->answer(session_, message.params);
    }
    throw Refusal(ErrorCode::methodNotFound, fmt::format("There is no method {}.", printable(message.method)));
}

void Server::obey(const Message& message) {
    const Json& params = message.params;
    Workspace& workspace = session_.workspace;
    isOver_ = isOver_ || message.method == "exit";
    if (state_ != State::running) {
        return;
    }
    if (message.method == "initialized") {
        workspace.scan();
        watchFiles();
    } else if (message.method == "textDocument/didOpen") {
        workspace.open(uriIn(params), params.at("textDocument").at("text"), versionIn(params));
    } else if (message.method == "textDocument/didChange") {
        workspace.change(uriIn(params), params.at("contentChanges"), versionIn(params), session_.encoding);
    } else if (message.method == "textDocument/didClose") {
        workspace.close(uriIn(params));
    } else if (message.method == "textDocument/didSave") {
        workspace.reread(uriIn(params));
    } else if (message.method == "workspace/didChangeWatchedFiles") {
        constexpr int changed = 2;
        const Json& changes = params.at("changes");
        const auto isChange = [](const Json& change) { return change.at("type") == changed; };
        if (std::all_of(changes.begin(), changes.end(), isChange)) {
            for (const Json& change : changes) {
                workspace.reread(change.at("uri").get<std::string>());
            }
        } else {
            workspace.scan();
        }
    } else if (message.method == "workspace/didChangeWorkspaceFolders") {
        for (const Json& folder : params.at("event").at("removed")) {
            workspace.removeFolder(folder.at("uri").get<std::string>());
        }
        for (const Json& folder : params.at("event").at("added")) {
            workspace.addFolder(folder.at("uri").get<std::string>());
        }
        workspace.scan();
    }
}

Json Server::initialize(const Json& params) {
    if (const auto capabilities = params.find("capabilities");
        capabilities != params.end() && capabilities->is_object()) {
        session_.capabilities = *capabilities;
    }
    const Json::json_pointer encodings("/general/positionEncodings");
    if (session_.capabilities.contains(encodings)) {
        const Json& offered = session_.capabilities.at(encodings);
        const bool isOffered = std::find(offered.begin(), offered.end(), "utf-8") != offered.end();
        session_.encoding = isOffered ? Encoding::utf8 : Encoding::utf16;
    }
    for (const std::string& folder : foldersIn(params)) {
        session_.workspace.addFolder(folder);
    }
    state_ = State::running;
    constexpr int incremental = 2;
    Json capabilities{{"positionEncoding", session_.encoding == Encoding::utf8 ? "utf-8" : "utf-16"},
                      {"textDocumentSync", {{"openClose", true}, {"change", incremental}, {"save", true}}},
                      {"hoverProvider", true},
                      {"definitionProvider", true},
                      {"referencesProvider", true},
                      {"documentSymbolProvider", true},
                      {"workspaceSymbolProvider", true},
                      {"completionProvider", {{"triggerCharacters", {"\"", ":", "["}}}},
                      {"renameProvider", {{"prepareProvider", true}}},
                      {"codeActionProvider", {{"codeActionKinds", {"quickfix", "source.fixAll.ostra-params"}}}},
                      {"documentFormattingProvider", true},
                      {"workspace", {{"workspaceFolders", {{"supported", true}, {"changeNotifications", true}}}}}};
    return {{"capabilities", std::move(capabilities)},
            {"serverInfo", {{"name", "ostra-params"}, {"version", OSTRA_PARAMETERS_VERSION}}}};
}

void Server::watchFiles() {
    if (!session_.can("/workspace/didChangeWatchedFiles/dynamicRegistration")) {
        return;
    }
    const Json watchers = Json::array({{{"globPattern", "**/*.{json,ndjson,jsonl}"}}});
    const Json registration{
        {"id", "files"}, {"method", "workspace/didChangeWatchedFiles"}, {"registerOptions", {{"watchers", watchers}}}};
    send_(request("files", "client/registerCapability", {{"registrations", Json::array({registration})}}));
}

void Server::publish() {
    try {
        session_.adopt();
        if (state_ == State::running) {
            diagnostics_.publish(session_);
        }
    } catch (const std::exception& failure) {
        constexpr int error = 1;
        send_(notification("window/logMessage", {{"type", error}, {"message", failure.what()}}));
    }
}

namespace {

/// Puts what the client sends into a mailbox, up to the end.
void receive(Bytes input, Mailbox& mailbox) {
    FrameReader frames(std::move(input));
    while (std::optional<Frame> frame = frames.next()) {
        const std::size_t size = frame->body.size() + frame->fault.size() + 1;
        try {
            if (!frame->fault.empty()) {
                throw Refusal(ErrorCode::parseError, frame->fault);
            }
            Message message = read(frame->body);
            const bool isLast = message.method == "exit";
            if (message.method == "$/cancelRequest") {
                mailbox.cancel(message.params.value("id", Json()));
            } else {
                mailbox.put(std::move(message), size);
            }
            if (isLast) {
                return;
            }
        } catch (const Refusal& refusal) {
            mailbox.put(refusal, size);
        } catch (const Json::exception&) { // a cancellation without parameters
        }
    }
    mailbox.put(End());
}

} // namespace

bool serve(Bytes input, const std::function<void(std::string_view)>& output) {
    using namespace std::chrono_literals;
    constexpr auto pause = 50ms; // for what comes together, such as changes and requests about them
    constexpr auto longestPause = 150ms;
    const auto mailbox = std::make_shared<Mailbox>();
    // It may wait for the client for good, and is left alone then.
    std::thread([mailbox, input = std::move(input)] { receive(input, *mailbox); }).detach();
    const struct Closer {
        Mailbox& closed;
        ~Closer() { closed.close(); }
    } closer{*mailbox};
    Server server([&](const std::string& text) { output(framed(text)); });
    auto firstChange = Mailbox::Clock::time_point::max();
    std::optional<Mailbox::Clock::time_point> nextLook;
    while (!server.isOver()) {
        const auto now = Mailbox::Clock::now();
        if (nextLook && now >= *nextLook) {
            server.learn([mailbox] { mailbox->put(Learnt()); });
            firstChange = Mailbox::Clock::time_point::max();
            nextLook.reset();
        }
        const std::optional<Mail> mail = mailbox->take(nextLook);
        if (!mail) {
            continue;
        }
        if (std::holds_alternative<End>(*mail)) {
            break;
        }
        if (const auto* const message = std::get_if<Message>(&*mail)) {
            server.handle(*message);
        } else if (const auto* const refusal = std::get_if<Refusal>(&*mail)) {
            server.handle(*refusal);
        } else {
            server.publish();
        }
        if (server.isBehind()) {
            firstChange = std::min(firstChange, now);
            nextLook = std::min(Mailbox::Clock::now() + pause, firstChange + longestPause);
        }
    }
    return server.isOver() && server.isShutDown();
}

} // namespace Tool::Lsp
