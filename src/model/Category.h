#pragma once

#include "model/Access.h"
#include "model/Finder.h"
#include "model/Kind.h"
#include "model/Taxon.h"
#include "model/Texts.h"
#include "schema/Message.h"
#include "schema/Schema.h"

#include <parameters/Category.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Parameters::Internal {

struct MajorCategoryComponentData {
    Taxon domain;
    std::vector<Taxon> disciplines;
};

struct SubCategoryComponentData {
    Texts parentCategory; // one
};

struct CategoryData {
    Texts texts; // typeid, name
    std::variant<MajorCategoryComponent, SubCategoryComponent> component;

    std::string_view typeId() const { return texts[0]; }
    std::string_view name() const { return texts[1]; }
    const MajorCategoryComponent* major() const { return std::get_if<MajorCategoryComponent>(&component); }
    const SubCategoryComponent* sub() const { return std::get_if<SubCategoryComponent>(&component); }
};

struct CategoryKind : DescribedKind<Kinds::Category> {
    using Names = KindList<DomainKind, DisciplineKind, CategoryKind>;
    struct Record {
        Texts texts;      // typeid, name
        Texts references; // typeids: disciplines and domain, as they are read, or the parent
        bool major;

        std::string_view typeId() const { return texts[0]; }
        std::string_view domain() const { return references[references.size() - 1]; }
        std::size_t disciplines() const { return references.size() - 1; }
        std::string_view discipline(std::size_t place) const { return references[place]; }
        std::string_view parent() const { return references[0]; }
    };

    static constexpr auto messages = Ostra::Messages({
        {"parent-not-major", "Parent <typeid> of subcategory schema <schema> is not a major category."},
        {"given-parent-not-major", "Parent <typeid> of subcategory <schema> is not a major category."},
    });

    static constexpr Ostra::Identifier majorBase{Public::info.bases()[0]};
    static constexpr Ostra::Identifier subBase{Public::info.bases()[1]};

    /// Subcategories name categories of this very kind, which therefore is resolved in two passes.
    static int passOf(const Record& record) { return record.major ? 0 : 1; }

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const Category& category);
    static Category build(const Record& record, const Finder& finder, const Category* given);
    static std::string write(const Category& category);
};

} // namespace Parameters::Internal
