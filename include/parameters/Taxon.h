#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct TaxonData;
} // namespace Internal

/// A named thing of a taxonomy: a discipline, a domain or a group.
/// @ingroup values
class PARAMETERS_EXPORT Taxon {
public:
    /// Keeps both texts as they are.
    Taxon(const std::string& typeId, const std::string& name);
    /// Copies share their data; moving copies.
    /// @{
    Taxon(const Taxon&) noexcept = default;
    Taxon& operator=(const Taxon&) noexcept = default;
    /// @}

    /// Returns the identifier by which the taxon is known.
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns the name to show.
    /// @{
    [[nodiscard]] std::string getName() const;
    [[nodiscard]] std::string_view name() const noexcept;
    /// @}

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const Taxon& other) const noexcept;
    bool operator!=(const Taxon& other) const noexcept;
    bool operator<(const Taxon& other) const noexcept;
    bool operator>(const Taxon& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(Taxon& one, Taxon& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;
    Taxon(Internal::Ref<const Internal::TaxonData> data, Internal::Key) noexcept : data_(std::move(data)) {}

    Internal::Ref<const Internal::TaxonData> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::Taxon> : Parameters::Internal::TypeIdHash<Parameters::Taxon> {};
