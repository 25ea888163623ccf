#include "AllocationWatch.h"

#include <cstdlib>
#include <new>

namespace Ostra {

namespace {

thread_local AllocationWatch* current = nullptr;

void* allocateBlock(std::size_t size) {
    if (void* const block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

void release(void* block) noexcept {
    if (current != nullptr) {
        current->free(block);
    } else {
        std::free(block);
    }
}

} // namespace

AllocationWatch::AllocationWatch(long failingRequest) : failingRequest_(failingRequest) { current = this; }

AllocationWatch::~AllocationWatch() { current = nullptr; }

void* AllocationWatch::allocate(std::size_t size) {
    if (requests_++ == failingRequest_) {
        throw std::bad_alloc();
    }
    void* const block = allocateBlock(size);
    bytes_ += size;
    ++liveBlocks_;
    return block;
}

void AllocationWatch::free(void* block) noexcept {
    if (block != nullptr) {
        --liveBlocks_;
    }
    std::free(block);
}

} // namespace Ostra

void* operator new(std::size_t size) {
    return Ostra::current != nullptr ? Ostra::current->allocate(size) : Ostra::allocateBlock(size);
}

void operator delete(void* block) noexcept { Ostra::release(block); }

void operator delete(void* block, std::size_t) noexcept { Ostra::release(block); }
