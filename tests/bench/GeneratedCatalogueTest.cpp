#include "generator/Catalogue.h"
#include "generator/Recipes.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Bench::Catalogue;
using Bench::makeCatalogue;
using Bench::Schema;
using Parameters::ParametersEngine;

/// Registers a schema, and returns how many of the objects that it names were not there yet.
std::size_t registerOne(const Schema& schema, ParametersEngine& engine) {
    if (schema.isUnit()) {
        return engine.getUnitsEngine().registerSchema(schema.text).size();
    }
    const auto missing = engine.registerSchema(schema.text);
    return missing.first.size() + missing.second.size();
}

ParametersEngine resolved(const Catalogue& catalogue) {
    ParametersEngine engine;
    for (const Schema& schema : catalogue) {
        registerOne(schema, engine);
    }
    engine.resolveSchemas();
    return engine;
}

/// How many objects of each kind an engine holds, and how many units.
std::map<std::string_view, std::size_t> countsOf(ParametersEngine& engine) {
    std::map<std::string_view, std::size_t> counts{{"unit", engine.getUnitsEngine().getAllUnits().size()}};
    Parameters::forEachKind([&](auto kind) { counts[kind.info.id()] = kind.getAll(engine).size(); });
    return counts;
}

/// How many schemas of each kind a catalogue says that it has, and how many units.
std::map<std::string_view, std::size_t> countsOf(const Catalogue& catalogue) {
    std::map<std::string_view, std::size_t> counts;
    for (const Schema& schema : catalogue) {
        ++counts[schema.kind ? schema.kind->id() : "unit"];
    }
    return counts;
}

std::string textOf(const Catalogue& catalogue) {
    std::string text;
    for (const Schema& schema : catalogue) {
        text += schema.text + '\n';
    }
    return text;
}

/// Fowler, Noll and Vo's, the same everywhere.
std::uint64_t hashOf(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001b3U;
    }
    return hash;
}

TEST(GeneratedCatalogue, OfTheSmallestSizeHasAllKinds) {
    ParametersEngine engine = resolved(makeCatalogue(Bench::minCatalogueSize, 1));
    for (const auto& [kind, count] : countsOf(engine)) {
        EXPECT_GT(count, 0U) << kind;
    }
}

TEST(GeneratedCatalogue, IsResolvedAndHasOfEachKindWhatItSays) {
    for (const std::size_t size : {Bench::minCatalogueSize, std::size_t{2000}}) {
        const Catalogue catalogue = makeCatalogue(size, 1);
        ParametersEngine engine = resolved(catalogue);
        EXPECT_EQ(countsOf(engine), countsOf(catalogue));
    }
}

// Figures compare with those that were measured before, as long as the bytes are the same.
TEST(GeneratedCatalogue, HasTheBytesThatFiguresWereMeasuredWith) {
    EXPECT_EQ(hashOf(textOf(makeCatalogue(1000, 1))), Bench::fingerprint);
}

TEST(GeneratedCatalogue, IsNineTenthsParameters) {
    const Catalogue catalogue = makeCatalogue(2000, 1);
    EXPECT_EQ(std::count_if(catalogue.begin(), catalogue.end(),
                            [](const Schema& schema) { return schema.kind && schema.kind->isParameter(); }),
              1800);
}

TEST(GeneratedCatalogue, HasTheTypeIdsThatItSays) {
    const Catalogue catalogue = makeCatalogue(200, 1);
    ParametersEngine engine = resolved(catalogue);
    EXPECT_TRUE(std::all_of(catalogue.begin(), catalogue.end(),
                            [&](const Schema& schema) { return engine.isRegistered(schema.typeId); }));
}

TEST(GeneratedCatalogue, HasTextsOfARealisticSize) {
    const std::size_t mean = textOf(makeCatalogue(2000, 1)).size() / 2000;
    EXPECT_THAT(mean, testing::AllOf(testing::Ge(460U), testing::Le(500U)));
}

TEST(GeneratedCatalogue, NamesHalfOfTheObjectsBeforeTheyCome) {
    const Catalogue catalogue = makeCatalogue(2000, 1);
    ParametersEngine engine;
    std::size_t missing = 0;
    for (const Schema& schema : catalogue) {
        missing += registerOne(schema, engine);
    }
    engine.resolveSchemas();
    std::size_t named = 0;
    for (const Schema& schema : catalogue) {
        if (schema.kind && schema.kind->hasDependencies()) {
            const std::set<std::string> dependencies = engine.getDependencies(schema.typeId);
            named += static_cast<std::size_t>(std::count_if(
                dependencies.begin(), dependencies.end(), [](const auto& each) { return each.starts_with("acme."); }));
        }
    }
    EXPECT_NEAR(static_cast<double>(missing) / static_cast<double>(named), 0.5, 0.1);
}

TEST(GeneratedCatalogue, IsTheSameForTheSameSeed) {
    EXPECT_EQ(textOf(makeCatalogue(200, 7)), textOf(makeCatalogue(200, 7)));
}

TEST(GeneratedCatalogue, IsAnotherForAnotherSeed) {
    EXPECT_NE(textOf(makeCatalogue(200, 7)), textOf(makeCatalogue(200, 8)));
}

TEST(GeneratedCatalogue, CannotBeSmallerThanTheKindsNeed) { EXPECT_THROW(makeCatalogue(39, 1), std::invalid_argument); }

} // namespace
