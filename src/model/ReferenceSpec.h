#pragma once

#include "model/SpecCore.h"
#include "schema/BuiltIn.h"
#include "schema/Schema.h"

#include <parameters/ReferenceSpec.h>

#include <optional>
#include <string>
#include <string_view>

namespace Parameters::Internal {

struct ReferenceSpecData {
    SpecCoreData core;
    std::optional<Category> category;

    std::string_view typeId() const { return core.typeId(); }
};

struct ReferenceSpecKind {
    using Object = ReferenceSpec;
    using Record = SpecRecord; // the category, if there is one, is the second reference

    static constexpr std::string_view word = "reference spec";
    static constexpr const auto& builtIn = Ostra::BuiltIn::referenceSpec;

    static std::optional<Record> read(const Ostra::Schema& schema);
    static Record recordOf(const ReferenceSpec& spec);
    static ReferenceSpec build(const Record& record, const Finder& finder);
    static std::string write(const ReferenceSpec& spec);
    static ReferenceSpec standIn(std::string_view typeId);

    /// Returns the spec of family types under that typeid.
    static ReferenceSpec familyType(std::string_view typeId, const Category& category);
};

} // namespace Parameters::Internal
