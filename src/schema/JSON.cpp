#include "schema/JSON.h"

#include "schema/Inspection.h"
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
            return fail(messages("map-key-string-expected"));
        }
        if (!member.value.IsString()) {
            return fail(messages("map-value-string-expected"));
        }
        strings.emplace(JSONView(member.name, *handler_).string(), JSONView(member.value, *handler_).string());
    }
    return strings;
}

std::string JSONView::toText() const { return ValueWriter().write(*value_); }

Nothing JSONView::failLacking(std::initializer_list<std::string_view> names, const Message& message,
                              std::initializer_list<std::string_view> inserted) const {
    handler_->handle({message, inserted, *value_, names});
    return {};
}

void JSONView::report(const Message& message, std::initializer_list<std::string_view> inserted) const {
    handler_->handle({message, inserted, *value_});
}

void JSONView::reportBeside(JSONView other, const Message& message,
                            std::initializer_list<std::string_view> inserted) const {
    handler_->handle({message, inserted, *value_, {}, other.value_});
}

void JSONView::noteRead() const {
    if (isInspected()) {
        handler_->inspection()->read(*value_);
    }
}

void JSONView::noteLookForDefinition(std::string_view id, MaybeView found) const {
    handler_->inspection()->lookedForDefinition(*value_, id);
    if (found) {
        found->noteRead();
    }
}

void JSONView::noteIfUnread(JSONView definition, JSONView id, const Message& message) const {
    if (!handler_->inspection()->isRead(*id.value_)) {
        handler_->inspection()->unread(*value_, *definition.value_, *id.value_, message);
    }
}

bool JSONView::noteReadWhole(std::size_t definitions) const {
    handler_->inspection()->readAll(definitions);
    return handler_->inspection()->isAllMarked();
}

void JSONView::notePassedOver() const {
    if (isInspected()) {
        handler_->inspection()->passOver(*value_);
    }
}

void JSONView::noteLook(std::string_view name, const JSONMember* found) const {
    handler_->inspection()->looked(*value_, name, found);
}

void JSONView::noteName() const { handler_->inspection()->named(*value_); }

JSON::JSON(std::string_view text, FaultHandler& handler) : handler_(handler) {
    const ParsedText parsed = parseText(text, memory_.pool(), value_);
    if (Inspection* const inspection = handler.inspection()) {
        inspection->begin(text, parsed, value_);
    }
    if (parsed.result.IsError()) {
        isParsed_ = false;
        handler.handle(
            {.message = messages("json-syntax"),
             .inserted = {std::to_string(parsed.result.Offset()), rapidjson::GetParseError_En(parsed.result.Code())},
             .value = value_,
             .offset = parsed.result.Offset()});
    }
}

} // namespace Ostra
