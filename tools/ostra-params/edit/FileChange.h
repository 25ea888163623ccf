#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace Tool {

class Input;

/// A file with other bytes than it has.
struct FileChange {
    std::string file;
    std::string before;
    std::string after;
};

/// Puts texts into the places of those of an input that have these numbers, and returns the files that this changes.
/// All other bytes stay.
/// @throws InputError if a file is not any more what was read
std::vector<FileChange> changesOf(const Input& input, const std::map<std::size_t, std::string>& texts);

/// Returns what changes, in the form that the program patch takes.
std::string asDiff(const std::vector<FileChange>& changes);

/// Writes all files aside, then puts each where it belongs. If that fails for one, those before it become what they
/// were.
/// @throws OutputError
void apply(const std::vector<FileChange>& changes);

} // namespace Tool
