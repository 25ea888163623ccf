#include "schema/PlainReader.h"

#include "schema/Numbers.h"
#include "schema/PlainCharacters.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>

namespace Ostra {

namespace {

constexpr int maxDepth = 64; // it recurses

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isBlank(char character) { return character == ' ' || character == '\n' || character == '\r' || character == '\t'; }

const char* behindBlanks(const char* at) {
    while (isBlank(*at)) {
        ++at;
    }
    return at;
}

const char* behindDigits(const char* at) {
    while (isDigit(*at)) {
        ++at;
    }
    return at;
}

/// Reads four hexadecimal digits.
const char* hexadecimal(const char* at, std::uint32_t& code) {
    constexpr std::ptrdiff_t digits = 4;
    const char* const end = std::find(at, at + digits, '\0'); // the last byte of a text may be one
    const auto result = std::from_chars(at, end, code, 16);
    return result.ec == std::errc() && result.ptr == at + digits ? result.ptr : nullptr;
}

char* putUtf8(std::uint32_t code, char* to) {
    const auto put = [&to](std::uint32_t byte) { *to++ = static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto putPart = [&](int shift) { put(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        putPart(0);
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        putPart(6);
        putPart(0);
    } else {
        put(0xF0 | code >> 18);
        putPart(12);
        putPart(6);
        putPart(0);
    }
    return to;
}

} // namespace

bool PlainReader::read() {
    const char* const at = value(behindBlanks(begin_), 0);
    return at != nullptr && behindBlanks(at) == end_;
}

const char* PlainReader::value(const char* at, int depth) {
    switch (*at) {
    case '"':
        return string(at);
    case '{':
        return object(at, depth);
    case '[':
        return array(at, depth);
    case 't':
        tape_.boolean(true);
        return word(at, "true");
    case 'f':
        tape_.boolean(false);
        return word(at, "false");
    case 'n':
        tape_.null();
        return word(at, "null");
    default:
        return number(at);
    }
}

const char* PlainReader::object(const char* at, int depth) {
    if (depth == maxDepth) {
        return nullptr;
    }
    tape_.beginObject();
    std::uint32_t size = 0;
    at = behindBlanks(at + 1);
    if (*at != '}') {
        for (;; at = behindBlanks(at + 1)) {
            if (*at != '"' || (at = string(at)) == nullptr) {
                return nullptr;
            }
            at = behindBlanks(at);
            if (*at != ':' || (at = value(behindBlanks(at + 1), depth + 1)) == nullptr) {
                return nullptr;
            }
            ++size;
            at = behindBlanks(at);
            if (*at != ',') {
                break;
            }
        }
        if (*at != '}') {
            return nullptr;
        }
    }
    tape_.end(size);
    members_ += size;
    return at + 1;
}

const char* PlainReader::array(const char* at, int depth) {
    if (depth == maxDepth) {
        return nullptr;
    }
    tape_.beginArray();
    std::uint32_t size = 0;
    at = behindBlanks(at + 1);
    if (*at != ']') {
        for (;; at = behindBlanks(at + 1)) {
            if ((at = value(at, depth + 1)) == nullptr) {
                return nullptr;
            }
            ++size;
            at = behindBlanks(at);
            if (*at != ',') {
                break;
            }
        }
        if (*at != ']') {
            return nullptr;
        }
    }
    tape_.end(size);
    return at + 1;
}

const char* PlainReader::word(const char* at, std::string_view word) const {
    const bool isThere = std::string_view(at, static_cast<std::size_t>(end_ - at)).starts_with(word);
    return isThere ? at + word.size() : nullptr;
}

/// Returns the next character that a string cannot hold as it is.
inline const char* PlainReader::plain(const char* at) const { return PlainCharacters::endOf(at, end_); }

const char* PlainReader::string(const char* at) {
    const char* const begin = at + 1;
    at = plain(begin);
    if (*at != '"') [[unlikely]] {
        return escapedString(begin, at);
    }
    tape_.string(begin, static_cast<std::uint32_t>(at - begin));
    return at + 1;
}

/// Goes on with a string at a character that is not plain.
const char* PlainReader::escapedString(const char* begin, const char* at) {
    const auto beginOffset = begin - begin_;
    const auto offset = at - begin_;
    copyText();
    begin = begin_ + beginOffset;
    at = begin_ + offset;
    char* to = copy_ + offset; // what an escape stands for is never longer
    while (*at == '\\') {
        constexpr std::string_view names = "\"\\/bfnrt";
        constexpr std::string_view named = "\"\\/\b\f\n\r\t";
        if (const std::size_t place = names.find(at[1]); place != std::string_view::npos) {
            *to++ = named[place];
            at += 2;
        } else {
            std::uint32_t code = 0;
            at = codePoint(at, code);
            if (at == nullptr) {
                return nullptr;
            }
            to = putUtf8(code, to);
        }
        const char* const end = plain(at);
        std::memmove(to, at, static_cast<std::size_t>(end - at));
        to += end - at;
        at = end;
    }
    tape_.string(begin, static_cast<std::uint32_t>(to - begin));
    return *at == '"' ? at + 1 : nullptr;
}

/// Reads one escape in hexadecimal digits, or two that are one character.
const char* PlainReader::codePoint(const char* at, std::uint32_t& code) {
    if (at[1] != 'u' || (at = hexadecimal(at + 2, code)) == nullptr) {
        return nullptr;
    }
    if (code < 0xD800 || code >= 0xE000) {
        return at;
    }
    std::uint32_t low = 0;
    if (code >= 0xDC00 || at[0] != '\\' || at[1] != 'u' || (at = hexadecimal(at + 2, low)) == nullptr) {
        return nullptr;
    }
    code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
    return low >= 0xDC00 && low < 0xE000 ? at : nullptr;
}

/// Copies the text, so that an escape can give way to what it stands for.
void PlainReader::copyText() {
    if (copy_ == nullptr) {
        const auto size = static_cast<std::size_t>(end_ - begin_);
        copy_ = static_cast<char*>(arena_.allocate(size + 1));
        std::copy(begin_, end_ + 1, copy_);
        tape_.moveStrings(begin_, copy_);
        begin_ = copy_;
        end_ = copy_ + size;
    }
}

/// Reads numbers of so few digits that none of them is out of reach, whoever rounds.
const char* PlainReader::number(const char* at) {
    constexpr std::ptrdiff_t maxDigits = 19; // of which 64 bits hold any number
    const char* const begin = at;
    at += *at == '-' ? 1 : 0;
    const char* const digits = at;
    std::uint64_t integer = 0;
    for (; isDigit(*at) && at - digits < maxDigits; ++at) {
        integer = integer * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    if (at == digits || isDigit(*at) || (*digits == '0' && at - digits > 1)) {
        return nullptr;
    }
    if (*at != '.' && *at != 'e' && *at != 'E') {
        if (integer > std::numeric_limits<std::int64_t>::max()) {
            return nullptr;
        }
        const auto positive = static_cast<std::int64_t>(integer);
        tape_.integer(*begin == '-' ? -positive : positive);
        return at;
    }
    if (*at == '.') {
        const char* const fraction = at + 1;
        at = behindDigits(fraction);
        if (at == fraction || at - digits > maxDigits) {
            return nullptr;
        }
    }
    if (*at == 'e' || *at == 'E') {
        ++at;
        at += *at == '+' || *at == '-' ? 1 : 0;
        const char* const exponent = at;
        at = behindDigits(exponent);
        if (at == exponent || at - exponent > 2) {
            return nullptr;
        }
    }
    const auto real = toDouble({begin, static_cast<std::size_t>(at - begin)});
    tape_.real(real.value_or(0.0));
    return real ? at : nullptr;
}

} // namespace Ostra
