#pragma once

#include <atomic>
#include <memory>

namespace Parameters::Internal {

/// A value that is made when it is asked for, and kept until it no longer holds.
///
/// Asking is reading, which several threads may do at once: each that finds no value makes one, the first to finish
/// publishes it. A copy starts without the value.
template <class T>
class Lazy {
public:
    Lazy() = default;
    Lazy(const Lazy&) noexcept {}
    Lazy& operator=(const Lazy&) = delete;
    ~Lazy() { take(); }

    /// Returns the value, or null when nobody has asked for it.
    const T* peek() const noexcept { return value_.load(std::memory_order_acquire); }

    /// Returns the value, made by make() if it is not there.
    template <class Make>
    const T& get(Make make) const {
        if (const T* value = peek()) {
            return *value;
        }
        auto made = std::make_unique<T>(make());
        T* published = nullptr;
        if (value_.compare_exchange_strong(published, made.get(), std::memory_order_acq_rel)) {
            published = made.release();
        }
        return *published;
    }

    /// Returns a copy of the value. It is kept from the second time on: who asks once gets what was made.
    template <class Make>
    T copy(Make make) const {
        if (const T* value = peek()) {
            return *value;
        }
        return askedBefore_.exchange(true, std::memory_order_relaxed) ? get(make) : make();
    }

    /// Says that the value no longer holds, and hands it out if it was there.
    std::unique_ptr<T> take() noexcept {
        askedBefore_.store(false, std::memory_order_relaxed);
        return std::unique_ptr<T>(value_.exchange(nullptr, std::memory_order_relaxed));
    }

private:
    mutable std::atomic<T*> value_ = nullptr;
    mutable std::atomic<bool> askedBefore_ = false; // for a copy
};

} // namespace Parameters::Internal
