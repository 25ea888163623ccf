#include "schema/Schema.h"

#include "schema/Inspection.h"
#include "schema/Messages.h"

namespace Ostra {

namespace {

std::string_view readTypeId(JSONView schema) {
    const auto typeId = schema.member("typeid");
    if (!typeId) {
        return schema.failLacking({"typeid"}, messages("typeid-missing"));
    }
    if (!typeId->isString()) {
        return typeId->fail(messages("typeid-missing"));
    }
    if (typeId->string().empty()) {
        return typeId->fail(messages("typeid-empty"));
    }
    return typeId->string();
}

/// Returns the one base; an empty text where faults are kept and this has one.
std::string_view readBase(JSONView schema) {
    const auto inherits = schema.member("inherits");
    if (!inherits) {
        return schema.failLacking({"inherits"}, messages("inherits-missing"));
    }
    if (!inherits->isArray()) {
        return inherits->fail(messages("array-expected"));
    }
    std::string_view base;
    inherits->forEachElement([&](JSONView element) {
        base = {};
        if (!element.isString()) {
            element.report(messages("array-of-strings-expected"));
        } else if (element.string().empty()) {
            element.report(messages("array-of-non-empty-strings-expected"));
        } else {
            base = element.string();
        }
    });
    if (inherits->size() != 1) {
        return inherits->fail(messages("single-base-expected"));
    }
    return base;
}

/// Returns the id of a definition, or nothing where faults are kept and this has one.
MaybeView readId(JSONView definition) {
    if (!definition.isObject()) {
        return definition.fail(messages("definition-object-expected")).none();
    }
    const auto id = definition.member("id");
    if (!id) {
        return definition.failLacking({"id"}, messages("definition-id-missing")).none();
    }
    if (!id->isString()) {
        return id->fail(messages("definition-id-string-expected")).none();
    }
    return id;
}

} // namespace

Schema::Schema(const std::string& text, FaultHandler& handler) : document_(text, handler) {
    isReadable_ = document_.isParsed() && readHead();
    if (isReadable_) {
        readDefinitions("constants", constants_);
        readDefinitions("properties", properties_);
    }
}

/// Returns false for what is no schema at all.
bool Schema::readHead() {
    typeId_ = readTypeId(view());
    if (!view().isObject()) {
        return false; // which has been told: it has no typeid
    }
    base_ = readBase(view());
    beginsOnly_ = Identifier::findStart(base_, 1) == std::string_view::npos;
    return !base_.empty();
}

void Schema::readDefinitions(const char* name, Definitions& definitions) const {
    const auto array = view().member(name);
    if (!array) {
        return;
    }
    if (!array->isArray()) {
        array->report(messages("definitions-array-expected"), {name});
        definitions.setFaulty();
        return;
    }
    definitions.begin(*array);
    array->forEachElement([&](JSONView definition) {
        const auto id = readId(definition);
        if (!id) {
            definition.notePassedOver();
        } else if (!definitions.add(id->string(), definition)) {
            id->reportBeside(*definitions.earlier(id->string())->member("id"), messages("definition-duplicate"),
                             {id->string(), name});
            definition.notePassedOver();
        }
    });
}

MaybeView Schema::valueOf(JSONView definition) {
    if (const auto value = definition.member("value")) {
        return value;
    }
    if (const auto typedValue = definition.member("typedValue")) {
        return typedValue;
    }
    return definition.failLacking({"value", "typedValue"}, messages("definition-value-missing")).none();
}

Nothing Schema::failUndefinedConstant(std::string_view id, const Message& message,
                                      std::initializer_list<std::string_view> inserted) const {
    return failUndefined(constants_, "constants", id, message, inserted);
}

Nothing Schema::failUndefinedProperty(std::string_view id, const Message& message,
                                      std::initializer_list<std::string_view> inserted) const {
    return failUndefined(properties_, "properties", id, message, inserted);
}

Nothing Schema::failUndefined(const Definitions& definitions, std::string_view name, std::string_view id,
                              const Message& message, std::initializer_list<std::string_view> inserted) const {
    if (definitions.isFaulty()) {
        return {};
    }
    const auto array = definitions.array();
    return array ? array->failLacking({id}, message, inserted) : view().failLacking({name}, message, inserted);
}

void Schema::tellUnread() const {
    if (!view().isInspected()) {
        return;
    }
    if (view().noteReadWhole(constants_.size() + properties_.size())) {
        return;
    }
    for (const auto* table : {&constants_, &properties_}) {
        const Message& message = table == &constants_ ? messages("constant-unknown") : messages("property-unknown");
        for (const auto& [id, definition] : *table) {
            table->array()->noteIfUnread(definition, *definition.member("id"), message);
        }
    }
}

} // namespace Ostra
