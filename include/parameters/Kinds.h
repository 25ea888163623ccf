#pragma once

#include <parameters/Export.h>
#include <parameters/KindInfo.h>
#include <parameters/ParametersEngine.h>

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

// Headers of window systems make macros of such names, which are put aside here.
#pragma push_macro("None")
#pragma push_macro("Bool")
#pragma push_macro("Int")
#pragma push_macro("String")
#undef None
#undef Bool
#undef Int
#undef String

namespace Parameters {

/// @addtogroup kinds
/// @{

/// How an engine is asked for the objects of a kind. What the operations throw and cost is what those of
/// ParametersEngine do, which they are under one name for all kinds.
template <class Kind, auto getX, auto findX, auto getAllX, auto allX, auto registerX>
struct KindOf {
    /// What the kind is called, and how its schemas are known.
    static constexpr KindInfo info{Kind::description};

    /// The class of the objects.
    using Value = decltype((std::declval<const ParametersEngine&>().*getX)(std::string()));

    /// What readValueType returns for schemas of the kind; None for the kinds that cannot be read by themselves.
    static constexpr ValueType valueType = None;

    /// Returns the object of that type identifier, as getX does.
    static Value get(const ParametersEngine& engine, const std::string& typeId) { return (engine.*getX)(typeId); }

    /// Returns the object of that type identifier if it is there, as findX does.
    [[nodiscard]] static std::optional<Value> find(const ParametersEngine& engine, std::string_view typeId) {
        return (engine.*findX)(typeId);
    }

    /// Returns all objects of the kind by type identifier, as getAllX does.
    static std::map<std::string, Value> getAll(const ParametersEngine& engine) { return (engine.*getAllX)(); }

    /// Shows all objects of the kind in the order of their type identifiers, as allX does.
    [[nodiscard]] static ArrayView<Value> all(const ParametersEngine& engine) { return (engine.*allX)(); }

    /// Returns how many objects of the kind there are.
    [[nodiscard]] static std::size_t count(const ParametersEngine& engine) noexcept {
        return engine.countObjects(info);
    }

    /// Registers an object made in code, as registerX does.
    static void add(ParametersEngine& engine, const Value& object) { (engine.*registerX)(object); }

    /// Returns the type identifier of an object, its core's where it has one.
    static std::string typeIdOf(const Value& object) { return std::string(object.typeId()); }

    /// Returns the type identifiers that a registered object names; none for the kinds that name nothing.
    static std::set<std::string> getDependencies(const ParametersEngine& engine, const Value& object) {
        return info.hasDependencies() ? engine.getDependencies(typeIdOf(object)) : std::set<std::string>();
    }

    /// Returns the schema of a registered object.
    static std::string getSchema(const ParametersEngine& engine, const Value& object) {
        return engine.getSchema(typeIdOf(object));
    }
};

/// As KindOf, for the parameters that can be read from a text without registering them.
template <class Kind, auto getX, auto findX, auto getAllX, auto allX, auto registerX, auto readX, ValueType type>
struct ReadableKindOf : KindOf<Kind, getX, findX, getAllX, allX, registerX> {
    static constexpr ValueType valueType = type; ///< What readValueType returns for schemas of the kind.

    /// Returns the parameter that a text describes, as readX does.
    static auto read(const ParametersEngine& engine, const std::string& schemaText) {
        return (engine.*readX)(schemaText);
    }
};

/// @}

/// The kinds of objects, one struct each: what they are called (`info`) and how an engine is asked for them. This is
/// the one list of them; forEachKind walks it.
namespace Kinds {

/// @addtogroup kinds
/// @{

/// Enumerations.
struct Enumeration : KindOf<Enumeration, &ParametersEngine::getEnumeration, &ParametersEngine::findEnumeration,
                            &ParametersEngine::getAllEnumerations, &ParametersEngine::allEnumerations,
                            &ParametersEngine::registerEnumeration> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::enumeration, "enumeration", "enumeration", "enumerations", {"Enum"}};
};

