#pragma once

#include <parameters/Export.h>

#include <atomic>
#include <cstdint>
#include <memory> // which applications may have had from the headers of values
#include <type_traits>
#include <utility>

#if defined(__has_include)
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h> // of the GNU C library
#define OSTRA_PARAMETERS_KNOWS_THREADS
#endif
#endif

/// @file
/// How values share their data.

namespace Parameters::Internal {

/// What lies before data that values share: the number of those that do, and how the data goes with the last of them.
class alignas(8) Owners { // as any data wants to lie
public:
    using Destroy = void (*)(Owners*) noexcept;

    /// Begins with one owner. The function is one of the library's.
    PARAMETERS_EXPORT explicit Owners(Destroy destroy) noexcept;

    void add() noexcept {
        if (isProcessOfOneThread()) { // where nobody has to be kept out, which takes many times as long
            count_.store(count_.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
        } else {
            count_.fetch_add(1, std::memory_order_relaxed);
        }
    }
    void remove() noexcept {
        if (takeOne() == 1) {
            destroy();
        }
    }
    bool isOne() const noexcept { return count_.load(std::memory_order_acquire) == 1; }

private:
    static bool isProcessOfOneThread() noexcept {
#ifdef OSTRA_PARAMETERS_KNOWS_THREADS
        return __libc_single_threaded != 0;
#else
        return false;
#endif
    }

    /// Returns how many there were.
    std::uint32_t takeOne() noexcept {
        if (!isProcessOfOneThread()) {
            return count_.fetch_sub(1, std::memory_order_acq_rel);
        }
        const std::uint32_t count = count_.load(std::memory_order_relaxed);
        count_.store(count - 1, std::memory_order_relaxed);
        return count;
    }
    PARAMETERS_EXPORT void destroy() noexcept;

    std::atomic<std::uint32_t> count_ = 1;
    std::int32_t destroy_; // where the function lies, seen from another one: half as wide as a pointer
};

/// A share in data that values have in common, which lies behind its Owners. As wide as a pointer; copies may be made
/// and let go in several threads at once. Only the library can make one that shares anything.
template <class Data>
class Ref {
public:
    Ref() noexcept = default;
    Ref(const Ref& other) noexcept : data_(other.data_) {
        if (data_ != nullptr) {
            owners()->add();
        }
    }
    Ref(Ref&& other) noexcept : data_(std::exchange(other.data_, nullptr)) {}
    template <class Other, class = std::enable_if_t<std::is_convertible<Other*, Data*>::value>>
    Ref(Ref<Other>&& other) noexcept : data_(other.release()) {} // NOLINT(google-explicit-constructor): as of pointers
    Ref& operator=(const Ref& other) noexcept { // NOLINT(bugprone-unhandled-self-assignment): a copy takes its place
        Ref(other).swap(*this);
        return *this;
    }
    Ref& operator=(Ref&& other) noexcept {
        Ref(std::move(other)).swap(*this);
        return *this;
    }
    ~Ref() {
        if (data_ != nullptr) { // NOLINT(clang-analyzer-core.UndefinedBinaryOperatorResult): not seen in pairs
            owners()->remove();
        }
    }

    void swap(Ref& other) noexcept { std::swap(data_, other.data_); }
    Data& operator*() const noexcept { return *data_; }
    Data* operator->() const noexcept { return data_; }
    explicit operator bool() const noexcept { return data_ != nullptr; }

    /// Whether nobody else has a share in the data, which is there.
    bool isSole() const noexcept { return owners()->isOne(); }

    /// Takes over data that nobody has a share in yet.
    static Ref of(Data* data) noexcept {
        Ref ref;
        ref.data_ = data;
        return ref;
    }
    /// Gives up the share without letting it go.
    Data* release() noexcept { return std::exchange(data_, nullptr); }

private:
    Owners* owners() const noexcept {
        return reinterpret_cast<Owners*>(const_cast<std::remove_const_t<Data>*>(data_)) - 1;
    }

    Data* data_ = nullptr;
};

} // namespace Parameters::Internal
