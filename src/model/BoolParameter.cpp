#include "model/BoolParameter.h"

#include "model/Writing.h"
#include "schema/BuiltIn.h"

#include <memory>
#include <utility>

namespace Parameters {

namespace BuiltIn = Ostra::BuiltIn;

BoolParameter::BoolParameter(const ParameterCore& core)
    : BoolParameter(core, Internal::standInOf<Internal::BoolSpecKind>(BuiltIn::boolSpec.full())) {}

BoolParameter::BoolParameter(const ParameterCore& core, const BoolSpec& spec)
    : BoolParameter(std::make_shared<const Internal::BoolParameterData>(
          Internal::BoolParameterData{Internal::Access::data(core), spec})) {}

ParameterCore BoolParameter::getCore() const { return Internal::parameterCoreOf(data_); }

BoolSpec BoolParameter::getSpec() const { return data_->spec; }

PARAMETERS_COMPARE_BY_TYPEID(BoolParameter)

namespace Internal {

std::optional<BoolParameterKind::Record> BoolParameterKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(BuiltIn::boolParameter)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = ParameterConstants::read(constants);
    const auto spec = constants.optional<Ostra::TypedValue>("spec", BuiltIn::boolSpec.full());
    return Record{{common.texts(schema.typeId()), {common.group, spec}, common.readOnly}, nullptr};
}

BoolParameterKind::Record BoolParameterKind::recordOf(const BoolParameter& parameter) {
    const auto& [core, spec] = Access::data(parameter);
    return {{core.texts, {typeIdOf(core.group), typeIdOf(spec)}, core.readOnly}, &spec};
}

BoolParameter BoolParameterKind::build(const Record& record, const Finder& finder) {
    auto core = buildParameterCore(record, finder);
    const auto spec = finder.requireOrStandIn<BoolSpecKind>(record.spec(), record.typeId(), record.givenSpec);
    return Access::make<BoolParameter>(
        std::make_shared<const BoolParameterData>(BoolParameterData{std::move(core), spec}));
}

std::string BoolParameterKind::write(const BoolParameter& parameter) {
    const auto& [core, spec] = Access::data(parameter);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), BuiltIn::boolParameter);
    writeParameterConstants(writer, core);
    writeSpecConstant(writer, typeIdOf(spec), BuiltIn::boolSpec.full());
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