/// Ranges of floating-point numbers.
struct FloatRange : KindOf<FloatRange, &ParametersEngine::getFloatRange, &ParametersEngine::findFloatRange,
                           &ParametersEngine::getAllFloatRanges, &ParametersEngine::allFloatRanges,
                           &ParametersEngine::registerFloatRange> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::range,
                                                           "float-range",
                                                           "floating-point range",
                                                           "floating-point ranges",
                                                           {"norvex.range:range.float64.bounded.static-1.0.0"}};
};

/// Ranges of integers.
struct IntRange
    : KindOf<IntRange, &ParametersEngine::getIntRange, &ParametersEngine::findIntRange,
             &ParametersEngine::getAllIntRanges, &ParametersEngine::allIntRanges, &ParametersEngine::registerIntRange> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::range,
                                                           "int-range",
                                                           "integer range",
                                                           "integer ranges",
                                                           {"norvex.range:range.int64.bounded.static-1.0.0"}};
};

/// Ranges of strings. The bases are those of any text, of sets and of regular expressions.
struct StringRange : KindOf<StringRange, &ParametersEngine::getStringRange, &ParametersEngine::findStringRange,
                            &ParametersEngine::getAllStringRanges, &ParametersEngine::allStringRanges,
                            &ParametersEngine::registerStringRange> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::range,
                                                           "string-range",
                                                           "string range",
                                                           "string ranges",
                                                           {"norvex.range:range.string-1.0.0",
                                                            "norvex.range:range.string.set.static-1.0.0",
                                                            "norvex.range:range.string.regex-1.0.0"}};
};

/// Disciplines.
struct Discipline : KindOf<Discipline, &ParametersEngine::getDiscipline, &ParametersEngine::findDiscipline,
                           &ParametersEngine::getAllDisciplines, &ParametersEngine::allDisciplines,
                           &ParametersEngine::registerDiscipline> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::taxon, "discipline", "discipline", "disciplines", {"norvex.spec:discipline-1.0.0"}, "Common"};
};

/// The specs of Boolean parameters.
struct BoolSpec
    : KindOf<BoolSpec, &ParametersEngine::getBoolSpec, &ParametersEngine::findBoolSpec,
             &ParametersEngine::getAllBoolSpecs, &ParametersEngine::allBoolSpecs, &ParametersEngine::registerBoolSpec> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::spec, "bool-spec", "Boolean spec", "Boolean specs", {"norvex.spec:spec.bool-1.0.0"}, "Yes/No"};
};

/// The specs of enumeration parameters.
struct GeneralSpec : KindOf<GeneralSpec, &ParametersEngine::getGeneralSpec, &ParametersEngine::findGeneralSpec,
                            &ParametersEngine::getAllGeneralSpecs, &ParametersEngine::allGeneralSpecs,
                            &ParametersEngine::registerGeneralSpec> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::spec, "general-spec", "general spec", "general specs", {"norvex.spec:spec-1.0.0"}};
};

/// The specs of integer parameters.
struct IntSpec
    : KindOf<IntSpec, &ParametersEngine::getIntSpec, &ParametersEngine::findIntSpec, &ParametersEngine::getAllIntSpecs,
             &ParametersEngine::allIntSpecs, &ParametersEngine::registerIntSpec> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::spec, "int-spec", "integer spec", "integer specs", {"norvex.spec:spec.int64-2.0.0"}, "Integer"};
};

/// The specs of measurable parameters.
struct MeasurableSpec : KindOf<MeasurableSpec, &ParametersEngine::getMeasurableSpec,
                               &ParametersEngine::findMeasurableSpec, &ParametersEngine::getAllMeasurableSpecs,
                               &ParametersEngine::allMeasurableSpecs, &ParametersEngine::registerMeasurableSpec> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::spec,
                                                           "measurable-spec",
                                                           "measurable spec",
                                                           "measurable specs",
                                                           {"norvex.spec:spec.measurable-2.0.0"}};
};

