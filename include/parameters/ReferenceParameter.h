#pragma once

#include <parameters/Category.h>
#include <parameters/Export.h>
#include <parameters/ParameterCore.h>
#include <parameters/Ref.h>
#include <parameters/ReferenceSpec.h>
#include <parameters/Value.h>

#include <functional>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct ParameterCoreData;
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
    /// core() refers into this very handle.
    /// @{
    [[nodiscard]] ParameterCore getCore() const noexcept;
    [[nodiscard]] const ParameterCore& core() const noexcept { return core_; }
    /// @}
    /// Returns the identifier by which the parameter is known: the core's.
    [[nodiscard]] std::string_view typeId() const noexcept { return core_.typeId(); }
    /// Returns the name to show: the core's.
    [[nodiscard]] std::string_view name() const noexcept { return core_.name(); }
    /// Returns the spec, which may limit references to one category.
    /// @{
    [[nodiscard]] ReferenceSpec getSpec() const noexcept;
    [[nodiscard]] const ReferenceSpec& spec() const noexcept;
    /// @}
    /// Returns whether the parameter's schema is of the ranged base. Nothing else hangs on it.
    [[nodiscard]] bool isRanged() const noexcept;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const ReferenceParameter& other) const noexcept;
    bool operator!=(const ReferenceParameter& other) const noexcept;
    bool operator<(const ReferenceParameter& other) const noexcept;
    bool operator>(const ReferenceParameter& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(ReferenceParameter& one, ReferenceParameter& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::ReferenceParameterData;
    ReferenceParameter(Internal::Ref<const Internal::ParameterCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    ParameterCore core_; // the part of the data that all parameters have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::ReferenceParameter> : Parameters::Internal::TypeIdHash<Parameters::ReferenceParameter> {};
