#include "model/Texts.h"

#include "model/Messages.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

namespace Parameters::Internal {

namespace {

constexpr std::size_t limit = std::numeric_limits<std::uint32_t>::max();

} // namespace

std::size_t Texts::lengthWith(std::span<const std::string_view> strings, std::size_t before) {
    std::size_t length = before;
    for (const std::string_view string : strings) {
        if (length > limit || string.size() > limit - length) {
            throw std::length_error(messages("texts-too-long").with({}));
        }
        length += string.size();
    }
    return length;
}

Texts::Texts(std::span<const std::string_view> strings) {
    if (strings.size() > limit) {
        throw std::length_error(messages("texts-too-many").with({}));
    }
    const std::size_t length = lengthWith(strings, sizeof(Block) + strings.size() * sizeof(std::uint32_t));
    void* memory = ::operator new(length);
    block_ = new (memory) Block{{1}, static_cast<std::uint32_t>(strings.size())};
    auto* end = reinterpret_cast<std::uint32_t*>(block_ + 1);
    auto* character = reinterpret_cast<char*>(end + strings.size());
    const char* const first = character;
    for (const std::string_view string : strings) {
        character = std::copy(string.begin(), string.end(), character);
        *end++ = static_cast<std::uint32_t>(character - first);
    }
}

void Texts::release() noexcept {
    if (block_ != nullptr && block_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        block_->~Block();
        ::operator delete(block_);
    }
}

} // namespace Parameters::Internal
