#pragma once

#include <parameters/Export.h>

#include <memory>
#include <string>
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
    std::string getTypeId() const;
    /// Returns the name to show.
    std::string getName() const;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const Taxon& other) const noexcept;
    bool operator!=(const Taxon& other) const noexcept;
    bool operator<(const Taxon& other) const noexcept;
    bool operator>(const Taxon& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit Taxon(std::shared_ptr<const Internal::TaxonData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::TaxonData> data_;
};

} // namespace Parameters
