#include "model/BoolParameter.h"

#include "model/Writing.h"

#include <utility>

namespace Parameters {

BoolParameter::BoolParameter(const ParameterCore& core)
    : BoolParameter(core, Internal::standInOf<Internal::BoolSpecKind>()) {}

BoolParameter::BoolParameter(const ParameterCore& core, const BoolSpec& spec)
    : BoolParameter(Internal::BoolParameterKind::make(core, spec)) {}

ParameterCore BoolParameter::getCore() const noexcept { return core_; }

BoolSpec BoolParameter::getSpec() const noexcept { return spec(); }

const BoolSpec& BoolParameter::spec() const noexcept { return Internal::Access::data(*this).spec; }

PARAMETERS_COMPARE_BY_TYPEID(BoolParameter)

namespace Internal {

std::optional<BoolParameterKind::Record> BoolParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto spec = constants.optional<Ostra::TypedValue>("spec", BoolSpecKind::base.full());
    return recordFrom(schema, common, {common.group, spec}, Access::none<BoolSpec>());
}

BoolParameterKind::Record BoolParameterKind::recordOf(const BoolParameter& parameter) {
    const auto& data = Access::data(parameter);
    return {Access::share(parameter), {typeIdOf(data.group), typeIdOf(data.spec)}};
}

BoolParameterKind::Links BoolParameterKind::find(const Data& data, const References& named, const Finder& finder,
                                                 const BoolParameter* given) {
    return Links{findGroup(data, named, finder),
                 finder.requireOrStandIn<BoolSpecKind>(named.spec(), data.typeId(),
                                                       given != nullptr ? &Access::data(*given).spec : nullptr)};
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
