#pragma once

#include "model/Access.h"

#include <parameters/Views.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <utility>

namespace Parameters::Internal {

/// Several strings in one shared, immutable block of memory. A copy costs one count.
///
/// Almost all that a catalogue keeps is short strings: one block for all strings of an object is a quarter of the
/// memory of separate ones, and one allocation.
class Texts {
public:
    /// No strings at all.
    Texts() noexcept = default;
    /// @throws std::length_error when the strings are longer than 4 GiB together.
    Texts(std::initializer_list<std::string_view> strings) : Texts(std::span(strings.begin(), strings.size())) {}
    explicit Texts(std::span<const std::string_view> strings);
    Texts(const Texts& other) noexcept : block_(other.block_) { retain(); }
    Texts(Texts&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    Texts& operator=(Texts other) noexcept {
        std::swap(block_, other.block_);
        return *this;
    }
    ~Texts() { release(); }

    std::size_t size() const noexcept { return block_ == nullptr ? 0 : block_->count; }
    std::string_view operator[](std::size_t index) const noexcept {
        const std::uint32_t begin = index == 0 ? 0 : ends()[index - 1];
        return {characters() + begin, ends()[index] - begin};
    }

    /// Returns the strings from one on.
    StringsView from(std::size_t first) const noexcept {
        return first == size()
                   ? StringsView()
                   : Access::view(characters(), first == 0 ? 0 : ends()[first - 1], ends() + first, size() - first);
    }
    StringsView::iterator begin() const noexcept { return from(0).begin(); }
    StringsView::iterator end() const noexcept { return from(0).end(); }

    /// Returns how many bytes strings take that lie behind so many others of their block, with those.
    /// @throws std::length_error when that is more than 4 GiB, so that there is a place for each.
    static std::size_t lengthWith(std::span<const std::string_view> strings, std::size_t before);

private:
    // In memory it is followed by the ends of the strings, then by their bytes.
    struct Block {
        std::atomic<std::uint32_t> owners;
        std::uint32_t count;
    };

    const std::uint32_t* ends() const noexcept { return reinterpret_cast<const std::uint32_t*>(block_ + 1); }
    const char* characters() const noexcept { return reinterpret_cast<const char*>(ends() + block_->count); }
    void retain() const noexcept {
        if (block_ != nullptr) {
            block_->owners.fetch_add(1, std::memory_order_relaxed);
        }
    }
    void release() noexcept;

    Block* block_ = nullptr;
};

} // namespace Parameters::Internal
