#pragma once

#include <parameters/BoolSpec.h>
#include <parameters/Export.h>
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
    /// core() refers into this very handle.
    /// @{
    [[nodiscard]] ParameterCore getCore() const noexcept;
    [[nodiscard]] const ParameterCore& core() const noexcept { return core_; }
    /// @}
    /// Returns the identifier by which the parameter is known: the core's.
    [[nodiscard]] std::string_view typeId() const noexcept { return core_.typeId(); }
    /// Returns the name to show: the core's.
    [[nodiscard]] std::string_view name() const noexcept { return core_.name(); }
    /// Returns the spec, which says how the values are called.
    /// @{
    [[nodiscard]] BoolSpec getSpec() const noexcept;
    [[nodiscard]] const BoolSpec& spec() const noexcept;
    /// @}

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const BoolParameter& other) const noexcept;
    bool operator!=(const BoolParameter& other) const noexcept;
    bool operator<(const BoolParameter& other) const noexcept;
    bool operator>(const BoolParameter& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(BoolParameter& one, BoolParameter& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::BoolParameterData;
    BoolParameter(Internal::Ref<const Internal::ParameterCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    ParameterCore core_; // the part of the data that all parameters have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::BoolParameter> : Parameters::Internal::TypeIdHash<Parameters::BoolParameter> {};
