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

/// A parameter whose values are the choices of an enumeration. Copies share their data.
class PARAMETERS_EXPORT EnumerationParameter {
public:
    EnumerationParameter(const ParameterCore& core, const GeneralSpec& spec, const Enumeration& enumeration);
    EnumerationParameter(const EnumerationParameter&) noexcept = default;
    EnumerationParameter& operator=(const EnumerationParameter&) noexcept = default;

    ParameterCore getCore() const;
    GeneralSpec getSpec() const;
    Enumeration getEnumeration() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const EnumerationParameter& other) const noexcept;
    bool operator!=(const EnumerationParameter& other) const noexcept;
    bool operator<(const EnumerationParameter& other) const noexcept;
    bool operator>(const EnumerationParameter& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit EnumerationParameter(std::shared_ptr<const Internal::EnumerationParameterData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::EnumerationParameterData> data_;
};

} // namespace Parameters
