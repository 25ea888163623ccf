#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>

#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct RegexStringRangeComponentData;
} // namespace Internal

/// The limitation of a string range to what a regular expression matches.
///
/// The expression is kept as text; it is neither checked nor matched.
/// @ingroup values
class PARAMETERS_EXPORT RegexStringRangeComponent {
public:
    /// Keeps the expression as it is.
    explicit RegexStringRangeComponent(const std::string& regex);
    /// Copies share their data; moving copies.
    /// @{
    RegexStringRangeComponent(const RegexStringRangeComponent&) noexcept = default;
    RegexStringRangeComponent& operator=(const RegexStringRangeComponent&) noexcept = default;
    /// @}

    /// Returns the expression.
    /// @{
    [[nodiscard]] std::string getRegex() const;
    [[nodiscard]] std::string_view regex() const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    RegexStringRangeComponent(Internal::Ref<const Internal::RegexStringRangeComponentData> data, Internal::Key) noexcept
        : data_(std::move(data)) {}

    Internal::Ref<const Internal::RegexStringRangeComponentData> data_;
};

} // namespace Parameters
