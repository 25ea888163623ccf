#pragma once

#include <cstddef>
#include <functional>

namespace Ostra {

/// While it lives, counts what this thread asks of operator new, and can let one request fail with std::bad_alloc.
class AllocationWatch {
public:
    static constexpr long none = -1;

    /// Whether requests are seen: the thread sanitizer and valgrind do not let a program replace operator new.
    static bool works();
    /// Whether what an operation asks for inside a library is seen: a DLL has an operator new of its own.
    static bool sees(const std::function<void()>& operation);

    /// Lets the request of that number fail, counted from 0.
    explicit AllocationWatch(long failingRequest = none);
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    long requests() const { return requests_; }
    std::size_t bytes() const { return bytes_; }
    /// Returns how many more blocks were allocated than freed.
    long liveBlocks() const { return liveBlocks_; }

    /// Returns how many blocks the whole process holds, whether a watch saw them or not.
    static long liveBlocksInProcess();

    void* allocate(std::size_t size);
    void free(void* block) noexcept;

private:
    long failingRequest_;
    long requests_ = 0;
    std::size_t bytes_ = 0;
    long liveBlocks_ = 0;
};

/// Expects that the operation leaks nothing and throws std::bad_alloc whichever of its requests for memory fails.
void expectNoLeakWhenMemoryEnds(const std::function<void()>& operation);

} // namespace Ostra
