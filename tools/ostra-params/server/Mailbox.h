#pragma once

#include "server/Message.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <variant>

namespace Tool::Lsp {

/// The client sends nothing any more.
struct End {};

/// Somebody has looked at the files.
struct Learnt {};

/// A message, or what is wrong with what should have been one; or one of the others.
using Mail = std::variant<Message, Refusal, End, Learnt>;

/// What other threads have for the one that answers, in the order in which it came.
class Mailbox {
public:
    using Clock = std::chrono::steady_clock;

    /// Adds something that took so many bytes. Waits while very much is there that nobody has taken, so that a client
    /// that floods the server waits, too.
    void put(Mail mail, std::size_t bytes = 0);

    /// Marks a request that nobody has taken yet as one that nobody wants to be answered.
    void cancel(const Json& id);

    /// Returns what came first; nothing when nothing comes until then, as long as there is such a time.
    std::optional<Mail> take(std::optional<Clock::time_point> until);

    /// Lets nobody wait any more: what is put is lost.
    void close();

private:
    static constexpr std::size_t mostBytes = std::size_t{16} << 20U;

    struct Entry {
        Mail mail;
        std::size_t bytes;
    };

    std::mutex mutex_;
    std::condition_variable isFilled_;
    std::condition_variable isEmptied_;
    std::deque<Entry> entries_;
    std::size_t bytes_ = 0;
    bool isClosed_ = false;
};

} // namespace Tool::Lsp
