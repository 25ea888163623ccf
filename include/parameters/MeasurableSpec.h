#pragma once

#include <parameters/Export.h>
#include <parameters/SpecCore.h>

#include <units/Unit.h>

#include <memory>
#include <utility>
#include <vector>

namespace Parameters {

namespace Internal {
struct Access;
struct MeasurableSpecData;
} // namespace Internal

/// The spec of a measurable parameter: a physical quantity with its units.
///
/// Made in code, as any object can be:
/// @snippet own_unit.cpp objects
/// @ingroup values
class PARAMETERS_EXPORT MeasurableSpec {
public:
    /// Makes a spec. The storage unit need not be among the applicable units, which are kept in their order, repeated
    /// ones too.
    MeasurableSpec(const SpecCore& core, const std::vector<Units::Unit>& applicableUnits,
                   const Units::Unit& storageUnit);
    /// Copies share their data; moving copies.
    /// @{
    MeasurableSpec(const MeasurableSpec&) noexcept = default;
    MeasurableSpec& operator=(const MeasurableSpec&) noexcept = default;
    /// @}

    /// Returns what all specs have in common: the type identifier, the name and the discipline.
    SpecCore getCore() const;
    /// Returns the units in which values may be shown, in the order given; there may be none.
    std::vector<Units::Unit> getApplicableUnits() const;
    /// Returns the unit in which values are stored.
    Units::Unit getStorageUnit() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const MeasurableSpec& other) const noexcept;
    bool operator!=(const MeasurableSpec& other) const noexcept;
    bool operator<(const MeasurableSpec& other) const noexcept;
    bool operator>(const MeasurableSpec& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit MeasurableSpec(std::shared_ptr<const Internal::MeasurableSpecData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::MeasurableSpecData> data_;
};

} // namespace Parameters
