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
    std::transform(things.begin(), things.end(), std::back_inserter(list.values), valueOf);
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
    if (const auto* set = range.setStringRangeComponent()) {
        return listOf("allowed values", set->allowedValues(),
                      [](std::string_view text) { return Value{std::string(text)}; });
    }
    if (const auto* regex = range.regexStringRangeComponent()) {
        return {"regular expression", {{regex->getRegex()}}};
    }
    return {"range", {{"any"}}};
}

/// An inline range has one of the bases as its typeid, and its limits are the parameter's own.
template <class Range>
bool isInline(const Range& range) {
    const auto bases = Kinds::Of<Range>::info.bases();
    return std::find(bases.begin(), bases.end(), range.typeId()) != bases.end();
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

void addText(Object& object, std::string_view name, std::string_view text) {
    if (!text.empty()) {
        object.properties.push_back({name, {{std::string(text)}}});
    }
}

Property choicesOf(const Enumeration& enumeration, bool isOwn) {
    const auto choice = [](const auto& each) { return Value{fmt::format("{} = {}", each.identifier, each.integer)}; };
    return listOf("choices", enumeration.values(), choice, isOwn);
}

Property disciplineOf(const SpecCore& core, bool isOwn) { return {"discipline", {named(core.discipline())}, isOwn}; }

Object describeSpec(const SpecCore& core) { return {core.getTypeId(), core.getName(), {disciplineOf(core, true)}}; }

Object describeParameter(const auto& parameter) {
    const ParameterCore& core = parameter.core();
    const SpecCore& spec = parameter.spec().core();
    Object object{core.getTypeId(), core.getName(), {}};
    addText(object, "description", core.description());
    addText(object, "sample text", core.sampleText());
    object.properties.push_back({"group", {named(core.group())}});
    object.properties.push_back({"read-only", {{core.isReadOnly() ? "yes" : "no"}}});
    object.properties.push_back({"spec", {named(spec)}});
    object.properties.push_back(disciplineOf(spec, false));
    return object;
}

/// In whatever minor version, and with whatever else in it.
bool isFamilyType(std::string_view specTypeId) {
    constexpr std::string_view typeId = Kinds::ReferenceSpec::familyType;
    constexpr std::string_view anyMinor = typeId.substr(0, typeId.find('.', typeId.find('-')) + 1);
    return specTypeId.find(anyMinor) != std::string::npos;
}

Object describeRanged(const auto& parameter) {
    Object object = describeParameter(parameter);
    addRange(object, parameter.range());
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

Object describe(const BoolSpec& spec) { return describeSpec(spec.core()); }
Object describe(const GeneralSpec& spec) { return describeSpec(spec.core()); }
Object describe(const IntSpec& spec) { return describeSpec(spec.core()); }
Object describe(const StringSpec& spec) { return describeSpec(spec.core()); }

Object describe(const MeasurableSpec& spec) {
    Object object = describeSpec(spec.core());
    object.properties.push_back({"storage unit", {named(spec.storageUnit())}});
    object.properties.push_back(listOf("applicable units", spec.applicableUnits(), named<Units::Unit>));
    return object;
}

Object describe(const ReferenceSpec& spec) {
    Object object = describeSpec(spec.core());
    if (const Category* category = spec.category()) {
        object.properties.push_back({"category", {named(*category)}});
    }
    return object;
}

Object describe(const BoolParameter& parameter) { return describeParameter(parameter); }

Object describe(const EnumerationParameter& parameter) {
    Object object = describeParameter(parameter);
    const Enumeration& enumeration = parameter.enumeration();
    object.properties.push_back({"enumeration", {{"", enumeration.getTypeId()}}});
    object.properties.push_back(choicesOf(enumeration, false));
    return object;
}

Object describe(const IntParameter& parameter) { return describeRanged(parameter); }
Object describe(const StringParameter& parameter) { return describeRanged(parameter); }

Object describe(const MeasurableParameter& parameter) {
    Object object = describeRanged(parameter);
    object.properties.push_back({"stored in", {symbolOf(parameter.spec().storageUnit())}, false});
    object.properties.push_back(listOf("shown in", parameter.spec().applicableUnits(), symbolOf, false));
    return object;
}

Object describe(const ReferenceParameter& parameter) {
    const ReferenceSpec& spec = parameter.spec();
    Object object = describeParameter(parameter);
    // The category of a family type is said by the parameter itself; that of a spec belongs to the spec.
    if (const Category* category = spec.category()) {
        object.properties.push_back({"category", {named(*category)}, isFamilyType(spec.typeId())});
    }
    object.properties.push_back({"ranged", {{parameter.isRanged() ? "yes" : "no"}}});
    return object;
}

Object describe(const Category& category) {
    Object object{category.getTypeId(), category.getName(), {}};
    if (const auto* sub = category.subCategoryComponent()) {
        object.properties.push_back({"parent", {{"", sub->getParentCategory()}}});
    } else if (const auto* major = category.majorCategoryComponent()) {
        object.properties.push_back({"domain", {named(major->domain())}});
        object.properties.push_back(listOf("disciplines", major->disciplines(), named<Taxon>));
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
    const auto visitOne = [&](const Section& section, Object object) {
        object.section = &section;
        visit(std::move(object));
    };
    if (isWanted(sectionOfUnits())) {
        for (const auto& [typeId, unit] : engine.getUnitsEngine().getAllUnits()) {
            visitOne(sectionOfUnits(), describe(unit));
        }
    }
    forEachKind([&](auto kind) {
        const Section& section = sectionOf(kind.info);
        if (isWanted(section)) {
            for (const auto& object : kind.all(engine)) {
                visitOne(section, describeOne<decltype(kind)>(object));
            }
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
    forEachKind([&](auto kind) { counts[indexOf(sectionOf(kind.info))] = kind.count(engine); });
    return counts;
}

} // namespace Tool
