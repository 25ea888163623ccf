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

/// The spec of an enumeration parameter. Copies share their data.
class PARAMETERS_EXPORT GeneralSpec {
public:
    explicit GeneralSpec(const SpecCore& core);
    GeneralSpec(const GeneralSpec&) noexcept = default;
    GeneralSpec& operator=(const GeneralSpec&) noexcept = default;

    SpecCore getCore() const;

    /// Comparisons are by identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    bool operator==(const GeneralSpec& other) const noexcept;
    bool operator!=(const GeneralSpec& other) const noexcept;
    bool operator<(const GeneralSpec& other) const noexcept;
    bool operator>(const GeneralSpec& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit GeneralSpec(std::shared_ptr<const Internal::SpecCoreData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SpecCoreData> data_;
};

} // namespace Parameters
