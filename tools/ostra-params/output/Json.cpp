#include "output/Json.h"

#include "output/Text.h"

#include <fmt/format.h>

#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>

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

/// Returns a value on one line, with a blank behind each comma and on both sides of members.
std::string onOneLine(const Json& json) {
    if (!json.is_structured() || json.empty()) {
        return dump(json, -1);
    }
    std::string parts;
    for (const auto& [name, part] : json.items()) {
        parts += parts.empty() ? "" : ", ";
        parts += (json.is_object() ? dump(name, -1) + ": " : "") + onOneLine(part);
    }
    return json.is_object() ? fmt::format("{{ {} }}", parts) : fmt::format("[{}]", parts);
}

/// Returns how many brackets stand within each other.
std::size_t levelsOf(const Json& json) {
    if (!json.is_structured()) {
        return 0;
    }
    std::size_t levels = 0;
    for (const Json& part : json) {
        levels = std::max(levels, levelsOf(part));
    }
    return levels + 1;
}

std::string laidOut(const Json& json, std::size_t depth, std::size_t before) {
    constexpr std::size_t widest = 100;
    constexpr std::size_t mostLevels = 3;
    const bool isTable = depth == 1 && levelsOf(json) > 1; // the constants, or the properties
    std::string line = onOneLine(json);
    if (!json.is_structured() || json.empty() ||
        (depth > 0 && !isTable && levelsOf(json) <= mostLevels &&
         before + charactersOf(line).size() < widest)) { // with a comma
        return line;
    }
    const std::string indentation(2 * (depth + 1), ' ');
    std::string parts;
    for (const auto& [name, part] : json.items()) {
        const std::string head = indentation + (json.is_object() ? dump(name, -1) + ": " : "");
        parts += (parts.empty() ? "\n" : ",\n") + head + laidOut(part, depth + 1, charactersOf(head).size());
    }
    parts.append("\n").append(2 * depth, ' ');
    return json.is_object() ? fmt::format("{{{}}}", parts) : fmt::format("[{}]", parts);
}

} // namespace

std::string laidOut(const Json& json) { return laidOut(json, 0, 0) + "\n"; }

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
