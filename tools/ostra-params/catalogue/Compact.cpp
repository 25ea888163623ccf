#include "catalogue/Compact.h"

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
void rewrite(const std::string& json, Writer& writer) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(json.data(), json.size());
    rapidjson::Reader().Parse<flags>(stream, writer);
}

} // namespace

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
