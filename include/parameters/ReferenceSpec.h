#pragma once

#include <parameters/Category.h>
#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/SpecCore.h>
#include <parameters/Value.h>

#include <functional>
#include <optional>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct SpecCoreData;
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
    /// core() refers into this very handle.
    /// @{
    [[nodiscard]] SpecCore getCore() const noexcept;
    [[nodiscard]] const SpecCore& core() const noexcept { return core_; }
    /// @}
    /// Returns the identifier by which the spec is known: the core's.
    [[nodiscard]] std::string_view typeId() const noexcept { return core_.typeId(); }
    /// Returns the name to show: the core's.
    [[nodiscard]] std::string_view name() const noexcept { return core_.name(); }
    /// Returns the category to which references are limited, if they are.
    /// @{
    [[nodiscard]] std::optional<Category> getCategory() const noexcept;
    [[nodiscard]] const Category* category() const noexcept;
    /// @}

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const ReferenceSpec& other) const noexcept;
    bool operator!=(const ReferenceSpec& other) const noexcept;
    bool operator<(const ReferenceSpec& other) const noexcept;
    bool operator>(const ReferenceSpec& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(ReferenceSpec& one, ReferenceSpec& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::ReferenceSpecData;
    ReferenceSpec(Internal::Ref<const Internal::SpecCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    SpecCore core_; // the part of the data that all specs have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::ReferenceSpec> : Parameters::Internal::TypeIdHash<Parameters::ReferenceSpec> {};
