#pragma once

#include <parameters/Export.h>
#include <parameters/SpecCore.h>

#include <memory>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct SpecCoreData;
} // namespace Internal

/// The spec of an integer parameter.
/// @ingroup values
class PARAMETERS_EXPORT IntSpec {
public:
    /// Makes a spec that is its core and nothing more.
    explicit IntSpec(const SpecCore& core);
    /// Copies share their data; moving copies.
    /// @{
    IntSpec(const IntSpec&) noexcept = default;
    IntSpec& operator=(const IntSpec&) noexcept = default;
    /// @}

    /// Returns what all specs have in common: the type identifier, the name and the discipline.
    SpecCore getCore() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const IntSpec& other) const noexcept;
    bool operator!=(const IntSpec& other) const noexcept;
    bool operator<(const IntSpec& other) const noexcept;
    bool operator>(const IntSpec& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit IntSpec(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
