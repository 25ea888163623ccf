#pragma once

#include <parameters/Export.h>
#include <parameters/ParameterCore.h>
#include <parameters/Ref.h>
#include <parameters/StringRange.h>
#include <parameters/StringSpec.h>
#include <parameters/Value.h>

#include <functional>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct ParameterCoreData;
template <class Spec, class Range>
struct RangedParameterData;
} // namespace Internal

/// A parameter whose values are texts within a range.
/// @ingroup values
class PARAMETERS_EXPORT StringParameter {
public:
    /// Makes a parameter of the built-in spec, "Text".
    StringParameter(const ParameterCore& core, const StringRange& range);
    /// Makes a parameter of a core, a spec and a range. Nothing is checked before it is registered.
    StringParameter(const ParameterCore& core, const StringSpec& spec, const StringRange& range);
    /// Copies share their data; moving copies.
    /// @{
    StringParameter(const StringParameter&) noexcept = default;
    StringParameter& operator=(const StringParameter&) noexcept = default;
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
    /// Returns the spec.
    /// @{
    [[nodiscard]] StringSpec getSpec() const noexcept;
    [[nodiscard]] const StringSpec& spec() const noexcept;
    /// @}
    /// Returns which texts are allowed; any where the schema has no range.
    /// @{
    [[nodiscard]] StringRange getRange() const noexcept;
    [[nodiscard]] const StringRange& range() const noexcept;
    /// @}

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const StringParameter& other) const noexcept;
    bool operator!=(const StringParameter& other) const noexcept;
    bool operator<(const StringParameter& other) const noexcept;
    bool operator>(const StringParameter& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(StringParameter& one, StringParameter& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::RangedParameterData<StringSpec, StringRange>;
    StringParameter(Internal::Ref<const Internal::ParameterCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    ParameterCore core_; // the part of the data that all parameters have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::StringParameter> : Parameters::Internal::TypeIdHash<Parameters::StringParameter> {};
