#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
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

    /// Walks the strings in order, so that a range-based loop can.
    class Iterator {
    public:
        using difference_type = std::ptrdiff_t;
        using value_type = std::string_view;
        using pointer = void;
        using reference = std::string_view;
        using iterator_category = std::input_iterator_tag;

        Iterator(const Texts& texts, std::size_t index) : texts_(&texts), index_(index) {}
        std::string_view operator*() const { return (*texts_)[index_]; }
        Iterator& operator++() {
            ++index_;
            return *this;
        }
        bool operator==(const Iterator& other) const { return index_ == other.index_; }

    private:
        const Texts* texts_;
        std::size_t index_;
    };
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }

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
