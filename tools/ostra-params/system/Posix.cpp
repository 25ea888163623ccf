#include "system/System.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace Tool::System {

namespace {

namespace fs = std::filesystem;

/// Returns the beginning of a name that mkstemp and mkdtemp make another one of each time.
std::string patternBeside(const fs::path& target) { return target.string() + ".XXXXXX"; }

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

/// Returns the permissions that a file has, or those of any new file, not for its owner alone.
mode_t permissionsOf(const fs::path& file) {
    std::error_code unknown; // as of a file that is not there
    const fs::file_status status = fs::status(file, unknown);
    if (fs::is_regular_file(status)) {
        return static_cast<mode_t>(status.permissions()) & 0777U;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

/// Runs a program to its end and returns its exit code; nothing if it could not be started, or was ended.
std::optional<int> start(const std::string& program, const std::vector<std::string>& arguments,
                         const ::posix_spawn_file_actions_t* actions) {
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers(words.size() + 1); // the last one null
    std::transform(words.begin(), words.end(), pointers.begin(), [](std::string& word) { return word.data(); });
    pid_t process = 0;
    int status = 0;
    const bool isEnded = ::posix_spawnp(&process, pointers.front(), actions, nullptr, pointers.data(), environ) == 0 &&
                         ::waitpid(process, &status, 0) == process && WIFEXITED(status);
    return isEnded ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

} // namespace

std::vector<std::string> begin(int argc, const char* const* argv) { return {argv + std::min(argc, 1), argv + argc}; }

fs::path pathOf(std::string_view name) { return name; }

std::string textOf(const fs::path& path) { return path.string(); }

std::optional<std::string> environment(const char* name) {
    const char* const value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody changes it
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

bool canDraw() { return ::isatty(STDERR_FILENO) == 1; }

File open(const fs::path& path) { return {std::fopen(path.c_str(), "rb"), std::fclose}; }

std::size_t readInput(char* buffer, std::size_t size) {
    ssize_t count = 0;
    do {
        count = ::read(STDIN_FILENO, buffer, size);
    } while (count < 0 && errno == EINTR);
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool isDevice(const fs::path& path) {
    std::error_code unknown; // as of a folder that is not there, which is found out by writing
    return fs::is_other(path, unknown);
}

fs::path makeFileBeside(const fs::path& target) {
    std::string name = patternBeside(target);
    const int descriptor = ::mkstemp(name.data());
    if (descriptor < 0) {
        fail();
    }
    ::fchmod(descriptor, permissionsOf(target));
    ::close(descriptor);
    return name;
}

fs::path makeFolderBeside(const fs::path& target) {
    std::string name = patternBeside(target);
    if (::mkdtemp(name.data()) == nullptr) {
        fail();
    }
    return name;
}

bool run(const std::string& program, const std::vector<std::string>& arguments) {
    return start(program, arguments, nullptr) == 0;
}

std::optional<int> run(const std::string& program, const std::vector<std::string>& arguments, const Streams& streams) {
    ::posix_spawn_file_actions_t actions{};
    if (::posix_spawn_file_actions_init(&actions) != 0) {
        return std::nullopt;
    }
    const auto open = [&](int stream, const fs::path& file, int flags) {
        return ::posix_spawn_file_actions_addopen(&actions, stream, file.c_str(), flags, 0) == 0;
    };
    const bool areOpen = open(STDIN_FILENO, streams.input, O_RDONLY) && open(STDOUT_FILENO, streams.output, O_WRONLY) &&
                         open(STDERR_FILENO, streams.errors, O_WRONLY);
    const std::optional<int> exitCode = areOpen ? start(program, arguments, &actions) : std::nullopt;
    ::posix_spawn_file_actions_destroy(&actions);
    return exitCode;
}

} // namespace Tool::System
