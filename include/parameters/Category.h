#pragma once

#include <parameters/Export.h>
#include <parameters/MajorCategoryComponent.h>
#include <parameters/Ref.h>
#include <parameters/SubCategoryComponent.h>
#include <parameters/Value.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
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
    /// @{
    [[nodiscard]] std::string getTypeId() const;
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// @}
    /// Returns the name to show.
    /// @{
    [[nodiscard]] std::string getName() const;
    [[nodiscard]] std::string_view name() const noexcept;
    /// @}
    /// Returns the component of a major category; empty for a subcategory.
    /// @{
    [[nodiscard]] std::optional<MajorCategoryComponent> getMajorCategoryComponent() const noexcept;
    [[nodiscard]] const MajorCategoryComponent* majorCategoryComponent() const noexcept;
    /// @}
    /// Returns the component of a subcategory; empty for a major category.
    /// @{
    [[nodiscard]] std::optional<SubCategoryComponent> getSubCategoryComponent() const noexcept;
    [[nodiscard]] const SubCategoryComponent* subCategoryComponent() const noexcept;
    /// @}

    /// Compares identity: the bytes of the type identifier alone decide, nothing else takes part.
    /// @{
    bool operator==(const Category& other) const noexcept;
    bool operator!=(const Category& other) const noexcept;
    bool operator<(const Category& other) const noexcept;
    bool operator>(const Category& other) const noexcept;
    /// @}

    /// Exchanges two values without counting copies, which moving does: for sorting.
    friend void swap(Category& one, Category& other) noexcept { one.data_.swap(other.data_); }

private:
    friend struct Internal::Access;
    Category(Internal::Ref<const Internal::CategoryData> data, Internal::Key) noexcept : data_(std::move(data)) {}

    Internal::Ref<const Internal::CategoryData> data_;
};

} // namespace Parameters

/// Hashes the type identifier, which alone decides in comparisons.
template <>
struct std::hash<Parameters::Category> : Parameters::Internal::TypeIdHash<Parameters::Category> {};
