#pragma once

#include "server/Diagnostics.h"
#include "server/Frames.h"
#include "server/Mailbox.h"
#include "server/Message.h"
#include "server/Session.h"

#include <functional>
#include <optional>
#include <string>

namespace Tool::Lsp {

/// Answers a client: all but when what is done and where the bytes come from and go.
class Server {
public:
    using Send = std::function<void(const std::string& text)>;

    /// Takes what sends a message to the client.
    explicit Server(Send send) : send_(std::move(send)), diagnostics_(send_) {}

    /// Does what a message says, and answers if it is a request.
    void handle(const Message& message);
    /// Answers something that is no message.
    void handle(const Refusal& refusal);

    /// Returns whether the client has said that all is over.
    bool isOver() const { return isOver_; }
    /// Returns whether it said so in good order.
    bool isShutDown() const { return state_ == State::shutDown; }

    /// Returns whether there are changes that nobody has looked at.
    bool isBehind() const { return state_ == State::running && session_.isBehind(); }
    /// Looks at them in another thread, and calls this from there when it is done.
    void learn(const std::function<void()>& whenDone) { session_.learn(whenDone); }
    /// Tells the client what was found.
    void publish();

private:
    enum class State { created, running, shutDown };

    Json answer(const Message& message);
    void obey(const Message& message);
    Json initialize(const Json& params);
    void watchFiles();

    Send send_;
    State state_ = State::created;
    bool isOver_ = false;
    Session session_;
    Diagnostics diagnostics_;
};

/// Serves one client until it is gone, and returns whether it went in good order. Both functions are called from
/// threads of this function's own, the first one perhaps after it has returned.
bool serve(Bytes input, const std::function<void(std::string_view)>& output);

} // namespace Tool::Lsp
