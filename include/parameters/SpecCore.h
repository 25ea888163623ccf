#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Taxon.h>
#include <parameters/Value.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct SpecCoreData;
} // namespace Internal

/// What all specs have in common.
/// @ingroup values
class PARAMETERS_EXPORT SpecCore {
public:
    /// Makes a core with the built-in discipline, "Common".
    SpecCore(const std::string& typeId, const std::string& name);
    /// Makes a core with a discipline.
    SpecCore(const std::string& typeId, const std::string& name, const Taxon& discipline);
    /// For the library: the core that is part of other data.
    SpecCore(Internal::Ref<const Internal::SpecCoreData> data, Internal::Key) noexcept : data_(std::move(data)) {}
    /// Copies share their data; moving copies.
    /// @{
    SpecCore(const SpecCore&) noexcept = default;
    SpecCore& operator=(const SpecCore&) noexcept = default;
    /// @}

    /// Returns the identifier by which the spec is known.
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns the name to show.
    /// @{
    [[nodiscard]] std::string getName() const;
    [[nodiscard]] std::string_view name() const noexcept;
    /// @}
    /// Returns the discipline that is responsible for what the spec describes.
    /// @{
    [[nodiscard]] Taxon getDiscipline() const noexcept;
    [[nodiscard]] const Taxon& discipline() const noexcept;
    /// @}

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const SpecCore& other) const noexcept;
    bool operator!=(const SpecCore& other) const noexcept;
    bool operator<(const SpecCore& other) const noexcept;
    bool operator>(const SpecCore& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(SpecCore& one, SpecCore& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;

    Internal::Ref<const Internal::SpecCoreData> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::SpecCore> : Parameters::Internal::TypeIdHash<Parameters::SpecCore> {};
