#pragma once

#include "schema/PlainCharacters.h"

#include <rapidjson/stream.h>

#include <bit>
#include <cstddef>
#include <cstdint>

namespace Ostra {

/// RapidJSON's stream for parsing in place, which passes over the plain characters that a string begins with eight at a
/// time. Behind the text there must be that many bytes 0.
class TextStream : public rapidjson::InsituStringStream {
public:
    static constexpr std::size_t room = PlainCharacters::wordSize;

    explicit TextStream(char* text) : rapidjson::InsituStringStream(text) {}

    /// The reader calls this where a string begins, behind its quotation mark, and also at numbers.
    char* PutBegin() {
        char* const begin = rapidjson::InsituStringStream::PutBegin();
        if (begin != head_ && begin[-1] == '"') {
            src_ = dst_ = endOfPlain(begin);
        }
        return begin;
    }

private:
    /// Returns the first quotation mark, backslash, control character or byte 0.
    static char* endOfPlain(char* at) {
        if constexpr (std::endian::native == std::endian::little) {
            for (;; at += PlainCharacters::wordSize) {
                if (const std::uint64_t others = PlainCharacters::othersIn(PlainCharacters::wordAt(at))) {
                    return at + std::countr_zero(others) / 8;
                }
            }
        }
        return at;
    }
};

} // namespace Ostra

namespace rapidjson {

/// As of the stream that it is: the reader works on a copy in registers.
template <>
struct StreamTraits<Ostra::TextStream> : StreamTraits<InsituStringStream> {};

} // namespace rapidjson
