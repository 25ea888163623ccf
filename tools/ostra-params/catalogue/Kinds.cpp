#include "catalogue/Kinds.h"

#include "catalogue/Describe.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

namespace Tool {

namespace {

using Parameters::ParametersEngine;

template <auto getAll>
std::vector<Object> objectsOf(ParametersEngine& engine) {
    std::vector<Object> objects;
    for (const auto& [typeId, value] : (engine.*getAll)()) {
        objects.push_back(describe(value));
    }
    return objects;
}

std::vector<Object> units(ParametersEngine& engine) {
    std::vector<Object> objects;
    for (const auto& [typeId, unit] : engine.getUnitsEngine().getAllUnits()) {
        objects.push_back(describe(unit));
    }
    return objects;
}

const std::vector<Kind> table{
    {"unit", "unit", "units", {"norvex.unit:unit-1.0.0"}, units},
    {"enumeration", "enumeration", "enumerations", {"Enum"}, objectsOf<&ParametersEngine::getAllEnumerations>},
    {"float-range",
     "floating-point range",
     "floating-point ranges",
     {"norvex.range:range.float64.bounded.static-1.0.0"},
     objectsOf<&ParametersEngine::getAllFloatRanges>},
    {"int-range",
     "integer range",
     "integer ranges",
     {"norvex.range:range.int64.bounded.static-1.0.0"},
     objectsOf<&ParametersEngine::getAllIntRanges>},
    {"string-range",
     "string range",
     "string ranges",
     {"norvex.range:range.string-1.0.0", "norvex.range:range.string.set.static-1.0.0",
      "norvex.range:range.string.regex-1.0.0"},
     objectsOf<&ParametersEngine::getAllStringRanges>},
    {"discipline",
     "discipline",
     "disciplines",
     {"norvex.spec:discipline-1.0.0"},
     objectsOf<&ParametersEngine::getAllDisciplines>},
    {"bool-spec",
     "Boolean spec",
     "Boolean specs",
     {"norvex.spec:spec.bool-1.0.0"},
     objectsOf<&ParametersEngine::getAllBoolSpecs>},
    {"general-spec",
     "general spec",
     "general specs",
     {"norvex.spec:spec-1.0.0"},
     objectsOf<&ParametersEngine::getAllGeneralSpecs>},
    {"int-spec",
     "integer spec",
     "integer specs",
     {"norvex.spec:spec.int64-2.0.0"},
     objectsOf<&ParametersEngine::getAllIntSpecs>},
    {"measurable-spec",
     "measurable spec",
     "measurable specs",
     {"norvex.spec:spec.measurable-2.0.0"},
     objectsOf<&ParametersEngine::getAllMeasurableSpecs>},
    {"reference-spec",
     "reference spec",
     "reference specs",
     {"norvex.spec:spec.reference-1.0.0"},
     objectsOf<&ParametersEngine::getAllReferenceSpecs>},
    {"string-spec",
     "string spec",
     "string specs",
     {"norvex.spec:spec.string-2.0.0"},
     objectsOf<&ParametersEngine::getAllStringSpecs>},
    {"group", "group", "groups", {"norvex.parameter:group-1.0.0"}, objectsOf<&ParametersEngine::getAllGroups>},
    {"enumeration-parameter",
     "enumeration parameter",
     "enumeration parameters",
     {"norvex.parameter:parameter-2.0.0"},
     objectsOf<&ParametersEngine::getAllEnumerationParameters>},
    {"bool-parameter",
     "Boolean parameter",
     "Boolean parameters",
     {"norvex.parameter:parameter.bool-2.0.0"},
     objectsOf<&ParametersEngine::getAllBoolParameters>},
    {"int-parameter",
     "integer parameter",
     "integer parameters",
     {"norvex.parameter:parameter.int64-3.0.0"},
     objectsOf<&ParametersEngine::getAllIntParameters>},
    {"measurable-parameter",
     "measurable parameter",
     "measurable parameters",
     {"norvex.parameter:parameter.measurable-3.0.0"},
     objectsOf<&ParametersEngine::getAllMeasurableParameters>},
    {"reference-parameter",
     "reference parameter",
     "reference parameters",
     {"norvex.parameter:parameter.reference-2.0.0", "norvex.parameter:parameter.reference.ranged-2.0.0"},
     objectsOf<&ParametersEngine::getAllReferenceParameters>},
    {"string-parameter",
     "string parameter",
     "string parameters",
     {"norvex.parameter:parameter.string-3.0.0"},
     objectsOf<&ParametersEngine::getAllStringParameters>},
    {"domain",
     "domain",
     "domains",
     {"norvex.talmo.category:domain-1.0.0"},
     objectsOf<&ParametersEngine::getAllDomains>},
    {"category",
     "category",
     "categories",
     {"norvex.talmo.category:majorCategory-1.0.0", "norvex.talmo.category:subCategory-1.0.0"},
     objectsOf<&ParametersEngine::getAllCategories>},
};

/// The minor and patch version of a base say nothing: its identifier up to there may stand anywhere in what is
/// inherited. "Enum" has no version and stands alone.
bool inherits(std::string_view inherited, std::string_view base) {
    constexpr std::string_view anyVersion = "0.0";
    return base == "Enum" ? inherited == base
                          : inherited.find(base.substr(0, base.size() - anyVersion.size())) != std::string_view::npos;
}

/// Returns a word in small letters, with hyphens between its parts.
std::string normal(std::string_view word) {
    std::string result(word);
    for (char& character : result) {
        const bool isBlank = character == ' ' || character == '_';
        character = isBlank ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    return result;
}

const Kind* firstKind(const auto& isWanted) {
    const auto found = std::find_if(table.begin(), table.end(), isWanted);
    return found == table.end() ? nullptr : &*found;
}

} // namespace

const std::vector<Kind>& kinds() { return table; }

std::size_t indexOf(const Kind& kind) { return static_cast<std::size_t>(&kind - table.data()); }

const Kind* kindOfBase(std::string_view inherited) {
    return firstKind([inherited](const Kind& kind) {
        return std::any_of(kind.bases.begin(), kind.bases.end(),
                           [inherited](std::string_view base) { return inherits(inherited, base); });
    });
}

const Kind* kindOfId(std::string_view id) {
    return firstKind([id](const Kind& kind) { return kind.id == id; });
}

bool isMeant(const Kind& kind, std::string_view word) {
    const std::string wanted = normal(word);
    const auto names = {kind.id, kind.label, kind.plural};
    return std::any_of(names.begin(), names.end(), [&](std::string_view name) {
        return wanted == normal(name) || wanted == normal(name.substr(name.rfind(' ') + 1));
    });
}

} // namespace Tool
