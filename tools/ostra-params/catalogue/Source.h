#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Tool {

/// One schema text as it stands in a file.
struct Source {
    const std::string* file; ///< Its path, as it was given or found.
    std::size_t line;        ///< Where the text begins; the first line is 1.
    const std::string* text;
};

/// A stretch of a file; the file alone when the line is 0. Lines and columns begin with 1; columns count characters,
/// not bytes. The end is behind the last one.
struct Place {
    const std::string* file = nullptr;
    std::size_t line = 0;
    std::size_t column = 0;
    std::size_t endLine = 0;
    std::size_t endColumn = 0;
    std::string pointer = {}; ///< The JSON Pointer of the value.
};

/// Tells where the bytes of a text stand. Where many of one text are asked for, that costs little more than one.
class Positions {
public:
    Place placeOf(const Source& source, std::size_t begin, std::size_t end);

private:
    using Position = std::pair<std::size_t, std::size_t>; // line and column
    Position positionOf(std::size_t offset) const;

    static constexpr std::size_t markEvery = 4096; // bytes
    const std::string* text_ = nullptr;
    std::vector<Position> marks_; // of the text that was asked for last
};

/// Returns where a text begins, blanks apart.
Place beginningOf(const Source& source);

/// Returns a path as it is shown to people.
std::string nameOf(const std::string& file);

/// Returns the place as people and editors write it: "file:line:column".
std::string toString(const Place& place);

/// What a schema text says of itself; what it does not say is empty.
struct Heading {
    std::string typeId;
    std::string base;
};

/// The headings of all texts, which are read when the first one is asked for: few need them.
class Headings {
public:
    /// Takes the texts and which of them are faulty; both must outlive it.
    Headings(const std::vector<Source>& sources, const std::vector<bool>& isFaulty)
        : sources_(sources), isFaulty_(isFaulty) {}

    const std::vector<Heading>& all() const;
    const Heading& of(std::size_t number) const { return all()[number]; }
    bool isSound(std::size_t number) const { return !isFaulty_[number]; }

    /// Returns the number of the text of a typeid, a sound one rather than a faulty one; nothing when there is none.
    std::optional<std::size_t> find(const std::string& typeId) const;

private:
    const std::vector<Source>& sources_;
    const std::vector<bool>& isFaulty_;
    mutable std::vector<Heading> headings_;
    mutable std::unordered_map<std::string_view, std::size_t> index_;
};

} // namespace Tool
