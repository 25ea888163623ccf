#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/SpecCore.h>
#include <parameters/Value.h>

#include <functional>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct SpecCoreData;
} // namespace Internal

/// The spec of a Boolean parameter.
/// @ingroup values
class PARAMETERS_EXPORT BoolSpec {
public:
    /// Makes a spec that is its core and nothing more.
    explicit BoolSpec(const SpecCore& core);
    /// Copies share their data; moving copies.
    /// @{
    BoolSpec(const BoolSpec&) noexcept = default;
    BoolSpec& operator=(const BoolSpec&) noexcept = default;
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

    /// Compares identity: the bytes of the core's type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const BoolSpec& other) const noexcept;
    bool operator!=(const BoolSpec& other) const noexcept;
    bool operator<(const BoolSpec& other) const noexcept;
    bool operator>(const BoolSpec& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(BoolSpec& one, BoolSpec& other) noexcept { swap(one.core_, other.core_); }

private:
    friend struct Internal::Access;
    using Data = Internal::SpecCoreData;
    BoolSpec(Internal::Ref<const Internal::SpecCoreData> data, Internal::Key key) noexcept
        : core_(std::move(data), key) {}

    SpecCore core_; // the part of the data that all specs have
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::BoolSpec> : Parameters::Internal::TypeIdHash<Parameters::BoolSpec> {};
