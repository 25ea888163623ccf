#pragma once

namespace Ostra {

/// Returns a copy that is never destroyed, for what is made once and shared by all: while a process ends, engines may
/// still be at work in destructors of what an application has in static storage, or in threads that nobody waits for.
template <class T>
const T& immortal(const T& value) {
    return *new T(value);
}

} // namespace Ostra
