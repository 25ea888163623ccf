#include "AllocationWatch.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#if defined(__SANITIZE_THREAD__)
#define WATCHES_ALLOCATIONS 0
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define WATCHES_ALLOCATIONS 0
#endif
#endif
#ifndef WATCHES_ALLOCATIONS
#define WATCHES_ALLOCATIONS 1
#endif

namespace Ostra {

namespace {

thread_local AllocationWatch* current = nullptr;
std::atomic<long> processBlocks = 0;

void* allocateBlock(std::size_t size) {
    if (void* const block = std::malloc(size == 0 ? 1 : size)) {
        ++processBlocks;
        return block;
    }
    throw std::bad_alloc();
}

[[maybe_unused]] void release(void* block) noexcept {
    processBlocks -= block != nullptr ? 1 : 0;
    if (current != nullptr) {
        current->free(block);
    } else {
        std::free(block);
    }
}

bool completes(const std::function<void()>& operation) {
    try {
        operation();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace

bool AllocationWatch::works() {
    return sees([] { ::operator delete(::operator new(1)); });
}

bool AllocationWatch::sees(const std::function<void()>& operation) {
    const AllocationWatch watch;
    operation();
    return watch.requests() > 0;
}

long AllocationWatch::liveBlocksInProcess() { return processBlocks; }

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

void expectNoLeakWhenMemoryEnds(const std::function<void()>& operation) {
    if (!AllocationWatch::works()) {
        GTEST_SKIP() << "requests for memory are not seen in this build";
    }
    operation(); // makes what is made once
    bool complete = false;
    for (long failing = 0; !complete; ++failing) {
        AllocationWatch watch(failing);
        complete = completes(operation);
        ASSERT_EQ(complete, watch.requests() <= failing) << "request " << failing;
        ASSERT_EQ(watch.liveBlocks(), 0) << "request " << failing;
    }
}

} // namespace Ostra

#if WATCHES_ALLOCATIONS
void* operator new(std::size_t size) {
    return Ostra::current != nullptr ? Ostra::current->allocate(size) : Ostra::allocateBlock(size);
}

void operator delete(void* block) noexcept { Ostra::release(block); }

void operator delete(void* block, std::size_t) noexcept { Ostra::release(block); }

// The standard library's forms that report failure by null go through those above, but a sanitizer brings its own,
// whose memory is not for the operator delete above.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* block, const std::nothrow_t&) noexcept { Ostra::release(block); }
#endif
