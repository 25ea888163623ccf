#include "schema/JSONValue.h"

#include <algorithm>

namespace Ostra {

void JSONTape::enlarge() {
    const auto count = static_cast<std::size_t>(end_ - begin_);
    auto* const larger = FromArena<JSONValue>(arena_).allocate(count * 2);
    std::copy(begin_, end_, larger);
    begin_ = larger;
    end_ = begin_ + count;
    limit_ = end_ + count;
}

} // namespace Ostra
