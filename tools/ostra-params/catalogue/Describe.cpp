#include "catalogue/Describe.h"

#include "catalogue/Sections.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tool {

namespace {

using namespace Parameters;

template <class Named>
Value named(const Named& object) {
    return {object.getName(), object.getTypeId()};
}

Value symbolOf(const Units::Unit& unit) {
    const std::string symbol = unit.getSymbol();
    return {symbol.empty() ? unit.getName() : symbol};
}

/// Returns a property with a value for each of several things.
Property listOf(std::string_view name, const auto& things, const auto& valueOf, bool isOwn = true) {
    Property list{name, {}, isOwn};
    std::ranges::transform(things, std::back_inserter(list.values), valueOf);
    return list;
}

template <class Number>
std::string boundsOf(bool hasBottom, Number bottom, bool hasTop, Number top) {
    if (hasBottom && hasTop) {
        return fmt::format("{} to {}", bottom, top);
    }
    return hasBottom ? fmt::format("at least {}", bottom) : hasTop ? fmt::format("at most {}", top) : "any";
}

template <class Range>
Property limitsOf(const Range& range) {
    return {"range",
            {{boundsOf(range.isBoundFromBottom(), range.getBottomBoundary(), range.isBoundFromTop(),
                       range.getTopBoundary())}}};
}

Property limitsOf(const StringRange& range) {
    if (const auto set = range.getSetStringRangeComponent()) {
        return listOf("allowed values", set->getAllowedValues(), [](const std::string& text) { return Value{text}; });
    }
    if (const auto regex = range.getRegexStringRangeComponent()) {
        return {"regular expression", {{regex->getRegex()}}};
    }
    return {"range", {{"any"}}};
}

/// An inline range has one of the bases as its typeid, and its limits are the parameter's own.
template <class Range>
bool isInline(const Range& range) {
    const auto bases = Kinds::Of<Range>::info.bases();
    return std::ranges::find(bases, range.getTypeId()) != bases.end();
}

void addRange(Object& object, const auto& range) {
    Property limits = limitsOf(range);
    if (!isInline(range)) {
        limits.isOwn = false;
        if (limits.name == "range") {
            limits.name = "values";
        }
        object.properties.push_back({"range", {{"", range.getTypeId()}}});
    }
    object.properties.push_back(std::move(limits));
}

void addText(Object& object, std::string_view name, std::string text) {
    if (!text.empty()) {
        object.properties.push_back({name, {{std::move(text)}}});
    }
}

Property choicesOf(const Enumeration& enumeration, bool isOwn) {
    const auto choice = [](const auto& each) { return Value{fmt::format("{} = {}", each.first, each.second)}; };
    return listOf("choices", enumeration.getValues(), choice, isOwn);
}

Property disciplineOf(const SpecCore& core, bool isOwn) { return {"discipline", {named(core.getDiscipline())}, isOwn}; }

Object describeSpec(const SpecCore& core) { return {core.getTypeId(), core.getName(), {disciplineOf(core, true)}}; }

Object describeParameter(const auto& parameter) {
    const ParameterCore core = parameter.getCore();
    const SpecCore spec = parameter.getSpec().getCore();
    Object object{core.getTypeId(), core.getName(), {}};
    addText(object, "description", core.getDescription());
    addText(object, "sample text", core.getSampleText());
    object.properties.push_back({"group", {named(core.getGroup())}});
    object.properties.push_back({"read-only", {{core.isReadOnly() ? "yes" : "no"}}});
    object.properties.push_back({"spec", {named(spec)}});
    object.properties.push_back(disciplineOf(spec, false));
    return object;
}

/// In whatever minor version, and with whatever else in it.
bool isFamilyType(const std::string& specTypeId) {
    constexpr std::string_view typeId = Kinds::ReferenceSpec::familyType;
    constexpr std::string_view anyMinor = typeId.substr(0, typeId.find('.', typeId.find('-')) + 1);
    return specTypeId.find(anyMinor) != std::string::npos;
}

Object describeRanged(const auto& parameter) {
    Object object = describeParameter(parameter);
    addRange(object, parameter.getRange());
    return object;
}

Object describe(const Units::Unit& unit) {
    Object object{unit.getTypeId(), unit.getName(), {}};
    addText(object, "symbol", unit.getSymbol());
    return object;
}

Object describe(const Taxon& taxon) { return {taxon.getTypeId(), taxon.getName(), {}}; }

Object describe(const Enumeration& enumeration) {
    return {enumeration.getTypeId(), {}, {choicesOf(enumeration, true)}};
}

Object describe(const FloatRange& range) { return {range.getTypeId(), {}, {limitsOf(range)}}; }
Object describe(const IntRange& range) { return {range.getTypeId(), {}, {limitsOf(range)}}; }
Object describe(const StringRange& range) { return {range.getTypeId(), {}, {limitsOf(range)}}; }

Object describe(const BoolSpec& spec) { return describeSpec(spec.getCore()); }
Object describe(const GeneralSpec& spec) { return describeSpec(spec.getCore()); }
Object describe(const IntSpec& spec) { return describeSpec(spec.getCore()); }
Object describe(const StringSpec& spec) { return describeSpec(spec.getCore()); }

Object describe(const MeasurableSpec& spec) {
    Object object = describeSpec(spec.getCore());
    object.properties.push_back({"storage unit", {named(spec.getStorageUnit())}});
    object.properties.push_back(listOf("applicable units", spec.getApplicableUnits(), named<Units::Unit>));
    return object;
}

Object describe(const ReferenceSpec& spec) {
    Object object = describeSpec(spec.getCore());
    if (const auto category = spec.getCategory()) {
        object.properties.push_back({"category", {named(*category)}});
    }
    return object;
}

Object describe(const BoolParameter& parameter) { return describeParameter(parameter); }

Object describe(const EnumerationParameter& parameter) {
    Object object = describeParameter(parameter);
    const Enumeration enumeration = parameter.getEnumeration();
    object.properties.push_back({"enumeration", {{"", enumeration.getTypeId()}}});
    object.properties.push_back(choicesOf(enumeration, false));
    return object;
}

Object describe(const IntParameter& parameter) { return describeRanged(parameter); }
Object describe(const StringParameter& parameter) { return describeRanged(parameter); }

Object describe(const MeasurableParameter& parameter) {
    Object object = describeRanged(parameter);
    object.properties.push_back({"stored in", {symbolOf(parameter.getSpec().getStorageUnit())}, false});
    object.properties.push_back(listOf("shown in", parameter.getSpec().getApplicableUnits(), symbolOf, false));
    return object;
}

Object describe(const ReferenceParameter& parameter) {
    const ReferenceSpec spec = parameter.getSpec();
    Object object = describeParameter(parameter);
    // The category of a family type is said by the parameter itself; that of a spec belongs to the spec.
    if (const auto category = spec.getCategory()) {
        object.properties.push_back({"category", {named(*category)}, isFamilyType(spec.getCore().getTypeId())});
    }
    object.properties.push_back({"ranged", {{parameter.isRanged() ? "yes" : "no"}}});
    return object;
}

Object describe(const Category& category) {
    Object object{category.getTypeId(), category.getName(), {}};
    if (const auto sub = category.getSubCategoryComponent()) {
        object.properties.push_back({"parent", {{"", sub->getParentCategory()}}});
    } else if (const auto major = category.getMajorCategoryComponent()) {
        object.properties.push_back({"domain", {named(major->getDomain())}});
        object.properties.push_back(listOf("disciplines", major->getDisciplines(), named<Taxon>));
    }
    return object;
}

template <class Kind>
Object describeOne(const typename Kind::Value& value) {
    static_assert(
        requires { describe(value); }, "The tool has no describe() for this kind.");
    return describe(value);
}

} // namespace

