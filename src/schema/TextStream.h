#pragma once

#include <rapidjson/stream.h>

#include <bit>
#include <cstdint>
#include <cstring>

namespace Ostra {

/// RapidJSON's stream for parsing in place, which passes over the plain characters that a string begins with eight at a
/// time. Behind the text there must be that many bytes 0.
class TextStream : public rapidjson::InsituStringStream {
public:
    static constexpr std::size_t room = sizeof(std::uint64_t);

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
    static constexpr std::uint64_t each = 0x0101010101010101; // times a byte is a word of that byte

    /// Returns the first quotation mark, backslash, control character or byte 0.
    static char* endOfPlain(char* at) {
        if constexpr (std::endian::native == std::endian::little) {
            for (;; at += sizeof(std::uint64_t)) {
                std::uint64_t word = 0;
                std::memcpy(&word, at, sizeof word);
                if (const std::uint64_t special = below(word, 0x20) | equal(word, '"') | equal(word, '\\')) {
                    return at + std::countr_zero(special) / 8;
                }
            }
        }
        return at;
    }

    // Each marks the top bits of the bytes that it looks for. Bytes above a marked one may be marked wrongly: only the
    // lowest counts.
    static std::uint64_t below(std::uint64_t word, std::uint64_t limit) {
        return (word - each * limit) & ~word & each << 7;
    }
    static std::uint64_t equal(std::uint64_t word, char byte) {
        return below(word ^ each * static_cast<unsigned char>(byte), 1);
    }
};

} // namespace Ostra

namespace rapidjson {

/// As of the stream that it is: the reader works on a copy in registers.
template <>
struct StreamTraits<Ostra::TextStream> : StreamTraits<InsituStringStream> {};

} // namespace rapidjson
