#include "model/MeasurableParameter.h"

#include "model/Writing.h"
#include "schema/BuiltIn.h"

#include <utility>

namespace Parameters {

MeasurableParameter::MeasurableParameter(const ParameterCore& core, const MeasurableSpec& spec, const FloatRange& range)
    : MeasurableParameter(Internal::makeRanged<MeasurableParameter>(Internal::Access::data(core), spec, range)) {}

ParameterCore MeasurableParameter::getCore() const { return Internal::parameterCoreOf(data_); }

MeasurableSpec MeasurableParameter::getSpec() const { return data_->spec; }

FloatRange MeasurableParameter::getRange() const { return data_->range; }

PARAMETERS_COMPARE_BY_TYPEID(MeasurableParameter)

namespace Internal {

std::optional<MeasurableParameterKind::Record> MeasurableParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(Ostra::BuiltIn::measurableParameter)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto spec = constants.required<Ostra::TypedValue>("spec");
    return Record(schema.typeId(), common, spec, FloatRangeKind::readConstant(schema, constants));
}

MeasurableParameterKind::Record MeasurableParameterKind::recordOf(const MeasurableParameter& parameter) {
    const auto& data = Access::data(parameter);
    return {data, FloatRangeKind::referenceTo(data.range)};
}

MeasurableParameter MeasurableParameterKind::build(const Record& record, const Finder& finder) {
    auto core = buildParameterCore(record, finder);
    const auto spec = finder.require<MeasurableSpecKind>(record.spec(), record.typeId());
    const auto range = record.findRange<FloatRangeKind>(finder);
    return makeRanged<MeasurableParameter>(std::move(core), spec, range);
}

std::string MeasurableParameterKind::write(const MeasurableParameter& parameter) {
    const auto& [core, spec, range] = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), Ostra::BuiltIn::measurableParameter);
    writeParameterConstants(writer, core);
    writeSpecConstant(writer, typeIdOf(spec));
    FloatRangeKind::writeConstant(writer, range);
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
