#include "schema/JSONParser.h"

#include "schema/Memory.h"
#include "schema/Messages.h"
#include "schema/Numbers.h"
#include "schema/PlainReader.h"

#include <rapidjson/reader.h>

#include <cstdint>
#include <limits>
#include <stdexcept>

namespace Ostra {

namespace {

using Reader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JSONPool>;
using rapidjson::ParseResult;
using rapidjson::SizeType;

/// Numbers come as they are written, because the reader's own conversion is not correctly rounded. In place, so that
/// neither numbers nor strings are copied one by one.
constexpr unsigned parseFlags =
    rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag;

/// The reader counts the digits of a fraction in an int, and adds a few hundred.
constexpr std::size_t maxTextSize = std::numeric_limits<int>::max() - 1000;

/// Hands what the reader finds to a tape, numbers converted.
class ValueHandler {
public:
    explicit ValueHandler(JSONTape& tape) : tape_(tape) {}

    std::size_t members() const { return members_; }

    bool Null() {
        tape_.null();
        return true;
    }
    bool Bool(bool value) {
        tape_.boolean(value);
        return true;
    }
    bool String(const char* text, SizeType length, bool) {
        tape_.string(text, length);
        return true;
    }
    bool Key(const char* text, SizeType length, bool copy) { return String(text, length, copy); }
    bool StartObject() {
        tape_.beginObject();
        return true;
    }
    bool EndObject(SizeType memberCount) {
        members_ += memberCount;
        tape_.end(memberCount);
        return true;
    }
    bool StartArray() {
        tape_.beginArray();
        return true;
    }
    bool EndArray(SizeType elementCount) {
        tape_.end(elementCount);
        return true;
    }

    /// Stops the reader at a number that no double holds.
    bool RawNumber(const char* text, SizeType length, bool) {
        const std::string_view number(text, length);
        if (const auto integer = toInteger<std::int64_t>(number)) {
            tape_.integer(*integer);
        } else if (const auto unsignedInteger = toInteger<std::uint64_t>(number)) {
            tape_.unsignedInteger(*unsignedInteger);
        } else if (const auto nearest = toDouble(number)) {
            tape_.real(*nearest);
        } else {
            return false;
        }
        return true;
    }

    // The reader's template names these too, but never calls them for numbers as they are written.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    JSONTape& tape_;
    std::size_t members_ = 0;
};

/// Returns the result that the reader's default flags give, and treats a byte 0 as a byte like any other: the reader
/// takes it for the end of the text.
ParseResult adjusted(ParseResult result, std::size_t end, std::size_t textSize) {
    switch (result.Code()) {
    case rapidjson::kParseErrorNone:
        return end < textSize ? ParseResult(rapidjson::kParseErrorDocumentRootNotSingular, end) : result;
    case rapidjson::kParseErrorDocumentEmpty: // the iterative parser says so of a stray first character, too
        return result.Offset() < textSize ? ParseResult(rapidjson::kParseErrorValueInvalid, result.Offset()) : result;
    case rapidjson::kParseErrorTermination: // the handler stops at nothing else
        return {rapidjson::kParseErrorNumberTooBig, result.Offset()};
    default:
        return result;
    }
}

char* copyOf(std::string_view text, Arena& arena) {
    auto* const copy = static_cast<char*>(arena.allocate(text.size() + 1));
    text.copy(copy, text.size());
    copy[text.size()] = '\0';
    return copy;
}

/// Parses any text, and says what is wrong with it.
ParsedText judge(std::string_view text, JSONTape& tape, Arena& arena) {
    char* const copy = copyOf(text, arena);
    rapidjson::InsituStringStream stream(copy);
    JSONMemory memory;
    ValueHandler handler(tape);
    const ParseResult result = Reader(&memory.pool()).Parse<parseFlags>(stream, handler);
    return {adjusted(result, stream.Tell(), text.size()), handler.members(), copy};
}

} // namespace

void checkTextSize(std::size_t size) {
    if (size > maxTextSize) {
        throw std::length_error(messages("json-text-too-long").with({}));
    }
}

ParsedText parseText(const std::string& text, JSONTape& tape, Arena& arena) {
    checkTextSize(text.size());
    PlainReader plain(text, tape, arena);
    if (plain.read()) {
        return {{}, plain.members(), plain.origin()};
    }
    tape.clear();
    return judge(text, tape, arena);
}

} // namespace Ostra
