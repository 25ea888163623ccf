#pragma once

#include "schema/Arena.h"
#include "schema/JSON.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace Ostra {

/// The definitions of one table of a schema by their ids, in the order of the text.
class Definitions {
public:
    struct Definition {
        std::string_view id;
        JSONView definition;
    };

    explicit Definitions(Arena& memory)
        : definitions_(FromArena<Definition>(memory)), index_(FromArena<Index::value_type>(memory)) {}

    /// Makes room for the definitions of an array.
    void begin(JSONView array) {
        array_ = array;
        isInspected_ = array.isInspected();
        definitions_.reserve(array.size());
    }
    /// Adds a definition; returns false if there is one of that id.
    bool add(std::string_view id, JSONView definition);
    /// Returns the definition of that id, or nothing.
    MaybeView find(std::string_view id) const {
        if (isInspected_) [[unlikely]] {
            return findAndNote(id);
        }
        return hasSizeOf(id) ? search(id) : std::nullopt;
    }
    /// As find, but nothing is read for it.
    MaybeView earlier(std::string_view id) const { return search(id); }
    /// Says that there is something in place of the array, which has been told.
    void setFaulty() { isFaulty_ = true; }
    bool isFaulty() const { return isFaulty_; }
    /// Returns the array in which they stand, if there is one.
    MaybeView array() const { return array_; }

    std::size_t size() const { return definitions_.size(); }
    bool empty() const { return definitions_.empty(); }
    auto begin() const { return definitions_.begin(); }
    auto end() const { return definitions_.end(); }
    /// Returns the definitions in ascending byte order of their ids; all of them are to be read.
    std::vector<Definition> sorted() const;

private:
    using Index =
        std::map<std::string_view, std::size_t, std::less<>, FromArena<std::pair<const std::string_view, std::size_t>>>;

    static constexpr std::size_t few = 16; // up to so many, looking at one after the other is faster than any index

    bool hasSizeOf(std::string_view id) const { return (sizes_ & sizeBit(id)) != 0; }
    MaybeView search(std::string_view id) const;
    MaybeView findAndNote(std::string_view id) const;
    static std::uint64_t sizeBit(std::string_view id) { return std::uint64_t{1} << (id.size() % 64); }

    MaybeView array_ = std::nullopt;
    bool isInspected_ = false;
    bool isFaulty_ = false;
    std::vector<Definition, FromArena<Definition>> definitions_;
    std::uint64_t sizes_ = 0; // a bit for each size of an id: most ids that are not there are of none of them
    Index index_;             // of all definitions, once they are more than a few
};

} // namespace Ostra