/// The specs of reference parameters.
struct ReferenceSpec : KindOf<ReferenceSpec, &ParametersEngine::getReferenceSpec, &ParametersEngine::findReferenceSpec,
                              &ParametersEngine::getAllReferenceSpecs, &ParametersEngine::allReferenceSpecs,
                              &ParametersEngine::registerReferenceSpec> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::spec, "reference-spec", "reference spec", "reference specs", {"norvex.spec:spec.reference-1.0.0"},
        "Reference"};
    /// The type identifier of the spec that is a parameter's own: it refers to family types of a category. No schema
    /// inherits it.
    static constexpr std::string_view familyType = "norvex.talmo.spec:familyType-1.0.0";
};

/// The specs of string parameters.
struct StringSpec : KindOf<StringSpec, &ParametersEngine::getStringSpec, &ParametersEngine::findStringSpec,
                           &ParametersEngine::getAllStringSpecs, &ParametersEngine::allStringSpecs,
                           &ParametersEngine::registerStringSpec> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::spec, "string-spec", "string spec", "string specs", {"norvex.spec:spec.string-2.0.0"}, "Text"};
};

/// Groups.
struct Group : KindOf<Group, &ParametersEngine::getGroup, &ParametersEngine::findGroup, &ParametersEngine::getAllGroups,
                      &ParametersEngine::allGroups, &ParametersEngine::registerGroup> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::taxon, "group", "group", "groups", {"norvex.parameter:group-1.0.0"}, "Other"};
};

/// Parameters whose values are those of an enumeration.
struct EnumerationParameter
    : KindOf<EnumerationParameter, &ParametersEngine::getEnumerationParameter,
             &ParametersEngine::findEnumerationParameter, &ParametersEngine::getAllEnumerationParameters,
             &ParametersEngine::allEnumerationParameters, &ParametersEngine::registerEnumerationParameter> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::parameter,
                                                           "enumeration-parameter",
                                                           "enumeration parameter",
                                                           "enumeration parameters",
                                                           {"norvex.parameter:parameter-2.0.0"}};
};

/// Boolean parameters.
struct BoolParameter
    : ReadableKindOf<BoolParameter, &ParametersEngine::getBoolParameter, &ParametersEngine::findBoolParameter,
                     &ParametersEngine::getAllBoolParameters, &ParametersEngine::allBoolParameters,
                     &ParametersEngine::registerBoolParameter, &ParametersEngine::readBoolParameter, Bool> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::parameter,
                                                           "bool-parameter",
                                                           "Boolean parameter",
                                                           "Boolean parameters",
                                                           {"norvex.parameter:parameter.bool-2.0.0"}};
};

/// Integer parameters.
struct IntParameter
    : ReadableKindOf<IntParameter, &ParametersEngine::getIntParameter, &ParametersEngine::findIntParameter,
                     &ParametersEngine::getAllIntParameters, &ParametersEngine::allIntParameters,
                     &ParametersEngine::registerIntParameter, &ParametersEngine::readIntParameter, Int> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::parameter,
                                                           "int-parameter",
                                                           "integer parameter",
                                                           "integer parameters",
                                                           {"norvex.parameter:parameter.int64-3.0.0"}};
};

/// Parameters whose values are numbers with a unit.
struct MeasurableParameter
    : ReadableKindOf<MeasurableParameter, &ParametersEngine::getMeasurableParameter,
                     &ParametersEngine::findMeasurableParameter, &ParametersEngine::getAllMeasurableParameters,
                     &ParametersEngine::allMeasurableParameters, &ParametersEngine::registerMeasurableParameter,
                     &ParametersEngine::readMeasurableParameter, Measurable> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::parameter,
                                                           "measurable-parameter",
                                                           "measurable parameter",
                                                           "measurable parameters",
                                                           {"norvex.parameter:parameter.measurable-3.0.0"}};
};

