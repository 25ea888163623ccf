#include "engine/Engine.h"

#include <parameters/ParametersEngine.h>
#include <parameters/Version.h>

namespace Parameters {

using namespace Internal; // the kinds

ParametersEngine::ParametersEngine() : engine_(std::make_unique<Engine>()) {}

ParametersEngine::ParametersEngine(const ParametersEngine& other)
    : engine_(other.engine_ ? std::make_unique<Engine>(*other.engine_) : nullptr) {}

ParametersEngine& ParametersEngine::operator=(const ParametersEngine& other) { return *this = ParametersEngine(other); }

ParametersEngine::ParametersEngine(ParametersEngine&& other) noexcept = default;

ParametersEngine& ParametersEngine::operator=(ParametersEngine&& other) noexcept = default;

ParametersEngine::~ParametersEngine() = default;

std::string ParametersEngine::libraryVersion() { return PARAMETERS_VERSION; }

Enumeration ParametersEngine::getEnumeration(const std::string& typeId) const {
    return engine_->get<EnumerationKind>(typeId);
}

FloatRange ParametersEngine::getFloatRange(const std::string& typeId) const {
    return engine_->get<FloatRangeKind>(typeId);
}

IntRange ParametersEngine::getIntRange(const std::string& typeId) const { return engine_->get<IntRangeKind>(typeId); }

StringRange ParametersEngine::getStringRange(const std::string& typeId) const {
    return engine_->get<StringRangeKind>(typeId);
}

Taxon ParametersEngine::getDiscipline(const std::string& typeId) const { return engine_->get<DisciplineKind>(typeId); }

BoolSpec ParametersEngine::getBoolSpec(const std::string& typeId) const { return engine_->get<BoolSpecKind>(typeId); }

GeneralSpec ParametersEngine::getGeneralSpec(const std::string& typeId) const {
    return engine_->get<GeneralSpecKind>(typeId);
}

IntSpec ParametersEngine::getIntSpec(const std::string& typeId) const { return engine_->get<IntSpecKind>(typeId); }

MeasurableSpec ParametersEngine::getMeasurableSpec(const std::string& typeId) const {
    return engine_->get<MeasurableSpecKind>(typeId);
}

ReferenceSpec ParametersEngine::getReferenceSpec(const std::string& typeId) const {
    return engine_->get<ReferenceSpecKind>(typeId);
}

StringSpec ParametersEngine::getStringSpec(const std::string& typeId) const {
    return engine_->get<StringSpecKind>(typeId);
}

Taxon ParametersEngine::getGroup(const std::string& typeId) const { return engine_->get<GroupKind>(typeId); }

EnumerationParameter ParametersEngine::getEnumerationParameter(const std::string& typeId) const {
    return engine_->get<EnumerationParameterKind>(typeId);
}

BoolParameter ParametersEngine::getBoolParameter(const std::string& typeId) const {
    return engine_->get<BoolParameterKind>(typeId);
}

IntParameter ParametersEngine::getIntParameter(const std::string& typeId) const {
    return engine_->get<IntParameterKind>(typeId);
}

MeasurableParameter ParametersEngine::getMeasurableParameter(const std::string& typeId) const {
    return engine_->get<MeasurableParameterKind>(typeId);
}

ReferenceParameter ParametersEngine::getReferenceParameter(const std::string& typeId) const {
    return engine_->get<ReferenceParameterKind>(typeId);
}

StringParameter ParametersEngine::getStringParameter(const std::string& typeId) const {
    return engine_->get<StringParameterKind>(typeId);
}

Taxon ParametersEngine::getDomain(const std::string& typeId) const { return engine_->get<DomainKind>(typeId); }

Category ParametersEngine::getCategory(const std::string& typeId) const { return engine_->get<CategoryKind>(typeId); }

std::optional<Enumeration> ParametersEngine::findEnumeration(std::string_view typeId) const {
    return engine_->find<EnumerationKind>(typeId);
}

std::optional<FloatRange> ParametersEngine::findFloatRange(std::string_view typeId) const {
    return engine_->find<FloatRangeKind>(typeId);
}

std::optional<IntRange> ParametersEngine::findIntRange(std::string_view typeId) const {
    return engine_->find<IntRangeKind>(typeId);
}

std::optional<StringRange> ParametersEngine::findStringRange(std::string_view typeId) const {
    return engine_->find<StringRangeKind>(typeId);
}

std::optional<Taxon> ParametersEngine::findDiscipline(std::string_view typeId) const {
    return engine_->find<DisciplineKind>(typeId);
}

std::optional<BoolSpec> ParametersEngine::findBoolSpec(std::string_view typeId) const {
    return engine_->find<BoolSpecKind>(typeId);
}

std::optional<GeneralSpec> ParametersEngine::findGeneralSpec(std::string_view typeId) const {
    return engine_->find<GeneralSpecKind>(typeId);
}

std::optional<IntSpec> ParametersEngine::findIntSpec(std::string_view typeId) const {
    return engine_->find<IntSpecKind>(typeId);
}

std::optional<MeasurableSpec> ParametersEngine::findMeasurableSpec(std::string_view typeId) const {
    return engine_->find<MeasurableSpecKind>(typeId);
}

std::optional<ReferenceSpec> ParametersEngine::findReferenceSpec(std::string_view typeId) const {
    return engine_->find<ReferenceSpecKind>(typeId);
}

std::optional<StringSpec> ParametersEngine::findStringSpec(std::string_view typeId) const {
    return engine_->find<StringSpecKind>(typeId);
}

std::optional<Taxon> ParametersEngine::findGroup(std::string_view typeId) const {
    return engine_->find<GroupKind>(typeId);
}

std::optional<EnumerationParameter> ParametersEngine::findEnumerationParameter(std::string_view typeId) const {
    return engine_->find<EnumerationParameterKind>(typeId);
}

std::optional<BoolParameter> ParametersEngine::findBoolParameter(std::string_view typeId) const {
    return engine_->find<BoolParameterKind>(typeId);
}

std::optional<IntParameter> ParametersEngine::findIntParameter(std::string_view typeId) const {
    return engine_->find<IntParameterKind>(typeId);
}

std::optional<MeasurableParameter> ParametersEngine::findMeasurableParameter(std::string_view typeId) const {
    return engine_->find<MeasurableParameterKind>(typeId);
}

std::optional<ReferenceParameter> ParametersEngine::findReferenceParameter(std::string_view typeId) const {
    return engine_->find<ReferenceParameterKind>(typeId);
}

std::optional<StringParameter> ParametersEngine::findStringParameter(std::string_view typeId) const {
    return engine_->find<StringParameterKind>(typeId);
}

std::optional<Taxon> ParametersEngine::findDomain(std::string_view typeId) const {
    return engine_->find<DomainKind>(typeId);
}

std::optional<Category> ParametersEngine::findCategory(std::string_view typeId) const {
    return engine_->find<CategoryKind>(typeId);
}

std::map<std::string, Enumeration> ParametersEngine::getAllEnumerations() const {
    return engine_->all<EnumerationKind>();
}

std::map<std::string, FloatRange> ParametersEngine::getAllFloatRanges() const { return engine_->all<FloatRangeKind>(); }

std::map<std::string, IntRange> ParametersEngine::getAllIntRanges() const { return engine_->all<IntRangeKind>(); }

std::map<std::string, StringRange> ParametersEngine::getAllStringRanges() const {
    return engine_->all<StringRangeKind>();
}

std::map<std::string, Taxon> ParametersEngine::getAllDisciplines() const { return engine_->all<DisciplineKind>(); }

std::map<std::string, BoolSpec> ParametersEngine::getAllBoolSpecs() const { return engine_->all<BoolSpecKind>(); }

std::map<std::string, GeneralSpec> ParametersEngine::getAllGeneralSpecs() const {
    return engine_->all<GeneralSpecKind>();
}

std::map<std::string, IntSpec> ParametersEngine::getAllIntSpecs() const { return engine_->all<IntSpecKind>(); }

std::map<std::string, MeasurableSpec> ParametersEngine::getAllMeasurableSpecs() const {
    return engine_->all<MeasurableSpecKind>();
}

std::map<std::string, ReferenceSpec> ParametersEngine::getAllReferenceSpecs() const {
    return engine_->all<ReferenceSpecKind>();
}

std::map<std::string, StringSpec> ParametersEngine::getAllStringSpecs() const { return engine_->all<StringSpecKind>(); }

std::map<std::string, Taxon> ParametersEngine::getAllGroups() const { return engine_->all<GroupKind>(); }

std::map<std::string, EnumerationParameter> ParametersEngine::getAllEnumerationParameters() const {
    return engine_->all<EnumerationParameterKind>();
}

std::map<std::string, BoolParameter> ParametersEngine::getAllBoolParameters() const {
    return engine_->all<BoolParameterKind>();
}

std::map<std::string, IntParameter> ParametersEngine::getAllIntParameters() const {
    return engine_->all<IntParameterKind>();
}

std::map<std::string, MeasurableParameter> ParametersEngine::getAllMeasurableParameters() const {
    return engine_->all<MeasurableParameterKind>();
}

std::map<std::string, ReferenceParameter> ParametersEngine::getAllReferenceParameters() const {
    return engine_->all<ReferenceParameterKind>();
}

std::map<std::string, StringParameter> ParametersEngine::getAllStringParameters() const {
    return engine_->all<StringParameterKind>();
}

std::map<std::string, Taxon> ParametersEngine::getAllDomains() const { return engine_->all<DomainKind>(); }

std::map<std::string, Category> ParametersEngine::getAllCategories() const { return engine_->all<CategoryKind>(); }

ArrayView<Enumeration> ParametersEngine::allEnumerations() const { return engine_->view<EnumerationKind>(); }

ArrayView<FloatRange> ParametersEngine::allFloatRanges() const { return engine_->view<FloatRangeKind>(); }

ArrayView<IntRange> ParametersEngine::allIntRanges() const { return engine_->view<IntRangeKind>(); }

ArrayView<StringRange> ParametersEngine::allStringRanges() const { return engine_->view<StringRangeKind>(); }

ArrayView<Taxon> ParametersEngine::allDisciplines() const { return engine_->view<DisciplineKind>(); }

ArrayView<BoolSpec> ParametersEngine::allBoolSpecs() const { return engine_->view<BoolSpecKind>(); }

ArrayView<GeneralSpec> ParametersEngine::allGeneralSpecs() const { return engine_->view<GeneralSpecKind>(); }

ArrayView<IntSpec> ParametersEngine::allIntSpecs() const { return engine_->view<IntSpecKind>(); }

ArrayView<MeasurableSpec> ParametersEngine::allMeasurableSpecs() const { return engine_->view<MeasurableSpecKind>(); }

ArrayView<ReferenceSpec> ParametersEngine::allReferenceSpecs() const { return engine_->view<ReferenceSpecKind>(); }

ArrayView<StringSpec> ParametersEngine::allStringSpecs() const { return engine_->view<StringSpecKind>(); }

ArrayView<Taxon> ParametersEngine::allGroups() const { return engine_->view<GroupKind>(); }

ArrayView<EnumerationParameter> ParametersEngine::allEnumerationParameters() const {
    return engine_->view<EnumerationParameterKind>();
}

ArrayView<BoolParameter> ParametersEngine::allBoolParameters() const { return engine_->view<BoolParameterKind>(); }

ArrayView<IntParameter> ParametersEngine::allIntParameters() const { return engine_->view<IntParameterKind>(); }

ArrayView<MeasurableParameter> ParametersEngine::allMeasurableParameters() const {
    return engine_->view<MeasurableParameterKind>();
}

ArrayView<ReferenceParameter> ParametersEngine::allReferenceParameters() const {
    return engine_->view<ReferenceParameterKind>();
}

ArrayView<StringParameter> ParametersEngine::allStringParameters() const {
    return engine_->view<StringParameterKind>();
}

ArrayView<Taxon> ParametersEngine::allDomains() const { return engine_->view<DomainKind>(); }

ArrayView<Category> ParametersEngine::allCategories() const { return engine_->view<CategoryKind>(); }

std::optional<KindInfo> ParametersEngine::kindOf(std::string_view typeId) const noexcept {
    return engine_->kindOf(typeId);
}

bool ParametersEngine::isPending(std::string_view typeId) const noexcept { return engine_->isPending(typeId); }

std::size_t ParametersEngine::countObjects(KindInfo kind) const noexcept { return engine_->countObjects(kind); }

std::size_t ParametersEngine::countObjects() const noexcept { return engine_->countObjects(std::nullopt); }

ArrayView<Identity> ParametersEngine::dependentsOf(std::string_view typeId) const {
    return engine_->dependentsOf(typeId);
}

void ParametersEngine::registerEnumeration(const Enumeration& enumeration) {
    engine_->add<EnumerationKind>(enumeration);
}

void ParametersEngine::registerFloatRange(const FloatRange& range) { engine_->add<FloatRangeKind>(range); }

void ParametersEngine::registerIntRange(const IntRange& range) { engine_->add<IntRangeKind>(range); }

void ParametersEngine::registerStringRange(const StringRange& range) { engine_->add<StringRangeKind>(range); }

void ParametersEngine::registerDiscipline(const Taxon& discipline) { engine_->add<DisciplineKind>(discipline); }

void ParametersEngine::registerBoolSpec(const BoolSpec& spec) { engine_->add<BoolSpecKind>(spec); }

void ParametersEngine::registerGeneralSpec(const GeneralSpec& spec) { engine_->add<GeneralSpecKind>(spec); }

void ParametersEngine::registerIntSpec(const IntSpec& spec) { engine_->add<IntSpecKind>(spec); }

void ParametersEngine::registerMeasurableSpec(const MeasurableSpec& spec) { engine_->add<MeasurableSpecKind>(spec); }

void ParametersEngine::registerReferenceSpec(const ReferenceSpec& spec) { engine_->add<ReferenceSpecKind>(spec); }

void ParametersEngine::registerStringSpec(const StringSpec& spec) { engine_->add<StringSpecKind>(spec); }

void ParametersEngine::registerGroup(const Taxon& group) { engine_->add<GroupKind>(group); }

void ParametersEngine::registerEnumerationParameter(const EnumerationParameter& parameter) {
    engine_->add<EnumerationParameterKind>(parameter);
}

void ParametersEngine::registerBoolParameter(const BoolParameter& parameter) {
    engine_->add<BoolParameterKind>(parameter);
}

void ParametersEngine::registerIntParameter(const IntParameter& parameter) {
    engine_->add<IntParameterKind>(parameter);
}

void ParametersEngine::registerMeasurableParameter(const MeasurableParameter& parameter) {
    engine_->add<MeasurableParameterKind>(parameter);
}

void ParametersEngine::registerReferenceParameter(const ReferenceParameter& parameter) {
    engine_->add<ReferenceParameterKind>(parameter);
}

void ParametersEngine::registerStringParameter(const StringParameter& parameter) {
    engine_->add<StringParameterKind>(parameter);
}

void ParametersEngine::registerDomain(const Taxon& domain) { engine_->add<DomainKind>(domain); }

void ParametersEngine::registerCategory(const Category& category) { engine_->add<CategoryKind>(category); }

bool ParametersEngine::isRegistered(const std::string& typeId) const { return engine_->isRegistered(typeId); }

bool ParametersEngine::isTaken(std::string_view typeId) const { return engine_->isRegistered(typeId); }

Units::UnitsEngine& ParametersEngine::getUnitsEngine() { return engine_->units(); }

ValueType ParametersEngine::readValueType(const std::string& schemaText) const {
    return engine_->valueTypeOf(schemaText);
}

BoolParameter ParametersEngine::readBoolParameter(const std::string& schemaText) const {
    return engine_->read<BoolParameterKind>(schemaText);
}

IntParameter ParametersEngine::readIntParameter(const std::string& schemaText) const {
    return engine_->read<IntParameterKind>(schemaText);
}

MeasurableParameter ParametersEngine::readMeasurableParameter(const std::string& schemaText) const {
    return engine_->read<MeasurableParameterKind>(schemaText);
}

ReferenceParameter ParametersEngine::readReferenceParameter(const std::string& schemaText) const {
    return engine_->read<ReferenceParameterKind>(schemaText);
}

StringParameter ParametersEngine::readStringParameter(const std::string& schemaText) const {
    return engine_->read<StringParameterKind>(schemaText);
}

std::pair<std::set<std::string>, std::set<std::string>>
ParametersEngine::registerSchema(const std::string& schemaText) {
    return engine_->registerSchema(schemaText);
}

void ParametersEngine::registerSchemas(const std::map<std::string, std::string>& schemas) {
    engine_->registerSchemas(schemas);
}

void ParametersEngine::resolveSchemas() { engine_->resolveSchemas(); }

std::map<std::string, std::string> ParametersEngine::findUnresolvable() const { return engine_->findUnresolvable(); }

std::vector<Fault> ParametersEngine::findFaults(const std::map<std::string, std::string>& texts) const {
    return engine_->findFaults(texts);
}

std::vector<Fault> ParametersEngine::registerSoundSchemas(const std::map<std::string, std::string>& texts) {
    return engine_->registerSoundSchemas(texts);
}

bool ParametersEngine::discardPending(const std::string& typeId) { return engine_->discardPending(typeId); }

std::set<std::string> ParametersEngine::getDependencies(const std::string& typeId) const {
    return engine_->dependenciesOf(typeId);
}

std::set<std::string> ParametersEngine::getDependencies(const BoolParameter& parameter) const {
    return engine_->dependenciesOf<BoolParameterKind>(parameter);
}

std::set<std::string> ParametersEngine::getDependencies(const IntParameter& parameter) const {
    return engine_->dependenciesOf<IntParameterKind>(parameter);
}

std::set<std::string> ParametersEngine::getDependencies(const MeasurableParameter& parameter) const {
    return engine_->dependenciesOf<MeasurableParameterKind>(parameter);
}

std::set<std::string> ParametersEngine::getDependencies(const ReferenceParameter& parameter) const {
    return engine_->dependenciesOf<ReferenceParameterKind>(parameter);
}

std::set<std::string> ParametersEngine::getDependencies(const StringParameter& parameter) const {
    return engine_->dependenciesOf<StringParameterKind>(parameter);
}

std::string ParametersEngine::getSchema(const std::string& typeId) const { return engine_->schemaOf(typeId); }

std::string ParametersEngine::getSchema(const BoolParameter& parameter) const {
    return engine_->schemaOf<BoolParameterKind>(parameter);
}

std::string ParametersEngine::getSchema(const IntParameter& parameter) const {
    return engine_->schemaOf<IntParameterKind>(parameter);
}

std::string ParametersEngine::getSchema(const MeasurableParameter& parameter) const {
    return engine_->schemaOf<MeasurableParameterKind>(parameter);
}

std::string ParametersEngine::getSchema(const ReferenceParameter& parameter) const {
    return engine_->schemaOf<ReferenceParameterKind>(parameter);
}

std::string ParametersEngine::getSchema(const StringParameter& parameter) const {
    return engine_->schemaOf<StringParameterKind>(parameter);
}

} // namespace Parameters
