#pragma once

#include <parameters/Export.h>
#include <parameters/ParameterCore.h>
#include <parameters/StringRange.h>
#include <parameters/StringSpec.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
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
    ParameterCore getCore() const;
    /// Returns the spec.
    StringSpec getSpec() const;
    /// Returns which texts are allowed; any where the schema has no range.
    StringRange getRange() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const StringParameter& other) const noexcept;
    bool operator!=(const StringParameter& other) const noexcept;
    bool operator<(const StringParameter& other) const noexcept;
    bool operator>(const StringParameter& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit StringParameter(
        std::shared_ptr<const Internal::RangedParameterData<StringSpec, StringRange>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RangedParameterData<StringSpec, StringRange>> data_;
};

} // namespace Parameters
