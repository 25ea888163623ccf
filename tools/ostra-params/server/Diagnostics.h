#pragma once

#include "server/Session.h"

#include <map>
#include <string>

namespace Tool::Lsp {

/// Returns what is wrong with a file as the client is told of it.
Json diagnosticsOf(const Session& session, const File& file, const std::vector<Problem>& problems);

/// Tells the client what is wrong, and what is not any more.
class Diagnostics {
public:
    using Send = std::function<void(const std::string& text)>;

    explicit Diagnostics(Send send) : send_(std::move(send)) {}

    /// Tells what has changed since it was last told. Of a file that has changed meanwhile nothing is told: that comes
    /// next.
    void publish(Session& session);

private:
    struct Told { // NOLINT(bugprone-exception-escape): JSON that is moved throws nothing
        std::string uri;
        Json diagnostics;
    };

    void tell(const Session& session, const std::string& uri, const File* file, const Json& diagnostics);

    Send send_;
    std::map<std::string, Told> told_; // by the name of the file; nothing of those of which there is nothing to tell
};

} // namespace Tool::Lsp
