#include "generator/Recipes.h"

#include "generator/Generator.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace Bench {

namespace {

std::string writeUnit(Generator& make, const Name& name, std::size_t) {
    SchemaText schema(name.typeId, "norvex.unit:unit-1.0.0"); // the units library has no list of its own
    schema.text("name", name.display)
        .text("symbol", make.percent(20) ? "\xC2\xB0"
                                           "C"
                                         : "m/s");
    return schema.finish();
}

template <class Kind>
std::string writeTaxon(Generator&, const Name& name, std::size_t) {
    return SchemaText(name.typeId, baseOf<Kind>).text("name", name.display).finish();
}

std::string writeEnumeration(Generator& make, const Name& name, std::size_t) {
    return SchemaText(name.typeId, baseOf<Kinds::Enumeration>).properties(make.choices()).finish();
}

template <class Kind>
std::string writeNumericRange(Generator& make, const Name& name, std::size_t) {
    SchemaText schema(name.typeId, baseOf<Kind>);
    make.addBounds<Kind>(schema);
    return schema.finish();
}

/// The three designs of string ranges take turns: sets, regular expressions, any text.
std::string writeStringRange(Generator& make, const Name& name, std::size_t index) {
    constexpr auto bases = Kinds::StringRange::info.bases();
    const std::size_t design = (index + 1) % bases.size();
    SchemaText schema(name.typeId, bases[design]);
    if (design == 1) {
        schema.value("allowedValues", make.allowedValues());
    } else if (design == 2) {
        schema.text("regex", make.regex());
    }
    return schema.finish();
}

template <class Kind>
std::string writeSpec(Generator& make, const Name& name, std::size_t) {
    SchemaText schema(name.typeId, baseOf<Kind>);
    schema.text("name", name.display);
    make.addDiscipline(schema);
    if constexpr (std::is_same_v<Kind, Kinds::MeasurableSpec>) {
        make.addApplicableUnits(schema);
    } else if constexpr (std::is_same_v<Kind, Kinds::ReferenceSpec>) {
        if (make.percent(50)) {
            schema.reference("category", make.oneOf<Kinds::Category>());
        }
    }
    return schema.finish();
}

/// Categories alternate: major ones have even numbers.
std::string writeCategory(Generator& make, const Name& name, std::size_t index) {
    const std::size_t design = index % 2;
    SchemaText schema(name.typeId, Kinds::Category::info.bases()[design]);
    schema.text("name", name.display);
    if (design == 1) {
        schema.reference("parent", make.oneOf<Kinds::Category>(2));
        return schema.finish();
    }
    schema.reference("domain", make.oneOf<Kinds::Domain>());
    if (make.percent(70)) {
        schema.references("disciplines", {make.oneOf<Kinds::Discipline>(), std::string(baseOf<Kinds::Discipline>)});
    }
    return schema.finish();
}

template <class Spec>
void addSpec(Generator& make, SchemaText& schema) {
    const bool hasBuiltIn = !Spec::info.builtInName().empty();
    if (!hasBuiltIn || make.percent(60)) {
        schema.reference("spec", make.oneOf<Spec>());
    } else if (make.percent(50)) {
        schema.reference("spec", std::is_same_v<Spec, Kinds::StringSpec> ? inMinor(baseOf<Spec>, 3)
                                                                         : std::string(baseOf<Spec>));
    }
}

template <class Kind>
std::string writeParameter(Generator& make, const Name& name, std::size_t) {
    using Parameter = typename Kind::Value;
    SchemaText schema(name.typeId, baseOf<Kind>);
    make.addParameterCore(schema, name);
    addSpec<Kinds::Of<decltype(std::declval<Parameter>().getSpec())>>(make, schema);
    if constexpr (requires(const Parameter& parameter) { parameter.getRange(); }) {
        make.addRange<Kinds::Of<decltype(std::declval<Parameter>().getRange())>>(schema);
    }
    return schema.finish();
}

std::string writeEnumerationParameter(Generator& make, const Name& name, std::size_t) {
    SchemaText schema(name.typeId, baseOf<Kinds::EnumerationParameter>);
    make.addParameterCore(schema, name);
    addSpec<Kinds::GeneralSpec>(make, schema);
    schema.properties(R"({"id":"value","typedValue":{"typeid":)" + quoted(make.oneOf<Kinds::Enumeration>()) + "}}");
    return schema.finish();
}

std::string writeReferenceParameter(Generator& make, const Name& name, std::size_t) {
    constexpr auto bases = Kinds::ReferenceParameter::info.bases(); // plain, ranged
    SchemaText schema(name.typeId, bases[make.percent(50) ? 1 : 0]);
    make.addParameterCore(schema, name);
    if (make.percent(30)) {
        const std::string category = R"({"category":{"typeid":)" + quoted(make.oneOf<Kinds::Category>()) + "}}";
        schema.reference("spec", Kinds::ReferenceSpec::familyType, R"(,"typedValue":)" + category);
    } else if (make.percent(80)) {
        schema.reference("spec", make.percent(30) ? inMinor(baseOf<Kinds::ReferenceSpec>, 1)
                                                  : make.oneOf<Kinds::ReferenceSpec>());
    }
    return schema.finish();
}

/// How many of ten thousand schemas are of a kind, at least how many of any, what they are called and what they say.
template <class Kind>
struct Recipe {
    std::size_t perTenThousand;
    std::uint32_t atLeast;
    Vocabulary vocabulary;
    std::string (*write)(Generator& make, const Name& name, std::size_t index);
};

/// All that a catalogue has, in the order in which it is made. What remains is measurable parameters.
constexpr std::tuple recipes{
    Recipe<Unit>{250, 1, {"acme.unit:", Words::units}, writeUnit},
    Recipe<Kinds::Discipline>{15, 1, {"acme.discipline:", Words::headings}, writeTaxon<Kinds::Discipline>},
    Recipe<Kinds::Domain>{5, 1, {"acme.domain:", Words::headings}, writeTaxon<Kinds::Domain>},
    Recipe<Kinds::Group>{30, 1, {"acme.group:", Words::headings}, writeTaxon<Kinds::Group>},
    Recipe<Kinds::Enumeration>{100, 1, {":enum.", Words::choices, true}, writeEnumeration},
    Recipe<Kinds::FloatRange>{80, 1, {"acme.range:float.", Words::quantities}, writeNumericRange<Kinds::FloatRange>},
    Recipe<Kinds::IntRange>{60, 1, {"acme.range:int.", Words::counts}, writeNumericRange<Kinds::IntRange>},
    Recipe<Kinds::StringRange>{60, 3, {"acme.range:string.", Words::texts}, writeStringRange},
    Recipe<Kinds::BoolSpec>{20, 1, {":spec.", Words::options, true}, writeSpec<Kinds::BoolSpec>},
    Recipe<Kinds::GeneralSpec>{20, 1, {":spec.choice.", Words::choices, true}, writeSpec<Kinds::GeneralSpec>},
    Recipe<Kinds::IntSpec>{20, 1, {":spec.", Words::counts, true}, writeSpec<Kinds::IntSpec>},
    Recipe<Kinds::StringSpec>{20, 1, {":spec.", Words::texts, true}, writeSpec<Kinds::StringSpec>},
    Recipe<Kinds::ReferenceSpec>{20, 1, {":spec.", Words::targets, true}, writeSpec<Kinds::ReferenceSpec>},
    Recipe<Kinds::MeasurableSpec>{200, 1, {":spec.", Words::quantities, true}, writeSpec<Kinds::MeasurableSpec>},
    Recipe<Kinds::Category>{100, 2, {"acme.category:", Words::equipment}, writeCategory},
    Recipe<Kinds::BoolParameter>{640, 1, {":parameter.", Words::options, true}, writeParameter<Kinds::BoolParameter>},
    Recipe<Kinds::EnumerationParameter>{640, 1, {":parameter.", Words::choices, true}, writeEnumerationParameter},
    Recipe<Kinds::ReferenceParameter>{640, 1, {":parameter.", Words::targets, true}, writeReferenceParameter},
    Recipe<Kinds::StringParameter>{
        1290, 1, {":parameter.", Words::texts, true}, writeParameter<Kinds::StringParameter>},
    Recipe<Kinds::IntParameter>{1930, 1, {":parameter.", Words::counts, true}, writeParameter<Kinds::IntParameter>},
    Recipe<Kinds::MeasurableParameter>{
        0, 0, {":parameter.", Words::quantities, true}, writeParameter<Kinds::MeasurableParameter>},
};

template <class Visitor>
void forEachRecipe(Visitor visit) {
    std::apply([&](const auto&... each) { (visit(each), ...); }, recipes);
}

template <class Kind, class... Ks>
constexpr bool isMade(const std::tuple<Recipe<Ks>...>*) {
    return (std::is_same_v<Kind, Ks> || ...);
}

template <class Kind>
void mustBeMade() {
    static_assert(isMade<Kind>(&recipes), "The generator has no recipe for this kind.");
}

template <class Kind>
std::optional<Parameters::KindInfo> infoOf() {
    if constexpr (std::is_same_v<Kind, Unit>) {
        return std::nullopt;
    } else {
        return Kind::info;
    }
}

Stocks stocksOf(std::size_t size) {
    Parameters::forEachKind([](auto kind) { mustBeMade<decltype(kind)>(); });
    Stocks stocks{};
    auto rest = static_cast<std::uint32_t>(size);
    forEachRecipe([&]<class Kind>(const Recipe<Kind>& recipe) {
        const auto share = static_cast<std::uint32_t>(size * recipe.perTenThousand / 10'000);
        const std::uint32_t count = std::max(share, recipe.atLeast);
        stocks[placeOf<Kind>] = {count, recipe.vocabulary};
        rest -= count;
    });
    stocks[placeOf<Kinds::MeasurableParameter>].count = rest;
    return stocks;
}

} // namespace

const std::uint64_t fingerprint = 0x3408030b782a5382;

Catalogue makeKindByKind(std::size_t size, Random& random) {
    const Stocks stocks = stocksOf(size);
    Generator generator(stocks, random);
    Catalogue catalogue;
    forEachRecipe([&]<class Kind>(const Recipe<Kind>& recipe) {
        for (std::size_t index = 0; index < stocks[placeOf<Kind>].count; ++index) {
            Name name = nameOf(recipe.vocabulary, index);
            std::string text = recipe.write(generator, name, index);
            catalogue.push_back({infoOf<Kind>(), std::move(name.typeId), std::move(text)});
        }
    });
    return catalogue;
}

} // namespace Bench
