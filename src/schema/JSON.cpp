#include "schema/JSON.h"

#include "schema/JSONParser.h"
#include "schema/JSONWriter.h"
#include "schema/Messages.h"

#include <rapidjson/error/en.h>

#include <utility>
#include <vector>

namespace Ostra {

namespace {

/// Writes a value with a stack of its own: RapidJSON's way recurses with the depth of the value.
class ValueWriter {
public:
    std::string write(const JSONValue& root) {
        begin(root);
        while (!open_.empty()) {
            Container& container = open_.back();
            if (container.next == container.size) {
                end();
            } else if (container.value->IsObject()) {
                const auto& member = container.value->MemberBegin()[container.next++];
                writer_.name(stringIn(member.name));
                begin(member.value);
            } else {
                begin(container.value->Begin()[container.next++]);
            }
        }
        return writer_.text();
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
            writer_.beginObject();
            open_.push_back({&value, value.MemberCount(), 0});
        } else if (value.IsArray()) {
            writer_.beginArray();
            open_.push_back({&value, value.Size(), 0});
        } else {
            scalar(value);
        }
    }

    void end() {
        if (open_.back().value->IsObject()) {
            writer_.endObject();
        } else {
            writer_.endArray();
        }
        open_.pop_back();
    }

    void scalar(const JSONValue& value) {
        if (value.IsString()) {
            writer_.string(stringIn(value));
        } else if (value.IsBool()) {
            writer_.boolean(value.GetBool());
        } else if (value.IsInt64()) {
            writer_.integer(value.GetInt64());
        } else if (value.IsUint64()) {
            writer_.unsignedInteger(value.GetUint64());
        } else if (value.IsDouble()) {
            writer_.number(value.GetDouble());
        } else {
            writer_.null();
        }
    }

    static std::string_view stringIn(const JSONValue& value) { return {value.GetString(), value.GetStringLength()}; }

    JSONWriter writer_;
    std::vector<Container> open_;
};

} // namespace

std::map<std::string, std::string> JSONView::toStringMap() const {
    std::map<std::string, std::string> strings;
    for (const auto& member : value_->GetObject()) {
        if (!member.name.IsString()) {
            fail(messages("map-key-string-expected"));
        }
        if (!member.value.IsString()) {
            fail(messages("map-value-string-expected"));
        }
        strings.emplace(JSONView(member.name, factory_).string(), JSONView(member.value, factory_).string());
    }
    return strings;
}

std::string JSONView::toText() const { return ValueWriter().write(*value_); }

void JSONView::fail(const Message& message, std::initializer_list<std::string_view> inserted) const {
    factory_->raise(message, inserted);
}

// NOLINTNEXTLINE(bugprone-throw-keyword-missing): what is made of the factory is no exception
JSON::JSON(std::string_view text, std::shared_ptr<const ExceptionFactory> factory) : factory_(std::move(factory)) {
    if (const auto result = parseText(text, memory_.pool(), value_); result.IsError()) {
        factory_->raise(messages("json-syntax"),
                        {std::to_string(result.Offset()), rapidjson::GetParseError_En(result.Code())});
    }
}

} // namespace Ostra
