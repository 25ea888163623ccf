#pragma once

#include <parameters/Export.h>

#include <memory>
#include <string>
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
    std::string getParentCategory() const;

private:
    friend struct Internal::Access;
    explicit SubCategoryComponent(std::shared_ptr<const Internal::SubCategoryComponentData> data) noexcept
        : data_(std::move(data)) {}

    std::shared_ptr<const Internal::SubCategoryComponentData> data_;
};

} // namespace Parameters