/// Parameters whose values refer to other things. The bases are those of plain and of ranged parameters.
struct ReferenceParameter
    : ReadableKindOf<ReferenceParameter, &ParametersEngine::getReferenceParameter,
                     &ParametersEngine::findReferenceParameter, &ParametersEngine::getAllReferenceParameters,
                     &ParametersEngine::allReferenceParameters, &ParametersEngine::registerReferenceParameter,
                     &ParametersEngine::readReferenceParameter, Reference> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::parameter,
        "reference-parameter",
        "reference parameter",
        "reference parameters",
        {"norvex.parameter:parameter.reference-2.0.0", "norvex.parameter:parameter.reference.ranged-2.0.0"}};
};

/// String parameters.
struct StringParameter
    : ReadableKindOf<StringParameter, &ParametersEngine::getStringParameter, &ParametersEngine::findStringParameter,
                     &ParametersEngine::getAllStringParameters, &ParametersEngine::allStringParameters,
                     &ParametersEngine::registerStringParameter, &ParametersEngine::readStringParameter, String> {
    /// What info tells.
    static constexpr Internal::KindDescription description{KindFamily::parameter,
                                                           "string-parameter",
                                                           "string parameter",
                                                           "string parameters",
                                                           {"norvex.parameter:parameter.string-3.0.0"}};
};

/// Domains.
struct Domain
    : KindOf<Domain, &ParametersEngine::getDomain, &ParametersEngine::findDomain, &ParametersEngine::getAllDomains,
             &ParametersEngine::allDomains, &ParametersEngine::registerDomain> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::taxon, "domain", "domain", "domains", {"norvex.talmo.category:domain-1.0.0"}};
};

/// Categories. The bases are those of major categories and of subcategories.
struct Category : KindOf<Category, &ParametersEngine::getCategory, &ParametersEngine::findCategory,
                         &ParametersEngine::getAllCategories, &ParametersEngine::allCategories,
                         &ParametersEngine::registerCategory> {
    /// What info tells.
    static constexpr Internal::KindDescription description{
        KindFamily::category,
        "category",
        "category",
        "categories",
        {"norvex.talmo.category:majorCategory-1.0.0", "norvex.talmo.category:subCategory-1.0.0"}};
};

/// Kinds in an order.
template <class... Ks>
struct List {
    /// How many there are.
    static constexpr std::size_t size = sizeof...(Ks);
};

/// All kinds, in the order in which lists show them.
using All = List<Enumeration, FloatRange, IntRange, StringRange, Discipline, BoolSpec, GeneralSpec, IntSpec,
                 MeasurableSpec, ReferenceSpec, StringSpec, Group, EnumerationParameter, BoolParameter, IntParameter,
                 MeasurableParameter, ReferenceParameter, StringParameter, Domain, Category>;

/// @}

} // namespace Kinds

namespace Internal {

/// The kinds of a list for which a predicate, a template over kinds, is true, in their order.
template <template <class> class Predicate, class Taken, class... Rest>
struct Filter {
    using Result = Taken;
};
template <template <class> class Predicate, class... Taken, class First, class... Rest>
struct Filter<Predicate, Kinds::List<Taken...>, First, Rest...>
    : Filter<Predicate,
             std::conditional_t<Predicate<First>::value, Kinds::List<Taken..., First>, Kinds::List<Taken...>>,
             Rest...> {};
template <template <class> class Predicate, class Kinds>
struct FilterList;
template <template <class> class Predicate, class... Ks>
struct FilterList<Predicate, Kinds::List<Ks...>> : Filter<Predicate, Kinds::List<>, Ks...> {};

template <KindFamily family>
struct IsOf {
    template <class Kind>
    struct Predicate : std::bool_constant<Kind::info.family() == family> {};
};

template <class Kind>
struct IsReadable : std::bool_constant<Kind::valueType != None> {};

template <class Value>
struct HasValue {
    template <class Kind>
    struct Predicate : std::is_same<typename Kind::Value, Value> {};
};

template <class... Ks>
struct One {
    static_assert(sizeof...(Ks) == 1, "The objects of no kind, or of several, are of this class.");
};
template <class Kind>
struct One<Kind> {
    using Result = Kind;
};
template <class... Ks>
constexpr One<Ks...> oneOf(Kinds::List<Ks...>) {
    return {};
}

template <class Kind, class... Ks>
constexpr std::size_t indexIn(Kinds::List<Ks...>) {
    constexpr std::array<bool, sizeof...(Ks)> isIt{std::is_same_v<Kind, Ks>...};
    std::size_t index = 0;
    while (!isIt[index]) {
        ++index;
    }
    return index;
}

} // namespace Internal

