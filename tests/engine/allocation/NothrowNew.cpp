#include <cstddef>
#include <new>

// The forms of operator new and delete that report failure by null go through those that the watch replaces. The
// standard library's do so, too, but a sanitizer brings its own, whose memory is not for the replaced operator delete.

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* block, const std::nothrow_t&) noexcept { ::operator delete(block); }
