#pragma once

#include <functional>

namespace Ostra {

/// Runs the work in a thread with a stack of 128 KiB, which recursion with the depth of a long text overflows.
void runOnSmallStack(const std::function<void()>& work);

} // namespace Ostra
