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
/// Copies share their data.
class PARAMETERS_EXPORT Category {
public:
    Category(const std::string& typeId, const std::string& name, const MajorCategoryComponent& component);
    Category(const std::string& typeId, const std::string& name, const SubCategoryComponent& component);
    Category(const Category&) noexcept = default;
    Category& operator=(const Category&) noexcept = default;

    std::string getTypeId() const;
    std::string getName() const;
    /// Returns the component of a major category; empty for a subcategory.
    std::optional<MajorCategoryComponent> getMajorCategoryComponent() const;
    /// Returns the component of a subcategory; empty for a major category.
    std::optional<SubCategoryComponent> getSubCategoryComponent() const;

    /// Comparisons are by identity: the bytes of the type identifier alone decide, nothing else takes part.
    bool operator==(const Category& other) const noexcept;
    bool operator!=(const Category& other) const noexcept;
    bool operator<(const Category& other) const noexcept;
    bool operator>(const Category& other) const noexcept;

private:
    friend struct Internal::Access;
    explicit Category(std::shared_ptr<const Internal::CategoryData> data) noexcept : data_(std::move(data)) {}

    std::shared_ptr<const Internal::CategoryData> data_;
};

} // namespace Parameters
