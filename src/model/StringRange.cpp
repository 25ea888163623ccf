#include "model/StringRange.h"

#include "model/MakeRef.h"
#include "model/Messages.h"
#include "model/Writing.h"
#include "schema/Immortal.h"

#include <parameters/ValidationException.h>

#include <memory>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace Parameters {

namespace {

using Internal::Access;
using Internal::StringRangeData;
using Internal::StringRangeKind;
using Internal::Texts;

StringRange rangeOf(StringRangeData data) {
    return Access::make<StringRange>(Internal::makeRef<StringRangeData>(std::move(data)));
}

SetStringRangeComponent setOf(std::span<const std::string_view> values) {
    using Data = Internal::SetStringRangeComponentData;
    return Access::make<SetStringRangeComponent>(Internal::makeRef<Data>(Data{Texts(values)}));
}

RegexStringRangeComponent regexOf(std::string_view regex) {
    using Data = Internal::RegexStringRangeComponentData;
    return Access::make<RegexStringRangeComponent>(Internal::makeRef<Data>(Data{{regex}}));
}

std::string_view regexIn(const RegexStringRangeComponent& component) { return Access::data(component).regex[0]; }

} // namespace

SetStringRangeComponent::SetStringRangeComponent(const std::vector<std::string>& allowedValues)
    : SetStringRangeComponent(setOf(std::vector<std::string_view>(allowedValues.begin(), allowedValues.end()))) {}

std::vector<std::string> SetStringRangeComponent::getAllowedValues() const {
    return {data_->allowedValues.begin(), data_->allowedValues.end()};
}

StringsView SetStringRangeComponent::allowedValues() const noexcept { return data_->allowedValues.from(0); }

RegexStringRangeComponent::RegexStringRangeComponent(const std::string& regex)
    : RegexStringRangeComponent(regexOf(regex)) {}

std::string RegexStringRangeComponent::getRegex() const { return std::string(regex()); }

std::string_view RegexStringRangeComponent::regex() const noexcept { return regexIn(*this); }

StringRange::StringRange() : StringRange(rangeOf({{StringRangeKind::anyBase.full()}, {}})) {}

StringRange::StringRange(const SetStringRangeComponent& set)
    : StringRange(rangeOf({{StringRangeKind::setBase.full()}, set})) {}

StringRange::StringRange(const RegexStringRangeComponent& regex)
    : StringRange(rangeOf({{StringRangeKind::regexBase.full()}, regex})) {}

StringRange::StringRange(const std::string& typeId, const SetStringRangeComponent& set)
    : StringRange(rangeOf({{typeId}, set})) {}

StringRange::StringRange(const std::string& typeId, const RegexStringRangeComponent& regex)
    : StringRange(rangeOf({{typeId}, regex})) {}

std::string StringRange::getTypeId() const { return std::string(typeId()); }

std::string_view StringRange::typeId() const noexcept { return data_->typeId(); }

std::optional<SetStringRangeComponent> StringRange::getSetStringRangeComponent() const noexcept {
    return Internal::copyOf(setStringRangeComponent());
}

const SetStringRangeComponent* StringRange::setStringRangeComponent() const noexcept { return data_->set(); }

std::optional<RegexStringRangeComponent> StringRange::getRegexStringRangeComponent() const noexcept {
    return Internal::copyOf(regexStringRangeComponent());
}

const RegexStringRangeComponent* StringRange::regexStringRangeComponent() const noexcept { return data_->regex(); }

PARAMETERS_COMPARE_BY_TYPEID(StringRange)

