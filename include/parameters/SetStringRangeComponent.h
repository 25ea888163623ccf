#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>
#include <parameters/Views.h>

#include <string>
#include <utility>
#include <vector>

namespace Parameters {

namespace Internal {
struct Access;
struct SetStringRangeComponentData;
} // namespace Internal

/// The limitation of a string range to certain values.
/// @ingroup values
class PARAMETERS_EXPORT SetStringRangeComponent {
public:
    /// Keeps the values in their order, without any check.
    explicit SetStringRangeComponent(const std::vector<std::string>& allowedValues);
    /// Copies share their data; moving copies.
    /// @{
    SetStringRangeComponent(const SetStringRangeComponent&) noexcept = default;
    SetStringRangeComponent& operator=(const SetStringRangeComponent&) noexcept = default;
    /// @}

    /// Returns the allowed values in the order given.
    /// @{
    [[nodiscard]] std::vector<std::string> getAllowedValues() const;
    [[nodiscard]] StringsView allowedValues() const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    SetStringRangeComponent(Internal::Ref<const Internal::SetStringRangeComponentData> data, Internal::Key) noexcept
        : data_(std::move(data)) {}

    Internal::Ref<const Internal::SetStringRangeComponentData> data_;
};

} // namespace Parameters
