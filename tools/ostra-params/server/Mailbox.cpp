#include "server/Mailbox.h"

namespace Tool::Lsp {

void Mailbox::put(Mail mail, std::size_t bytes) {
    std::unique_lock lock(mutex_);
    isEmptied_.wait(lock, [&] { return isClosed_ || bytes_ < mostBytes || bytes == 0; });
    if (!isClosed_) {
        bytes_ += bytes;
        entries_.push_back({std::move(mail), bytes});
        isFilled_.notify_one();
    }
}

void Mailbox::cancel(const Json& id) {
    const std::lock_guard lock(mutex_);
    for (Entry& entry : entries_) {
        if (auto* const message = std::get_if<Message>(&entry.mail); message != nullptr && message->isRequest) {
            message->isCancelled = message->isCancelled || message->id == id;
        }
    }
}

std::optional<Mail> Mailbox::take(std::optional<Clock::time_point> until) {
    std::unique_lock lock(mutex_);
    const auto isFilled = [&] { return !entries_.empty(); };
    if (!until) {
        isFilled_.wait(lock, isFilled);
    } else if (!isFilled_.wait_until(lock, *until, isFilled)) {
        return std::nullopt;
    }
    Mail mail = std::move(entries_.front().mail);
    bytes_ -= entries_.front().bytes;
    entries_.pop_front();
    isEmptied_.notify_one();
    return mail;
}

void Mailbox::close() {
    const std::lock_guard lock(mutex_);
    isClosed_ = true;
    isEmptied_.notify_all();
}

} // namespace Tool::Lsp
