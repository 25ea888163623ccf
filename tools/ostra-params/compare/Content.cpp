#include "compare/Content.h"

#include "catalogue/Catalogue.h"
#include "language/Language.h"

#include <parameters/Kinds.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tool::Compare {

namespace {

using namespace Parameters;
using Content = std::vector<Constant>;

std::string textOf(std::string_view text) { return std::string(text); }

Reference reference(const auto& object) { return {textOf(object.typeId())}; }

References references(const auto& objects) {
    References result;
    for (const auto& object : objects) {
        result.push_back(reference(object));
    }
    return result;
}

Value referenceOrNothing(const auto* object) { return object == nullptr ? Value() : reference(*object); }

/// Returns the base that a schema of a kind inherits, in its whole version.
template <class Kind>
std::string base(std::size_t place = 0) {
    return textOf(Kind::info.bases()[place]);
}

/// A range that is a parameter's own has one of the bases as its typeid.
template <class Range>
bool isOwn(const Range& range) {
    const auto bases = Kinds::Of<Range>::info.bases();
    return std::find(bases.begin(), bases.end(), range.typeId()) != bases.end();
}

/// In whatever minor version, and with whatever else in it: it is the same spec.
bool isFamilyType(std::string_view specTypeId) {
    return specTypeId.find(Language::prefixOf(Kinds::ReferenceSpec::familyType)) != std::string_view::npos;
}

Choices choicesOf(const Enumeration& enumeration) {
    Choices choices;
    for (const auto& each : enumeration.values()) {
        choices.push_back({textOf(each.identifier), each.integer});
    }
    return choices;
}

void addLimits(Content& content, const auto& range, std::string_view from) {
    content.push_back({"bottomBoundary", range.isBoundFromBottom() ? Value(range.getBottomBoundary()) : Value(), from});
    content.push_back({"topBoundary", range.isBoundFromTop() ? Value(range.getTopBoundary()) : Value(), from});
}

void addLimits(Content& content, const StringRange& range, std::string_view from) {
    Value values;
    Value regex;
    if (const auto* set = range.setStringRangeComponent()) {
        Texts& texts = values.emplace<Texts>();
        std::transform(set->allowedValues().begin(), set->allowedValues().end(), std::back_inserter(texts), textOf);
    } else if (const auto* component = range.regexStringRangeComponent()) {
        regex = component->getRegex();
    }
    content.push_back({"allowedValues", std::move(values), from});
    content.push_back({"regex", std::move(regex), from});
}

void addSpec(Content& content, const SpecCore& core) {
    content.push_back({"name", core.getName()});
    content.push_back({"discipline", reference(core.discipline())});
}

void addParameter(Content& content, const auto& parameter) {
    const ParameterCore& core = parameter.core();
    content.push_back({"name", core.getName()});
    content.push_back({"description", textOf(core.description())});
    content.push_back({"sampleText", textOf(core.sampleText())});
    content.push_back({"group", reference(core.group())});
    content.push_back({"readOnly", core.isReadOnly()});
    const std::string_view spec = parameter.spec().typeId();
    content.push_back({"spec", Reference{textOf(isFamilyType(spec) ? Kinds::ReferenceSpec::familyType : spec)}});
}

void addRange(Content& content, const auto& range) {
    const bool own = isOwn(range);
    content.push_back({"range", own ? Value() : Value(reference(range))});
    addLimits(content, range, own ? "" : "range");
}

/// Adds what an object says; each kind begins with the base. This is for the kinds that have nothing but a name.
template <class Kind>
void add(Kind, Content& content, const Taxon& taxon) {
    content.push_back({"inherits", base<Kind>()});
    content.push_back({"name", taxon.getName()});
}

void add(Kinds::Category, Content& content, const Category& category) {
    const auto* major = category.majorCategoryComponent();
    const auto* sub = category.subCategoryComponent();
    content.push_back({"inherits", base<Kinds::Category>(sub == nullptr ? 0 : 1)});
    content.push_back({"name", category.getName()});
    content.push_back({"disciplines", major == nullptr ? References() : references(major->disciplines())});
    content.push_back({"domain", major == nullptr ? Value() : Value(reference(major->domain()))});
    content.push_back({"parent", sub == nullptr ? Value() : Value(Reference{sub->getParentCategory()})});
}

void add(Kinds::Enumeration, Content& content, const Enumeration& enumeration) {
    content.push_back({"inherits", base<Kinds::Enumeration>()});
    content.push_back({"choices", choicesOf(enumeration)});
}

void add(Kinds::FloatRange, Content& content, const FloatRange& range) {
    content.push_back({"inherits", base<Kinds::FloatRange>()});
    addLimits(content, range, "");
}

void add(Kinds::IntRange, Content& content, const IntRange& range) {
    content.push_back({"inherits", base<Kinds::IntRange>()});
    addLimits(content, range, "");
}

void add(Kinds::StringRange, Content& content, const StringRange& range) {
    const bool isSet = range.setStringRangeComponent() != nullptr;
    const bool isRegex = range.regexStringRangeComponent() != nullptr;
    content.push_back({"inherits", base<Kinds::StringRange>(isSet ? 1 : isRegex ? 2 : 0)});
    addLimits(content, range, "");
}

template <class Kind>
void addPlainSpec(Content& content, const auto& spec) {
    content.push_back({"inherits", base<Kind>()});
    addSpec(content, spec.core());
}

void add(Kinds::BoolSpec, Content& content, const BoolSpec& spec) { addPlainSpec<Kinds::BoolSpec>(content, spec); }
void add(Kinds::GeneralSpec, Content& content, const GeneralSpec& spec) {
    addPlainSpec<Kinds::GeneralSpec>(content, spec);
}
void add(Kinds::IntSpec, Content& content, const IntSpec& spec) { addPlainSpec<Kinds::IntSpec>(content, spec); }
void add(Kinds::StringSpec, Content& content, const StringSpec& spec) {
    addPlainSpec<Kinds::StringSpec>(content, spec);
}

void add(Kinds::MeasurableSpec, Content& content, const MeasurableSpec& spec) {
    addPlainSpec<Kinds::MeasurableSpec>(content, spec);
    References units;
    for (const Units::Unit& unit : spec.applicableUnits()) {
        units.push_back({unit.getTypeId()});
    }
    content.push_back({"applicableUnits", std::move(units)});
    content.push_back({"storageUnit", Reference{spec.storageUnit().getTypeId()}});
}

void add(Kinds::ReferenceSpec, Content& content, const ReferenceSpec& spec) {
    addPlainSpec<Kinds::ReferenceSpec>(content, spec);
    content.push_back({"category", referenceOrNothing(spec.category())});
}

void add(Kinds::BoolParameter, Content& content, const BoolParameter& parameter) {
    content.push_back({"inherits", base<Kinds::BoolParameter>()});
    addParameter(content, parameter);
}

void add(Kinds::EnumerationParameter, Content& content, const EnumerationParameter& parameter) {
    content.push_back({"inherits", base<Kinds::EnumerationParameter>()});
    addParameter(content, parameter);
    content.push_back({"value", reference(parameter.enumeration())});
    content.push_back({"choices", choicesOf(parameter.enumeration()), "value"});
}

void add(Kinds::IntParameter, Content& content, const IntParameter& parameter) {
    content.push_back({"inherits", base<Kinds::IntParameter>()});
    addParameter(content, parameter);
    addRange(content, parameter.range());
}

void add(Kinds::StringParameter, Content& content, const StringParameter& parameter) {
    content.push_back({"inherits", base<Kinds::StringParameter>()});
    addParameter(content, parameter);
    addRange(content, parameter.range());
}

void add(Kinds::MeasurableParameter, Content& content, const MeasurableParameter& parameter) {
    content.push_back({"inherits", base<Kinds::MeasurableParameter>()});
    addParameter(content, parameter);
    content.push_back({"storageUnit", Reference{parameter.spec().storageUnit().getTypeId()}, "spec"});
    addRange(content, parameter.range());
}

void add(Kinds::ReferenceParameter, Content& content, const ReferenceParameter& parameter) {
    const ReferenceSpec& spec = parameter.spec();
    content.push_back({"inherits", base<Kinds::ReferenceParameter>(parameter.isRanged() ? 1 : 0)});
    addParameter(content, parameter);
    // The category of a family type is said by the parameter itself.
    content.push_back({"category", referenceOrNothing(spec.category()), isFamilyType(spec.typeId()) ? "" : "spec"});
}

/// The units library hands out no single unit for sure; the description has all that there is to one.
Content contentOfUnit(const Object& unit) {
    Content content{{"inherits", textOf(unit.section->bases.front())}, {"name", unit.name}, {"symbol", std::string()}};
    for (const Property& property : unit.properties) {
        content.back().value = property.values.front().text; // the symbol is the one property, if it is there
    }
    return content;
}

} // namespace

std::vector<Constant> contentOf(const Catalogue& catalogue, const Object& object) {
    Content content;
    if (object.section == &sectionOfUnits()) {
        return contentOfUnit(object);
    }
    visitKind(*findKindOfId(object.section->id),
              [&](auto kind) { add(kind, content, *kind.find(catalogue.engine(), object.typeId)); });
    return content;
}

const Constant* find(const std::vector<Constant>& content, std::string_view id) {
    const auto found =
        std::find_if(content.begin(), content.end(), [id](const Constant& each) { return each.id == id; });
    return found == content.end() ? nullptr : &*found;
}

} // namespace Tool::Compare
