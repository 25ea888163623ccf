#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Taxon.h>
#include <parameters/Value.h>
#include <parameters/Views.h>

#include <utility>
#include <vector>

namespace Parameters {

namespace Internal {
struct Access;
struct MajorCategoryComponentData;
} // namespace Internal

/// What makes a category a major one: its domain and the disciplines that use it.
/// @ingroup values
class PARAMETERS_EXPORT MajorCategoryComponent {
public:
    /// Makes the component of a domain and disciplines, which may be none and keep their order.
    MajorCategoryComponent(const Taxon& domain, const std::vector<Taxon>& disciplines);
    /// Copies share their data; moving copies.
    /// @{
    MajorCategoryComponent(const MajorCategoryComponent&) noexcept = default;
    MajorCategoryComponent& operator=(const MajorCategoryComponent&) noexcept = default;
    /// @}

    /// Returns the domain to which the category belongs.
    /// @{
    [[nodiscard]] Taxon getDomain() const noexcept;
    [[nodiscard]] const Taxon& domain() const noexcept;
    /// @}
    /// Returns the disciplines in the order given; there may be none.
    /// @{
    [[nodiscard]] std::vector<Taxon> getDisciplines() const;
    [[nodiscard]] ArrayView<Taxon> disciplines() const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    MajorCategoryComponent(Internal::Ref<const Internal::MajorCategoryComponentData> data, Internal::Key) noexcept
        : data_(std::move(data)) {}

    Internal::Ref<const Internal::MajorCategoryComponentData> data_;
};

} // namespace Parameters
