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

/// A parameter whose values are true and false. Copies share their data.
class PARAMETERS_EXPORT BoolParameter {
public:
    /// The spec is the built-in one, "Yes/No".
    explicit BoolParameter(const ParameterCore& core);
    BoolParameter(const ParameterCore& core, const BoolSpec& spec);
    BoolParameter(const BoolParameter&) noexcept = default;
    BoolParameter& operator=(const BoolParameter&) noexcept = default;

    ParameterCore getCore() const;
    BoolSpec getSpec() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const BoolParameter& other) const noexcept;
    bool operator!=(const BoolParameter& other) const noexcept;
    bool operator<(const BoolParameter& other) const noexcept;
    bool operator>(const BoolParameter& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit BoolParameter(std::shared_ptr<const Internal::BoolParameterData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::BoolParameterData> data_;
};

} // namespace Parameters
