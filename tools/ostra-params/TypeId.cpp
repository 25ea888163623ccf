#include "TypeId.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cstddef>
#include <string_view>

namespace Tool {

namespace {

/// Stops the reader at the first string that is the member "typeid" of the root.
class TypeIdFinder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, TypeIdFinder> {
public:
    bool StartObject() { return enter(); }
    bool EndObject(rapidjson::SizeType) { return leave(); }
    bool StartArray() { return enter(); }
    bool EndArray(rapidjson::SizeType) { return leave(); }

    bool Key(const char* text, rapidjson::SizeType length, bool) {
        isWanted_ = depth_ == 1 && std::string_view(text, length) == "typeid";
        return true;
    }

    bool String(const char* text, rapidjson::SizeType length, bool) {
        if (isWanted_) {
            typeId_.assign(text, length);
        }
        return !isWanted_;
    }

    bool RawNumber(const char*, rapidjson::SizeType, bool) { return true; }

    const std::string& typeId() const { return typeId_; }

private:
    bool enter() {
        ++depth_;
        return true;
    }
    bool leave() {
        --depth_;
        return true;
    }

    std::size_t depth_ = 0;
    bool isWanted_ = false;
    std::string typeId_;
};

} // namespace

std::string typeIdOf(const std::string& schemaText) {
    // Iterative, as a text may be nested without limit; raw numbers, as their values do not matter here.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(schemaText.data(), schemaText.size());
    TypeIdFinder finder;
    rapidjson::Reader().Parse<flags>(stream, finder);
    return finder.typeId();
}

} // namespace Tool
