#include "tools/Tool.h"

#include "support/RowNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

namespace {

/// Returns the names of the files to which groups of some typeids are exported.
std::vector<std::string> namesOf(const std::vector<std::string>& typeIds) {
    const Folder folder;
    std::string schemas;
    for (const std::string& typeId : typeIds) {
        schemas += R"({"typeid":")" + typeId +
                   R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"G"}]})"
                   "\n";
    }
    folder.write("in/f.ndjson", schemas);
    EXPECT_EQ(folder.run({"export", "in", "-o", "out"}).exitCode, 0);
    std::vector<std::string> names;
    const std::string before = "out/group/";
    for (const std::string& file : folder.files()) {
        if (file.starts_with(before)) {
            names.push_back(file.substr(before.size()));
        }
    }
    return names;
}

struct Row {
    const char* name;
    std::vector<std::string> typeIds;
    std::vector<std::string> files; // sorted
};

class FileNames : public testing::TestWithParam<Row> {};

TEST_P(FileNames, AreSafeOnEverySystem) { EXPECT_EQ(namesOf(GetParam().typeIds), GetParam().files); }

INSTANTIATE_TEST_SUITE_P(
    Export, FileNames,
    testing::Values(
        Row{"OfTypeIdsThatDifferInCase",
            {"a:g", "A:g", "a:G", "a:h"},
            {"%41%3Ag.json", "a%3A%47.json", "a%3Ag.json", "a%3Ah.json"}},
        Row{"OfTypeIdsThatAllHaveCapitals", {"aB", "Ab", "C"}, {"%41b.json", "C.json", "a%42.json"}},
        Row{"OfDevices",
            {"CON", "nul.x-1.0.0", "Com1", "lpt9.", "console", "com", "com1x", "x.aux"},
            {"%43ON.json", "%43om1.json", "%6Cpt9..json", "%6Eul.x-1.0.0.json", "com.json", "com1x.json",
             "console.json", "x.aux.json"}},
        Row{"OfDevicesThatDifferInCase", {"aux", "AUX", "Aux"}, {"%41%55%58.json", "%41ux.json", "%61ux.json"}},
        Row{"OfDotsAndBlanks",
            {"a.", "a ", "nul ", "a..", ".a"},
            {"%2Ea.json", "a%20.json", "a...json", "a..json", "nul%20.json"}},
        Row{"OfWhatWindowsForbids", {"a<>:|?*b"}, {"a%3C%3E%3A%7C%3F%2Ab.json"}},
        Row{"OfLongTypeIdsThatDifferInCase",
            {std::string(100, 'x'), std::string(100, 'X')},
            {[] {
                 std::string name;
                 for (int i = 0; i < 66; ++i) {
                     name += "%58";
                 }
                 return name + "%5%3F4E7A0908C6B6F5.json";
             }(),
             std::string(100, 'x') + ".json"}}),
    Support::nameOfRow);

} // namespace
