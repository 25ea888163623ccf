#pragma once

#include "engine/Lazy.h"
#include "engine/SortedTexts.h"

#include <algorithm>
#include <cstdint>
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

    /// Returns the places 0 to count - 1 in ascending byte order of textAt(place).
    template <class TextAt>
    const Order& of(std::uint32_t count, TextAt textAt) const {
        return current_.get([&] {
            std::vector<PlacedText> fresh;
            fresh.reserve(count - previous_.size());
            for (auto place = static_cast<std::uint32_t>(previous_.size()); place < count; ++place) {
                fresh.push_back({textAt(place), place});
            }
            sortTexts(fresh);
            Order order(count);
            const auto middle = std::copy(previous_.begin(), previous_.end(), order.begin());
            std::transform(fresh.begin(), fresh.end(), middle, [](const PlacedText& text) { return text.place; });
            std::inplace_merge(order.begin(), middle, order.end(),
                               [&textAt](std::uint32_t a, std::uint32_t b) { return textAt(a) < textAt(b); });
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
