#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What a program left behind.
struct Outcome {
    int exitCode;
    std::string out;
    std::string err;
};

/// Returns the bytes of a file; none of one that is not there.
std::string contentOf(const std::filesystem::path& file);

/// Returns the path of the tool: that of this build, or the one that OSTRA_TOOL names, which may be another platform's.
std::string pathOfTool();

/// Returns whether that tool is one for Windows, as OSTRA_TOOL_SYSTEM says.
bool isToolForWindows();

/// Skips a test of what Windows does not know: its sockets, pipes, links and permissions are others, and it has no
/// Graphviz of this machine.
#define SKIP_FOR_WINDOWS()                                                                                             \
    if (isToolForWindows()) {                                                                                          \
        GTEST_SKIP() << "Windows does not know this.";                                                                 \
    }                                                                                                                  \
    static_assert(true, "so that a semicolon follows")

/// A folder of its own for each test, in which the tool runs and which goes with the test.
class Folder {
public:
    Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder();

    /// Writes a file, with the folders that its name needs.
    void write(const std::string& name, const std::string& bytes) const;
    void makeFolder(const std::string& name) const;
    void makeSocket(const std::string& name) const;
    const std::filesystem::path& path() const { return path_; }

    std::string read(const std::string& name) const { return contentOf(path_ / name); }
    /// Returns the names of all files in the folder and below, sorted; those of a run are left out.
    std::vector<std::string> files() const;

    /// Runs the tool in this folder with the given arguments and standard input; its standard output goes to a file.
    Outcome run(const std::vector<std::string>& arguments, const std::string& output = ".out",
                const std::string& input = "") const;
    /// Runs another program in this folder in the same way.
    Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const std::string& output = ".out", const std::string& input = "") const;

private:
    std::filesystem::path path_;
};
