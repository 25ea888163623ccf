#include "model/BoolParameter.h"

#include "model/Writing.h"

#include <memory>
#include <utility>

namespace Parameters {

BoolParameter::BoolParameter(const ParameterCore& core)
    : BoolParameter(core, Internal::standInOf<Internal::BoolSpecKind>()) {}

BoolParameter::BoolParameter(const ParameterCore& core, const BoolSpec& spec)
    : BoolParameter(std::make_shared<const Internal::BoolParameterData>(
          Internal::BoolParameterData{Internal::Access::data(core), spec})) {}

ParameterCore BoolParameter::getCore() const { return Internal::parameterCoreOf(data_); }

BoolSpec BoolParameter::getSpec() const { return data_->spec; }

PARAMETERS_COMPARE_BY_TYPEID(BoolParameter)

namespace Internal {

std::optional<ParameterRecord> BoolParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto spec = constants.optional<Ostra::TypedValue>("spec", BoolSpecKind::base.full());
    return Record(schema.typeId(), common, spec);
}

ParameterRecord BoolParameterKind::recordOf(const BoolParameter& parameter) {
    const auto& [core, spec] = Access::data(parameter);
    return Record(core, typeIdOf(spec));
}

BoolParameter BoolParameterKind::build(const Record& record, const Finder& finder, const BoolParameter* given) {
    auto core = buildParameterCore(record, finder);
    const auto spec = finder.requireOrStandIn<BoolSpecKind>(record.spec(), record.typeId(),
                                                            given != nullptr ? &Access::data(*given).spec : nullptr);
    return Access::make<BoolParameter>(
        std::make_shared<const BoolParameterData>(BoolParameterData{std::move(core), spec}));
}

std::string BoolParameterKind::write(const BoolParameter& parameter) {
    const auto& [core, spec] = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), base);
    writeParameterConstants(writer, core);
    writeSpecConstant<BoolSpecKind>(writer, spec);
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
