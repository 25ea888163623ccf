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

/// The spec of a string parameter. Copies share their data.
class PARAMETERS_EXPORT StringSpec {
public:
    explicit StringSpec(const SpecCore& core);
    StringSpec(const StringSpec&) noexcept = default;
    StringSpec& operator=(const StringSpec&) noexcept = default;

    SpecCore getCore() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const StringSpec& other) const noexcept;
    bool operator!=(const StringSpec& other) const noexcept;
    bool operator<(const StringSpec& other) const noexcept;
    bool operator>(const StringSpec& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit StringSpec(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
