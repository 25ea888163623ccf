#pragma once

#include <atomic>
#include <memory>

namespace Ostra {

/// A value that copies share until one of them writes: copying costs one count, the first write after it a real copy.
template <class T>
class CopyOnWrite {
public:
    CopyOnWrite() : value_(std::make_shared<T>()) {}
    CopyOnWrite(const CopyOnWrite& other) noexcept : value_(other.value_), shared_(true) {
        other.shared_.store(true, std::memory_order_relaxed);
    }
    CopyOnWrite& operator=(const CopyOnWrite&) = delete;
    ~CopyOnWrite() = default;

    const T& read() const noexcept { return *value_; }
    T& write() {
        // Both sides of a copy remember that they were one, rather than ask the number of owners, which may change in
        // another thread while it is asked.
        if (shared_.load(std::memory_order_relaxed)) {
            value_ = std::make_shared<T>(*value_);
            shared_.store(false, std::memory_order_relaxed);
        }
        return *value_;
    }

    /// Puts another value in the place of this one; copies keep theirs.
    void replace(std::shared_ptr<T> value) noexcept {
        value_ = std::move(value);
        shared_.store(false, std::memory_order_relaxed);
    }

private:
    std::shared_ptr<T> value_;
    mutable std::atomic<bool> shared_ = false; // copying is reading: several threads may copy one engine
};

} // namespace Ostra
