#pragma once

#include <parameters/Export.h>
#include <parameters/MajorCategoryComponent.h>
#include <parameters/SubCategoryComponent.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace Parameters {

namespace Internal {
struct Access;
struct CategoryData;
} // namespace Internal

/// A class of the objects that reference parameters point at: a major category, or a subcategory of one.
/// @ingroup values
class PARAMETERS_EXPORT Category {
public:
    /// Makes a major category. Nothing is checked before it is registered.
    Category(const std::string& typeId, const std::string& name, const MajorCategoryComponent& component);
    /// Makes a subcategory. Nothing is checked before it is registered.
    Category(const std::string& typeId, const std::string& name, const SubCategoryComponent& component);
    /// Copies share their data; moving copies.
    /// @{
    Category(const Category&) noexcept = default;
    Category& operator=(const Category&) noexcept = default;
    /// @}

    /// Returns the identifier by which the category is known.
    std::string getTypeId() const;
    /// Returns the name to show.
    std::string getName() const;
    /// Returns the component of a major category; empty for a subcategory.
    std::optional<MajorCategoryComponent> getMajorCategoryComponent() const;
    /// Returns the component of a subcategory; empty for a major category.
    std::optional<SubCategoryComponent> getSubCategoryComponent() const;

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const Category& other) const noexcept;
    bool operator!=(const Category& other) const noexcept;
    bool operator<(const Category& other) const noexcept;
    bool operator>(const Category& other) const noexcept;
    /// @}

private:
    friend struct Internal::Access;
    explicit Category(std::shared_ptr<const Internal::CategoryData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::CategoryData> data_;
};

} // namespace Parameters
