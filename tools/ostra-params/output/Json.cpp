#include "output/Json.h"

#include <fmt/format.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <iterator>

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
    std::string text;
    for (const char character : dump(json, -1)) {
        // Outside strings JSON has none of these; inside, their escapes mean the same.
        if (character == '<' || character == '>' || character == '&') {
            fmt::format_to(std::back_inserter(text), "\\u{:04x}", static_cast<unsigned>(character));
        } else {
            text += character;
        }
    }
    return text;
}

std::string compact(const std::string& json) { return rewritten<rapidjson::Writer<rapidjson::StringBuffer>>(json); }

std::string indented(const std::string& json) {
    return rewritten<rapidjson::PrettyWriter<rapidjson::StringBuffer>>(json);
}

} // namespace Tool
