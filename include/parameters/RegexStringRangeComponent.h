#pragma once

#include <parameters/Export.h>

#include <memory>
#include <string>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct RegexStringRangeComponentData;
} // namespace Internal

/// The limitation of a string range to what a regular expression matches. Copies share their data.
///
/// The expression is kept as text; it is neither checked nor matched.
class PARAMETERS_EXPORT RegexStringRangeComponent {
public:
    explicit RegexStringRangeComponent(const std::string& regex);
    RegexStringRangeComponent(const RegexStringRangeComponent&) noexcept = default;
    RegexStringRangeComponent& operator=(const RegexStringRangeComponent&) noexcept = default;

    std::string getRegex() const;

private:
    friend struct Internal::Access;
    explicit RegexStringRangeComponent(std::shared_ptr<const Internal::RegexStringRangeComponentData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RegexStringRangeComponentData> data_;
};

} // namespace Parameters
