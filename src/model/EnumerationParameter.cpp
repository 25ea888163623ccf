#include "model/EnumerationParameter.h"

#include "model/Writing.h"
#include "schema/Constants.h"

#include <string>
#include <utility>

namespace Parameters {

EnumerationParameter::EnumerationParameter(const ParameterCore& core, const GeneralSpec& spec,
                                           const Enumeration& enumeration)
    : EnumerationParameter(Internal::EnumerationParameterKind::make(core, spec, enumeration)) {}

ParameterCore EnumerationParameter::getCore() const noexcept { return core_; }

GeneralSpec EnumerationParameter::getSpec() const noexcept { return spec(); }

const GeneralSpec& EnumerationParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

Enumeration EnumerationParameter::getEnumeration() const noexcept { return enumeration(); }

const Enumeration& EnumerationParameter::enumeration() const noexcept {
    return Internal::Access::data(*this).enumeration;
}

PARAMETERS_COMPARE_BY_TYPEID(EnumerationParameter)

namespace Internal {

namespace {

/// Returns the definition's "typedValue" if it has one, else its "value". Unlike a constant that is plainly typed, the
/// "value" beside a "typedValue" is an inline value.
Ostra::MaybeView typedValueIn(Ostra::JSONView definition) {
    const auto typedValue = definition.member("typedValue");
    return typedValue ? typedValue : definition.member("value");
}

bool isEmptyObject(Ostra::JSONView value) { return value.isObject() && value.size() == 0; }

std::string_view readSpecTypeId(const Ostra::Schema& schema, Ostra::JSONView typedValue) {
    const auto& missing = EnumerationParameterKind::messages("spec-typeid-missing");
    const auto spec = typedValue.member("typeid");
    if (!spec) {
        return typedValue.failLacking({"typeid"}, missing, {schema.typeId()});
    }
    if (!spec->isString() || spec->string().empty()) {
        return spec->fail(missing, {schema.typeId()});
    }
    spec->noteReference();
    return spec->string();
}

/// Returns the typeid of the general spec.
std::string_view readSpec(const Ostra::Schema& schema) {
    const auto definition = schema.constants().find("spec");
    if (!definition) {
        return schema.failUndefinedConstant("spec", EnumerationParameterKind::messages("spec-undefined"),
                                            {schema.typeId()});
    }
    const auto typedValue = typedValueIn(*definition);
    if (!typedValue) {
        return definition->failLacking({"typedValue", "value"},
                                       EnumerationParameterKind::messages("spec-value-missing"));
    }
    const std::string_view spec = readSpecTypeId(schema, *typedValue);
    const auto beside = definition->hasMember("typedValue") ? definition->member("value") : std::nullopt;
    const auto inside = typedValue->member("value");
    for (const auto& value : {beside, inside}) {
        if (value && !isEmptyObject(*value)) {
            value->report(EnumerationParameterKind::messages("spec-value-misplaced"), {schema.typeId()});
        }
    }
    return spec;
}

/// Returns the typeid of the enumeration.
std::string_view readEnumeration(const Ostra::Schema& schema) {
    const auto definition = schema.properties().find("value");
    if (!definition) {
        return schema.failUndefinedProperty("value", EnumerationParameterKind::messages("value-property-undefined"),
                                            {schema.typeId()});
    }
    const auto typedValue = typedValueIn(*definition);
    if (!typedValue) {
        static_cast<void>(Ostra::Schema::valueOf(*definition)); // fails: it has neither
        return {};
    }
    const auto enumeration = typedValue->member("typeid");
    if (!enumeration) {
        return typedValue->failLacking({"typeid"}, EnumerationParameterKind::messages("value-property-typeid-missing"),
                                       {schema.typeId()});
    }
    return Ostra::readTypeId(*enumeration);
}

} // namespace

std::optional<EnumerationParameterKind::Record> EnumerationParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const auto common = ParameterConstants::read(Ostra::Constants(schema));
    const auto spec = readSpec(schema);
    const auto enumeration = readEnumeration(schema);
    return recordFrom(schema, common, {common.group, spec, enumeration}, Access::none<GeneralSpec>(),
                      Access::none<Enumeration>());
}

EnumerationParameterKind::Record EnumerationParameterKind::recordOf(const EnumerationParameter& parameter) {
    const auto& data = Access::data(parameter);
    return {Access::share(parameter), {typeIdOf(data.group), typeIdOf(data.spec), typeIdOf(data.enumeration)}};
}

EnumerationParameterKind::Links EnumerationParameterKind::find(const Data& data, const References& named,
                                                               const Finder& finder, const EnumerationParameter*) {
    const auto group = findGroup(data, named, finder);
    const auto [spec, enumeration] = findBoth(
        finder, [&] { return finder.require<GeneralSpecKind>(named.spec(), data.typeId()); },
        [&] { return finder.require<EnumerationKind>(*named.added(), data.typeId()); });
    return Links{group, spec, enumeration};
}

std::string EnumerationParameterKind::write(const EnumerationParameter& parameter) {
    const auto& data = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
    writeParameterConstants(writer, data);
    writeSpecConstant<GeneralSpecKind>(writer, data.spec);
    writer.typedProperty("value").typedValue(typeIdOf(data.enumeration));
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
