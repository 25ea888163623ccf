#include "engine/Engine.h"

#include <parameters/ParametersEngine.h>

namespace Parameters {

using namespace Internal; // the kinds

ParametersEngine::ParametersEngine() : engine_(std::make_unique<Engine>()) {}

ParametersEngine::ParametersEngine(const ParametersEngine& other)
    : engine_(other.engine_ ? std::make_unique<Engine>(*other.engine_) : nullptr) {}

ParametersEngine& ParametersEngine::operator=(const ParametersEngine& other) { return *this = ParametersEngine(other); }

ParametersEngine::ParametersEngine(ParametersEngine&& other) noexcept = default;

ParametersEngine& ParametersEngine::operator=(ParametersEngine&& other) noexcept = default;

ParametersEngine::~ParametersEngine() = default;

Taxon ParametersEngine::getDiscipline(const std::string& typeId) const { return engine_->get<DisciplineKind>(typeId); }

BoolSpec ParametersEngine::getBoolSpec(const std::string& typeId) const { return engine_->get<BoolSpecKind>(typeId); }

GeneralSpec ParametersEngine::getGeneralSpec(const std::string& typeId) const {
    return engine_->get<GeneralSpecKind>(typeId);
}

Taxon ParametersEngine::getGroup(const std::string& typeId) const { return engine_->get<GroupKind>(typeId); }

BoolParameter ParametersEngine::getBoolParameter(const std::string& typeId) const {
    return engine_->get<BoolParameterKind>(typeId);
}

Taxon ParametersEngine::getDomain(const std::string& typeId) const { return engine_->get<DomainKind>(typeId); }

std::map<std::string, Taxon> ParametersEngine::getAllDisciplines() const { return engine_->all<DisciplineKind>(); }

std::map<std::string, BoolSpec> ParametersEngine::getAllBoolSpecs() const { return engine_->all<BoolSpecKind>(); }

std::map<std::string, GeneralSpec> ParametersEngine::getAllGeneralSpecs() const {
    return engine_->all<GeneralSpecKind>();
}

std::map<std::string, Taxon> ParametersEngine::getAllGroups() const { return engine_->all<GroupKind>(); }

std::map<std::string, BoolParameter> ParametersEngine::getAllBoolParameters() const {
    return engine_->all<BoolParameterKind>();
}

std::map<std::string, Taxon> ParametersEngine::getAllDomains() const { return engine_->all<DomainKind>(); }

void ParametersEngine::registerDiscipline(const Taxon& discipline) { engine_->add<DisciplineKind>(discipline); }

void ParametersEngine::registerBoolSpec(const BoolSpec& spec) { engine_->add<BoolSpecKind>(spec); }

void ParametersEngine::registerGeneralSpec(const GeneralSpec& spec) { engine_->add<GeneralSpecKind>(spec); }

void ParametersEngine::registerGroup(const Taxon& group) { engine_->add<GroupKind>(group); }

void ParametersEngine::registerBoolParameter(const BoolParameter& parameter) {
    engine_->add<BoolParameterKind>(parameter);
}

void ParametersEngine::registerDomain(const Taxon& domain) { engine_->add<DomainKind>(domain); }

bool ParametersEngine::isRegistered(const std::string& typeId) const { return engine_->isRegistered(typeId); }

Units::UnitsEngine& ParametersEngine::getUnitsEngine() { return engine_->units(); }

ValueType ParametersEngine::readValueType(const std::string& schemaText) const {
    return engine_->valueTypeOf(schemaText);
}

BoolParameter ParametersEngine::readBoolParameter(const std::string& schemaText) const {
    return engine_->read<BoolParameterKind>(schemaText);
}

std::pair<std::set<std::string>, std::set<std::string>>
ParametersEngine::registerSchema(const std::string& schemaText) {
    return engine_->registerSchema(schemaText);
}

void ParametersEngine::registerSchemas(const std::map<std::string, std::string>& schemas) {
    engine_->registerSchemas(schemas);
}

void ParametersEngine::resolveSchemas() { engine_->resolveSchemas(); }

std::set<std::string> ParametersEngine::getDependencies(const std::string& typeId) const {
    return engine_->dependenciesOf(typeId);
}

std::set<std::string> ParametersEngine::getDependencies(const BoolParameter& parameter) const {
    return engine_->dependenciesOf<BoolParameterKind>(parameter);
}

std::string ParametersEngine::getSchema(const std::string& typeId) const { return engine_->schemaOf(typeId); }

std::string ParametersEngine::getSchema(const BoolParameter& parameter) const {
    return engine_->schemaOf<BoolParameterKind>(parameter);
}

} // namespace Parameters
