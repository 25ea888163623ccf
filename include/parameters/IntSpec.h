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

/// The spec of an integer parameter. Copies share their data.
class PARAMETERS_EXPORT IntSpec {
public:
    explicit IntSpec(const SpecCore& core);
    IntSpec(const IntSpec&) noexcept = default;
    IntSpec& operator=(const IntSpec&) noexcept = default;

    SpecCore getCore() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const IntSpec& other) const noexcept;
    bool operator!=(const IntSpec& other) const noexcept;
    bool operator<(const IntSpec& other) const noexcept;
    bool operator>(const IntSpec& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit IntSpec(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
