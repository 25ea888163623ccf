#include "ParseOutcome.h"

#include "schema/JSONParser.h"

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

namespace Ostra {

namespace {

using rapidjson::SizeType;

/// Writes down events, doubles to the bit.
class Recorder {
public:
    explicit Recorder(std::vector<double> doubles = {}) : doubles_(std::move(doubles)) {}

    bool Null() { return record("null"); }
    bool Bool(bool value) { return record(value ? "true" : "false"); }
    bool Int(int value) { return record("int " + std::to_string(value)); }
    bool Uint(unsigned value) { return Uint64(value); }
    bool Int64(std::int64_t value) { return record("int " + std::to_string(value)); }
    bool Uint64(std::uint64_t value) { return record("int " + std::to_string(value)); }
    /// Takes correctly rounded doubles in place of the reader's, as long as there are any.
    bool Double(double value) {
        const double rounded = next_ < doubles_.size() ? doubles_[next_++] : value;
        return record("double " + std::to_string(std::bit_cast<std::uint64_t>(rounded)));
    }
    bool RawNumber(const char*, SizeType, bool) { return false; }
    bool String(const char* text, SizeType length, bool) { return record("string " + std::string(text, length)); }
    bool Key(const char* text, SizeType length, bool) { return record("name " + std::string(text, length)); }
    bool StartObject() { return record("{"); }
    bool EndObject(SizeType count) { return record("} " + std::to_string(count)); }
    bool StartArray() { return record("["); }
    bool EndArray(SizeType count) { return record("] " + std::to_string(count)); }

    const std::string& events() const { return events_; }

private:
    bool record(const std::string& event) {
        events_ += event;
        events_ += '\n';
        return true;
    }

    std::vector<double> doubles_;
    std::size_t next_ = 0;
    std::string events_;
};

/// Tells of a value and all that is in it. Recurses with its depth.
void record(const JSONValue& value, Recorder& recorder) {
    if (value.isContainer()) {
        value.isObject() ? recorder.StartObject() : recorder.StartArray();
        for (const JSONValue* part = value.first(); part != value.next(); part = part->next()) {
            if (value.isObject()) {
                const std::string_view name = part->string();
                recorder.Key(name.data(), static_cast<SizeType>(name.size()), true);
                part = part->next();
            }
            record(*part, recorder);
        }
        const auto size = static_cast<SizeType>(value.size());
        value.isObject() ? recorder.EndObject(size) : recorder.EndArray(size);
    } else if (value.isString()) {
        recorder.String(value.string().data(), static_cast<SizeType>(value.string().size()), true);
    } else if (value.isBoolean()) {
        recorder.Bool(value.boolean());
    } else if (value.isInteger()) {
        recorder.Int64(value.integer());
    } else if (value.isUnsignedInteger()) {
        recorder.Uint64(value.unsignedInteger());
    } else if (value.isReal()) {
        recorder.Double(value.number());
    } else {
        recorder.Null();
    }
}

/// Converts each number that RapidJSON knows as a double with the C library, and stops at the first infinite one.
struct DoubleCollector : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, DoubleCollector> {
    bool RawNumber(const char* text, SizeType length, bool) {
        const std::string number(text, length);
        rapidjson::Document alone;
        alone.Parse(number.c_str());
        if (alone.IsDouble()) {
            doubles.push_back(std::strtod(number.c_str(), nullptr));
            return std::isfinite(doubles.back());
        }
        return true;
    }

    std::vector<double> doubles;
};

} // namespace

std::ostream& operator<<(std::ostream& stream, const ParseOutcome& outcome) {
    return stream << outcome.offset << ": " << rapidjson::GetParseError_En(outcome.code) << " " << outcome.events;
}

ParseOutcome outcomeByDefaultFlags(const std::string& text) {
    using rapidjson::StringStream;
    DoubleCollector collector;
    StringStream rawStream(text.c_str());
    const auto raw = rapidjson::Reader().Parse<rapidjson::kParseNumbersAsStringsFlag>(rawStream, collector);
    if (raw.Code() == rapidjson::kParseErrorTermination) {
        return {rapidjson::kParseErrorNumberTooBig, raw.Offset(), ""};
    }
    Recorder recorder(collector.doubles);
    StringStream stream(text.c_str());
    const auto result = rapidjson::Reader().Parse(stream, recorder);
    const std::size_t end = std::min(text.find('\0'), text.size());
    if (result.Code() == rapidjson::kParseErrorDocumentEmpty && end < text.size()) {
        return {rapidjson::kParseErrorValueInvalid, end, ""};
    }
    if (!result.IsError() && end < text.size()) {
        return {rapidjson::kParseErrorDocumentRootNotSingular, end, ""};
    }
    return {result.Code(), result.Offset(), result.IsError() ? "" : recorder.events()};
}

ParseOutcome outcomeOf(const std::string& text) {
    Arena arena;
    JSONTape tape(arena);
    const rapidjson::ParseResult result = parseText(text, tape, arena).result;
    Recorder recorder;
    if (!result.IsError()) {
        record(tape.root(), recorder);
    }
    return {result.Code(), result.Offset(), recorder.events()};
}

} // namespace Ostra
