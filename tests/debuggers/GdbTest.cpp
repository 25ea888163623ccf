#include "debuggers/Gdb.h"
#include "ProjectFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

const std::string script = OSTRA_SOURCE_DIR "/debuggers/ostra_gdb.py";
const std::string natvis = OSTRA_SOURCE_DIR "/debuggers/OstraParameters.natvis";

/// What is shown of a variable of the program.
struct Shown {
    std::string variable;
    std::string text;

    bool operator==(const Shown&) const = default;
};

[[maybe_unused]] void PrintTo(const Shown& shown, std::ostream* stream) {
    *stream << shown.variable << " is " << shown.text;
}

const std::vector<Shown> valuesOfEveryClass = {
    {"boolParameter", R"(BoolParameter pumps:parameter.flow-1.0.0 "Flow")"},
    {"boolSpec", R"(BoolSpec pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"category", R"(Category pumps:category.pump-1.0.0 "Pump")"},
    {"enumeration", R"(Enumeration pumps:enumeration.drive-1.0.0 {"Electric", "Diesel"})"},
    {"enumerationParameter", R"(EnumerationParameter pumps:parameter.flow-1.0.0 "Flow")"},
    {"*faults._M_impl._M_start", R"(Fault error typeid-missing "Schema must specify a typeid string.")"},
    {"floatRange", R"(FloatRange pumps:range.flow-1.0.0 to 2.5)"},
    {"generalSpec", R"(GeneralSpec pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"intParameter", R"(IntParameter pumps:parameter.flow-1.0.0 "Flow")"},
    {"intRange", R"(IntRange pumps:range.stages-1.0.0 from -1 to 12)"},
    {"boundedBelow", R"(IntRange pumps:range.stages-1.0.0 from 9223372036854775807)"},
    {"intSpec", R"(IntSpec pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"majorComponent", R"(MajorCategoryComponent pumps:domain.hydraulics-1.0.0 "Hydraulics")"},
    {"measurableParameter", R"(MeasurableParameter pumps:parameter.flow-1.0.0 "Flow")"},
    {"measurableSpec", R"(MeasurableSpec pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"parameterCore", R"(ParameterCore pumps:parameter.flow-1.0.0 "Flow")"},
    {"referenceParameter", R"(ReferenceParameter pumps:parameter.flow-1.0.0 "Flow")"},
    {"referenceSpec", R"(ReferenceSpec pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"regex", R"(RegexStringRangeComponent "K[0-9]{1,3}")"},
    {"set", R"(SetStringRangeComponent {"cast", "welded"})"},
    {"emptySet", R"(SetStringRangeComponent {})"},
    {"specCore", R"(SpecCore pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"stringParameter", R"(StringParameter pumps:parameter.flow-1.0.0 "Flow")"},
    {"stringRange", R"(StringRange pumps:range.housing-1.0.0)"},
    {"stringSpec", R"(StringSpec pumps:spec.flow-1.0.0 "Volume Flow")"},
    {"subComponent", R"(SubCategoryComponent pumps:category.pump-1.0.0)"},
    {"taxon", R"(Taxon pumps:group.operation-1.0.0 "Operation")"},
    {"unit", R"(Unit pumps:unit.litrePerSecond-1.0.0 "Litre per Second")"},
    {"shortUnit", R"(Unit m "Metre")"},
};

std::vector<std::string> variablesOf(const std::vector<Shown>& values) {
    std::vector<std::string> variables;
    for (const Shown& value : values) {
        variables.push_back(value.variable);
    }
    return variables;
}

std::vector<Shown> pairsOf(const std::vector<std::string>& variables, const std::vector<std::string>& texts) {
    std::vector<Shown> values;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        values.push_back({variables.at(i), texts[i]});
    }
    return values;
}

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::set<std::string> found(const std::string& text, const std::string& pattern, const std::string& prefix = "") {
    const std::regex regex(pattern);
    std::set<std::string> names;
    for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
        names.insert(prefix + (*match)[1].str());
    }
    return names;
}

/// The exported classes of the public headers that are values: no exception, which has a base, and no engine.
std::set<std::string> valueClasses() {
    std::set<std::string> classes;
    const fs::path source = OSTRA_SOURCE_DIR;
    for (const fs::path& folder : {source / "include/parameters", source / "units/include/units"}) {
        const std::string prefix = folder.filename() == "units" ? "Units::" : "Parameters::";
        for (const auto& entry : fs::directory_iterator(folder)) {
            classes.merge(found(contentOf(entry.path()), R"(\nclass \w+_EXPORT (\w+) \{)", prefix));
        }
    }
    EXPECT_EQ(classes.erase("Parameters::ParametersEngine"), 1U);
    EXPECT_EQ(classes.erase("Units::UnitsEngine"), 1U);
    return classes;
}

TEST(DebuggerPrinters, OfGdbAreForEveryValueClass) {
    EXPECT_EQ(found(contentOf(script), R"xx("(\w+::\w+)")xx"), valueClasses());
}

TEST(DebuggerPrinters, OfVisualStudioAreForEveryValueClass) {
    EXPECT_EQ(found(contentOf(natvis), R"xx(Type Name="(\w+::\w+)")xx"), valueClasses());
}

TEST(DebuggerPrinters, AreTestedWithEveryValueClass) {
    std::set<std::string> tested;
    for (const Shown& value : valuesOfEveryClass) {
        const std::string name = value.text.substr(0, value.text.find(' '));
        tested.insert((name == "Unit" ? "Units::" : "Parameters::") + name);
    }
    EXPECT_EQ(tested, valueClasses());
}

class Gdb : public testing::Test {
protected:
    void SetUp() override {
        if (const std::string reason = Debugger::whyNot(); !reason.empty()) {
            GTEST_SKIP() << reason;
        }
    }

    /// Returns what gdb shows of some variables while the program stands in stop().
    std::vector<std::string> show(const std::vector<std::string>& variables, const std::string& locale = "C.UTF-8") {
        Debugger gdb;
        gdb.libraries = OSTRA_STRIPPED_LIBRARIES;
        gdb.locale = locale;
        gdb.before = {"source " + script};
        return gdb.show(variables);
    }
};

TEST_F(Gdb, ShowsTypeIdAndNameOfEveryValueClass) {
    const std::vector<std::string> variables = variablesOf(valuesOfEveryClass);
    EXPECT_THAT(pairsOf(variables, show(variables)), testing::ElementsAreArray(valuesOfEveryClass));
}

TEST_F(Gdb, ShowsReferencesElementsPartsAndResults) {
    EXPECT_THAT(show({"reference", "*taxons._M_impl._M_start", "partOfParameter", "group", "copyOf(taxon)"}),
                ElementsAre(R"(Taxon pumps:group.operation-1.0.0 "Operation")",
                            R"(Taxon pumps:group.operation-1.0.0 "Operation")",
                            R"(ParameterCore pumps:parameter.flow-1.0.0 "Flow")",
                            R"(Taxon norvex.parameter:group-1.0.0 "Other")",
                            R"(Taxon pumps:group.operation-1.0.0 "Operation")"));
}

TEST_F(Gdb, NeedsNoDebugInformationOfTheLibrary) {
    if (std::string(OSTRA_STRIPPED_LIBRARIES).empty()) {
        GTEST_SKIP() << "The libraries are static.";
    }
    Debugger gdb;
    gdb.libraries = OSTRA_STRIPPED_LIBRARIES;
    gdb.before = {"source " + script};
    gdb.after = {"info sharedlibrary Ostra"};
    const std::string shown = gdb.run({"taxon"});
    EXPECT_THAT(shown, HasSubstr("Taxon pumps:group.operation-1.0.0 \"Operation\"\n"));
    EXPECT_THAT(shown, ContainsRegex("Yes \\(\\*\\) +" OSTRA_STRIPPED_LIBRARIES "/libOstraParameters")); // it has none
}

TEST_F(Gdb, ShowsAnyBytes) {
    EXPECT_THAT(show({"anyBytes"}), ElementsAre("Taxon a\\x00b\\xff\\n \"L\xc3\xa4nge \\xe2\\x82\""));
}

TEST_F(Gdb, ShowsWhatTheTerminalCannotAsNumbers) {
    EXPECT_THAT(show({"anyBytes"}, "C"), ElementsAre("Taxon a\\x00b\\xff\\n \"L\\xe4nge \\xe2\\x82\""));
}

TEST_F(Gdb, CutsWhatIsLong) {
    const std::string typeId(200, 't');
    EXPECT_THAT(
        show({"exact", "lengthy"}),
        ElementsAre("Taxon " + typeId + " \"\"", "Taxon " + typeId + "... \"" + std::string(199, 'n') + "...\""));
}

TEST_F(Gdb, CutsLongLists) {
    const std::string value = '"' + std::string(96, 'a') + '"';
    EXPECT_THAT(show({"longSet"}),
                ElementsAre("SetStringRangeComponent {" + value + ", " + value + ", " + value + ", ...}"));
}

TEST_F(Gdb, ShowsThePointerOfWhatIsNoValue) {
    EXPECT_THAT(show({"*gone", "*(Parameters::Taxon*)&null", "*(Parameters::Taxon*)&nowhere"}),
                ElementsAre(MatchesRegex("Taxon <0x[0-9a-f]+>"), "Taxon <0x0>", "Taxon <0x1>"));
}

TEST_F(Gdb, ShowsThePointerOfWhatNobodyOwns) {
    EXPECT_THAT(show({"*(Parameters::Taxon*)&unowned", "*(Parameters::Taxon*)&nonsense"}),
                testing::Each(MatchesRegex("Taxon <0x[0-9a-f]+>")));
}

TEST_F(Gdb, ShowsThePointerOfWhatHasNoTexts) {
    EXPECT_THAT(show({"*(Parameters::Taxon*)&ofReleased", "*(Parameters::Taxon*)&ofDisordered",
                      "*(Parameters::Taxon*)&ofEndless", "*(Parameters::Taxon*)&ofSingle",
                      "*(Parameters::Taxon*)&ofCountless"}),
                testing::Each(MatchesRegex("Taxon <0x[0-9a-f]+>")));
}

TEST_F(Gdb, ShowsThePointerOfWhatIsOfAnotherClass) {
    EXPECT_THAT(show({"taxonAsFault", "farAsFault", "taxonAsUnit", "taxonAsComponent", "flagsAsRange", "rangeAsTaxon"}),
                testing::Each(MatchesRegex("[A-Za-z]+ <0x[0-9a-f]+>")));
}

TEST_F(Gdb, LoadsWhatIsInstalledByItself) {
    if (std::string(OSTRA_STRIPPED_LIBRARIES).empty()) {
        GTEST_SKIP() << "The libraries are static.";
    }
    std::string name = (fs::temp_directory_path() / "ostra-debuggers-XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    const fs::path root = fs::canonical(name);
    for (const std::string component : {"OstraUnits", "OstraUnits-dev", "OstraParameters", "OstraParameters-dev"}) {
        const std::string command = "DESTDIR='" + root.string() +
                                    "' '" OSTRA_CMAKE "' --install '" OSTRA_BUILD_DIR "' --component " + component +
                                    " >/dev/null";
        ASSERT_EQ(std::system(command.c_str()), 0);
    }
    // The folder in which gdb looks for the full name of a library, as if the root of the installation were that of the
    // system.
    const fs::path scripts = root / fs::path(OSTRA_DATADIR "/gdb/auto-load").relative_path();
    const fs::path inRoot = scripts / root.relative_path();
    fs::create_directories(inRoot.parent_path());
    fs::create_directory_symlink(scripts, inRoot);

    Debugger gdb;
    gdb.libraries = (root / fs::path(OSTRA_LIBDIR).relative_path()).string();
    gdb.before = {"set auto-load safe-path /", "set auto-load scripts-directory " + scripts.string()};
    gdb.after = {"info pretty-printer"};
    const std::string shown = gdb.run({"taxon", "shortUnit"});
    EXPECT_TRUE(fs::exists(root / fs::path(OSTRA_DATADIR "/OstraParameters/ostra_gdb.py").relative_path()));
    EXPECT_TRUE(fs::exists(root / fs::path(OSTRA_DATADIR "/OstraParameters/OstraParameters.natvis").relative_path()));
    fs::remove_all(root);
    EXPECT_THAT(shown, HasSubstr("Taxon pumps:group.operation-1.0.0 \"Operation\"\n"));
    EXPECT_THAT(shown, HasSubstr("Unit m \"Metre\"\n"));
    EXPECT_THAT(shown, HasSubstr("  OstraParameters\n    BoolParameter\n"));
    EXPECT_THAT(shown, HasSubstr("  OstraUnits\n    Unit\n")); // each library has its own
}

TEST_F(Gdb, FindsTheFileForVisualStudioWellFormed) { // its Python has a parser of XML
    EXPECT_EQ(Debugger::python("import xml.dom.minidom; print(xml.dom.minidom.parse('" + natvis +
                               "').documentElement.tagName)"),
              "AutoVisualizer\n");
}

} // namespace