namespace Kinds {

/// @addtogroup kinds
/// @{

/// The kinds of a family, in the order of all.
template <KindFamily family>
using Family = typename Internal::FilterList<Internal::IsOf<family>::template Predicate, All>::Result;

using Ranges = Family<KindFamily::range>;         ///< The kinds of ranges.
using Taxa = Family<KindFamily::taxon>;           ///< The kinds of taxa.
using Specs = Family<KindFamily::spec>;           ///< The kinds of specs.
using Parameters = Family<KindFamily::parameter>; ///< The kinds of parameters.

/// The kinds that can be read from a text without registering them: each has a valueType and read.
using Readable = typename Internal::FilterList<Internal::IsReadable, All>::Result;

/// The kinds whose objects are of a class: three for Taxon, one for all others.
template <class Value>
using With = typename Internal::FilterList<Internal::HasValue<Value>::template Predicate, All>::Result;

/// The one kind whose objects are of a class. Does not compile for Taxon, the class of three.
template <class Value>
using Of = typename decltype(Internal::oneOf(With<Value>{}))::Result;

/// The place of a kind among all, counted from 0.
template <class Kind>
inline constexpr std::size_t indexOf = Internal::indexIn<Kind>(All{});

/// @}

} // namespace Kinds

/// @addtogroup kinds
/// @{

/// Calls visit(kind) with an object of the struct of each kind of a list, such as Kinds::Parameters, in its order:
/// @snippet load_folder.cpp kinds
/// A minor version may add kinds. An overload set that is called for each kind compiles with them when it has a
/// template for those that it does not know; without one, the compiler names what is missing.
template <class... Ks, class Visitor>
constexpr void forEachKind(Kinds::List<Ks...>, Visitor&& visit) {
    (static_cast<void>(visit(Ks{})), ...);
}

/// Calls visit(kind) with an object of the struct of each kind, in the order of all.
template <class Visitor>
constexpr void forEachKind(Visitor&& visit) {
    forEachKind(Kinds::All{}, visit);
}

/// Calls visit(kind) with an object of the struct of a kind that one has as a value, such as from kindOf:
/// @snippet show_parameters.cpp kind
template <class Visitor>
constexpr void visitKind(KindInfo info, Visitor&& visit) {
    forEachKind([&](auto kind) {
        if (kind.info == info) {
            visit(kind);
        }
    });
}

/// Calls visit(kind, object) with each object of the kinds of a list, as KindOf::all shows them, in the order of the
/// list. The engine must not be changed meanwhile.
/// @snippet dialog_lists.cpp names
template <class... Ks, class Visitor>
void forEachObject(const ParametersEngine& engine, Kinds::List<Ks...> kinds, Visitor&& visit) {
    forEachKind(kinds, [&](auto kind) {
        for (const auto& object : kind.all(engine)) {
            visit(kind, object);
        }
    });
}

/// Calls visit(kind, object) with each object of an engine, kind by kind in the order of all.
template <class Visitor>
void forEachObject(const ParametersEngine& engine, Visitor&& visit) {
    forEachObject(engine, Kinds::All{}, visit);
}

/// Returns the kind of the schemas that inherit this, which is a base in whatever minor version; nothing if there is
/// none. Where it fits several, they are asked in the order in which an engine asks them.
PARAMETERS_EXPORT std::optional<KindInfo> findKindOfBase(std::string_view base) noexcept;

/// Returns the kind of that id, such as "bool-parameter"; nothing if there is none.
PARAMETERS_EXPORT std::optional<KindInfo> findKindOfId(std::string_view id) noexcept;

/// @}

} // namespace Parameters

#pragma pop_macro("String")
#pragma pop_macro("Int")
#pragma pop_macro("Bool")
#pragma pop_macro("None")
