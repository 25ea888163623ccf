#include "faults/ExpectedKind.h"

#include <algorithm>
#include <array>

namespace Tool {

namespace {

struct Naming {
    std::string_view schemaKind; ///< Empty for all kinds.
    std::string_view definitionId;
    std::string_view expected;
};

constexpr std::array namings{
    Naming{"", "discipline", "discipline"},
    Naming{"", "disciplines", "discipline"},
    Naming{"", "domain", "domain"},
    Naming{"", "group", "group"},
    Naming{"", "parent", "category"},
    Naming{"", "category", "category"},
    Naming{"", "storageUnit", "unit"},
    Naming{"", "applicableUnits", "unit"},
    Naming{"enumeration-parameter", "value", "enumeration"},
    Naming{"enumeration-parameter", "spec", "general-spec"},
    Naming{"bool-parameter", "spec", "bool-spec"},
    Naming{"int-parameter", "spec", "int-spec"},
    Naming{"measurable-parameter", "spec", "measurable-spec"},
    Naming{"reference-parameter", "spec", "reference-spec"},
    Naming{"string-parameter", "spec", "string-spec"},
    Naming{"int-parameter", "range", "int-range"},
    Naming{"measurable-parameter", "range", "float-range"},
    Naming{"string-parameter", "range", "string-range"},
};

} // namespace

const Kind* expectedKind(const Kind& schemaKind, std::string_view definitionId) {
    const auto* const found = std::find_if(namings.begin(), namings.end(), [&](const Naming& naming) {
        return naming.definitionId == definitionId && (naming.schemaKind.empty() || naming.schemaKind == schemaKind.id);
    });
    return found == namings.end() ? nullptr : kindOfId(found->expected);
}

} // namespace Tool
