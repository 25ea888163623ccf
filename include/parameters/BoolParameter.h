#pragma once

#include <parameters/BoolSpec.h>
#include <parameters/Export.h>
#include <parameters/ParameterCore.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct BoolParameterData;
} // namespace Internal

/// A parameter whose values are true and false.
/// @ingroup values
class PARAMETERS_EXPORT BoolParameter {
public:
    /// Makes a parameter of the built-in spec, "Yes/No".
    explicit BoolParameter(const ParameterCore& core);
    /// Makes a parameter of a core and a spec. Nothing is checked before it is registered.
    BoolParameter(const ParameterCore& core, const BoolSpec& spec);
    /// Copies share their data; moving copies.
    /// @{
    BoolParameter(const BoolParameter&) noexcept = default;
    BoolParameter& operator=(const BoolParameter&) noexcept = default;
    /// @}

    /// Returns what all parameters have in common: the type identifier, the name, the group and more.
    ParameterCore getCore() const;
    /// Returns the spec, which says how the values are called.
    BoolSpec getSpec() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const BoolParameter& other) const noexcept;
    bool operator!=(const BoolParameter& other) const noexcept;
    bool operator<(const BoolParameter& other) const noexcept;
    bool operator>(const BoolParameter& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit BoolParameter(std::shared_ptr<const Internal::BoolParameterData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::BoolParameterData> data_;
};

} // namespace Parameters
