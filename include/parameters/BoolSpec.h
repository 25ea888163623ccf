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

/// The spec of a Boolean parameter. Copies share their data.
class PARAMETERS_EXPORT BoolSpec {
public:
    explicit BoolSpec(const SpecCore& core);
    BoolSpec(const BoolSpec&) noexcept = default;
    BoolSpec& operator=(const BoolSpec&) noexcept = default;

    SpecCore getCore() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const BoolSpec& other) const noexcept;
    bool operator!=(const BoolSpec& other) const noexcept;
    bool operator<(const BoolSpec& other) const noexcept;
    bool operator>(const BoolSpec& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit BoolSpec(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
