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

/// A parameter whose values are texts within a range. Copies share their data.
class PARAMETERS_EXPORT StringParameter {
public:
    /// The spec is the built-in one, "Text".
    StringParameter(const ParameterCore& core, const StringRange& range);
    StringParameter(const ParameterCore& core, const StringSpec& spec, const StringRange& range);
    StringParameter(const StringParameter&) noexcept = default;
    StringParameter& operator=(const StringParameter&) noexcept = default;

    ParameterCore getCore() const;
    StringSpec getSpec() const;
    StringRange getRange() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const StringParameter& other) const noexcept;
    bool operator!=(const StringParameter& other) const noexcept;
    bool operator<(const StringParameter& other) const noexcept;
    bool operator>(const StringParameter& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit StringParameter(
        std::shared_ptr<const Internal::RangedParameterData<StringSpec, StringRange>> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::RangedParameterData<StringSpec, StringRange>> data_;
};

} // namespace Parameters
