#pragma once

#include <parameters/Enumeration.h>
#include <parameters/Export.h>
#include <parameters/GeneralSpec.h>
#include <parameters/ParameterCore.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
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
    ParameterCore getCore() const;
    /// Returns the spec, which names the parameter's discipline.
    GeneralSpec getSpec() const;
    /// Returns the choices, whole, not as a type identifier.
    Enumeration getEnumeration() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const EnumerationParameter& other) const noexcept;
    bool operator!=(const EnumerationParameter& other) const noexcept;
    bool operator<(const EnumerationParameter& other) const noexcept;
    bool operator>(const EnumerationParameter& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit EnumerationParameter(std::shared_ptr<const Internal::EnumerationParameterData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::EnumerationParameterData> data_;
};

} // namespace Parameters
