#include "model/IntParameter.h"

#include "model/Writing.h"

#include <utility>

namespace Parameters {

namespace BuiltIn = Ostra::BuiltIn;

IntParameter::IntParameter(const ParameterCore& core, const IntRange& range)
    : IntParameter(core, Internal::standInOf<Internal::IntSpecKind>(BuiltIn::intSpec.full()), range) {}

IntParameter::IntParameter(const ParameterCore& core, const IntSpec& spec, const IntRange& range)
    : IntParameter(Internal::makeRanged<IntParameter>(Internal::Access::data(core), spec, range)) {}

ParameterCore IntParameter::getCore() const { return Internal::parameterCoreOf(data_); }

IntSpec IntParameter::getSpec() const { return data_->spec; }

IntRange IntParameter::getRange() const { return data_->range; }

PARAMETERS_COMPARE_BY_TYPEID(IntParameter)

namespace Internal {

std::optional<IntParameterKind::Record> IntParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(BuiltIn::intParameter)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto spec = constants.optional<Ostra::TypedValue>("spec", BuiltIn::intSpec.full());
    const auto range = IntRangeKind::readConstant(schema, constants);
    return Record{{schema.typeId(), common, spec, range}, nullptr};
}

IntParameterKind::Record IntParameterKind::recordOf(const IntParameter& parameter) {
    const auto& data = Access::data(parameter);
    return {{data, IntRangeKind::referenceTo(data.range)}, &data.spec};
}

IntParameter IntParameterKind::build(const Record& record, const Finder& finder) {
    const auto findSpec = [&] {
        return finder.requireOrStandIn<IntSpecKind>(record.spec(), record.typeId(), record.givenSpec);
    };
    auto core = buildParameterCore(record, finder);
    // Of two things missing, resolution names the spec, binding the range.
    if (finder.binds()) {
        const auto range = record.findRange<IntRangeKind>(finder);
        return makeRanged<IntParameter>(std::move(core), findSpec(), range);
    }
    const auto spec = findSpec();
    return makeRanged<IntParameter>(std::move(core), spec, record.findRange<IntRangeKind>(finder));
}

std::string IntParameterKind::write(const IntParameter& parameter) {
    const auto& [core, spec, range] = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), BuiltIn::intParameter);
    writeParameterConstants(writer, core);
    writeSpecConstant(writer, typeIdOf(spec), BuiltIn::intSpec.full());
    IntRangeKind::writeConstant(writer, range);
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
