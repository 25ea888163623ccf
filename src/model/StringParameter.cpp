#include "model/StringParameter.h"

#include "model/Writing.h"
#include "schema/BuiltIn.h"

#include <utility>

namespace Parameters {

namespace BuiltIn = Ostra::BuiltIn;

StringParameter::StringParameter(const ParameterCore& core, const StringRange& range)
    : StringParameter(core, Internal::standInOf<Internal::StringSpecKind>(BuiltIn::stringSpec.full()), range) {}

StringParameter::StringParameter(const ParameterCore& core, const StringSpec& spec, const StringRange& range)
    : StringParameter(Internal::makeRanged<StringParameter>(Internal::Access::data(core), spec, range)) {}

ParameterCore StringParameter::getCore() const { return Internal::parameterCoreOf(data_); }

StringSpec StringParameter::getSpec() const { return data_->spec; }

StringRange StringParameter::getRange() const { return data_->range; }

PARAMETERS_COMPARE_BY_TYPEID(StringParameter)

namespace Internal {

std::optional<StringParameterKind::Record> StringParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(BuiltIn::stringParameter)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto spec = constants.optional<Ostra::TypedValue>("spec", BuiltIn::stringSpec.full());
    return Record(schema.typeId(), common, spec, StringRangeKind::readConstant(schema, constants));
}

StringParameterKind::Record StringParameterKind::recordOf(const StringParameter& parameter) {
    const auto& data = Access::data(parameter);
    return {data, StringRangeKind::referenceTo(data.range)};
}

StringParameter StringParameterKind::build(const Record& record, const Finder& finder) {
    const auto findSpec = [&] { return finder.requireOrUsualStandIn<StringSpecKind>(record.spec(), record.typeId()); };
    auto core = buildParameterCore(record, finder);
    // Of two things missing, resolution names the spec, binding the range.
    if (finder.binds()) {
        if (!Access::isNone(record.ownRange)) {
            StringRangeKind::check(record.ownRange);
        }
        const auto range = record.findRange<StringRangeKind>(finder);
        return makeRanged<StringParameter>(std::move(core), findSpec(), range);
    }
    const auto spec = findSpec();
    return makeRanged<StringParameter>(std::move(core), spec, record.findRange<StringRangeKind>(finder));
}

std::string StringParameterKind::write(const StringParameter& parameter) {
    const auto& [core, spec, range] = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), BuiltIn::stringParameter);
    writeParameterConstants(writer, core);
    writeSpecConstant(writer, typeIdOf(spec), BuiltIn::stringSpec.full());
    StringRangeKind::writeConstant(writer, range);
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
