#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// What is done in another way on each system. All texts are UTF-8, or whatever bytes a system takes for a name.
namespace Tool::System {

/// Makes the standard streams carry bytes as they are, and returns the arguments behind the name of the program.
std::vector<std::string> begin(int argc, const char* const* argv);

/// Returns the path of a name.
std::filesystem::path pathOf(std::string_view name);

/// Returns the name of a path, with / between its parts on every system.
std::string textOf(const std::filesystem::path& path);

/// Returns what is said of a failure, in the same words on every system if the standard has some for it.
inline std::string messageOf(const std::error_code& failure) { return failure.default_error_condition().message(); }

/// Returns whether standard error is a terminal on which a line can be drawn again.
bool canDraw();

/// A file that is open; none if it could not be opened.
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// Opens a file to be read, byte by byte as it is; errno says why it failed.
File open(const std::filesystem::path& path);

/// Reads up to so many bytes of standard input, at least one, as soon as they are there; none at its end. The streams
/// of the standard library, which wait until much is there, must not be used beside it.
std::size_t readInput(char* buffer, std::size_t size);

/// Returns whether a path names what is written to as it is, such as a terminal, a pipe or NUL, and cannot be replaced.
bool isDevice(const std::filesystem::path& path);

/// Makes an empty file beside another one that it shall replace, with that one's permissions or, if there is none,
/// those of any new file. Returns its path.
/// @throws std::system_error
std::filesystem::path makeFileBeside(const std::filesystem::path& target);

/// Makes an empty folder beside a file or folder. Returns its path.
/// @throws std::system_error
std::filesystem::path makeFolderBeside(const std::filesystem::path& target);

/// Returns what the environment has under a name; nothing where that is not there.
std::optional<std::string> environment(const char* name);

/// Runs a program that is found where the system looks for programs, with these arguments behind its name, and returns
/// whether it came to a good end.
bool run(const std::string& program, const std::vector<std::string>& arguments);

/// The files that a program has for its standard streams.
struct Streams {
    std::filesystem::path input;
    std::filesystem::path output;
    std::filesystem::path errors;
};

/// Runs a program likewise, with its streams in files that are there, and returns its exit code; nothing if there is no
/// such program, or it was ended.
std::optional<int> run(const std::string& program, const std::vector<std::string>& arguments, const Streams& streams);

} // namespace Tool::System