namespace Internal {

namespace {

const Texts& allowedValuesIn(const SetStringRangeComponent& component) { return Access::data(component).allowedValues; }

void checkUnique(const StringRangeData& range) {
    const auto* set = range.set();
    if (set == nullptr) {
        return;
    }
    std::set<std::string_view> seen;
    for (const std::string_view value : allowedValuesIn(*set)) {
        if (!seen.insert(value).second) {
            throw ValidationException(messages("value-duplicate").with({value}));
        }
    }
}

void writeAllowedValues(Ostra::SchemaWriter& writer, const SetStringRangeComponent& set) {
    writer.beginArray();
    for (const std::string_view value : allowedValuesIn(set)) {
        writer.string(value);
    }
    writer.endArray();
}

/// Warns of a set that allows nothing at all.
void inspectSet(Ostra::MaybeView allowedValues) {
    if (allowedValues && allowedValues->isArray() && allowedValues->size() == 0) {
        allowedValues->report(messages("range-empty"));
    }
}

StringRange readInlineSet(Ostra::JSONView value) {
    const auto allowedValues = value.member("allowedValues");
    const auto& missing = StringRangeKind::messages("inline-range-values-missing");
    if (!allowedValues) {
        static_cast<void>(value.failLacking({"allowedValues"}, missing));
        return Access::none<StringRange>();
    }
    if (allowedValues->isArray() && allowedValues->size() == 0) {
        allowedValues->report(missing); // an empty set, as no set, would allow nothing at all
    }
    return StringRange(setOf(Ostra::UniqueStrings::read(*allowedValues)));
}

StringRange readInlineRegex(Ostra::JSONView value) {
    const auto regex = value.member("regex");
    if (!regex) {
        static_cast<void>(value.failLacking({"regex"}, StringRangeKind::messages("inline-range-regex-missing")));
        return Access::none<StringRange>();
    }
    return StringRange(regexOf(Ostra::String::read(*regex)));
}

StringRange readInlineDefault(Ostra::JSONView value) {
    if (value.size() != 0) {
        value.report(StringRangeKind::messages("inline-range-not-empty"));
    }
    return StringRange();
}

} // namespace

std::optional<StringRangeKind::Record> StringRangeKind::read(const Ostra::Schema& schema) {
    const Ostra::Constants constants(schema);
    if (schema.inherits(setBase)) {
        if (schema.view().isInspected()) [[unlikely]] {
            inspectSet(constants.find("allowedValues"));
        }
        return Record{{schema.typeId()}, setOf(constants.required<Ostra::UniqueStrings>("allowedValues"))};
    }
    if (schema.inherits(regexBase)) {
        return Record{{schema.typeId()}, regexOf(constants.required<Ostra::String>("regex"))};
    }
    if (schema.inherits(anyBase)) {
        return Record{{schema.typeId()}, {}};
    }
    return std::nullopt;
}

StringRange StringRangeKind::build(const Record& record, const Finder& finder, const StringRange*) {
    if (finder.binds()) {
        checkUnique(record); // a text's values are unique since they were read
    }
    return rangeOf(record);
}

std::string StringRangeKind::write(const StringRange& range) {
    const StringRangeData& data = Access::data(range);
    const auto* set = data.set();
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), set != nullptr ? setBase : regexBase);
    if (set != nullptr) {
        writeAllowedValues(writer.constant("allowedValues"), *set);
    } else {
        const auto* regex = data.regex(); // none: a range without limitation is written as an empty expression
        writer.constant("regex").string(regex != nullptr ? regexIn(*regex) : std::string_view());
    }
    return std::move(writer).finish();
}

RangeReference<StringRange> StringRangeKind::readConstant(const Ostra::Schema& schema,
                                                          const Ostra::Constants& constants) {
    if (const auto typedValue = constants.find("range")) {
        return readRangeConstant<StringRange>(
            schema, *typedValue,
            {{anyBase, &readInlineDefault}, {setBase, &readInlineSet}, {regexBase, &readInlineRegex}});
    }
    static const auto& anyText = Ostra::immortal(StringRange());
    return {std::nullopt, anyText};
}

RangeReference<StringRange> StringRangeKind::referenceTo(const StringRange& range) {
    const std::string_view typeId = typeIdOf(range);
    if (anyBase.isIn(typeId) || setBase.isIn(typeId) || regexBase.isIn(typeId)) {
        return {std::nullopt, range};
    }
    return {typeId, range};
}

void StringRangeKind::writeConstant(Ostra::SchemaWriter& writer, const StringRange& range) {
    const StringRangeData& data = Access::data(range);
    const bool set = data.set() != nullptr && setBase.isIn(data.typeId());
    const bool regex = !set && data.regex() != nullptr && regexBase.isIn(data.typeId());
    if (!set && !regex && anyBase.isIn(data.typeId())) {
        return;
    }
    writer.typedConstant("range").beginTypedValue(data.typeId());
    if (set || regex) {
        writer.name("value");
        writer.beginObject();
        if (set) {
            writer.name("allowedValues");
            writeAllowedValues(writer, *data.set());
        } else {
            writer.name("regex");
            writer.string(regexIn(*data.regex()));
        }
        writer.endObject();
    }
    writer.endObject();
}

void StringRangeKind::check(const StringRange& range) {
    const StringRangeData& data = Access::data(range);
    const std::string_view typeId = data.typeId();
    checkUnique(data);
    if (anyBase.isIn(typeId) && (data.set() != nullptr || data.regex() != nullptr)) {
        throw ValidationException(messages("given-range-limited").with({typeId}));
    }
    if (setBase.isIn(typeId) && (data.set() == nullptr || allowedValuesIn(*data.set()).size() == 0)) {
        throw ValidationException(messages("given-range-values-missing").with({typeId}));
    }
    if (regexBase.isIn(typeId) && data.regex() == nullptr) {
        throw ValidationException(messages("given-range-regex-missing").with({typeId}));
    }
}

} // namespace Internal

} // namespace Parameters
