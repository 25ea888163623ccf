#pragma once

#include <parameters/Export.h>
#include <parameters/FloatRange.h>
#include <parameters/MeasurableSpec.h>
#include <parameters/ParameterCore.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>

#include <functional>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct ParameterCoreData;
template <class Spec, class Range>
struct RangedParameterData;
} // namespace Internal

/// A parameter whose values are real numbers of a physical quantity within a range.
/// @ingroup values
class PARAMETERS_EXPORT MeasurableParameter {
public:
    /// Makes a parameter of a core, a spec and a range. Nothing is checked before it is registered.
    MeasurableParameter(const ParameterCore& core, const MeasurableSpec& spec, const FloatRange& range);
    /// Copies share their data; moving copies.
    /// @{
    MeasurableParameter(const MeasurableParameter&) noexcept = default;
    MeasurableParameter& operator=(const MeasurableParameter&) noexcept = default;
    /// @}

    /// Returns what all parameters have in common: the type identifier, the name, the group and more.
    /// core() refers into this very handle.
    /// @{
    [[nodiscard]] ParameterCore getCore() const noexcept;
    [[nodiscard]] const ParameterCore& core() const noexcept { return core_; }
    /// @}
    /// Returns the identifier by which the parameter is known: the core's.
    [[nodiscard]] std::string_view typeId() const noexcept { return core_.typeId(); }
    /// Returns the name to show: the core's.
    [[nodiscard]] std::string_view name() const noexcept { return core_.name(); }
    /// Returns the spec, which has the units.
    /// @{
    [[nodiscard]] MeasurableSpec getSpec() const noexcept;
    [[nodiscard]] const MeasurableSpec& spec() const noexcept;
    /// @}
    /// Returns the bounds of the values, in the storage unit; unbounded on both sides where the schema has no range.
    /// @{
    [[nodiscard]] FloatRange getRange() const noexcept;
    [[nodiscard]] const FloatRange& range() const noexcept;
    /// @}

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const MeasurableParameter& other) const noexcept;
    bool operator!=(const MeasurableParameter& other) const noexcept;
    bool operator<(const MeasurableParameter& other) const noexcept;
    bool operator>(const MeasurableParameter& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(MeasurableParameter& one, MeasurableParameter& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::RangedParameterData<MeasurableSpec, FloatRange>;
    MeasurableParameter(Internal::Ref<const Internal::ParameterCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    ParameterCore core_; // the part of the data that all parameters have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::MeasurableParameter> : Parameters::Internal::TypeIdHash<Parameters::MeasurableParameter> {
};
