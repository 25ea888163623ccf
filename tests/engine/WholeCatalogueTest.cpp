#include "ProjectFolder.h"
#include "support/Catalogue.h"
#include "support/RowNames.h"

#include <parameters/Kinds.h>
#include <parameters/ParametersEngine.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

// What holds for whole catalogues: the one of the examples and, where OSTRA_CATALOGUE names a folder, a large one.

namespace {

using Parameters::ParametersEngine;
using Support::baseOf;
using Support::countByKind;
using Support::textsIn;

/// Texts by their typeids or, when they are still to be read, by any keys.
using Texts = std::map<std::string, std::string>;

struct CatalogueFolder {
    const char* name;
    const char* path; // null where there is none
};

/// Returns how many objects there are of each kind, by the heads of their lists.
std::map<std::string, std::size_t> countObjects(ParametersEngine& engine) {
    std::map<std::string, std::size_t> counts{{"units", engine.getUnitsEngine().getAllUnits().size()}};
    Parameters::forEachKind([&](auto kind) { counts[std::string(kind.info.plural())] = kind.getAll(engine).size(); });
    return counts;
}

/// Returns the typeids of all objects but units.
std::set<std::string> typeIdsIn(const ParametersEngine& engine) {
    std::set<std::string> typeIds;
    Parameters::forEachKind([&](auto kind) {
        for (const auto& [typeId, object] : kind.getAll(engine)) {
            typeIds.insert(typeId);
        }
    });
    return typeIds;
}

Texts exportsOf(ParametersEngine& engine) {
    Texts exports;
    for (const std::string& typeId : typeIdsIn(engine)) {
        exports.emplace(typeId, engine.getSchema(typeId));
    }
    return exports;
}

bool isUnit(const std::string& text) { return baseOf(text).find("norvex.unit:unit-1.") != std::string::npos; }

class WholeCatalogue : public testing::TestWithParam<CatalogueFolder> {
protected:
    void SetUp() override {
        if (GetParam().path == nullptr) {
            GTEST_SKIP() << "OSTRA_CATALOGUE names no folder.";
        }
        texts = textsIn(GetParam().path);
        ASSERT_FALSE(texts.empty()) << "no schema text in " << GetParam().path;
    }

    /// Registers all texts in one call, under keys that say nothing of their typeids.
    void load() {
        Texts batch;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            batch.emplace("text " + std::to_string(i), texts[i]);
        }
        engine.registerSchemas(batch);
    }

    std::vector<std::string> texts;
    ParametersEngine engine;
};

TEST_P(WholeCatalogue, MakesAnObjectOfEachText) {
    load();
    const auto counts = countObjects(engine);
    EXPECT_EQ(counts, countByKind(texts));
    std::size_t total = 0;
    for (const auto& [kind, count] : counts) {
        total += count;
    }
    EXPECT_EQ(total, texts.size());
}

TEST_P(WholeCatalogue, ShowsEveryKind) {
    for (const auto& [kind, count] : countByKind(texts)) {
        EXPECT_GT(count, 0U) << kind;
    }
}

TEST_P(WholeCatalogue, ExportsToTextsThatLoadAgainAndExportToTheSame) {
    load();
    const Texts exports = exportsOf(engine);
    Texts batch = exports;
    for (const std::string& text : texts) {
        if (isUnit(text)) {
            batch.emplace("unit " + std::to_string(batch.size()), text);
        }
    }
    ASSERT_EQ(batch.size(), texts.size());
    ParametersEngine fresh;
    fresh.registerSchemas(batch);
    EXPECT_EQ(countObjects(fresh), countObjects(engine));
    EXPECT_EQ(exportsOf(fresh), exports);
}

TEST_P(WholeCatalogue, LoadsTextByTextFromLastToFirst) {
    std::reverse(texts.begin(), texts.end());
    for (const std::string& text : texts) {
        if (isUnit(text)) {
            engine.getUnitsEngine().registerSchema(text);
        } else {
            engine.registerSchema(text);
        }
    }
    engine.resolveSchemas();
    const Texts exports = exportsOf(engine);
    engine = ParametersEngine();
    load();
    EXPECT_EQ(exportsOf(engine), exports);
}

TEST_P(WholeCatalogue, NamesNothingThatIsNotRegistered) {
    load();
    std::set<std::string> unknown;
    for (const std::string& typeId : typeIdsIn(engine)) {
        try {
            for (const std::string& named : engine.getDependencies(typeId)) {
                if (!engine.isRegistered(named)) {
                    unknown.insert(named);
                }
            }
        } catch (const Parameters::UnrecognizedIdentifierException&) {
            continue; // of a kind that names nothing
        }
    }
    EXPECT_EQ(unknown, std::set<std::string>{});
}

TEST_P(WholeCatalogue, IsNamedByWhatDependsOnIt) {
    load();
    std::map<std::string, std::vector<Parameters::Identity>> dependents; // by getDependencies, the other way round
    Parameters::forEachObject(engine, [&](auto kind, const auto& object) {
        for (const std::string& named : kind.getDependencies(engine, object)) {
            dependents[named].push_back({object.typeId(), kind.info});
        }
    });
    EXPECT_GT(dependents.size(), 10U);
    for (const auto& [named, expected] : dependents) {
        const auto shown = engine.dependentsOf(named);
        ASSERT_EQ(std::vector<Parameters::Identity>(shown.begin(), shown.end()), expected) << named;
    }
    Parameters::forEachObject(engine, [&](auto, const auto& object) {
        EXPECT_EQ(engine.dependentsOf(object.typeId()).empty(), !dependents.contains(std::string(object.typeId())))
            << object;
    });
}

INSTANTIATE_TEST_SUITE_P(Folders, WholeCatalogue,
                         testing::Values(CatalogueFolder{"Examples", OSTRA_SOURCE_DIR "/examples/catalogue"},
                                         CatalogueFolder{"Large", std::getenv("OSTRA_CATALOGUE")}),
                         Support::nameOfRow);

} // namespace