void describeEach(ParametersEngine& engine, const std::function<bool(const Section&)>& isWanted,
                  const std::function<void(Object)>& visit) {
    const auto visitAll = [&](const Section& section, const auto& objects, const auto& describeOf) {
        for (const auto& [typeId, value] : objects) {
            Object object = describeOf(value);
            object.section = &section;
            visit(std::move(object));
        }
    };
    if (isWanted(sectionOfUnits())) {
        visitAll(sectionOfUnits(), engine.getUnitsEngine().getAllUnits(),
                 [](const Units::Unit& unit) { return describe(unit); });
    }
    forEachKind([&](auto kind) {
        if (isWanted(sectionOf(kind.info))) {
            visitAll(sectionOf(kind.info), kind.getAll(engine), describeOne<decltype(kind)>);
        }
    });
}

std::vector<Object> describeAll(ParametersEngine& engine) {
    std::vector<Object> objects;
    describeEach(
        engine, [](const Section&) { return true; }, [&](Object object) { objects.push_back(std::move(object)); });
    return objects;
}

std::vector<std::size_t> countAll(ParametersEngine& engine) {
    std::vector<std::size_t> counts(sections().size());
    counts[indexOf(sectionOfUnits())] = engine.getUnitsEngine().getAllUnits().size();
    forEachKind([&](auto kind) { counts[indexOf(sectionOf(kind.info))] = kind.getAll(engine).size(); });
    return counts;
}

} // namespace Tool
