#pragma once

#include "model/SpecCore.h"
#include "schema/Schema.h"

#include <parameters/MeasurableSpec.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

struct MeasurableSpecData : SpecCoreData {
    std::vector<Units::Unit> applicableUnits;
    Units::Unit storageUnit;
};

struct MeasurableSpecKind : DescribedKind<Kinds::MeasurableSpec> {
    using Names = KindList<DisciplineKind>;
    struct Record : SpecRecord {
        Texts units; // typeids: applicable units and storage unit, as they are read

        Record(std::string_view typeId, const SpecConstants& constants, std::span<const std::string_view> named)
            : SpecRecord(typeId, constants), units(named) {}
        Record(const SpecCoreData& core, std::span<const std::string_view> named) : SpecRecord(core), units(named) {}

        std::string_view storageUnit() const { return units[units.size() - 1]; }
        std::size_t applicableUnits() const { return units.size() - 1; }
        std::string_view applicableUnit(std::size_t place) const { return units[place]; }
    };

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const MeasurableSpec& spec);
    static MeasurableSpec build(const Record& record, const Finder& finder, const MeasurableSpec* given);
    static std::string write(const MeasurableSpec& spec);
};

} // namespace Parameters::Internal
