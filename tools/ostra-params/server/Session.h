#pragma once

#include "server/Knowledge.h"
#include "server/Lines.h"
#include "server/Message.h"
#include "server/Trials.h"
#include "server/Workspace.h"

#include <functional>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Tool::Lsp {

/// What the server knows of a client and its files, between its messages.
class Session {
public:
    Workspace workspace;
    Encoding encoding = Encoding::utf16;
    Json capabilities = Json::object(); ///< Of the client.

    /// Returns whether the client can do what a JSON Pointer into its capabilities names.
    bool can(const std::string& pointer) const;

    /// Returns whether the files have changed since they were last looked at.
    bool isBehind() const { return knowledge_ == nullptr || knowledge_->revision() != workspace.revision(); }
    /// Looks at the files in a thread of its own, unless that is being done, and calls this from there when it is done.
    void learn(const std::function<void()>& whenDone);
    /// Takes what was found out, if it is there.
    void adopt();

    /// Returns what is known of the files as they are.
    const Knowledge& current();
    /// Returns what tries things out in what is known of the files as they are.
    Trials& trials();
    /// Returns what was last known of the files, without waiting unless nothing is.
    const Knowledge& latest();

    /// Returns the file of a request and the offset of its position.
    /// @throws Refusal
    std::pair<File, std::size_t> placeIn(const Json& params) const;
    /// Returns the file of a request.
    /// @throws Refusal
    File fileIn(const Json& params) const;

private:
    void take(std::shared_ptr<const Knowledge> knowledge);

    std::shared_ptr<const Knowledge> knowledge_;
    std::optional<Trials> trials_; // in what is known
    std::future<std::shared_ptr<const Knowledge>> job_;
};

/// Returns positions and stretches of a text as the protocol has them.
/// @{
Json asJson(Position position);
Json rangeOf(const Lines& lines, std::size_t begin, std::size_t end);
/// @}

/// Makes locations of stretches of files; the lines of each file are looked for once.
class Locations {
public:
    explicit Locations(Encoding encoding) : encoding_(encoding) {}

    Json of(const File& file, std::size_t begin, std::size_t end);

private:
    Encoding encoding_;
    std::map<Text, Lines> lines_;
};

} // namespace Tool::Lsp
