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

/// A parameter whose values are 64-bit integers within a range. Copies share their data.
class PARAMETERS_EXPORT IntParameter {
public:
    /// The spec is the built-in one, "Integer".
    IntParameter(const ParameterCore& core, const IntRange& range);
    IntParameter(const ParameterCore& core, const IntSpec& spec, const IntRange& range);
    IntParameter(const IntParameter&) noexcept = default;
    IntParameter& operator=(const IntParameter&) noexcept = default;

    ParameterCore getCore() const;
    IntSpec getSpec() const;
    IntRange getRange() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const IntParameter& other) const noexcept;
    bool operator!=(const IntParameter& other) const noexcept;
    bool operator<(const IntParameter& other) const noexcept;
    bool operator>(const IntParameter& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit IntParameter(std::shared_ptr<const Internal::RangedParameterData<IntSpec, IntRange>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RangedParameterData<IntSpec, IntRange>> data_;
};

} // namespace Parameters
