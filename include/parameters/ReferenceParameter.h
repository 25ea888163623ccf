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

/// A parameter whose values are references to objects of the host's model.
/// @ingroup values
class PARAMETERS_EXPORT ReferenceParameter {
public:
    /// Makes a parameter of the built-in spec for family types, "Family Type", of that category.
    ReferenceParameter(const ParameterCore& core, const Category& category, bool ranged);
    /// Makes a parameter of a core and a spec. Nothing is checked before it is registered.
    ReferenceParameter(const ParameterCore& core, const ReferenceSpec& spec, bool ranged);
    /// Makes a parameter of the built-in spec, "Reference", which has no category.
    ReferenceParameter(const ParameterCore& core, bool ranged);
    /// Copies share their data; moving copies.
    /// @{
    ReferenceParameter(const ReferenceParameter&) noexcept = default;
    ReferenceParameter& operator=(const ReferenceParameter&) noexcept = default;
    /// @}

    /// Returns what all parameters have in common: the type identifier, the name, the group and more.
    ParameterCore getCore() const;
    /// Returns the spec, which may limit references to one category.
    ReferenceSpec getSpec() const;
    /// Returns whether the parameter's schema is of the ranged base. Nothing else hangs on it.
    bool isRanged() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const ReferenceParameter& other) const noexcept;
    bool operator!=(const ReferenceParameter& other) const noexcept;
    bool operator<(const ReferenceParameter& other) const noexcept;
    bool operator>(const ReferenceParameter& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit ReferenceParameter(std::shared_ptr<const Internal::ReferenceParameterData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::ReferenceParameterData> data_;
};

} // namespace Parameters
