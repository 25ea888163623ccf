#pragma once

#include <parameters/Category.h>
#include <parameters/Export.h>
#include <parameters/SpecCore.h>

#include <memory>
#include <optional>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct ReferenceSpecData;
} // namespace Internal

/// The spec of a reference parameter, which may limit references to one category.
/// @ingroup values
class PARAMETERS_EXPORT ReferenceSpec {
public:
    /// Makes a spec of a core, and of a category where references are limited to one.
    ReferenceSpec(const SpecCore& core, const std::optional<Category>& category);
    /// Copies share their data; moving copies.
    /// @{
    ReferenceSpec(const ReferenceSpec&) noexcept = default;
    ReferenceSpec& operator=(const ReferenceSpec&) noexcept = default;
    /// @}

    /// Returns what all specs have in common: the type identifier, the name and the discipline.
    SpecCore getCore() const;
    /// Returns the category to which references are limited, if they are.
    std::optional<Category> getCategory() const;

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const ReferenceSpec& other) const noexcept;
    bool operator!=(const ReferenceSpec& other) const noexcept;
    bool operator<(const ReferenceSpec& other) const noexcept;
    bool operator>(const ReferenceSpec& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit ReferenceSpec(std::shared_ptr<const Internal::ReferenceSpecData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::ReferenceSpecData> data_;
};

} // namespace Parameters
