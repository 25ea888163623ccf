#include "language/Language.h"

#include <parameters/Kinds.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

namespace Tool::Language {

namespace {

namespace Kinds = Parameters::Kinds;

constexpr bool required = true;

template <std::size_t... sizes>
constexpr auto join(const std::array<Definition, sizes>&... parts) {
    std::array<Definition, (sizes + ...)> all{};
    auto end = all.begin();
    ((end = std::copy(parts.begin(), parts.end(), end)), ...);
    return all;
}

template <class Kind>
constexpr Definition naming(std::string_view id, bool isRequired, std::string_view meaning,
                            Type type = Type::reference) {
    return {id, type, isRequired, meaning, Kind::info.id()};
}

constexpr std::array named{Definition{"name", Type::nonEmptyText, required, "What people call it."}};

constexpr std::array unit =
    join(named, std::array{Definition{"symbol", Type::text, !required, "What stands behind a number."}});

constexpr std::array majorCategory =
    join(named,
         std::array{naming<Kinds::Discipline>("disciplines", !required,
                                              "The disciplines that use the category, in an order that is kept.",
                                              Type::references),
                    naming<Kinds::Domain>("domain", required, "The part of the whole that the category belongs to.")});

constexpr std::array subcategory =
    join(named, std::array{naming<Kinds::Category>("parent", required, "The major category that it is a part of.")});

constexpr std::array integerRange{
    Definition{"fromBottom", Type::boolean, required, "Whether there is a lower bound."},
    Definition{"fromTop", Type::boolean, required, "Whether there is an upper bound."},
    Definition{"bottomBoundary", Type::integer, !required, "The lower bound, which counts where fromBottom is true."},
    Definition{"topBoundary", Type::integer, !required, "The upper bound, which counts where fromTop is true."}};

/// Returns the constants with numbers in place of integers.
constexpr auto withNumbers(auto definitions) {
    for (Definition& definition : definitions) {
        definition.type = definition.type == Type::integer ? Type::number : definition.type;
    }
    return definitions;
}

constexpr std::array floatRange = withNumbers(integerRange);

constexpr std::array set{Definition{"allowedValues", Type::texts, required,
                                    R"(The texts that are allowed, "" perhaps among them, in an order that is kept.)"}};

constexpr std::array regex{
    Definition{"regex", Type::text, required, "What matches the texts; the library neither checks nor matches it."}};

constexpr std::array choices{
    Definition{{}, Type::choice, required, "A choice: its id, and its integer, which several may have in common."}};

constexpr std::array spec =
    join(named, std::array{naming<Kinds::Discipline>("discipline", !required, "Who is responsible.")});

constexpr std::array measurableSpec =
    join(spec, std::array{Definition{"applicableUnits", Type::references, !required,
                                     "The units in which values may be shown, in an order that is kept.", "unit"},
                          Definition{"storageUnit", Type::reference, required,
                                     "The unit in which values are kept; it need not be an applicable one.", "unit"}});

constexpr std::array referenceSpec =
    join(spec, std::array{naming<Kinds::Category>("category", !required,
                                                  "The category that references are limited to; "
                                                  "where there is none, they are to any object.")});

/// The constants of a parameter with a spec, which must be named where none is built in.
template <class Spec>
constexpr std::array parameter =
    join(named, std::array{Definition{"description", Type::text, !required, "What people should know of it."},
                           Definition{"sampleText", Type::text, !required, "A sample of a value, as it is shown."},
                           naming<Kinds::Group>("group", !required, "The heading under which it is listed."),
                           Definition{"readOnly", Type::boolean, !required, "Whether people may not change the value."},
                           naming<Spec>("spec", Spec::info.builtInName().empty(), "What sort of values it has.")});

template <class Spec, class Range>
constexpr std::array rangedParameter =
    join(parameter<Spec>, std::array{naming<Range>("range", !required,
                                                   std::is_same_v<Range, Kinds::FloatRange>
                                                       ? "Which values there may be, in the storage unit."
                                                       : "Which values there may be.",
                                                   Type::range)});

/// Returns parameters' constants with a spec of another type, which comes last.
constexpr auto withSpec(Type type, auto constants) {
    constants.back().type = type;
    return constants;
}

constexpr std::array enumerationParameter = withSpec(Type::generalSpec, parameter<Kinds::GeneralSpec>);
constexpr std::array referenceParameter = withSpec(Type::referenceSpec, parameter<Kinds::ReferenceSpec>);

constexpr std::array enumerationOfParameter{
    naming<Kinds::Enumeration>("value", required, "The choices that there are.", Type::enumeration)};

constexpr Grammar unitGrammar{.meaning = "A unit of measurement.", .constants = unit};

template <class Kind>
struct Undescribed {
    static_assert(sizeof(Kind) == 0, "This kind has no grammars: what do its schemas consist of?");
};

/// The grammars of a kind, in the order of its bases.
template <class Kind>
constexpr Undescribed<Kind> grammarsOf{};

template <>
constexpr std::array grammarsOf<Kinds::Enumeration>{
    Grammar{.meaning = "A list of choices, each an identifier with an integer.", .properties = choices}};

template <>
constexpr std::array grammarsOf<Kinds::FloatRange>{
    Grammar{.meaning = "A range of numbers, in the storage unit of the spec beside it.", .constants = floatRange}};

template <>
constexpr std::array grammarsOf<Kinds::IntRange>{Grammar{.meaning = "A range of integers.", .constants = integerRange}};

template <>
constexpr std::array grammarsOf<Kinds::StringRange>{
    Grammar{.label = "string range of any text", .meaning = "A range of strings that has any text in it."},
    Grammar{.id = "string-set", .label = "set of strings", .meaning = "A range of some strings.", .constants = set},
    Grammar{.id = "string-regex",
            .label = "regular expression of strings",
            .meaning = "A range of the strings that a regular expression matches.",
            .constants = regex}};

template <>
constexpr std::array grammarsOf<Kinds::Discipline>{Grammar{.meaning = "Who is responsible.", .constants = named}};

template <>
constexpr std::array grammarsOf<Kinds::BoolSpec>{Grammar{
    .meaning = "What Boolean parameters are: the name tells how the two values are called.", .constants = spec}};

template <>
constexpr std::array grammarsOf<Kinds::GeneralSpec>{
    Grammar{.meaning = "What enumeration parameters are.", .constants = spec}};

template <>
constexpr std::array grammarsOf<Kinds::IntSpec>{Grammar{.meaning = "What integer parameters are.", .constants = spec}};

template <>
constexpr std::array grammarsOf<Kinds::MeasurableSpec>{
    Grammar{.meaning = "A physical quantity and its units.", .constants = measurableSpec}};

template <>
constexpr std::array grammarsOf<Kinds::ReferenceSpec>{
    Grammar{.meaning = "What reference parameters refer to.", .constants = referenceSpec}};

template <>
constexpr std::array grammarsOf<Kinds::StringSpec>{
    Grammar{.meaning = "What string parameters are.", .constants = spec}};

template <>
constexpr std::array grammarsOf<Kinds::Group>{
    Grammar{.meaning = "A heading under which parameters are listed.", .constants = named}};

template <>
constexpr std::array grammarsOf<Kinds::EnumerationParameter>{
    Grammar{.meaning = "A parameter whose values are choices of an enumeration.",
            .constants = enumerationParameter,
            .properties = enumerationOfParameter}};

template <>
constexpr std::array grammarsOf<Kinds::BoolParameter>{
    Grammar{.meaning = "A parameter whose values are true and false.", .constants = parameter<Kinds::BoolSpec>}};

template <>
constexpr std::array grammarsOf<Kinds::IntParameter>{
    Grammar{.meaning = "A parameter whose values are integers.",
            .constants = rangedParameter<Kinds::IntSpec, Kinds::IntRange>}};

template <>
constexpr std::array grammarsOf<Kinds::MeasurableParameter>{
    Grammar{.meaning = "A parameter whose values are numbers with a unit.",
            .constants = rangedParameter<Kinds::MeasurableSpec, Kinds::FloatRange>}};

template <>
constexpr std::array grammarsOf<Kinds::ReferenceParameter>{
    Grammar{.meaning = "A parameter whose values refer to other objects.", .constants = referenceParameter},
    Grammar{.id = "ranged-reference-parameter",
            .label = "ranged reference parameter",
            .meaning = "A reference parameter that applications are told is ranged.",
            .constants = referenceParameter}};

template <>
constexpr std::array grammarsOf<Kinds::StringParameter>{
    Grammar{.meaning = "A parameter whose values are texts.",
            .constants = rangedParameter<Kinds::StringSpec, Kinds::StringRange>}};

template <>
constexpr std::array grammarsOf<Kinds::Domain>{
    Grammar{.meaning = "A part of the whole, to which major categories belong.", .constants = named}};

template <>
constexpr std::array grammarsOf<Kinds::Category>{
    Grammar{.id = "major-category",
            .label = "major category",
            .meaning = "A class of the objects that reference parameters refer to.",
            .constants = majorCategory},
    Grammar{.id = "subcategory",
            .label = "subcategory",
            .meaning = "A class of objects within a major category.",
            .constants = subcategory}};

Form formOf(Grammar grammar, const Section& section, std::string_view base) {
    grammar.id = grammar.id.empty() ? section.id : grammar.id;
    grammar.label = grammar.label.empty() ? section.label : grammar.label;
    return {grammar, &section, base};
}

std::vector<Form> makeForms() {
    std::vector<Form> made{formOf(unitGrammar, sectionOfUnits(), sectionOfUnits().bases.front())};
    Parameters::forEachKind([&](auto kind) {
        constexpr auto& grammars = grammarsOf<decltype(kind)>;
        static_assert(grammars.size() == kind.info.bases().size(), "Each base has a grammar.");
        for (std::size_t place = 0; place < grammars.size(); ++place) {
            made.push_back(formOf(grammars[place], sectionOf(kind.info), kind.info.bases()[place]));
        }
    });
    return made;
}

} // namespace

const std::vector<Form>& forms() {
    static const std::vector<Form> all = makeForms();
    return all;
}

const Form* findForm(std::string_view id) {
    const auto find = [&](auto idOf) {
        const auto found =
            std::find_if(forms().begin(), forms().end(), [&](const Form& form) { return idOf(form) == id; });
        return found == forms().end() ? nullptr : &*found;
    };
    const Form* const own = find([](const Form& form) { return form.id; });
    return own != nullptr ? own : find([](const Form& form) { return form.section->id; });
}

const Form* findFormOfBase(std::string_view base) {
    const auto found = std::find_if(forms().begin(), forms().end(), [base](const Form& form) {
        const std::string_view prefix = prefixOf(form.base);
        const bool hasVersion = prefix != form.base;
        return hasVersion ? base.find(prefix) != std::string_view::npos : base == form.base;
    });
    return found == forms().end() ? nullptr : &*found;
}

std::span<const Definition> definitionsOf(const Form* form, std::string_view table) {
    if (form == nullptr) {
        return {};
    }
    return table == "constants" ? form->constants : form->properties;
}

std::string_view prefixOf(std::string_view base) {
    const std::size_t version = base.rfind('-');
    return version == std::string_view::npos ? base : base.substr(0, base.find('.', version) + 1);
}

std::vector<std::string_view> reservedPrefixes() {
    std::vector<std::string_view> prefixes{prefixOf(Kinds::ReferenceSpec::familyType)};
    Parameters::forEachKind([&](auto kind) {
        if (kind.info.isRange() || !kind.info.builtInName().empty()) {
            for (const std::string_view base : kind.info.bases()) {
                prefixes.push_back(prefixOf(base));
            }
        }
    });
    return prefixes;
}

} // namespace Tool::Language
