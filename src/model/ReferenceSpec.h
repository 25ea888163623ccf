#pragma once

#include "model/SpecCore.h"
#include "schema/Schema.h"

#include <parameters/ReferenceSpec.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct ReferenceSpecData : SpecCoreData {
    std::optional<Category> category;
};

struct CategoryKind;

struct ReferenceSpecKind : DescribedKind<Kinds::ReferenceSpec> {
    using Names = KindList<DisciplineKind, CategoryKind>;
    struct Record : SpecRecord {
        using SpecRecord::SpecRecord;
        std::optional<std::string_view> category() const { return added(); }
    };

    /// The spec that a parameter names to refer to family types of a category of its own choice.
    static constexpr Ostra::Identifier familyTypeBase{Public::familyType};

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const ReferenceSpec& spec);
    static ReferenceSpec build(const Record& record, const Finder& finder, const ReferenceSpec* given);
    static std::string write(const ReferenceSpec& spec);
    static ReferenceSpec standIn(std::string_view typeId);

    /// Returns the spec of family types under that typeid.
    static ReferenceSpec familyType(std::string_view typeId, const Category& category);
    static bool reserves(std::string_view typeId) { return familyTypeBase.begins(typeId); }
};

} // namespace Parameters::Internal
