#pragma once

#include "support/SchemaTexts.h"

#include <parameters/Kinds.h>

#include <cctype>
#include <cstddef>
#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What tests and fuzzers must know of a kind beside what parameters/Kinds.h says of it: how its schemas and its objects
// are made, and how all that an object answers is shown. A kind joins by its Sample and by a describe of its class.

namespace Support {

namespace Kinds = Parameters::Kinds;

/// A definition in the schemas of a kind that names an object.
struct Reference {
    std::optional<Parameters::KindInfo> kind; // of what is named; none where that is a unit
    const char* id;
    bool required;
    bool several = false;       // a list of typeids
    bool property = false;      // stands among the properties, not among the constants
    std::string_view base = {}; // what the schema of what is named inherits; any base of its kind where this is empty
    std::string_view ownDefault = {}; // what is named where it is left out, if that is not the kind's built-in object

    /// Returns whether an object of the kind is named even where none is registered, by some typeids.
    bool mayBeBuiltIn() const { return kind && !kind->builtInName().empty(); }

    /// Returns the typeid that is named where the definition is left out; nothing where none is.
    std::string_view defaultTypeId() const {
        const bool isBuiltIn = !required && !several && mayBeBuiltIn();
        return ownDefault.empty() && isBuiltIn ? kind->bases()[0] : ownDefault;
    }
};

template <class Kind>
Reference mustName(const char* id) {
    return {Kind::info, id, true};
}

template <class Kind>
Reference mayName(const char* id) {
    return {Kind::info, id, false};
}

/// What schemas of a kind that inherit one of its bases consist of. A content is "1", "2" and so on, and a name where
/// there are names.
struct Form {
    std::string (*constants)(const std::string& content); // as JSON
    std::vector<Reference> references = {};
    std::string (*properties)(const std::string& content) = [](const std::string&) { return std::string(); };
};

/// A form of a kind and the base that it is of.
struct Shape {
    std::string name;                         // that of the kind and, where it has several bases, the place of the base
    std::optional<Parameters::KindInfo> kind; // none for units
    std::string base;
    Form form;

    /// Tells what a reference names. What is empty is left out.
    using Naming = std::function<std::string(const Reference& reference)>;

    /// Returns a schema text.
    std::string text(const std::string& typeId, const std::string& content, const Naming& naming) const {
        return textOfBase(base, typeId, content, naming);
    }

