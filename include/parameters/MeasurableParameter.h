#pragma once

#include <parameters/Export.h>
#include <parameters/FloatRange.h>
#include <parameters/MeasurableSpec.h>
#include <parameters/ParameterCore.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
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
    ParameterCore getCore() const;
    /// Returns the spec, which has the units.
    MeasurableSpec getSpec() const;
    /// Returns the bounds of the values, in the storage unit; unbounded on both sides where the schema has no range.
    FloatRange getRange() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const MeasurableParameter& other) const noexcept;
    bool operator!=(const MeasurableParameter& other) const noexcept;
    bool operator<(const MeasurableParameter& other) const noexcept;
    bool operator>(const MeasurableParameter& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit MeasurableParameter(
        std::shared_ptr<const Internal::RangedParameterData<MeasurableSpec, FloatRange>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RangedParameterData<MeasurableSpec, FloatRange>> data_;
};

} // namespace Parameters
