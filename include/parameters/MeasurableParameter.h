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

/// A parameter whose values are real numbers of a physical quantity within a range. Copies share their data.
class PARAMETERS_EXPORT MeasurableParameter {
public:
    MeasurableParameter(const ParameterCore& core, const MeasurableSpec& spec, const FloatRange& range);
    MeasurableParameter(const MeasurableParameter&) noexcept = default;
    MeasurableParameter& operator=(const MeasurableParameter&) noexcept = default;

    ParameterCore getCore() const;
    MeasurableSpec getSpec() const;
    FloatRange getRange() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const MeasurableParameter& other) const noexcept;
    bool operator!=(const MeasurableParameter& other) const noexcept;
    bool operator<(const MeasurableParameter& other) const noexcept;
    bool operator>(const MeasurableParameter& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit MeasurableParameter(
        std::shared_ptr<const Internal::RangedParameterData<MeasurableSpec, FloatRange>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RangedParameterData<MeasurableSpec, FloatRange>> data_;
};

} // namespace Parameters
