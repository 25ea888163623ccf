#pragma once

#include "schema/Arena.h"
#include "schema/JSONValue.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Ostra {

/// Reads texts as people and programs write them, and nothing else: it gives up at whatever it is not sure of, be it a
/// fault or not, and leaves the judgement to RapidJSON. So it needs to know no fault by its name.
class PlainReader {
public:
    /// Values go to the tape. Strings refer into the text, or into a copy of it in the arena once one has an escape.
    PlainReader(const std::string& text, JSONTape& tape, Arena& arena)
        : begin_(text.data()), end_(begin_ + text.size()), tape_(tape), arena_(arena) {}

    /// Returns whether the whole text was read. If not, the tape is in no state.
    bool read();

    /// Returns how many members all objects have together.
    std::size_t members() const { return members_; }
    /// Returns the text, or the copy of it, that strings refer into: each begins in it where it does in the text.
    const char* origin() const { return begin_; }

private:
    // Each of these reads something that begins there, and returns where it ends, or null. Behind the text, as in a
    // string of the standard library, is a byte 0, which nothing goes past.
    const char* value(const char* at, int depth);
    const char* object(const char* at, int depth);
    const char* array(const char* at, int depth);
    const char* string(const char* at);
    const char* escapedString(const char* begin, const char* at);
    const char* word(const char* at, std::string_view word) const;
    const char* number(const char* at);
    const char* plain(const char* at) const;
    static const char* codePoint(const char* at, std::uint32_t& code);

    void copyText();

    const char* begin_;
    const char* end_;
    char* copy_ = nullptr; // which is what begin_ is then
    std::size_t members_ = 0;
    JSONTape& tape_;
    Arena& arena_;
};

} // namespace Ostra
