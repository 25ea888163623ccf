#pragma once

#include "model/SpecCore.h"
#include "schema/Schema.h"

#include <parameters/MeasurableSpec.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

struct MeasurableSpecData {
    SpecCoreData core;
    std::vector<Units::Unit> applicableUnits;
    Units::Unit storageUnit;

    std::string_view typeId() const { return core.typeId(); }
};

struct MeasurableSpecKind {
    using Object = MeasurableSpec;
    struct Record : SpecRecord {
        Texts units; // typeids: storage unit, applicable units
    };

    static constexpr std::string_view word = "measurable spec";

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const MeasurableSpec& spec);
    static MeasurableSpec build(const Record& record, const Finder& finder);
    static std::string write(const MeasurableSpec& spec);
};

} // namespace Parameters::Internal
