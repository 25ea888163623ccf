#include "catalogue/Headings.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <utility>

namespace Tool {

namespace {

/// Stops the reader when the root's first "typeid" and the first string in its "inherits" are both there.
class HeadingFinder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, HeadingFinder> {
public:
    bool StartObject() { return enter(); }
    bool EndObject(rapidjson::SizeType) { return leave(); }
    bool StartArray() { return enter(); }
    bool EndArray(rapidjson::SizeType) { return leave(); }

    bool Key(const char* text, rapidjson::SizeType length, bool) {
        if (depth_ == 1) {
            member_.assign(text, length);
        }
        return true;
    }

    bool String(const char* text, rapidjson::SizeType length, bool) {
        if (depth_ == 1 && member_ == "typeid") {
            keepFirst(heading_.typeId, {text, length});
        } else if (depth_ == 2 && member_ == "inherits") {
            keepFirst(heading_.base, {text, length});
        }
        return heading_.typeId.empty() || heading_.base.empty();
    }

    bool RawNumber(const char*, rapidjson::SizeType, bool) { return true; }

    Heading& heading() { return heading_; }

private:
    static void keepFirst(std::string& kept, std::string_view text) {
        if (kept.empty()) {
            kept = text;
        }
    }
    bool enter() {
        ++depth_;
        return true;
    }
    bool leave() {
        --depth_;
        return true;
    }

    std::size_t depth_ = 0;
    std::string member_;
    Heading heading_;
};

} // namespace

Heading headingOf(const std::string& schemaText) {
    // Iterative, as a text may be nested without limit; raw numbers, as their values do not matter here.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(schemaText.data(), schemaText.size());
    HeadingFinder finder;
    rapidjson::Reader().Parse<flags>(stream, finder);
    return std::move(finder.heading());
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
