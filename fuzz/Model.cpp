#include "Model.h"

#include "support/SchemaTexts.h"

#include <algorithm>
#include <array>

namespace Fuzz {

namespace {

enum : std::size_t {
    Enumeration,
    FloatRange,
    IntRange,
    StringRange,
    Discipline,
    Domain,
    Group,
    MajorCategory,
    SubCategory,
    BoolSpec,
    GeneralSpec,
    IntSpec,
    MeasurableSpec,
    ReferenceSpec,
    StringSpec,
    EnumerationParameter,
    BoolParameter,
    IntParameter,
    MeasurableParameter,
    ReferenceParameter,
    StringParameter,
    Unit,
};

constexpr const char* name = R"({"id": "name", "value": "Name"})";
constexpr const char* bounds = R"({"id": "fromBottom", "value": true}, {"id": "fromTop", "value": false},
    {"id": "bottomBoundary", "value": -3})";
constexpr const char* disciplinePrefix = "norvex.spec:discipline-1.";
constexpr const char* groupPrefix = "norvex.parameter:group-1.";

const Kind::Reference disciplineReference{Discipline, disciplinePrefix, "discipline", false};
const Kind::Reference groupReference{Group, groupPrefix, "group", false};

/// The version prefixes that no typeid may contain.
constexpr std::array reserved{"norvex.range:range.string-1.",
                              "norvex.range:range.string.set.static-1.",
                              "norvex.range:range.string.regex-1.",
                              "norvex.range:range.float64.bounded.static-1.",
                              "norvex.range:range.int64.bounded.static-1.",
                              "norvex.talmo.spec:familyType-1.",
                              "norvex.spec:spec.bool-1.",
                              "norvex.spec:spec.int64-2.",
                              "norvex.spec:spec.reference-1.",
                              "norvex.spec:spec.string-2.",
                              disciplinePrefix,
                              groupPrefix};

bool isReserved(const std::string& typeId) {
    return std::any_of(reserved.begin(), reserved.end(),
                       [&](const char* prefix) { return typeId.find(prefix) != std::string::npos; });
}

bool isCategory(std::size_t kind) { return kind == MajorCategory || kind == SubCategory; }

} // namespace

const std::size_t unitKind = Unit;

const std::vector<Kind> kinds{
    {"Enum", name, {}, R"(, "properties": [{"id": "on", "value": 1}, {"id": "off", "value": 0}])"},
    {"norvex.range:range.float64.bounded.static-1.0.0", bounds, {}},
    {"norvex.range:range.int64.bounded.static-1.0.0", bounds, {}},
    {"norvex.range:range.string.regex-1.0.0", R"({"id": "regex", "value": "[a-z]*"})", {}},
    {"norvex.spec:discipline-1.0.0", name, {}},
    {"norvex.talmo.category:domain-1.0.0", name, {}},
    {"norvex.parameter:group-1.0.0", name, {}},
    {"norvex.talmo.category:majorCategory-1.0.0", name, {{Domain, nullptr, "domain", true}}},
    {"norvex.talmo.category:subCategory-1.0.0", name, {{MajorCategory, nullptr, "parent", true}}},
    {"norvex.spec:spec.bool-1.0.0", name, {disciplineReference}},
    {"norvex.spec:spec-1.0.0", name, {disciplineReference}},
    {"norvex.spec:spec.int64-2.0.0", name, {disciplineReference}},
    {"norvex.spec:spec.measurable-2.0.0", name, {disciplineReference, {Unit, nullptr, "storageUnit", true}}},
    {"norvex.spec:spec.reference-1.0.0", name, {disciplineReference, {SubCategory, nullptr, "category", false}}},
    {"norvex.spec:spec.string-2.0.0", name, {disciplineReference}},
    {"norvex.parameter:parameter-2.0.0",
     name,
     {{Enumeration, nullptr, nullptr, true}, groupReference, {GeneralSpec, nullptr, "spec", true}},
     R"(, "properties": [{"id": "value", "typedValue": {"typeid": %}}])"},
    {"norvex.parameter:parameter.bool-2.0.0",
     name,
     {groupReference, {BoolSpec, "norvex.spec:spec.bool-1.", "spec", false}}},
    {"norvex.parameter:parameter.int64-3.0.0",
     name,
     {groupReference, {IntSpec, "norvex.spec:spec.int64-2.", "spec", false}, {IntRange, nullptr, "range", false}}},
    {"norvex.parameter:parameter.measurable-3.0.0",
     name,
     {groupReference, {MeasurableSpec, nullptr, "spec", true}, {FloatRange, nullptr, "range", false}}},
    {"norvex.parameter:parameter.reference-2.0.0",
     name,
     {groupReference, {ReferenceSpec, "norvex.spec:spec.reference-1.", "spec", false}}},
    {"norvex.parameter:parameter.string-3.0.0",
     name,
     {groupReference,
      {StringSpec, "norvex.spec:spec.string-2.", "spec", false},
      {StringRange, nullptr, "range", false}}},
    {"norvex.unit:unit-1.0.0", name, {}},
};

