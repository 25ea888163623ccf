#pragma once

#include "schema/AllocationWatch.h"

#include <new>
#include <string>
#include <vector>

namespace Support {

/// Returns whether vectors of this standard library keep their memory when copying an element throws, as those of
/// libc++ 14 do.
inline bool vectorsLeak() {
    const std::vector<std::string> original{"a text that is too long for a string to keep it without memory"};
    const Ostra::AllocationWatch watch(1); // after the vector's own request, that of its string
    try {
        const std::vector<std::string> copy(original);
    } catch (const std::bad_alloc&) {
        return watch.liveBlocks() > 0;
    }
    return false;
}

} // namespace Support
