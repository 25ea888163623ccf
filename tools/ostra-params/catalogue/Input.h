#pragma once

#include "catalogue/Source.h"

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace Tool {

/// A path that cannot be read as part of a catalogue. Its message names the path.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What names the standard input among paths.
constexpr const char* standardInput = "-";

/// Returns a file as it is shown to people.
std::string nameOf(const std::filesystem::path& file);

/// Returns the schema files that the paths name: files and standard input as they are, folders with all schema files in
/// them and below, sorted by path. A file that is named twice counts once.
/// @throws InputError if a path cannot be read or is no schema file, or a folder holds none.
std::vector<std::filesystem::path> findFiles(const std::vector<std::string>& paths);

/// Visits the schema texts of a file in order, without the byte order mark at its start. Standard input holds one
/// schema, or one a line.
/// @throws InputError if the file cannot be read.
void readTexts(const std::filesystem::path& file, const std::function<void(const Source&)>& visit);

} // namespace Tool
