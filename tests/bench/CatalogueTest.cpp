#include "catalogue/Catalogue.h"

#include <parameters/ParametersEngine.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Bench::Catalogue;
using Bench::Kind;
using Bench::makeCatalogue;
using Bench::Schema;
using Parameters::ParametersEngine;

/// Registers a schema, and returns how many of the objects that it names were not there yet.
std::size_t registerOne(const Schema& schema, ParametersEngine& engine) {
    if (schema.kind == Kind::unit) {
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

/// How many objects of each kind an engine holds.
std::vector<std::size_t> countsOf(ParametersEngine& engine) {
    return {engine.getUnitsEngine().getAllUnits().size(),
            engine.getAllDisciplines().size(),
            engine.getAllDomains().size(),
            engine.getAllGroups().size(),
            engine.getAllEnumerations().size(),
            engine.getAllFloatRanges().size(),
            engine.getAllIntRanges().size(),
            engine.getAllStringRanges().size(),
            engine.getAllBoolSpecs().size(),
            engine.getAllGeneralSpecs().size(),
            engine.getAllIntSpecs().size(),
            engine.getAllStringSpecs().size(),
            engine.getAllReferenceSpecs().size(),
            engine.getAllMeasurableSpecs().size(),
            engine.getAllCategories().size(),
            engine.getAllBoolParameters().size(),
            engine.getAllEnumerationParameters().size(),
            engine.getAllReferenceParameters().size(),
            engine.getAllStringParameters().size(),
            engine.getAllIntParameters().size(),
            engine.getAllMeasurableParameters().size()};
}

std::string textOf(const Catalogue& catalogue) {
    std::string text;
    for (const Schema& schema : catalogue) {
        text += schema.text + '\n';
    }
    return text;
}

TEST(Catalogue, OfTheSmallestSizeHasAllKinds) {
    ParametersEngine engine = resolved(makeCatalogue(Bench::minCatalogueSize, 1));
    EXPECT_THAT(countsOf(engine), testing::ElementsAre(1, 1, 1, 1, 1, 1, 1, 3, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 5, 7, 4));
}

TEST(Catalogue, IsResolvedAndNineTenthsParameters) {
    ParametersEngine engine = resolved(makeCatalogue(2000, 1));
    EXPECT_THAT(countsOf(engine),
                testing::ElementsAre(50, 3, 1, 6, 20, 16, 12, 12, 4, 4, 4, 4, 4, 40, 20, 128, 128, 128, 258, 386, 772));
}

TEST(Catalogue, HasTheTypeIdsThatItSays) {
    const Catalogue catalogue = makeCatalogue(200, 1);
    ParametersEngine engine = resolved(catalogue);
    EXPECT_TRUE(std::all_of(catalogue.begin(), catalogue.end(),
                            [&](const Schema& schema) { return engine.isRegistered(schema.typeId); }));
}

TEST(Catalogue, HasTextsOfARealisticSize) {
    const std::size_t mean = textOf(makeCatalogue(2000, 1)).size() / 2000;
    EXPECT_THAT(mean, testing::AllOf(testing::Ge(460U), testing::Le(500U)));
}

TEST(Catalogue, NamesHalfOfTheObjectsBeforeTheyCome) {
    const Catalogue catalogue = makeCatalogue(2000, 1);
    ParametersEngine engine;
    std::size_t missing = 0;
    for (const Schema& schema : catalogue) {
        missing += registerOne(schema, engine);
    }
    engine.resolveSchemas();
    std::size_t named = 0;
    for (const Schema& schema : catalogue) {
        if (schema.kind >= Kind::boolSpec) {
            const std::set<std::string> dependencies = engine.getDependencies(schema.typeId);
            named += static_cast<std::size_t>(std::count_if(
                dependencies.begin(), dependencies.end(), [](const auto& each) { return each.starts_with("acme."); }));
        }
    }
    EXPECT_NEAR(static_cast<double>(missing) / static_cast<double>(named), 0.5, 0.05);
}

TEST(Catalogue, IsTheSameForTheSameSeed) { EXPECT_EQ(textOf(makeCatalogue(200, 7)), textOf(makeCatalogue(200, 7))); }

TEST(Catalogue, IsAnotherForAnotherSeed) { EXPECT_NE(textOf(makeCatalogue(200, 7)), textOf(makeCatalogue(200, 8))); }

TEST(Catalogue, CannotBeSmallerThanTheKindsNeed) { EXPECT_THROW(makeCatalogue(39, 1), std::invalid_argument); }

} // namespace
