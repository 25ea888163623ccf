#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/SpecCore.h>
#include <parameters/Value.h>
#include <parameters/Views.h>

#include <units/Unit.h>

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace Parameters {

namespace Internal {
struct Access;
struct SpecCoreData;
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
    /// core() refers into this very handle.
    /// @{
    [[nodiscard]] SpecCore getCore() const noexcept;
    [[nodiscard]] const SpecCore& core() const noexcept { return core_; }
    /// @}
    /// Returns the identifier by which the spec is known: the core's.
    [[nodiscard]] std::string_view typeId() const noexcept { return core_.typeId(); }
    /// Returns the name to show: the core's.
    [[nodiscard]] std::string_view name() const noexcept { return core_.name(); }
    /// Returns the units in which values may be shown, in the order given; there may be none.
    /// @{
    [[nodiscard]] std::vector<Units::Unit> getApplicableUnits() const;
    [[nodiscard]] ArrayView<Units::Unit> applicableUnits() const noexcept;
    /// @}
    /// Returns the unit in which values are stored.
    /// @{
    [[nodiscard]] Units::Unit getStorageUnit() const;
    [[nodiscard]] const Units::Unit& storageUnit() const noexcept;
    /// @}

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const MeasurableSpec& other) const noexcept;
    bool operator!=(const MeasurableSpec& other) const noexcept;
    bool operator<(const MeasurableSpec& other) const noexcept;
    bool operator>(const MeasurableSpec& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(MeasurableSpec& one, MeasurableSpec& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::MeasurableSpecData;
    MeasurableSpec(Internal::Ref<const Internal::SpecCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    SpecCore core_; // the part of the data that all specs have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::MeasurableSpec> : Parameters::Internal::TypeIdHash<Parameters::MeasurableSpec> {};
