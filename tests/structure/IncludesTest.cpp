#include "structure/Includes.h"

#include "ProjectFolder.h"
#include "support/RowNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Collects what is wrong in all sources of a folder of the project.
struct Findings {
    std::vector<std::string> faults;
    int files = 0;

    explicit Findings(const std::string& folder) {
        const std::filesystem::path top = OSTRA_SOURCE_DIR;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top / folder)) {
            const std::string extension = entry.path().extension().string();
            if (extension == ".h" || extension == ".cpp") {
                ++files;
                const std::string path = entry.path().lexically_relative(top).generic_string();
                for (std::string& fault : Structure::faultsOfIncludes(path, contentOf(entry.path()))) {
                    faults.push_back(std::move(fault));
                }
            }
        }
    }
};

struct Include {
    const char* name;
    const char* path;
    const char* line;
};

class AllowedInclude : public testing::TestWithParam<Include> {};

TEST_P(AllowedInclude, IsNoFault) {
    EXPECT_THAT(Structure::faultsOfIncludes(GetParam().path, GetParam().line), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Includes, AllowedInclude,
    testing::Values(Include{"OfTheEngineInTheEngine", "src/engine/Stores.h", "#include \"engine/Kinds.h\""},
                    Include{"OfTheModelInTheEngine", "src/engine/Stores.h", "#include \"model/Finder.h\""},
                    Include{"OfADocumentInTheEngine", "src/engine/Stores.h", "#include \"schema/Schema.h\""},
                    Include{"OfAPublicHeaderInTheEngine", "src/engine/Stores.h", "#include <parameters/Taxon.h>"},
                    Include{"OfAUnitInTheModel", "src/model/MeasurableSpec.cpp", "#include <units/Unit.h>"},
                    Include{"OfADocumentInTheModel", "src/model/Taxon.h", "#include \"schema/Schema.h\""},
                    Include{"OfTheParserInADocument", "src/schema/JSON.h", "#include <rapidjson/document.h>"},
                    Include{"OfADocumentInTheUnits", "units/src/UnitsEngine.cpp", "#include \"schema/Schema.h\""},
                    Include{"OfAUnitInAPublicHeader", "include/parameters/MeasurableSpec.h", "#include <units/Unit.h>"},
                    Include{"OfFormattingInTheHeaderForIt", "include/parameters/Format.h", "#include <fmt/format.h>"},
                    Include{"OfTheSystemInItsRoomOfTheTool", "tools/ostra-params/system/Posix.cpp",
                            "#include <unistd.h>"},
                    Include{"OfTheReaderOfArgumentsInItsSource", "tools/ostra-params/verbs/CommandLine.cpp",
                            "#include <CLI/CLI.hpp>"},
                    Include{"OfTheStandardLibraryInAPublicHeader", "include/parameters/Taxon.h", "#include <string>"}),
    Support::nameOfRow);

class ForbiddenInclude : public testing::TestWithParam<Include> {};

TEST_P(ForbiddenInclude, IsNamedWithItsFileAndLine) {
    const std::string text = std::string("#pragma once\n\n") + GetParam().line + "\n";
    EXPECT_THAT(Structure::faultsOfIncludes(GetParam().path, text),
                ElementsAre(std::string(GetParam().path) + ":3: " + GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(
    Includes, ForbiddenInclude,
    testing::Values(
        Include{"OfTheEngineInTheModel", "src/model/Taxon.cpp", "#include \"engine/Stores.h\""},
        Include{"OfTheEngineInADocument", "src/schema/JSON.cpp", "#include \"engine/Stores.h\""},
        Include{"OfTheModelInADocument", "src/schema/JSON.h", "#include \"model/Finder.h\""},
        Include{"OfAPublicHeaderInADocument", "src/schema/JSON.cpp", "#include <parameters/Taxon.h>"},
        Include{"OfAPublicHeaderInQuotes", "src/schema/JSON.cpp", "#include \"parameters/Taxon.h\""},
        Include{"OfAUnitInADocument", "src/schema/Schema.cpp", "#include <units/Unit.h>"},
        Include{"WithBlanks", "src/schema/Schema.cpp", "  #  include  \"model/Finder.h\" // why"},
        Include{"ThatLeavesItsFolder", "src/schema/Schema.cpp", "#include \"../model/Finder.h\""},
        Include{"OfAParameterInTheUnits", "units/src/Unit.cpp", "#include <parameters/Taxon.h>"},
        Include{"OfTheModelInTheUnits", "units/src/Unit.cpp", "#include \"model/Finder.h\""},
        Include{"OfTheParserInAPublicHeader", "include/parameters/Taxon.h", "#include <rapidjson/document.h>"},
        Include{"OfFormattingInAnotherPublicHeader", "include/parameters/Taxon.h", "#include <fmt/format.h>"},
        Include{"OfTheParserInTheHeaderForFormatting", "include/parameters/Format.h", "#include <rapidjson/reader.h>"},
        Include{"OfADocumentInAPublicHeader", "include/parameters/Taxon.h", "#include \"schema/JSON.h\""},
        Include{"OfAParameterInAPublicHeaderOfTheUnits", "units/include/units/Unit.h", "#include <parameters/Taxon.h>"},
        Include{"OfTheSystemInAVerb", "tools/ostra-params/verbs/List.cpp", "#include <fnmatch.h>"},
        Include{"OfTheSystemsFoldersInAVerb", "tools/ostra-params/verbs/List.cpp", "#include <sys/stat.h>"},
        Include{"OfTheReaderOfArgumentsInAVerb", "tools/ostra-params/verbs/List.cpp", "#include <CLI/CLI.hpp>"},
        Include{"OfTheLibrarysInternalsInATool", "tools/ostra-params/main.cpp", "#include \"schema/JSON.h\""}),
    Support::nameOfRow);

struct Folder {
    const char* name;
    const char* path;
};

class SourcesUnder : public testing::TestWithParam<Folder> {};

TEST_P(SourcesUnder, HaveNoArrowBack) {
    const Findings findings(GetParam().path);
    EXPECT_THAT(findings.faults, IsEmpty());
    EXPECT_GT(findings.files, 0);
}

INSTANTIATE_TEST_SUITE_P(Includes, SourcesUnder,
                         testing::Values(Folder{"Schema", "src/schema"}, Folder{"Model", "src/model"},
                                         Folder{"Engine", "src/engine"}, Folder{"PublicHeaders", "include"},
                                         Folder{"UnitsPublicHeaders", "units/include"}, Folder{"Units", "units/src"},
                                         Folder{"Tools", "tools"}),
                         Support::nameOfRow);

TEST(Includes, AreAFaultInAFileThatNoRuleCovers) {
    EXPECT_THAT(Structure::faultsOfIncludes("src/other/New.cpp", ""),
                ElementsAre("src/other/New.cpp: no rule says what this may include"));
}

} // namespace
