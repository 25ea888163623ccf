#include "faults/ExpectedSection.h"

#include <parameters/Kinds.h>

#include <algorithm>
#include <array>
#include <utility>

namespace Tool {

namespace {

namespace Kinds = Parameters::Kinds;

/// A constant that names the same kind of object in all schemas that have it.
struct Naming {
    std::string_view definitionId;
    Parameters::KindInfo expected;
};

constexpr std::array namings{
    Naming{"discipline", Kinds::Discipline::info}, Naming{"disciplines", Kinds::Discipline::info},
    Naming{"domain", Kinds::Domain::info},         Naming{"group", Kinds::Group::info},
    Naming{"parent", Kinds::Category::info},       Naming{"category", Kinds::Category::info},
};

/// What a constant of a parameter names is what the parameter hands out; it differs from kind to kind.
template <class Parameter>
const Section* sectionNamedBy(std::string_view definitionId) {
    if constexpr (requires(const Parameter& parameter) { parameter.getSpec(); }) {
        if (definitionId == "spec") {
            return &sectionOf(Kinds::Of<decltype(std::declval<const Parameter&>().getSpec())>::info);
        }
    }
    if constexpr (requires(const Parameter& parameter) { parameter.getRange(); }) {
        if (definitionId == "range") {
            return &sectionOf(Kinds::Of<decltype(std::declval<const Parameter&>().getRange())>::info);
        }
    }
    if constexpr (requires(const Parameter& parameter) { parameter.getEnumeration(); }) {
        if (definitionId == "value") {
            return &sectionOf(Kinds::Of<decltype(std::declval<const Parameter&>().getEnumeration())>::info);
        }
    }
    return nullptr;
}

} // namespace

const Section* expectedSection(const Section& ofSchema, std::string_view definitionId) {
    if (definitionId == "storageUnit" || definitionId == "applicableUnits") {
        return &sectionOfUnits();
    }
    const auto* const naming = std::find_if(namings.begin(), namings.end(),
                                            [&](const Naming& each) { return each.definitionId == definitionId; });
    if (naming != namings.end()) {
        return &sectionOf(naming->expected);
    }
    const Section* expected = nullptr;
    Parameters::forEachKind(Kinds::Parameters{}, [&](auto kind) {
        if (kind.info.id() == ofSchema.id) {
            expected = sectionNamedBy<typename decltype(kind)::Value>(definitionId);
        }
    });
    return expected;
}

} // namespace Tool
