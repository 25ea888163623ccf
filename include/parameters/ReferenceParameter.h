#pragma once

#include <parameters/Category.h>
#include <parameters/Export.h>
#include <parameters/ParameterCore.h>
#include <parameters/ReferenceSpec.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct ReferenceParameterData;
} // namespace Internal

/// A parameter whose values are references to objects of the host's model. Copies share their data.
class PARAMETERS_EXPORT ReferenceParameter {
public:
    /// The spec is the built-in one for family types, "Family Type", of that category.
    ReferenceParameter(const ParameterCore& core, const Category& category, bool ranged);
    ReferenceParameter(const ParameterCore& core, const ReferenceSpec& spec, bool ranged);
    /// The spec is the built-in one, "Reference", without a category.
    ReferenceParameter(const ParameterCore& core, bool ranged);
    ReferenceParameter(const ReferenceParameter&) noexcept = default;
    ReferenceParameter& operator=(const ReferenceParameter&) noexcept = default;

    ParameterCore getCore() const;
    ReferenceSpec getSpec() const;
    /// Returns whether the parameter's schema is of the ranged base.
    bool isRanged() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const ReferenceParameter& other) const noexcept;
    bool operator!=(const ReferenceParameter& other) const noexcept;
    bool operator<(const ReferenceParameter& other) const noexcept;
    bool operator>(const ReferenceParameter& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit ReferenceParameter(std::shared_ptr<const Internal::ReferenceParameterData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::ReferenceParameterData> data_;
};

} // namespace Parameters
