#pragma once

#include "engine/Lazy.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace Parameters::Internal {

/// The order of a growing sequence, found when it is asked for: loading a catalogue never pays for sorting it, and a
/// list after a change sorts only what is new.
class SortedOrder {
public:
    using Order = std::vector<std::uint32_t>;

    SortedOrder() = default;
    SortedOrder(const SortedOrder& other) : previous_(other.latest()) {}
    SortedOrder& operator=(const SortedOrder&) = delete;
    ~SortedOrder() = default;

    /// Says that the sequence has grown.
    void grown() noexcept {
        if (const auto order = current_.take()) {
            previous_.swap(*order);
        }
    }

    /// Returns the places 0 to count - 1 in ascending order by less(place, place).
    template <class Less>
    const Order& of(std::uint32_t count, Less less) const {
        return current_.get([&] {
            Order order(count);
            const auto fresh = std::copy(previous_.begin(), previous_.end(), order.begin());
            std::iota(fresh, order.end(), static_cast<std::uint32_t>(previous_.size()));
            std::sort(fresh, order.end(), less);
            std::inplace_merge(order.begin(), fresh, order.end(), less);
            return order;
        });
    }

private:
    const Order& latest() const noexcept {
        const Order* order = current_.peek();
        return order != nullptr ? *order : previous_;
    }

    Order previous_; // of the sequence's beginning
    Lazy<Order> current_;
};

} // namespace Parameters::Internal