std::string Schema::text() const {
    const Kind& own = kinds[kind];
    std::string constants = own.before;
    for (std::size_t i = 0; i < named.size(); ++i) {
        if (own.references[i].constant != nullptr && !named[i].empty()) {
            constants += ", " + Support::typedConstant(own.references[i].constant, named[i]);
        }
    }
    std::string text = Support::schemaText(typeId, own.base, constants);
    std::string after = own.after;
    if (const std::size_t place = after.find('%'); place != std::string::npos) {
        after.replace(place, 1, Support::quoted(named[0]));
    }
    return text.insert(text.size() - 1, after);
}

bool Model::isTaken(const std::string& typeId) const { return known_.count(typeId) == 1 || isReserved(typeId); }

bool Model::accepts(const Schema& schema) const {
    if (schema.typeId.empty() || isTaken(schema.typeId)) {
        return false;
    }
    const auto& references = kinds[schema.kind].references;
    for (std::size_t i = 0; i < references.size(); ++i) {
        if (references[i].required && schema.named[i].empty()) {
            return false;
        }
    }
    return true;
}

std::set<std::string> Model::missingFor(const Schema& schema) const {
    std::set<std::string> missing;
    for (const std::string& typeId : schema.named) {
        if (!typeId.empty() && typeId != schema.typeId && !isTaken(typeId)) {
            missing.insert(typeId);
        }
    }
    return missing;
}

void Model::add(const Schema& schema) { known_.emplace(schema.typeId, Known{schema, false}); }

void Model::resolve() {
    for (auto& [typeId, known] : known_) {
        known.resolved = true;
    }
}

void Model::resolve(const std::string& typeId) { known_.at(typeId).resolved = true; }

void Model::resolveUnits() {
    for (auto& [typeId, known] : known_) {
        known.resolved = known.resolved || known.schema.kind == Unit;
    }
}

bool Model::isPending(const std::string& typeId) const {
    const auto found = known_.find(typeId);
    return found != known_.end() && !found->second.resolved && found->second.schema.kind != Unit;
}

bool Model::discard(const std::string& typeId) { return isPending(typeId) && known_.erase(typeId) == 1; }

/// Whether what a reference names is such an object, or will be.
bool Model::names(const Known& known, const Kind::Reference& reference, const std::string& typeId) const {
    if (typeId.empty() || (reference.builtIn != nullptr && typeId.find(reference.builtIn) != std::string::npos)) {
        return true;
    }
    const auto found = known_.find(typeId);
    if (found == known_.end()) {
        return false;
    }
    const std::size_t kind = found->second.schema.kind;
    // A subcategory's parent is a major category; a spec's category may be either.
    const bool fits = kind == reference.kind ||
                      (known.schema.kind == ReferenceSpec && isCategory(reference.kind) && isCategory(kind));
    return fits && isBuildable(found->second);
}

bool Model::isBuildable(const Known& known) const {
    if (known.resolved) {
        return true;
    }
    const auto& references = kinds[known.schema.kind].references;
    for (std::size_t i = 0; i < references.size(); ++i) {
        if (!names(known, references[i], known.schema.named[i])) {
            return false;
        }
    }
    return true;
}

std::set<std::string> Model::unresolvable() const {
    std::set<std::string> typeIds;
    for (const auto& [typeId, known] : known_) {
        if (!isBuildable(known)) {
            typeIds.insert(typeId);
        }
    }
    return typeIds;
}

std::set<std::string> Model::objects() const {
    std::set<std::string> typeIds;
    for (const auto& [typeId, known] : known_) {
        if (known.resolved && known.schema.kind != Unit) {
            typeIds.insert(typeId);
        }
    }
    return typeIds;
}

} // namespace Fuzz
