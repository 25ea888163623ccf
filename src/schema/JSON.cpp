#include "schema/JSON.h"

#include "schema/JSONParser.h"

#include <rapidjson/error/en.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Ostra {

namespace {

using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, ThrowingAllocator>;
using Writer = rapidjson::Writer<Buffer, rapidjson::UTF8<>, rapidjson::UTF8<>, ThrowingAllocator>;

/// Writes a value with a stack of its own: RapidJSON's way recurses with the depth of the value.
class TextWriter {
public:
    std::string write(const JSONValue& root) {
        begin(root);
        while (!open_.empty()) {
            Container& container = open_.back();
            if (container.next == container.size) {
                end();
            } else if (container.value->IsObject()) {
                const auto& member = container.value->MemberBegin()[container.next++];
                writer_.Key(member.name.GetString(), checkedLength(member.name));
                begin(member.value);
            } else {
                begin(container.value->Begin()[container.next++]);
            }
        }
        return {buffer_.GetString(), buffer_.GetSize()};
    }

private:
    /// A container whose members or elements before the next one are written.
    struct Container {
        const JSONValue* value;
        rapidjson::SizeType size;
        rapidjson::SizeType next;
    };

    void begin(const JSONValue& value) {
        if (value.IsObject()) {
            writer_.StartObject();
            open_.push_back({&value, value.MemberCount(), 0});
        } else if (value.IsArray()) {
            writer_.StartArray();
            open_.push_back({&value, value.Size(), 0});
        } else {
            scalar(value);
        }
    }

    void end() {
        if (open_.back().value->IsObject()) {
            writer_.EndObject();
        } else {
            writer_.EndArray();
        }
        open_.pop_back();
    }

    void scalar(const JSONValue& value) {
        if (value.IsString()) {
            writer_.String(value.GetString(), checkedLength(value));
        } else if (!value.Accept(writer_)) {
            throw std::domain_error("A number that is not finite cannot be written as JSON.");
        }
    }

    /// The writer reserves six characters for each byte, and counts them in 32 bits.
    static rapidjson::SizeType checkedLength(const JSONValue& string) {
        constexpr auto maxLength = (std::numeric_limits<rapidjson::SizeType>::max() - 2) / 6;
        if (string.GetStringLength() > maxLength) {
            throw std::length_error("A string is too long to be written as JSON.");
        }
        return string.GetStringLength();
    }

    ThrowingAllocator allocator_;
    Buffer buffer_{&allocator_, 1024};
    Writer writer_{buffer_, &allocator_};
    std::vector<Container> open_;
};

/// Copies bytes into a value.
JSONValue makeString(std::string_view bytes, JSONPool& pool) {
    if (bytes.size() >= std::numeric_limits<rapidjson::SizeType>::max()) {
        throw std::length_error("A string is too long for a JSON value.");
    }
    // An empty view may be a null pointer, which RapidJSON refuses.
    return {bytes.empty() ? "" : bytes.data(), static_cast<rapidjson::SizeType>(bytes.size()), pool};
}

std::shared_ptr<JSONPool> makePool(std::size_t chunkSize) {
    return std::make_shared<JSONPool>(chunkSize, &sharedAllocator);
}

/// In most texts the copied text and the values fit into one chunk of this size; long texts take several.
std::size_t chunkSizeFor(std::string_view text) { return std::clamp<std::size_t>(3 * text.size(), 256, 65'536); }

} // namespace

std::optional<JSONView> JSONView::member(std::string_view name) const {
    if (isObject()) {
        for (const auto& member : value_->GetObject()) {
            if (JSONView(member.name, factory_).string() == name) {
                return JSONView(member.value, factory_);
            }
        }
    }
    return std::nullopt;
}

std::map<std::string, std::string> JSONView::toStringMap() const {
    std::map<std::string, std::string> strings;
    for (const auto& member : value_->GetObject()) {
        if (!member.name.IsString()) {
            fail("Expected a map with string keys and values, but key was not a string.");
        }
        if (!member.value.IsString()) {
            fail("Expected a map with string keys and values, but value was not a string.");
        }
        strings.emplace(JSONView(member.name, factory_).string(), JSONView(member.value, factory_).string());
    }
    return strings;
}

std::string JSONView::toText() const { return TextWriter().write(*value_); }

void JSONView::fail(const std::string& message) const {
    if (factory_ == nullptr) {
        throw std::logic_error(message);
    }
    factory_->raise(message);
}

JSON::JSON(std::shared_ptr<JSONPool> pool, JSONValue&& value, std::shared_ptr<const ExceptionFactory> factory)
    : pool_(std::move(pool)), value_(std::move(value)), factory_(std::move(factory)) {}

JSON JSON::parse(std::string_view text, std::shared_ptr<const ExceptionFactory> factory) {
    std::shared_ptr<JSONPool> pool = makePool(chunkSizeFor(text));
    JSONValue value;
    if (const auto result = parseText(text, *pool, value); result.IsError()) {
        factory->raise("JSON parsing error at offset " + std::to_string(result.Offset()) + ": " +
                       rapidjson::GetParseError_En(result.Code()));
    }
    return {std::move(pool), std::move(value), std::move(factory)};
}

void JSON::add(std::string_view name, JSON member) {
    checkPool(member);
    JSONValue key = makeString(name, *pool_);
    value_.AddMember(key, member.value_, *pool_);
}

void JSON::append(JSON element) {
    checkPool(element);
    value_.PushBack(element.value_, *pool_);
}

void JSON::checkPool(const JSON& part) const {
    if (part.pool_ != pool_) {
        throw std::invalid_argument("JSON values of different builders cannot be joined.");
    }
}

JSONBuilder::JSONBuilder() : pool_(makePool(4000)) {}

JSON JSONBuilder::make(JSONValue&& value) const { return {pool_, std::move(value), nullptr}; }

JSON JSONBuilder::boolean(bool value) const { return make(JSONValue(value)); }

JSON JSONBuilder::number(double value) const { return make(JSONValue(value)); }

JSON JSONBuilder::integer(std::int64_t value) const { return make(JSONValue(value)); }

JSON JSONBuilder::string(std::string_view value) const { return make(makeString(value, *pool_)); }

JSON JSONBuilder::object() const { return make(JSONValue(rapidjson::kObjectType)); }

JSON JSONBuilder::array(std::vector<JSON> elements) const {
    JSON array = make(JSONValue(rapidjson::kArrayType));
    array.value_.Reserve(static_cast<rapidjson::SizeType>(elements.size()), *pool_);
    for (JSON& element : elements) {
        array.append(std::move(element));
    }
    return array;
}

} // namespace Ostra
