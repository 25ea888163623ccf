#include "schema/Arena.h"

#include <algorithm>

namespace Ostra {

void Arena::enlarge(std::size_t size) {
    const std::size_t next = std::max(size, lastSize_ + lastSize_ / 2);
    void* const memory = ::operator new(sizeof(Block) + next);
    last_ = new (memory) Block{last_};
    lastSize_ = next;
    free_ = reinterpret_cast<std::byte*>(last_ + 1);
    end_ = free_ + next;
}

Arena::~Arena() {
    while (last_ != nullptr) {
        Block* const before = last_->before;
        ::operator delete(last_);
        last_ = before;
    }
}

} // namespace Ostra
