#include "output/Json.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string_view>

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
void rewrite(const std::string& json, Writer& writer) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(json.data(), json.size());
    rapidjson::Reader().Parse<flags>(stream, writer);
}

std::string dump(const Json& json, int indentation) {
    return json.dump(indentation, ' ', false, Json::error_handler_t::replace);
}

} // namespace

std::string toText(const Json& json) { return dump(json, 2) + "\n"; }

std::string toTextInHtml(const Json& json) {
    std::string text;
    for (const char character : dump(json, -1)) {
        // Outside strings JSON has none of these; inside, their escapes mean the same.
        switch (character) {
        case '<':
            text += "\\u003c";
            break;
        case '>':
            text += "\\u003e";
            break;
        case '&':
            text += "\\u0026";
            break;
        default:
            text += character;
        }
    }
    return text;
}

std::string compact(const std::string& json) {
    rapidjson::StringBuffer buffer;
    RawNumberWriter<rapidjson::Writer<rapidjson::StringBuffer>> writer(buffer);
    rewrite(json, writer);
    return {buffer.GetString(), buffer.GetSize()};
}

std::string indented(const std::string& json) {
    rapidjson::StringBuffer buffer;
    RawNumberWriter<rapidjson::PrettyWriter<rapidjson::StringBuffer>> writer(buffer);
    rewrite(json, writer);
    return {buffer.GetString(), buffer.GetSize()};
}

} // namespace Tool
