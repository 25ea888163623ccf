#include "model/BoolParameter.h"

#include "model/MakeRef.h"
#include "model/Writing.h"

#include <memory>
#include <utility>

namespace Parameters {

namespace {

BoolParameter parameterOf(Internal::BoolParameterData data) {
    return Internal::Access::make<BoolParameter>(Internal::makeRef<Internal::BoolParameterData>(std::move(data)));
}

} // namespace

BoolParameter::BoolParameter(const ParameterCore& core)
    : BoolParameter(core, Internal::standInOf<Internal::BoolSpecKind>()) {}

BoolParameter::BoolParameter(const ParameterCore& core, const BoolSpec& spec)
    : BoolParameter(parameterOf({Internal::Access::data(core), spec})) {}

ParameterCore BoolParameter::getCore() const noexcept { return core_; }

BoolSpec BoolParameter::getSpec() const noexcept { return spec(); }

const BoolSpec& BoolParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

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
    const auto& data = Access::data(parameter);
    return Record(data, typeIdOf(data.spec));
}

BoolParameter BoolParameterKind::build(const Record& record, const Finder& finder, const BoolParameter* given) {
    auto core = buildParameterCore(record, finder);
    const auto spec = finder.requireOrStandIn<BoolSpecKind>(record.spec(), record.typeId(),
                                                            given != nullptr ? &Access::data(*given).spec : nullptr);
    return parameterOf({std::move(core), spec});
}

std::string BoolParameterKind::write(const BoolParameter& parameter) {
    const auto& data = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
    writeParameterConstants(writer, data);
    writeSpecConstant<BoolSpecKind>(writer, data.spec);
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
