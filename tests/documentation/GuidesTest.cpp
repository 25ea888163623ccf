#include "ProjectFolder.h"
#include "documentation/Pages.h"
#include "support/Catalogue.h"

#include <parameters/ParametersEngine.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace {

using testing::IsEmpty;

/// Returns the schemas of all guides.
std::vector<std::string> schemasOfTheGuides() {
    std::vector<std::filesystem::path> pages;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(OSTRA_SOURCE_DIR) / "docs")) {
        if (entry.path().extension() == ".md") {
            pages.push_back(entry.path());
        }
    }
    std::sort(pages.begin(), pages.end());
    std::vector<std::string> schemas;
    for (const auto& page : pages) {
        for (std::string& schema : Documentation::blocksOf(Documentation::contentOf(page), "json")) {
            schemas.push_back(std::move(schema));
        }
    }
    return schemas;
}

/// The engine into which the schemas go one by one, and what it complained about.
struct Load {
    Parameters::ParametersEngine engine;
    std::map<std::string, std::string> refused;

    Load() {
        for (const std::string& schema : schemasOfTheGuides()) {
            try {
                if (Support::baseOf(schema).find("norvex.unit:unit-1.") != std::string::npos) {
                    engine.getUnitsEngine().registerSchema(schema);
                } else {
                    engine.registerSchema(schema);
                }
            } catch (const std::exception& fault) {
                refused[schema] = fault.what();
            }
        }
    }
};

TEST(SchemasOfTheGuides, AreAccepted) { EXPECT_THAT(Load().refused, IsEmpty()); }

TEST(SchemasOfTheGuides, NeedNothingThatIsNotInTheGuides) { EXPECT_THAT(Load().engine.findUnresolvable(), IsEmpty()); }

TEST(SchemasOfTheGuides, AreOfAllBases) {
    std::vector<std::string> missing;
    const auto schemas = schemasOfTheGuides();
    for (const auto& kind : Support::catalogueKinds) {
        for (const std::string& base : kind.bases) {
            if (std::none_of(schemas.begin(), schemas.end(), [&base](const std::string& schema) {
                    return Support::baseOf(schema).find(base) != std::string::npos;
                })) {
                missing.push_back(base);
            }
        }
    }
    EXPECT_THAT(missing, IsEmpty());
}

} // namespace
