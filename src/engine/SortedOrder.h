#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

namespace Parameters::Internal {

/// The order of a growing sequence, found when it is asked for: loading a catalogue never pays for sorting it, and a
/// list after a change sorts only what is new.
///
/// Asking is reading, which several threads may do at once: each that finds no order makes one, the first to finish
/// publishes it.
class SortedOrder {
public:
    using Order = std::vector<std::uint32_t>;

    SortedOrder() = default;
    SortedOrder(const SortedOrder& other) : previous_(other.latest()) {}
    SortedOrder& operator=(const SortedOrder&) = delete;
    ~SortedOrder() { delete current_.load(std::memory_order_relaxed); }

    /// Says that the sequence has grown.
    void grown() noexcept {
        const std::unique_ptr<Order> order(current_.exchange(nullptr, std::memory_order_relaxed));
        if (order) {
            previous_.swap(*order);
        }
    }

    /// Returns the places 0 to count - 1 in ascending order by less(place, place).
    template <class Less>
    const Order& of(std::uint32_t count, Less less) const {
        if (const Order* order = current_.load(std::memory_order_acquire)) {
            return *order;
        }
        auto order = std::make_unique<Order>(count);
        const auto fresh = std::copy(previous_.begin(), previous_.end(), order->begin());
        std::iota(fresh, order->end(), static_cast<std::uint32_t>(previous_.size()));
        std::sort(fresh, order->end(), less);
        std::inplace_merge(order->begin(), fresh, order->end(), less);
        Order* published = nullptr;
        if (current_.compare_exchange_strong(published, order.get(), std::memory_order_acq_rel)) {
            published = order.release();
        }
        return *published;
    }

private:
    const Order& latest() const noexcept {
        const Order* order = current_.load(std::memory_order_acquire);
        return order != nullptr ? *order : previous_;
    }

    Order previous_; // of the sequence's beginning
    mutable std::atomic<Order*> current_ = nullptr;
};

} // namespace Parameters::Internal
