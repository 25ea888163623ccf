#include "model/Enumeration.h"

#include "model/MakeRef.h"
#include "model/Messages.h"
#include "model/ValidationExceptionFactory.h"
#include "schema/SchemaWriter.h"

#include <parameters/ValidationException.h>

#include <memory>
#include <set>
#include <string>
#include <utility>

namespace Parameters {

namespace {

using Internal::EnumerationData;
using Internal::Texts;

EnumerationData dataOf(std::string_view typeId, const std::vector<std::pair<std::string, std::int64_t>>& values) {
    std::vector<std::string_view> texts{typeId};
    std::vector<std::int64_t> integers;
    texts.reserve(values.size() + 1);
    integers.reserve(values.size());
    for (const auto& [identifier, integer] : values) {
        texts.emplace_back(identifier);
        integers.push_back(integer);
    }
    return {Texts(texts), std::move(integers)};
}

} // namespace

Enumeration::Enumeration(const std::string& typeId, const std::vector<std::pair<std::string, std::int64_t>>& values)
    : data_(Internal::makeRef<EnumerationData>(dataOf(typeId, values))) {}

std::string Enumeration::getTypeId() const { return std::string(typeId()); }

std::string_view Enumeration::typeId() const noexcept { return data_->typeId(); }

std::vector<std::pair<std::string, std::int64_t>> Enumeration::getValues() const {
    std::vector<std::pair<std::string, std::int64_t>> copies;
    copies.reserve(values().size());
    for (const auto [identifier, integer] : values()) {
        copies.emplace_back(identifier, integer);
    }
    return copies;
}

EnumerationValues Enumeration::values() const noexcept { return {data_->texts.from(1), data_->integers.data()}; }

PARAMETERS_COMPARE_BY_TYPEID(Enumeration)

namespace Internal {

namespace {

/// Returns the integer of a value in a schema.
std::int64_t readInteger(std::string_view enumeration, std::string_view identifier, Ostra::JSONView definition) {
    if (identifier.empty()) {
        definition.member("id")->report(EnumerationKind::messages("enumeration-id-empty"), {enumeration});
    }
    const auto& missing = EnumerationKind::messages("enumeration-integer-missing");
    const auto integer = definition.member("value");
    if (!integer) {
        return definition.failLacking({"value", "typedValue"}, missing, {identifier, enumeration});
    }
    if (!integer->isInteger()) {
        return integer->fail(missing, {identifier, enumeration});
    }
    return integer->integer();
}

/// Checks the values of an enumeration made in code.
void check(const EnumerationData& data) {
    if (data.integers.empty()) {
        throw ValidationException(EnumerationKind::messages("given-enumeration-empty").with({}));
    }
    std::set<std::string_view> seen;
    for (std::size_t value = 0; value < data.integers.size(); ++value) {
        const std::string_view identifier = data.identifier(value);
        if (identifier.empty()) {
            throw ValidationException(EnumerationKind::messages("given-enumeration-id-empty").with({}));
        }
        if (!seen.insert(identifier).second) {
            throw ValidationException(messages("value-duplicate").with({identifier}));
        }
    }
}

} // namespace

std::optional<EnumerationKind::Record> EnumerationKind::read(const Ostra::Schema& schema) {
    if (schema.base() != base) {
        return std::nullopt;
    }
    std::vector<std::string_view> texts{schema.typeId()};
    std::vector<std::int64_t> integers;
    for (const auto& [identifier, definition] : schema.properties().sorted()) {
        integers.push_back(readInteger(schema.typeId(), identifier, definition));
        texts.push_back(identifier);
    }
    const auto properties = schema.properties().array();
    if (!properties) {
        static_cast<void>(schema.failUndefinedProperty({}, messages("enumeration-empty"), {schema.typeId()}));
    } else if (properties->size() == 0) {
        properties->report(messages("enumeration-empty"), {schema.typeId()});
    }
    return Record{Texts(texts), std::move(integers)};
}

Enumeration EnumerationKind::build(const Record& record, const Finder& finder, const Enumeration*) {
    if (finder.binds()) {
        check(record); // a text's values have been checked since they were read
    }
    return Access::make<Enumeration>(makeRef<EnumerationData>(record));
}

std::string EnumerationKind::write(const Enumeration& enumeration) {
    const EnumerationData& data = Access::data(enumeration);
    Ostra::SchemaWriter writer(data.typeId(), base, ValidationExceptionFactory::shared());
    for (std::size_t value = 0; value < data.integers.size(); ++value) {
        writer.property(data.identifier(value)).integer(data.integers[value]);
    }
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
