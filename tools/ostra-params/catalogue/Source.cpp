#include "catalogue/Source.h"

#include "catalogue/Input.h"
#include "output/Text.h"

#include <fmt/format.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>

namespace Tool {

namespace {

/// Stops the reader when the root's first "typeid" and the first string in its "inherits" are both there.
struct HeadingFinder : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, HeadingFinder> {
    bool StartObject() { return ++depth != 0; }
    bool StartArray() { return ++depth != 0; }
    bool EndObject(rapidjson::SizeType) { return depth-- != 0; }
    bool EndArray(rapidjson::SizeType) { return depth-- != 0; }
    bool RawNumber(const char*, rapidjson::SizeType, bool) { return true; }
    bool Key(const char* text, rapidjson::SizeType length, bool) {
        member = depth == 1 ? std::string(text, length) : member;
        return true;
    }
    bool String(const char* text, rapidjson::SizeType length, bool) {
        std::string& kept = depth == 1 ? heading.typeId : heading.base;
        if (kept.empty() && ((depth == 1 && member == "typeid") || (depth == 2 && member == "inherits"))) {
            kept.assign(text, length);
        }
        return heading.typeId.empty() || heading.base.empty();
    }

    std::size_t depth = 0;
    std::string member = {};
    Heading heading = {};
};

Heading headingOf(const std::string& schemaText) {
    // Iterative, as a text may be nested without limit; raw numbers, as their values do not matter here.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(schemaText.data(), schemaText.size());
    HeadingFinder finder;
    rapidjson::Reader().Parse<flags>(stream, finder);
    return std::move(finder.heading);
}

} // namespace

Positions::Position Positions::positionOf(std::size_t offset) const {
    const std::size_t mark = std::min(offset / markEvery, marks_.size() - 1);
    auto [line, column] = marks_[mark];
    for (const char byte : std::string_view(*text_).substr(mark * markEvery, offset - mark * markEvery)) {
        line += byte == '\n' ? 1 : 0;
        column = byte == '\n' ? 1 : column + (isFirstOfCharacter(byte) ? 1 : 0);
    }
    return {line, column};
}

Place Positions::placeOf(const Source& source, std::size_t begin, std::size_t end) {
    if (source.text != text_) {
        text_ = source.text;
        marks_ = {{0, 1}};
        for (std::size_t offset = markEvery; offset < text_->size(); offset += markEvery) {
            marks_.push_back(positionOf(offset));
        }
    }
    const auto [line, column] = positionOf(begin);
    const auto [endLine, endColumn] = positionOf(end);
    return {source.file, source.line + line, column, source.line + endLine, endColumn};
}

Place beginningOf(const Source& source) {
    const std::size_t begin = std::min(source.text->find_first_not_of(blanks), source.text->size());
    return Positions().placeOf(source, begin, begin);
}

std::string nameOf(const std::string& file) { return file == standardInput ? "<stdin>" : file; }

std::string toString(const Place& place) {
    const std::string file = printable(nameOf(*place.file));
    return place.line == 0 ? file : fmt::format("{}:{}:{}", file, place.line, place.column);
}

const std::vector<Heading>& Headings::all() const {
    if (headings_.empty()) {
        for (const Source& source : sources_) {
            headings_.push_back(headingOf(*source.text));
        }
        for (const bool isFaulty : {false, true}) {
            for (std::size_t number = 0; number < headings_.size(); ++number) {
                if (isFaulty_[number] == isFaulty) {
                    index_.emplace(headings_[number].typeId, number);
                }
            }
        }
    }
    return headings_;
}

std::optional<std::size_t> Headings::find(const std::string& typeId) const {
    all();
    const auto found = index_.find(typeId);
    return found == index_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace Tool
