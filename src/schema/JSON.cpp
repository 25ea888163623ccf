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

/// Writes a value with a stack of its own rather than the program's.
class ValueWriter {
public:
    std::string write(const JSONValue& root) {
        begin(root);
        while (!open_.empty()) {
            Container& container = open_.back();
            if (container.next == container.value->next()) {
                end();
                continue;
            }
            const JSONValue* value = container.next;
            if (container.value->isObject()) {
                writer_.name(value->string());
                value = value->next();
            }
            container.next = value->next();
            begin(*value);
        }
        return writer_.text();
    }

private:
    /// A container whose members or elements before the next one are written.
    struct Container {
        const JSONValue* value;
        const JSONValue* next;
    };

    void begin(const JSONValue& value) {
        if (value.isContainer()) {
            value.isObject() ? writer_.beginObject() : writer_.beginArray();
            open_.push_back({&value, value.first()});
        } else {
            scalar(value);
        }
    }

    void end() {
        open_.back().value->isObject() ? writer_.endObject() : writer_.endArray();
        open_.pop_back();
    }

    void scalar(const JSONValue& value) {
        if (value.isString()) {
            writer_.string(value.string());
        } else if (value.isBoolean()) {
            writer_.boolean(value.boolean());
        } else if (value.isInteger()) {
            writer_.integer(value.integer());
        } else if (value.isUnsignedInteger()) {
            writer_.unsignedInteger(value.unsignedInteger());
        } else if (value.isReal()) {
            writer_.number(value.number());
        } else {
            writer_.null();
        }
    }

    JSONWriter writer_;
    std::vector<Container> open_;
};

} // namespace

std::map<std::string, std::string> JSONView::toStringMap() const {
    std::map<std::string, std::string> strings;
    const JSONValue* const end = value_->next();
    for (const JSONValue* name = value_->first(); name != end; name = name->next()->next()) {
        if (!name->isString()) {
            return fail(messages("map-key-string-expected"));
        }
        if (!name->next()->isString()) {
            return fail(messages("map-value-string-expected"));
        }
        strings.emplace(name->string(), name->next()->string());
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

void JSONView::noteLook(std::string_view name, const JSONValue* found) const {
    handler_->inspection()->looked(*value_, name, found);
}

void JSONView::noteName() const { handler_->inspection()->named(*value_); }

JSON::JSON(const std::string& text, FaultHandler& handler) : handler_(handler) {
    const ParsedText parsed = parseText(text, tape_, arena_);
    isParsed_ = !parsed.result.IsError();
    if (!isParsed_) {
        tape_.clear();
        tape_.null(); // stands for the document
    }
    if (Inspection* const inspection = handler.inspection()) {
        inspection->begin(text, parsed, tape_.root());
    }
    if (!isParsed_) {
        handler.handle(
            {.message = messages("json-syntax"),
             .inserted = {std::to_string(parsed.result.Offset()), rapidjson::GetParseError_En(parsed.result.Code())},
             .value = tape_.root(),
             .offset = parsed.result.Offset()});
    }
}

} // namespace Ostra
