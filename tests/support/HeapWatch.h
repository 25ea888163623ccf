#pragma once

#include <cstddef>

/// What operator new has handed out and not got back, in the bytes that the allocator spends on it. A program with this
/// replaces the global operators.
namespace Support::HeapWatch {

std::size_t held() noexcept;
/// The most that was held since reset.
std::size_t peak() noexcept;
/// Lets the peak begin at what is held now.
void reset() noexcept;

} // namespace Support::HeapWatch
