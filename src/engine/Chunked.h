#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace Parameters::Internal {

/// A growing sequence that stays where it is: no element is copied for another one, and no more room is kept than for
/// the elements of one chunk.
template <class T>
class Chunked {
public:
    Chunked() = default;
    Chunked(const Chunked& other) : size_(other.size_) {
        chunks_.reserve(other.chunks_.size());
        for (const auto& chunk : other.chunks_) {
            chunks_.push_back(std::make_unique<Chunk>(*chunk));
        }
    }
    Chunked& operator=(const Chunked&) = delete;
    ~Chunked() = default;

    std::size_t size() const noexcept { return size_; }
    T& operator[](std::size_t place) noexcept { return (*chunks_[place / chunkSize])[place % chunkSize]; }
    const T& operator[](std::size_t place) const noexcept { return (*chunks_[place / chunkSize])[place % chunkSize]; }

    /// Makes room for so many in all, so that adding them cannot throw.
    void reserve(std::size_t size) {
        while (size > chunks_.size() * chunkSize) {
            chunks_.push_back(std::make_unique<Chunk>());
        }
    }
    /// Adds an element for which there is room.
    void add(const T& element) noexcept { (*this)[size_++] = element; }

private:
    static constexpr std::size_t chunkSize = 128;
    using Chunk = std::array<T, chunkSize>;

    std::vector<std::unique_ptr<Chunk>> chunks_;
    std::size_t size_ = 0;
};

} // namespace Parameters::Internal
