#include "model/MeasurableSpec.h"

#include "model/Writing.h"
#include "schema/BuiltIn.h"
#include "schema/Constants.h"

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace BuiltIn = Ostra::BuiltIn;

namespace {

MeasurableSpec specOf(Internal::MeasurableSpecData data) {
    return Internal::Access::make<MeasurableSpec>(
        std::make_shared<const Internal::MeasurableSpecData>(std::move(data)));
}

} // namespace

MeasurableSpec::MeasurableSpec(const SpecCore& core, const std::vector<Units::Unit>& applicableUnits,
                               const Units::Unit& storageUnit)
    : MeasurableSpec(specOf({Internal::Access::data(core), applicableUnits, storageUnit})) {}

SpecCore MeasurableSpec::getCore() const { return Internal::specCoreOf(data_); }

std::vector<Units::Unit> MeasurableSpec::getApplicableUnits() const { return data_->applicableUnits; }

Units::Unit MeasurableSpec::getStorageUnit() const { return data_->storageUnit; }

PARAMETERS_COMPARE_BY_TYPEID(MeasurableSpec)

namespace Internal {

namespace {

struct FoundUnits {
    Units::Unit storage;
    std::vector<Units::Unit> applicable;
};

FoundUnits findUnits(const MeasurableSpecKind::Record& record, const Finder& finder) {
    FoundUnits found{finder.requireUnit(record.units[0], "for storageUnit", record.typeId()), {}};
    found.applicable.reserve(record.units.size() - 1);
    for (std::size_t i = 1; i < record.units.size(); ++i) {
        found.applicable.push_back(finder.requireUnit(record.units[i], "in applicableUnits", record.typeId()));
    }
    return found;
}

MeasurableSpec specOf(SpecCoreData core, FoundUnits units) {
    return Parameters::specOf({std::move(core), std::move(units.applicable), units.storage});
}

} // namespace

std::optional<MeasurableSpecKind::Record> MeasurableSpecKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(BuiltIn::measurableSpec)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto [name, discipline] = SpecConstants::read(constants);
    auto units = constants.optional<Ostra::TypedValues>("applicableUnits", {});
    units.insert(units.begin(), constants.required<Ostra::TypedValue>("storageUnit"));
    // Made before the record: g++ 12 destroys the first part of a record twice when making the second one throws.
    const Texts unitTexts(units);
    return Record{{{schema.typeId(), name}, {discipline}, std::nullopt}, unitTexts};
}

MeasurableSpecKind::Record MeasurableSpecKind::recordOf(const MeasurableSpec& spec) {
    const auto& [core, applicableUnits, storageUnit] = Access::data(spec);
    std::vector<std::string> typeIds{storageUnit.getTypeId()};
    for (const Units::Unit& unit : applicableUnits) {
        typeIds.push_back(unit.getTypeId());
    }
    const Texts units(std::vector<std::string_view>(typeIds.begin(), typeIds.end()));
    return {{core.texts, {typeIdOf(core.discipline)}, core.discipline}, units};
}

MeasurableSpec MeasurableSpecKind::build(const Record& record, const Finder& finder) {
    // Of two things missing, resolution names the unit, binding the discipline.
    if (finder.binds()) {
        auto core = buildSpecCore(record, finder);
        return specOf(std::move(core), findUnits(record, finder));
    }
    auto units = findUnits(record, finder);
    return specOf(buildSpecCore(record, finder), std::move(units));
}

std::string MeasurableSpecKind::write(const MeasurableSpec& spec) {
    const auto& [core, applicableUnits, storageUnit] = Access::data(spec);
    Ostra::SchemaWriter writer = schemaWriter(core.typeId(), BuiltIn::measurableSpec);
    writeSpecConstants(writer, core);
    if (!applicableUnits.empty()) {
        writer.typedConstant("applicableUnits").beginArray();
        for (const Units::Unit& unit : applicableUnits) {
            writer.typedValue(unit.getTypeId());
        }
        writer.endArray();
    }
    writer.typedConstant("storageUnit").typedValue(storageUnit.getTypeId());
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
