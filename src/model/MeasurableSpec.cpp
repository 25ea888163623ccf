#include "model/MeasurableSpec.h"

#include "model/MakeRef.h"
#include "model/Writing.h"
#include "schema/Constants.h"

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace {

MeasurableSpec specOf(Internal::MeasurableSpecData data) {
    return Internal::Access::make<MeasurableSpec>(Internal::makeRef<Internal::MeasurableSpecData>(std::move(data)));
}

} // namespace

MeasurableSpec::MeasurableSpec(const SpecCore& core, const std::vector<Units::Unit>& applicableUnits,
                               const Units::Unit& storageUnit)
    : MeasurableSpec(specOf({Internal::Access::data(core), applicableUnits, storageUnit})) {}

SpecCore MeasurableSpec::getCore() const noexcept { return core_; }

std::vector<Units::Unit> MeasurableSpec::getApplicableUnits() const {
    return {applicableUnits().begin(), applicableUnits().end()};
}

ArrayView<Units::Unit> MeasurableSpec::applicableUnits() const noexcept {
    const auto& units = Internal::Access::data(*this).applicableUnits;
    return {units.data(), units.size()};
}

Units::Unit MeasurableSpec::getStorageUnit() const { return storageUnit(); }

const Units::Unit& MeasurableSpec::storageUnit() const noexcept { return Internal::Access::data(*this).storageUnit; }

PARAMETERS_COMPARE_BY_TYPEID(MeasurableSpec)

namespace Internal {

namespace {

struct FoundUnits {
    std::optional<Units::Unit> storage; // none where it is not there
    std::vector<Units::Unit> applicable;
};

FoundUnits findUnits(const MeasurableSpecKind::Record& record, const Finder& finder) {
    FoundUnits found{finder.requireUnit(record.storageUnit(), "for storageUnit", record.typeId()), {}};
    found.applicable.reserve(record.applicableUnits());
    for (std::size_t place = 0; place < record.applicableUnits(); ++place) {
        if (const auto unit = finder.requireUnit(record.applicableUnit(place), "in applicableUnits", record.typeId())) {
            found.applicable.push_back(*unit);
        }
    }
    return found;
}

} // namespace

std::optional<MeasurableSpecKind::Record> MeasurableSpecKind::read(const Ostra::Schema& schema) {
    if (!schema.inherits(base)) {
        return std::nullopt;
    }
    const Ostra::Constants constants(schema);
    const auto common = SpecConstants::read(constants);
    auto units = constants.optional<Ostra::TypedValues>("applicableUnits", {});
    units.push_back(constants.required<Ostra::TypedValue>("storageUnit"));
    return Record(schema.typeId(), common, units);
}

MeasurableSpecKind::Record MeasurableSpecKind::recordOf(const MeasurableSpec& spec) {
    const auto& data = Access::data(spec);
    std::vector<std::string> typeIds;
    for (const Units::Unit& unit : data.applicableUnits) {
        typeIds.push_back(unit.getTypeId());
    }
    typeIds.push_back(data.storageUnit.getTypeId());
    return Record(data, std::vector<std::string_view>(typeIds.begin(), typeIds.end()));
}

MeasurableSpec MeasurableSpecKind::build(const Record& record, const Finder& finder, const MeasurableSpec* given) {
    auto [units, core] = findBoth(
        finder, [&] { return findUnits(record, finder); },
        [&] { return buildSpecCore(record, finder, given != nullptr ? &Access::data(*given) : nullptr); });
    return units.storage ? specOf({std::move(core), std::move(units.applicable), *units.storage})
                         : Access::none<MeasurableSpec>();
}

std::string MeasurableSpecKind::write(const MeasurableSpec& spec) {
    const auto& data = Access::data(spec);
    Ostra::SchemaWriter writer = schemaWriter(data.typeId(), base);
    writeSpecConstants(writer, data);
    if (!data.applicableUnits.empty()) {
        writer.typedConstant("applicableUnits").beginArray();
        for (const Units::Unit& unit : data.applicableUnits) {
            writer.typedValue(unit.getTypeId());
        }
        writer.endArray();
    }
    writer.typedConstant("storageUnit").typedValue(data.storageUnit.getTypeId());
    return std::move(writer).finish();
}

} // namespace Internal

} // namespace Parameters