    /// Returns the same text with another base.
    std::string textOfBase(const std::string& inherited, const std::string& typeId, const std::string& content,
                           const Naming& naming) const {
        std::string constants = form.constants(content);
        std::string properties = form.properties(content);
        for (const Reference& reference : form.references) {
            if (const std::string named = naming(reference); !named.empty()) {
                std::string& json = reference.property ? properties : constants;
                json += json.empty() ? "" : ", ";
                json += reference.several ? typedConstants(reference.id, {named}) : typedConstant(reference.id, named);
            }
        }
        std::string text = schemaText(typeId, inherited, constants);
        return properties.empty() ? text : text.insert(text.size() - 1, R"(, "properties": [)" + properties + "]");
    }
};

/// How schemas and objects of a kind are made that name no more than they must, and which content ("1", "2" and so on)
/// an object was made with.
template <class Kind>
struct Sample {
    static_assert(sizeof(Kind) == 0, "This kind has no Sample: tests and fuzzers cannot make its schemas and objects.");
};

/// The typeid of what the samples name where they must name an object of a kind or, where there is none, a unit.
inline std::string sampleIdOf(const std::optional<Parameters::KindInfo>& kind) {
    return std::string(kind ? kind->id() : "unit").append(" of the samples");
}

inline std::string nameConstant(const std::string& content) { return constant("name", quoted(content)); }

/// One of what has a name, which is its content.
struct NamedSample {
    static constexpr bool hasName = true;
    static constexpr std::string_view reserved = {}; // an identifier that is taken besides the bases
    static constexpr std::size_t mainForm = 0;       // of those that make objects with a content
    static constexpr const char* bareFault = "Schema x has an undefined name constant."; // of "x" with its base alone
};

/// One of what has no name.
struct NamelessSample {
    static constexpr bool hasName = false;
    static constexpr std::string_view reserved = {};
    static constexpr std::size_t mainForm = 0;
};

template <class Kind>
struct TaxonSample : NamedSample {
    static Parameters::Taxon make(const std::string& typeId, const std::string& content) { return {typeId, content}; }
    static std::string contentOf(const Parameters::Taxon& taxon) { return taxon.getName(); }
    static std::vector<Form> forms() { return {{nameConstant}}; }
};

template <class Kind>
struct NumericRangeSample : NamelessSample {
    using Range = typename Kind::Value;
    static constexpr const char* bareFault = "Schema x has an undefined fromBottom constant.";
    static Range make(const std::string& typeId, const std::string& content) {
        return {typeId, true, numberOf(content), false, 0};
    }
    static std::string contentOf(const Range& range) {
        return std::to_string(static_cast<long long>(range.getBottomBoundary()));
    }
    static std::vector<Form> forms() {
        return {{[](const std::string& content) {
            return constant("fromBottom", "true") + ", " + constant("fromTop", "false") + ", " +
                   constant("bottomBoundary", content);
        }}};
    }

private:
    static auto numberOf(const std::string& content) {
        return static_cast<decltype(std::declval<Range>().getBottomBoundary())>(std::stoll(content));
    }
};

/// A sample of what has a core: of() makes an object of it, of which all else is as little as there must be.
template <class Kind, class Core>
struct CoredSample : NamedSample {
    using Value = typename Kind::Value;
    static Value of(const Core& core) { return Value(core); }
    static std::string contentOf(const Value& value) { return value.getCore().getName(); }
};

template <class Kind>
struct SpecSample : CoredSample<Kind, Parameters::SpecCore> {
    static typename Kind::Value make(const std::string& typeId, const std::string& content) {
        return Sample<Kind>::of(Parameters::SpecCore(typeId, content));
    }
    static std::vector<Form> forms() { return {{nameConstant, {mayName<Kinds::Discipline>("discipline")}}}; }
};

template <class Kind, class Spec>
struct ParameterSample : CoredSample<Kind, Parameters::ParameterCore> {
    static typename Kind::Value make(const std::string& typeId, const std::string& content) {
        return Sample<Kind>::of(Parameters::ParameterCore(typeId, content, "", "", false));
    }
    static std::vector<Form> forms() {
        const bool hasDefault = !Spec::info.builtInName().empty();
        return {{nameConstant,
                 {mayName<Kinds::Group>("group"), hasDefault ? mayName<Spec>("spec") : mustName<Spec>("spec")}}};
    }
};

template <class Kind, class Spec, class Range>
struct RangedParameterSample : ParameterSample<Kind, Spec> {
    static std::vector<Form> forms() {
        auto forms = ParameterSample<Kind, Spec>::forms();
        forms.front().references.push_back(mayName<Range>("range"));
        return forms;
    }
};

// clang-format off
template <> struct Sample<Kinds::FloatRange> : NumericRangeSample<Kinds::FloatRange> {};
template <> struct Sample<Kinds::IntRange> : NumericRangeSample<Kinds::IntRange> {};
template <> struct Sample<Kinds::Discipline> : TaxonSample<Kinds::Discipline> {};
template <> struct Sample<Kinds::Group> : TaxonSample<Kinds::Group> {};
template <> struct Sample<Kinds::Domain> : TaxonSample<Kinds::Domain> {};
template <> struct Sample<Kinds::BoolSpec> : SpecSample<Kinds::BoolSpec> {};
template <> struct Sample<Kinds::GeneralSpec> : SpecSample<Kinds::GeneralSpec> {};
template <> struct Sample<Kinds::IntSpec> : SpecSample<Kinds::IntSpec> {};
template <> struct Sample<Kinds::StringSpec> : SpecSample<Kinds::StringSpec> {};
template <> struct Sample<Kinds::BoolParameter> : ParameterSample<Kinds::BoolParameter, Kinds::BoolSpec> {};
// clang-format on

template <>
struct Sample<Kinds::Enumeration> : NamelessSample {
    static constexpr const char* bareFault = "Enumeration schema x must specify at least one value.";
    static Parameters::Enumeration make(const std::string& typeId, const std::string& content) {
        return {typeId, {{content, 1}}};
    }
    static std::string contentOf(const Parameters::Enumeration& enumeration) {
        return enumeration.getValues().at(0).first;
    }
    static std::vector<Form> forms() {
        const auto property = [](const std::string& content) {
            return R"({"id": )" + quoted(content) + R"(, "value": 1})";
        };
        return {{[](const std::string&) { return std::string(); }, {}, property}};
    }
};

template <>
struct Sample<Kinds::StringRange> : NamelessSample {
    static constexpr std::size_t mainForm = 2;
    static constexpr const char* bareFault = "Schema x has an undefined regex constant.";
    static Parameters::StringRange make(const std::string& typeId, const std::string& content) {
        return {typeId, Parameters::RegexStringRangeComponent(content)};
    }
    static std::string contentOf(const Parameters::StringRange& range) {
        return range.getRegexStringRangeComponent()->getRegex();
    }
    static std::vector<Form> forms() {
        return {{[](const std::string&) { return std::string(); }},
                {[](const std::string&) {
                    return constant("allowedValues", R"(["one value that is allowed", "another one"])");
                }},
                {[](const std::string& content) { return constant("regex", quoted(content)); }}};
    }
};

template <>
struct Sample<Kinds::MeasurableSpec> : SpecSample<Kinds::MeasurableSpec> {
    static Parameters::MeasurableSpec of(const Parameters::SpecCore& core) {
        return {core, {}, Units::Unit(sampleIdOf({}), core.getName(), "")};
    }
    static std::vector<Form> forms() {
        auto forms = SpecSample::forms();
        forms.front().references.push_back({{}, "applicableUnits", false, true});
        forms.front().references.push_back({{}, "storageUnit", true});
        return forms;
    }
};

template <>
struct Sample<Kinds::ReferenceSpec> : SpecSample<Kinds::ReferenceSpec> {
    static constexpr std::string_view reserved = Kinds::ReferenceSpec::familyType;
    static Parameters::ReferenceSpec of(const Parameters::SpecCore& core) { return {core, std::nullopt}; }
    static std::vector<Form> forms() {
        auto forms = SpecSample::forms();
        forms.front().references.push_back(mayName<Kinds::Category>("category"));
        return forms;
    }
};

template <>
struct Sample<Kinds::EnumerationParameter> : ParameterSample<Kinds::EnumerationParameter, Kinds::GeneralSpec> {
    static Parameters::EnumerationParameter of(const Parameters::ParameterCore& core) {
        return {core, Sample<Kinds::GeneralSpec>::make(sampleIdOf(Kinds::GeneralSpec::info), core.getName()),
                Sample<Kinds::Enumeration>::make(sampleIdOf(Kinds::Enumeration::info), core.getName())};
    }
    static std::vector<Form> forms() {
        auto forms = ParameterSample::forms();
        forms.front().references.push_back(mustName<Kinds::Enumeration>("value"));
        forms.front().references.back().property = true;
        return forms;
    }
};

template <>
struct Sample<Kinds::IntParameter> : RangedParameterSample<Kinds::IntParameter, Kinds::IntSpec, Kinds::IntRange> {
    static Parameters::IntParameter of(const Parameters::ParameterCore& core) {
        return {core, Parameters::IntRange(false, 0, false, 0)};
    }
};

template <>
struct Sample<Kinds::MeasurableParameter>
    : RangedParameterSample<Kinds::MeasurableParameter, Kinds::MeasurableSpec, Kinds::FloatRange> {
    static Parameters::MeasurableParameter of(const Parameters::ParameterCore& core) {
        return {core, Sample<Kinds::MeasurableSpec>::make(sampleIdOf(Kinds::MeasurableSpec::info), core.getName()),
                Parameters::FloatRange(false, 0, false, 0)};
    }
};

template <>
struct Sample<Kinds::ReferenceParameter> : ParameterSample<Kinds::ReferenceParameter, Kinds::ReferenceSpec> {
    static Parameters::ReferenceParameter of(const Parameters::ParameterCore& core) { return {core, false}; }
    static std::vector<Form> forms() { return {ParameterSample::forms().front(), ParameterSample::forms().front()}; }
};

template <>
struct Sample<Kinds::StringParameter>
    : RangedParameterSample<Kinds::StringParameter, Kinds::StringSpec, Kinds::StringRange> {
    static Parameters::StringParameter of(const Parameters::ParameterCore& core) {
        return {core, Parameters::StringRange()};
    }
};

template <>
struct Sample<Kinds::Category> : NamedSample {
    static Parameters::Category make(const std::string& typeId, const std::string& content) {
        const auto domain = Sample<Kinds::Domain>::make(sampleIdOf(Kinds::Domain::info), content);
        return {typeId, content, Parameters::MajorCategoryComponent(domain, {})};
    }
    static std::string contentOf(const Parameters::Category& category) { return category.getName(); }
    static std::vector<Form> forms() {
        Reference disciplines = mayName<Kinds::Discipline>("disciplines");
        disciplines.several = true;
        Reference parent = mustName<Kinds::Category>("parent");
        parent.base = Kinds::Category::info.bases()[0];
        return {{nameConstant, {mustName<Kinds::Domain>("domain"), disciplines}}, {nameConstant, {parent}}};
    }
};

/// Returns a base up to the dot behind its major version, which is what typeids and bases are searched for; the whole
/// base where it has no version.
inline std::string versionPrefixOf(std::string_view base) {
    const std::size_t version = base.rfind('-');
    return std::string(version == std::string_view::npos ? base : base.substr(0, base.find('.', version) + 1));
}

/// Returns the base of another major version; one with a version where it has none.
inline std::string ofMajorVersion(std::string_view base, std::string_view version) {
    return std::string(base.substr(0, base.rfind('-'))) + "-" + std::string(version) + ".0.0";
}

/// Returns a kind's name as it stands in the names of tests.
inline std::string nameOf(Parameters::KindInfo kind) {
    std::string name;
    for (const char character : kind.id()) {
        const bool begins = name.empty() || name.back() == '-';
        if (!name.empty() && begins) {
            name.pop_back();
        }
        name += begins && character != '-' ? static_cast<char>(std::toupper(character)) : character;
    }
    return name;
}

/// Returns the shapes of a kind, one for each of its bases.
template <class Kind>
std::vector<Shape> shapesOf() {
    const auto forms = Sample<Kind>::forms();
    std::vector<Shape> shapes;
    for (std::size_t i = 0; i < Kind::info.bases().size(); ++i) {
        shapes.push_back({nameOf(Kind::info) + (i > 0 ? std::to_string(i + 1) : ""), Kind::info,
                          std::string(Kind::info.bases()[i]), forms.at(i)});
    }
    return shapes;
}

/// Returns the shape of which an object's content is that of its text.
template <class Kind>
Shape mainShapeOf() {
    return shapesOf<Kind>().at(Sample<Kind>::mainForm);
}

/// Returns the shapes of all kinds in their order.
inline std::vector<Shape> everyShape() {
    std::vector<Shape> shapes;
    Parameters::forEachKind([&](auto kind) {
        for (Shape& shape : shapesOf<decltype(kind)>()) {
            shapes.push_back(std::move(shape));
        }
    });
    return shapes;
}

inline Shape unitShape() { return {"Unit", {}, "norvex.unit:unit-1.0.0", {nameConstant}}; }

/// Names what must be named, by the typeids of what the samples name.
inline std::string nameTheLeast(const Reference& reference) {
    return reference.required ? sampleIdOf(reference.kind) : "";
}

/// Returns a schema text of a kind.
template <class Kind>
std::string sampleText(const std::string& typeId, const std::string& content = "1") {
    return mainShapeOf<Kind>().text(typeId, content, nameTheLeast);
}

template <class Kind>
void addSample(Parameters::ParametersEngine& engine, const std::string& typeId, const std::string& content = "1");

/// Registers what schemas of a shape must name, unless it is there.
inline void stock(Parameters::ParametersEngine& engine, const Shape& shape) {
    for (const Reference& reference : shape.form.references) {
        const std::string typeId = sampleIdOf(reference.kind);
        if (!reference.required || engine.isRegistered(typeId)) {
            continue;
        }
        if (!reference.kind) {
            engine.getUnitsEngine().registerSchema(unitText(typeId));
            engine.getUnitsEngine().resolveSchemas();
        }
        Parameters::forEachKind([&](auto named) {
            if (named.info == reference.kind) {
                addSample<decltype(named)>(engine, typeId);
            }
        });
    }
}

/// Registers an object, and before it what it must name.
template <class Kind>
void addSample(Parameters::ParametersEngine& engine, const std::string& typeId, const std::string& content) {
    stock(engine, mainShapeOf<Kind>());
    Kind::add(engine, Sample<Kind>::make(typeId, content));
}

/// Returns the content of an object that an engine holds.
template <class Kind>
std::string contentIn(const Parameters::ParametersEngine& engine, const std::string& typeId) {
    return Sample<Kind>::contentOf(Kind::get(engine, typeId));
}

/// Returns the typeids of the objects of a kind, without what the samples name.
template <class Kind>
std::vector<std::string> typeIdsIn(const Parameters::ParametersEngine& engine) {
    std::vector<std::string> typeIds;
    for (const auto& [typeId, object] : Kind::getAll(engine)) {
        if (typeId != sampleIdOf(Kind::info)) {
            typeIds.push_back(typeId);
        }
    }
    return typeIds;
}

/// Returns the bytes between quotes, unprintable ones escaped, so that no two texts look alike. Tests of memory that
/// ends spend most of their time here.
inline std::string shown(const std::string& bytes) {
    static constexpr const char* digits = "0123456789ABCDEF";
    std::string result = "\"";
    const char* plain = bytes.data(); // what is still to be copied begins here
    const char* const end = plain + bytes.size();
    for (const char* at = plain; at != end; ++at) {
        const auto byte = static_cast<unsigned char>(*at);
        if (byte < 0x20 || byte >= 0x7F || byte == '"' || byte == '\\') {
            const char escape[] = {'\\', 'x', digits[byte / 16], digits[byte % 16]}; // NOLINT(modernize-avoid-c-arrays)
            result.append(plain, static_cast<std::size_t>(at - plain)).append(escape, sizeof escape);
            plain = at + 1;
        }
    }
    return result.append(plain, static_cast<std::size_t>(end - plain)) + '"';
}

/// Returns a text that both a view and a copy gave, which must be the same.
inline std::string agreed(std::string_view view, const std::string& copy) {
    if (view != copy) {
        throw std::logic_error("A view shows \"" + std::string(view) + "\", a copy is \"" + copy + "\".");
    }
    return copy;
}

/// Returns what both a view and a copy are handles of, which must be the same data.
template <class Value>
const Value& same(const Value& view, const Value& copy) {
    if (std::string_view(view.typeId()).data() != std::string_view(copy.typeId()).data()) {
        throw std::logic_error("A view and a copy are not of the same object.");
    }
    return view;
}

/// Returns all that a value answers, as one text. There is one for each class of objects and of their parts. What can
/// be had as a view and as a copy is asked for in both ways.
/// @{
template <class Value>
std::string describe(const Value&) {
    static_assert(sizeof(Value) == 0, "This class has no describe: pictures of engines would not show its objects.");
    return {};
}

inline std::string describe(const Units::Unit& unit) {
    return "(" + shown(unit.getTypeId()) + " " + shown(unit.getName()) + " " + shown(unit.getSymbol()) + ")";
}

inline std::string describe(const Parameters::Enumeration& enumeration) {
    std::string result = "(" + shown(agreed(enumeration.typeId(), enumeration.getTypeId()));
    const auto copies = enumeration.getValues();
    for (std::size_t place = 0; place < enumeration.values().size(); ++place) {
        const auto [identifier, integer] = enumeration.values()[place];
        result += " " + shown(agreed(identifier, copies.at(place).first)) + "=" +
                  agreed(std::to_string(integer), std::to_string(copies[place].second));
    }
    return result + ")";
}

template <class Range>
std::string describeNumericRange(const Range& range) {
    // All 17 digits that tell doubles apart; integers are written as they are.
    std::ostringstream text;
    text.precision(17);
    text << (range.isBoundFromBottom() ? " from " : " not from ") << range.getBottomBoundary()
         << (range.isBoundFromTop() ? " to " : " not to ") << range.getTopBoundary();
    return "(" + shown(agreed(range.typeId(), range.getTypeId())) + text.str() + ")";
}

inline std::string describe(const Parameters::FloatRange& range) { return describeNumericRange(range); }
inline std::string describe(const Parameters::IntRange& range) { return describeNumericRange(range); }

inline std::string describe(const Parameters::StringRange& range) {
    std::string result = "(" + shown(agreed(range.typeId(), range.getTypeId()));
    if (const auto set = range.getSetStringRangeComponent()) {
        result += " one of";
        auto shownValue = range.setStringRangeComponent()->allowedValues().begin();
        for (const std::string& value : set->getAllowedValues()) {
            result += " " + shown(agreed(*shownValue++, value));
        }
    }
    if (const auto regex = range.getRegexStringRangeComponent()) {
        result += " matching " + shown(agreed(regex->regex(), regex->getRegex()));
    }
    return result + ")";
}

inline std::string describe(const Parameters::Taxon& taxon) {
    return "(" + shown(agreed(taxon.typeId(), taxon.getTypeId())) + " " + shown(agreed(taxon.name(), taxon.getName())) +
           ")";
}

inline std::string describe(const Parameters::Category& category) {
    std::string result = "(" + shown(agreed(category.typeId(), category.getTypeId())) + " " +
                         shown(agreed(category.name(), category.getName()));
    if (const auto major = category.getMajorCategoryComponent()) {
        result += " of " + describe(same(major->domain(), major->getDomain())) + " for";
        const auto* shownDiscipline = category.majorCategoryComponent()->disciplines().begin();
        for (const Parameters::Taxon& discipline : major->getDisciplines()) {
            result += " " + describe(same(*shownDiscipline++, discipline));
        }
    }
    if (const auto sub = category.getSubCategoryComponent()) {
        result += " below " + shown(agreed(sub->parentCategory(), sub->getParentCategory()));
    }
    return result + ")";
}

inline std::string describe(const Parameters::SpecCore& core) {
    return "(" + shown(agreed(core.typeId(), core.getTypeId())) + " " + shown(agreed(core.name(), core.getName())) +
           " of " + describe(same(core.discipline(), core.getDiscipline())) + ")";
}

inline std::string describe(const Parameters::BoolSpec& spec) { return describe(same(spec.core(), spec.getCore())); }
inline std::string describe(const Parameters::GeneralSpec& spec) { return describe(same(spec.core(), spec.getCore())); }
inline std::string describe(const Parameters::IntSpec& spec) { return describe(same(spec.core(), spec.getCore())); }
inline std::string describe(const Parameters::StringSpec& spec) { return describe(same(spec.core(), spec.getCore())); }

inline std::string describe(const Parameters::MeasurableSpec& spec) {
    std::string result = describe(same(spec.core(), spec.getCore())) + " in";
    const auto* shownUnit = spec.applicableUnits().begin();
    for (const Units::Unit& unit : spec.getApplicableUnits()) {
        result += " " + describe(same(*shownUnit++, unit));
    }
    return result + " stored in " + describe(same(spec.storageUnit(), spec.getStorageUnit()));
}

inline std::string describe(const Parameters::ReferenceSpec& spec) {
    const auto category = spec.getCategory();
    return describe(same(spec.core(), spec.getCore())) +
           (category ? " to " + describe(same(*spec.category(), *category)) : " to anything");
}

inline std::string describe(const Parameters::ParameterCore& core) {
    return "(" + shown(agreed(core.typeId(), core.getTypeId())) + " " + shown(agreed(core.name(), core.getName())) +
           " in " + describe(same(core.group(), core.getGroup())) + " described " +
           shown(agreed(core.description(), core.getDescription())) + " sample " +
           shown(agreed(core.sampleText(), core.getSampleText())) + (core.isReadOnly() ? " read-only)" : " writable)");
}

template <class Parameter>
std::string describeCoreAndSpec(const Parameter& parameter) {
    return describe(same(parameter.core(), parameter.getCore())) + " with spec " +
           describe(same(parameter.spec(), parameter.getSpec()));
}

template <class Parameter>
std::string describeRangedParameter(const Parameter& parameter) {
    return describeCoreAndSpec(parameter) + " and range " + describe(same(parameter.range(), parameter.getRange()));
}

inline std::string describe(const Parameters::BoolParameter& parameter) { return describeCoreAndSpec(parameter); }
inline std::string describe(const Parameters::IntParameter& parameter) { return describeRangedParameter(parameter); }
inline std::string describe(const Parameters::MeasurableParameter& parameter) {
    return describeRangedParameter(parameter);
}
inline std::string describe(const Parameters::StringParameter& parameter) { return describeRangedParameter(parameter); }

inline std::string describe(const Parameters::EnumerationParameter& parameter) {
    return describeCoreAndSpec(parameter) + " of " +
           describe(same(parameter.enumeration(), parameter.getEnumeration()));
}

inline std::string describe(const Parameters::ReferenceParameter& parameter) {
    return describeCoreAndSpec(parameter) + (parameter.isRanged() ? " ranged" : " not ranged");
}
/// @}

} // namespace Support
