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

    /// Runs the tool in this folder with the given arguments; its standard output goes to a file.
    Outcome run(const std::vector<std::string>& arguments, const std::string& output = ".out") const;

private:
    std::filesystem::path path_;
};
