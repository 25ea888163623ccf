#include "catalogue/Generator.h"

#include <algorithm>
#include <utility>

namespace Bench {

namespace {

struct Share {
    Kind kind;
    std::size_t perTenThousand;
    std::uint32_t atLeast;
    std::string_view base;
};

/// What remains is measurable parameters.
constexpr std::array<Share, kindCount> shares = {{
    {Kind::unit, 250, 1, "norvex.unit:unit-1.0.0"},
    {Kind::discipline, 15, 1, "norvex.spec:discipline-1.0.0"},
    {Kind::domain, 5, 1, "norvex.talmo.category:domain-1.0.0"},
    {Kind::group, 30, 1, "norvex.parameter:group-1.0.0"},
    {Kind::enumeration, 100, 1, "Enum"},
    {Kind::floatRange, 80, 1, "norvex.range:range.float64.bounded.static-1.0.0"},
    {Kind::intRange, 60, 1, "norvex.range:range.int64.bounded.static-1.0.0"},
    {Kind::stringRange, 60, 3, "norvex.range:range.string-1.0.0"},
    {Kind::boolSpec, 20, 1, "norvex.spec:spec.bool-1.0.0"},
    {Kind::generalSpec, 20, 1, "norvex.spec:spec-1.0.0"},
    {Kind::intSpec, 20, 1, "norvex.spec:spec.int64-2.0.0"},
    {Kind::stringSpec, 20, 1, "norvex.spec:spec.string-2.0.0"},
    {Kind::referenceSpec, 20, 1, "norvex.spec:spec.reference-1.0.0"},
    {Kind::measurableSpec, 200, 1, "norvex.spec:spec.measurable-2.0.0"},
    {Kind::category, 100, 2, "norvex.talmo.category:majorCategory-1.0.0"},
    {Kind::boolParameter, 640, 1, "norvex.parameter:parameter.bool-2.0.0"},
    {Kind::enumerationParameter, 640, 1, "norvex.parameter:parameter-2.0.0"},
    {Kind::referenceParameter, 640, 1, "norvex.parameter:parameter.reference-2.0.0"},
    {Kind::stringParameter, 1290, 1, "norvex.parameter:parameter.string-3.0.0"},
    {Kind::intParameter, 1930, 1, "norvex.parameter:parameter.int64-3.0.0"},
    {Kind::measurableParameter, 0, 0, "norvex.parameter:parameter.measurable-3.0.0"},
}};

constexpr std::string_view setRangeBase = "norvex.range:range.string.set.static-1.0.0";
constexpr std::string_view regexRangeBase = "norvex.range:range.string.regex-1.0.0";

std::string_view baseOf(Kind kind) { return shares[static_cast<std::size_t>(kind)].base; }

/// Categories alternate: major ones have even numbers.
bool isMajor(std::size_t index) { return index % 2 == 0; }

/// The three designs of string ranges take turns.
std::string_view stringRangeBase(std::size_t index) {
    constexpr std::array bases = {setRangeBase, regexRangeBase, std::string_view("norvex.range:range.string-1.0.0")};
    return bases.at(index % bases.size());
}

} // namespace

Counts::Counts(std::size_t size) {
    auto rest = static_cast<std::uint32_t>(size);
    for (const Share& share : shares) {
        const auto count = std::max(static_cast<std::uint32_t>(size * share.perTenThousand / 10'000), share.atLeast);
        counts_.at(static_cast<std::size_t>(share.kind)) = count;
        rest -= count;
    }
    counts_.at(static_cast<std::size_t>(Kind::measurableParameter)) = rest;
}

Catalogue Generator::makeAll() {
    Catalogue catalogue;
    for (const Share& share : shares) {
        for (std::size_t index = 0; index < counts_[share.kind]; ++index) {
            Name name = nameOf(share.kind, index);
            std::string text = textOf(share.kind, index, name);
            catalogue.push_back({share.kind, std::move(name.typeId), std::move(text)});
        }
    }
    return catalogue;
}

std::string Generator::textOf(Kind kind, std::size_t index, const Name& name) {
    if (kind >= Kind::boolParameter) {
        return parameter(kind, name);
    }
    if (kind == Kind::category) {
        SchemaText schema(name.typeId, isMajor(index) ? baseOf(kind) : "norvex.talmo.category:subCategory-1.0.0");
        schema.text("name", name.display);
        addCategoryDetails(schema, isMajor(index));
        return schema.finish();
    }
    if (kind == Kind::stringRange) {
        const std::string_view base = stringRangeBase(index);
        SchemaText schema(name.typeId, base);
        if (base == setRangeBase) {
            schema.value("allowedValues", allowedValues());
        } else if (base == regexRangeBase) {
            schema.text("regex", regex());
        }
        return schema.finish();
    }
    SchemaText schema(name.typeId, baseOf(kind));
    switch (kind) {
    case Kind::enumeration:
        schema.properties(choices());
        break;
    case Kind::floatRange:
    case Kind::intRange:
        addBounds(schema, kind);
        break;
    case Kind::unit:
        schema.text("name", name.display)
            .text("symbol", random_.percent(20) ? "\xC2\xB0"
                                                  "C"
                                                : "m/s");
        break;
    default:
        schema.text("name", name.display);
        addSpecDetails(schema, kind);
    }
    return schema.finish();
}

std::string Generator::parameter(Kind kind, const Name& name) {
    const bool isRanged = kind == Kind::referenceParameter && random_.percent(50);
    SchemaText schema(name.typeId, isRanged ? "norvex.parameter:parameter.reference.ranged-2.0.0" : baseOf(kind));
    addParameterCore(schema, name);
    if (kind == Kind::referenceParameter) {
        addReferenceSpec(schema);
    } else {
        addSpec(schema, kind);
    }
    if (kind == Kind::enumerationParameter) {
        schema.properties(R"({"id":"value","typedValue":{"typeid":)" + quoted(oneOf(Kind::enumeration)) + "}}");
    } else if (kind == Kind::measurableParameter) {
        addNumericRange(schema, Kind::floatRange, baseOf(Kind::floatRange));
    } else if (kind == Kind::intParameter) {
        addNumericRange(schema, Kind::intRange, baseOf(Kind::intRange));
    } else if (kind == Kind::stringParameter) {
        addStringRange(schema);
    }
    return schema.finish();
}

} // namespace Bench
