#include "ProjectFolder.h"
#include "support/Catalogue.h"
#include "support/RowNames.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

struct CatalogueFolder {
    const char* name;
    const char* path; // null where there is none
};

/// Returns a line of the tool's table of counts.
std::string lineOf(const std::string& kind, std::size_t count) {
    std::ostringstream line;
    line << '\n' << std::left << std::setw(24) << kind << std::right << std::setw(10) << count << '\n';
    return line.str();
}

class CheckedCatalogue : public testing::TestWithParam<CatalogueFolder> {
protected:
    void SetUp() override {
        if (GetParam().path == nullptr) {
            GTEST_SKIP() << "OSTRA_CATALOGUE names no folder.";
        }
    }
};

TEST_P(CheckedCatalogue, IsSoundAndCountedByKind) {
    const std::vector<std::string> texts = Support::textsIn(GetParam().path);
    ASSERT_FALSE(texts.empty()) << "no schema text in " << GetParam().path;
    const Outcome outcome = Folder().run({"check", std::filesystem::absolute(GetParam().path).string()});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
    for (const auto& [kind, count] : Support::countByKind(texts)) {
        EXPECT_THAT(outcome.out, HasSubstr(lineOf(kind, count)));
    }
    EXPECT_THAT(outcome.out, HasSubstr(lineOf("total", texts.size())));
    EXPECT_THAT(outcome.out, HasSubstr(": 0 faults"));
}

INSTANTIATE_TEST_SUITE_P(Folders, CheckedCatalogue,
                         testing::Values(CatalogueFolder{"Examples", OSTRA_SOURCE_DIR "/examples/catalogue"},
                                         CatalogueFolder{"Large", std::getenv("OSTRA_CATALOGUE")}),
                         Support::nameOfRow);

} // namespace
