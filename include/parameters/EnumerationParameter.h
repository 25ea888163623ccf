#pragma once

#include <parameters/Enumeration.h>
#include <parameters/Export.h>
#include <parameters/GeneralSpec.h>
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
struct EnumerationParameterData;
} // namespace Internal

/// A parameter whose values are the choices of an enumeration.
/// @ingroup values
class PARAMETERS_EXPORT EnumerationParameter {
public:
    /// Makes a parameter of a core, a spec and the choices. Nothing is checked before it is registered.
    EnumerationParameter(const ParameterCore& core, const GeneralSpec& spec, const Enumeration& enumeration);
    /// Copies share their data; moving copies.
    /// @{
    EnumerationParameter(const EnumerationParameter&) noexcept = default;
    EnumerationParameter& operator=(const EnumerationParameter&) noexcept = default;
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
    /// Returns the spec, which names the parameter's discipline.
    /// @{
    [[nodiscard]] GeneralSpec getSpec() const noexcept;
    [[nodiscard]] const GeneralSpec& spec() const noexcept;
    /// @}
    /// Returns the choices, whole, not as a type identifier.
    /// @{
    [[nodiscard]] Enumeration getEnumeration() const noexcept;
    [[nodiscard]] const Enumeration& enumeration() const noexcept;
    /// @}

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const EnumerationParameter& other) const noexcept;
    bool operator!=(const EnumerationParameter& other) const noexcept;
    bool operator<(const EnumerationParameter& other) const noexcept;
    bool operator>(const EnumerationParameter& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(EnumerationParameter& one, EnumerationParameter& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::EnumerationParameterData;
    EnumerationParameter(Internal::Ref<const Internal::ParameterCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    ParameterCore core_; // the part of the data that all parameters have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::EnumerationParameter>
    : Parameters::Internal::TypeIdHash<Parameters::EnumerationParameter> {};
