#include "support/HeapWatch.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace Support::HeapWatch {

namespace {

std::size_t heldBytes = 0;
std::size_t peakBytes = 0;

/// The allocator keeps a word of its own beside each block.
std::size_t costOf(void* block) { return malloc_usable_size(block) + sizeof(std::size_t); }

void* allocate(std::size_t size, std::size_t alignment) noexcept {
    void* const block = alignment <= __STDCPP_DEFAULT_NEW_ALIGNMENT__
                            ? std::malloc(size)
                            : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
    if (block != nullptr) {
        heldBytes += costOf(block);
        peakBytes = std::max(peakBytes, heldBytes);
    }
    return block;
}

void* allocateOrThrow(std::size_t size, std::size_t alignment) {
    if (void* const block = allocate(size, alignment)) {
        return block;
    }
    throw std::bad_alloc();
}

void release(void* block) noexcept {
    if (block != nullptr) {
        heldBytes -= costOf(block);
        std::free(block);
    }
}

} // namespace

std::size_t held() noexcept { return heldBytes; }

std::size_t peak() noexcept { return peakBytes; }

void reset() noexcept { peakBytes = heldBytes; }

} // namespace Support::HeapWatch

using Support::HeapWatch::allocate;
using Support::HeapWatch::allocateOrThrow;
using Support::HeapWatch::release;

void* operator new(std::size_t size) { return allocateOrThrow(size, 1); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size, 1); }
void operator delete(void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { release(block); }
