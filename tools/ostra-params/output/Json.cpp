#include "output/Json.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace Tool {

namespace {

/// Writes numbers as they stand in the text; RapidJSON's own writers would put them into quotation marks.
template <class Base>
class RawNumberWriter : public Base {
public:
    using Base::Base;
    bool RawNumber(const char* text, rapidjson::SizeType length, bool) {
        return this->RawValue(text, length, rapidjson::kNumberType);
    }
};

template <class Writer>
std::string rewritten(const std::string& json) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(json.data(), json.size());
    rapidjson::StringBuffer buffer;
    RawNumberWriter<Writer> writer(buffer);
    rapidjson::Reader().Parse<flags>(stream, writer);
    return {buffer.GetString(), buffer.GetSize()};
}

std::string dump(const Json& json, int indentation) {
    return json.dump(indentation, ' ', false, Json::error_handler_t::replace);
}

} // namespace

std::string toText(const Json& json) { return dump(json, 2) + "\n"; }

std::string toTextInHtml(const Json& json) {
    // Outside strings JSON has none of these; inside, their escapes mean the same.
    const auto isPlain = [](char character) { return character != '<' && character != '>' && character != '&'; };
    return encoded(dump(json, -1), isPlain, "\\u{:04x}");
}

std::string compact(const std::string& json) { return rewritten<rapidjson::Writer<rapidjson::StringBuffer>>(json); }

std::string indented(const std::string& json) {
    return rewritten<rapidjson::PrettyWriter<rapidjson::StringBuffer>>(json);
}

} // namespace Tool
