#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <new>

namespace Ostra {

/// Memory that is handed out piece by piece and given back all at once. The first of it lies within; what does not fit
/// comes from operator new.
class Arena {
public:
    Arena() noexcept {
        free_ = within_.data();
        end_ = free_ + within_.size();
    }
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena();

    /// Returns memory for any fundamental type.
    void* allocate(std::size_t size) {
        constexpr std::size_t alignment = alignof(std::max_align_t);
        if (size > static_cast<std::size_t>(end_ - free_)) {
            enlarge(size);
        }
        void* const memory = free_;
        const auto left = static_cast<std::size_t>(end_ - free_);
        free_ += left - size < alignment ? left : (size + alignment - 1) / alignment * alignment;
        return memory;
    }

private:
    struct alignas(std::max_align_t) Block {
        Block* before;
    };

    void enlarge(std::size_t size);

    alignas(std::max_align_t) std::array<std::byte, 2048> within_; // the definitions of most schemas fit
    std::byte* free_;
    std::byte* end_;
    Block* last_ = nullptr;
    std::size_t lastSize_ = 2048;
};

/// Lets a container of the standard library take its memory from an arena, which must live longer.
template <class T>
class FromArena {
public:
    using value_type = T; // NOLINT(readability-identifier-naming): the name that containers look for

    explicit FromArena(Arena& arena) noexcept : arena_(&arena) {}
    template <class Other>
    FromArena(const FromArena<Other>& other) noexcept : arena_(&other.arena()) {} // NOLINT(google-explicit-constructor)

    T* allocate(std::size_t count) {
        static_assert(alignof(T) <= alignof(std::max_align_t));
        if (count > std::numeric_limits<std::size_t>::max() / 2 / sizeof(T)) {
            throw std::bad_array_new_length();
        }
        return static_cast<T*>(arena_->allocate(count * sizeof(T)));
    }
    void deallocate(T*, std::size_t) noexcept {}

    Arena& arena() const noexcept { return *arena_; }
    template <class Other>
    bool operator==(const FromArena<Other>& other) const noexcept {
        return arena_ == &other.arena();
    }

private:
    Arena* arena_;
};

} // namespace Ostra
