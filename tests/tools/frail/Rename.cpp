#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>

/// Takes the place of the system's, and lets those renamings fail whose numbers, counted from 1,
/// OSTRA_FAILING_RENAMINGS has as digits.
extern "C" [[gnu::visibility("default")]] int rename(const char* from, const char* to) noexcept {
    static int count = 0;
    const char* const failing = std::getenv("OSTRA_FAILING_RENAMINGS");
    if (failing != nullptr && std::string(failing).find(std::to_string(++count)) != std::string::npos) {
        errno = EIO;
        return -1;
    }
    return ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}
