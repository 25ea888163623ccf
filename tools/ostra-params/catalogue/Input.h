#pragma once

#include "catalogue/Source.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <iosfwd>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// A path that cannot be read as part of a catalogue. Its message names the path.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What names the standard input among paths.
constexpr std::string_view standardInput = "-";

/// What may stand before the text of a file, and is no part of it.
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Returns whether a file has a schema in each line, by its name.
bool holdsLines(const std::string& file);

/// Returns what a file holds.
/// @throws InputError if it cannot be read
std::string bytesOf(const std::string& file);

/// A file whose bytes are known already, such as those of an editor.
struct KnownFile {
    std::string name;
    std::shared_ptr<const std::string> bytes;
};

/// Returns the files that an Input of these paths reads, in this order.
/// @throws InputError as that does.
std::deque<std::string> filesOf(const std::vector<std::string>& paths);

/// The schema texts of files, folders and standard input, in the order of the paths and of the names in a folder; a
/// copy that was made of a file comes after all that are none.
class Input {
public:
    /// Reads them, without the byte order marks at their starts. A file that is named twice counts once.
    /// @throws InputError if a path is not there or no schema file, or a folder holds none.
    explicit Input(const std::vector<std::string>& paths);
    /// Takes what is in files that are known, in their order.
    explicit Input(const std::vector<KnownFile>& files);
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    /// A file or folder that cannot be read.
    struct Failure {
        const std::string* file;
        std::string reason;
        std::size_t before; ///< The number of the text that comes next.
    };

    std::size_t files() const { return files_.size(); }
    const std::vector<Source>& sources() const { return sources_; }
    const std::vector<Failure>& failures() const { return failures_; }

    /// Returns the texts; the key of each tells its number among the sources.
    const std::map<std::string, std::string>& texts() const { return texts_; }
    static std::size_t numberOf(const std::string& key);

    /// Puts another text into the place of one, as if that had been read, and returns the former one.
    std::string replace(std::size_t number, std::string text);

private:
    void read(const std::string& file);
    void readLines(std::istream& stream, const std::string& file);
    void readStandardInput(const std::string& file);
    void add(const std::string& file, std::size_t line, std::string text);

    std::deque<std::string> files_; // never moved, as places point to them
    std::map<std::string, std::string> texts_;
    std::vector<Source> sources_;
    std::vector<Failure> failures_;
    std::uintmax_t read_ = 0; // bytes
};

} // namespace Tool
