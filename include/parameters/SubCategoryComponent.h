#pragma once

#include <parameters/Export.h>
#include <parameters/Ref.h>
#include <parameters/Value.h>

#include <string>
#include <string_view>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct SubCategoryComponentData;
} // namespace Internal

/// What makes a category a subcategory: its parent.
/// @ingroup values
class PARAMETERS_EXPORT SubCategoryComponent {
public:
    /// Makes the component of a parent: the type identifier of a major category.
    explicit SubCategoryComponent(const std::string& parentCategory);
    /// Copies share their data; moving copies.
    /// @{
    SubCategoryComponent(const SubCategoryComponent&) noexcept = default;
    SubCategoryComponent& operator=(const SubCategoryComponent&) noexcept = default;
    /// @}

    /// Returns the type identifier of the parent.
    /// @{
    [[nodiscard]] std::string getParentCategory() const;
    [[nodiscard]] std::string_view parentCategory() const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    SubCategoryComponent(Internal::Ref<const Internal::SubCategoryComponentData> data, Internal::Key) noexcept
        : data_(std::move(data)) {}

    Internal::Ref<const Internal::SubCategoryComponentData> data_;
};

} // namespace Parameters
