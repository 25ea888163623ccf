#include "schema/JSONParser.h"

#include "schema/Messages.h"
#include "schema/Numbers.h"
#include "schema/TextStream.h"

#include <rapidjson/reader.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>

namespace Ostra {

namespace {

using Document = rapidjson::GenericDocument<rapidjson::UTF8<>, JSONPool, JSONPool>;
using Reader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JSONPool>;
using rapidjson::ParseResult;
using rapidjson::SizeType;

/// Numbers come as they are written, because the reader's own conversion is not correctly rounded. In place, so that
/// neither numbers nor strings are copied one by one.
constexpr unsigned parseFlags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseInsituFlag;

/// The recursive parser is a third faster than the iterative one, which any text deeper than this is left to.
constexpr int maxRecursion = 32;

/// The reader counts the digits of a fraction in an int, and adds a few hundred.
constexpr std::size_t maxTextSize = std::numeric_limits<int>::max() - 1000;

/// Hands what the reader finds to a document, numbers converted.
class ValueHandler {
public:
    /// Stops the reader where the text is deeper than maxDepth.
    ValueHandler(Document& document, int maxDepth) : document_(document), depthLeft_(maxDepth) {}

    bool isTooDeep() const { return depthLeft_ < 0; }
    std::size_t members() const { return members_; }

    bool Null() { return document_.Null(); }
    bool Bool(bool value) { return document_.Bool(value); }
    bool String(const char* text, SizeType length, bool copy) { return document_.String(text, length, copy); }
    bool StartObject() { return --depthLeft_ >= 0 && document_.StartObject(); }
    bool Key(const char* text, SizeType length, bool copy) { return document_.Key(text, length, copy); }
    bool EndObject(SizeType memberCount) {
        ++depthLeft_;
        members_ += memberCount;
        return document_.EndObject(memberCount);
    }
    bool StartArray() { return --depthLeft_ >= 0 && document_.StartArray(); }
    bool EndArray(SizeType elementCount) {
        ++depthLeft_;
        return document_.EndArray(elementCount);
    }

    /// Stops the reader at a number that no double holds.
    bool RawNumber(const char* text, SizeType length, bool) {
        const std::string_view number(text, length);
        if (const auto integer = toInteger<std::int64_t>(number)) {
            return document_.Int64(*integer);
        }
        if (const auto integer = toInteger<std::uint64_t>(number)) {
            return document_.Uint64(*integer);
        }
        const auto nearest = toDouble(number);
        return nearest && document_.Double(*nearest);
    }

    // The reader's template names these too, but never calls them for numbers as they are written.
    bool Int(int value) { return document_.Int(value); }
    bool Uint(unsigned value) { return document_.Uint(value); }
    bool Int64(std::int64_t value) { return document_.Int64(value); }
    bool Uint64(std::uint64_t value) { return document_.Uint64(value); }
    bool Double(double value) { return document_.Double(value); }

private:
    Document& document_;
    int depthLeft_;
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

char* copyOf(std::string_view text, JSONPool& pool) {
    auto* const copy = static_cast<char*>(pool.Malloc(text.size() + TextStream::room));
    text.copy(copy, text.size());
    std::fill_n(copy + text.size(), TextStream::room, '\0');
    return copy;
}

/// Parses a text that is at most so deep; returns nothing for a deeper one.
template <unsigned flags>
std::optional<ParsedText> parseWith(std::string_view text, JSONPool& pool, JSONValue& value, int maxDepth) {
    char* const copy = copyOf(text, pool);
    TextStream stream(copy);
    Reader reader(&pool);
    Document document(&pool, 1024, &pool);
    std::optional<ParsedText> parsed;
    auto generate = [&](Document& target) {
        ValueHandler handler(target, maxDepth);
        const ParseResult result = reader.Parse<flags>(stream, handler);
        if (!handler.isTooDeep()) {
            parsed = {adjusted(result, stream.Tell(), text.size()), handler.members(), copy};
        }
        return parsed && !parsed->result.IsError();
    };
    document.Populate(generate);
    value.Swap(document);
    return parsed;
}

} // namespace

ParsedText parseText(std::string_view text, JSONPool& pool, JSONValue& value) {
    if (text.size() > maxTextSize) {
        throw std::length_error(messages("json-text-too-long").with({}));
    }
    if (const auto parsed = parseWith<parseFlags>(text, pool, value, maxRecursion)) {
        return *parsed;
    }
    constexpr int anyDepth = std::numeric_limits<int>::max(); // more than a text of that size has
    return *parseWith<parseFlags | rapidjson::kParseIterativeFlag>(text, pool, value, anyDepth);
}

} // namespace Ostra
