#pragma once

#include <rapidjson/allocators.h>

#include <array>
#include <cstddef>
#include <new>

namespace Ostra {

/// Gives RapidJSON its memory through operator new, so that memory that ends is std::bad_alloc: RapidJSON's own
/// allocators return null, which it then writes through.
class ThrowingAllocator {
public:
    static constexpr bool kNeedFree = true;

    void* Malloc(std::size_t size) { return size == 0 ? nullptr : ::operator new(size); }
    static void Free(void* block) { ::operator delete(block); }
};

/// For those who keep a pointer to their allocator: it has no state, so all can keep the same.
inline ThrowingAllocator sharedAllocator;

using JSONPool = rapidjson::MemoryPoolAllocator<ThrowingAllocator>;

/// A pool with memory of its own to begin with, in which nearly all texts find room.
class JSONMemory {
public:
    JSONMemory() = default;
    JSONMemory(const JSONMemory&) = delete;
    JSONMemory& operator=(const JSONMemory&) = delete;

    JSONPool& pool() noexcept { return pool_; }

private:
    static constexpr std::size_t chunkSize = 65'536;

    alignas(std::max_align_t) std::array<char, 8192> first_;
    JSONPool pool_{first_.data(), first_.size(), chunkSize, &sharedAllocator};
};

} // namespace Ostra
