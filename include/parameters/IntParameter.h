#pragma once

#include <parameters/Export.h>
#include <parameters/IntRange.h>
#include <parameters/IntSpec.h>
#include <parameters/ParameterCore.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
template <class Spec, class Range>
struct RangedParameterData;
} // namespace Internal

/// A parameter whose values are 64-bit integers within a range.
/// @ingroup values
class PARAMETERS_EXPORT IntParameter {
public:
    /// Makes a parameter of the built-in spec, "Integer".
    IntParameter(const ParameterCore& core, const IntRange& range);
    /// Makes a parameter of a core, a spec and a range. Nothing is checked before it is registered.
    IntParameter(const ParameterCore& core, const IntSpec& spec, const IntRange& range);
    /// Copies share their data; moving copies.
    /// @{
    IntParameter(const IntParameter&) noexcept = default;
    IntParameter& operator=(const IntParameter&) noexcept = default;
    /// @}

    /// Returns what all parameters have in common: the type identifier, the name, the group and more.
    ParameterCore getCore() const;
    /// Returns the spec.
    IntSpec getSpec() const;
    /// Returns the bounds of the values; unbounded on both sides where the schema has no range.
    IntRange getRange() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const IntParameter& other) const noexcept;
    bool operator!=(const IntParameter& other) const noexcept;
    bool operator<(const IntParameter& other) const noexcept;
    bool operator>(const IntParameter& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit IntParameter(std::shared_ptr<const Internal::RangedParameterData<IntSpec, IntRange>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RangedParameterData<IntSpec, IntRange>> data_;
};

} // namespace Parameters
