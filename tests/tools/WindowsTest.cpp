#include "ProjectFolder.h"
#include "tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

const std::string examples = OSTRA_SOURCE_DIR "/examples/catalogue";
const std::string discharge = "hydro.parameter:ratedDischarge-1.0.0";

std::string group(const std::string& typeId) {
    return R"({"typeid":")" + typeId +
           R"(","inherits":["norvex.parameter:group-1.0.0"],"constants":[{"id":"name","value":"G"}]})"
           "\n";
}

/// The tool as it is built for Windows, by the preset "mingw" or where OSTRA_WINDOWS_TOOL says.
class OnWindows : public testing::Test {
protected:
    void SetUp() override {
        if (!fs::exists(tool_) || std::system("command -v wine > /dev/null") != 0) {
            GTEST_SKIP() << "There is no wine, or no tool for Windows.";
        }
        fs::copy(examples, folder.path() / "catalogue", fs::copy_options::recursive);
        ::setenv("WINEDEBUG", "-all", 1);
        ::setenv("LC_ALL", "C.UTF-8", 1); // by which wine reads arguments and names of files
        std::ignore = folder.runProgram("wine", {tool_, "--version"}); // it has things to say when it is new
    }
    void TearDown() override { ::unsetenv("LC_ALL"); }

    Outcome run(const std::vector<std::string>& arguments, const std::string& input = "") const {
        std::vector<std::string> all{tool_};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return folder.runProgram("wine", all, ".out", input);
    }

    /// Expects the same of the tool on both systems.
    void expectSame(const std::vector<std::string>& arguments, const std::string& input = "") const {
        const Outcome here = folder.run(arguments, ".out", input);
        const Outcome there = run(arguments, input);
        const std::string all = testing::PrintToString(arguments);
        EXPECT_EQ(there.exitCode, here.exitCode) << all;
        EXPECT_EQ(there.out, here.out) << all;
        EXPECT_EQ(there.err, here.err) << all;
    }

    Folder folder;

private:
    const char* const given_ = std::getenv("OSTRA_WINDOWS_TOOL");
    const std::string tool_ = given_ != nullptr ? given_ : OSTRA_SOURCE_DIR "/build/mingw/bin/ostra-params.exe";
};

TEST_F(OnWindows, PrintsTheSame) {
    folder.write("faulty/f.ndjson", "]\n" + group("g") + "{}\n");
    folder.write("faulty/f (copy).json", group("g"));
    folder.write("faulty/\u00fcber/\u65e5\u672c.json", "{");
    fs::copy(folder.path() / "catalogue", folder.path() / "changed", fs::copy_options::recursive);
    fs::remove(folder.path() / "changed/groups/safety.json");
    for (const char* format : {"text", "json", "sarif", "github"}) {
        expectSame({"check", "--format", format, "catalogue", "faulty"});
    }
    expectSame({"check", "nowhere"});
    expectSame({"check", "/nowhere/f.json"});
    expectSame({"check", "-q", "-"}, group("g") + "]\r\n");
    expectSame({"list", "catalogue"});
    expectSame({"list", "--json", "faulty"});
    expectSame({"list", "--name", "rated d*[A-F]", "catalogue"});
    expectSame({"show", "ratedDischarge", "catalogue"});
    expectSame({"show", "--schema", "ratedDischarge", "catalogue"});
    expectSame({"show", "\u00fcber", "catalogue"});
    expectSame({"deps", "peltonTurbines", "catalogue"});
    expectSame({"deps", "--dot", "--reverse", "hydro.group:operation-1.0.0", "catalogue"});
    expectSame({"diff", "catalogue", "changed"});
    expectSame({"diff", "--json", "catalogue", "changed"});
    for (const char* format : {"text", "json", "sarif", "github"}) {
        expectSame({"diff", "--breaking", "--format", format, "catalogue", "changed"});
    }
    expectSame({"export", "catalogue", "-o", "-"});
    expectSame({"export", "faulty", "-o", "never"});
    expectSame({"export", "catalogue", "-o", "nowhere/f.ndjson"});
    expectSame({"report", "catalogue", "-o", "-"});
    expectSame({"--help"});
    expectSame({"chekc"});
    expectSame({});
}

TEST_F(OnWindows, WritesToDevices) {
    const Outcome outcome = run({"report", "catalogue", "-o", "NUL"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_FALSE(fs::exists(folder.path() / "NUL"));
}

TEST_F(OnWindows, WritesTheSameFiles) {
    folder.write("unsafe.ndjson", group("a:G") + group("a:g") + group("CON") + group("nul.x") + group("a."));
    const std::vector<std::string> arguments{"export", "catalogue", "unsafe.ndjson", "-o"};
    const auto runBoth = [&](const std::vector<std::string>& first, const std::string& name) {
        for (const bool isHere : {true, false}) {
            std::vector<std::string> all = first;
            all.push_back((isHere ? "here" : "there") + name);
            EXPECT_EQ((isHere ? folder.run(all) : run(all)).exitCode, 0);
        }
    };
    for (int i = 0; i < 2; ++i) { // the second time, they are replaced
        runBoth(arguments, "");
        runBoth(arguments, ".ndjson");
        runBoth({"report", "catalogue", "-o"}, ".html");
    }
    EXPECT_EQ(folder.read("there.ndjson"), folder.read("here.ndjson"));
    EXPECT_EQ(folder.read("there.html"), folder.read("here.html"));
    EXPECT_THAT(folder.read("here/group/a%3A%47.json"), StartsWith("{"));
    for (const std::string& name : folder.files()) {
        if (name.starts_with("here/")) {
            EXPECT_EQ(folder.read("t" + name), folder.read(name)) << name;
        }
    }
    const auto count = [&](const char* beginning) {
        const std::vector<std::string> files = folder.files();
        return std::count_if(files.begin(), files.end(), [&](const auto& name) { return name.starts_with(beginning); });
    };
    EXPECT_GT(count("here/"), 50);
    EXPECT_EQ(count("there/"), count("here/"));
    EXPECT_EQ(count("there."), 2); // the two files, and nothing that was written aside
}

TEST_F(OnWindows, KeepsAFolderWithOtherFiles) {
    folder.write("out/notes.txt", "kept");
    expectSame({"export", "catalogue", "-o", "out"});
    EXPECT_EQ(folder.read("out/notes.txt"), "kept");
}

TEST_F(OnWindows, TakesNamesOfAnyScript) {
    folder.write("\u65e5\u672c/\u00fc.json", group("g"));
    EXPECT_EQ(run({"export", "\u65e5\u672c", "-o", "\u00c4\u0416.ndjson"}).exitCode, 0);
    EXPECT_EQ(folder.read("\u00c4\u0416.ndjson"), group("g"));
}

TEST_F(OnWindows, TakesBothSortsOfSlashes) {
    folder.write("a/b/c.json", "]");
    EXPECT_THAT(run({"check", "-q", "a\\b\\c.json"}).out, StartsWith("a/b/c.json:1:1: "));
    EXPECT_THAT(run({"check", "-q", "a\\b"}).out, StartsWith("a/b/c.json:1:1: "));
}

TEST_F(OnWindows, WritesUrisOfDrives) {
    folder.write("a b.json", "]");
    const std::string file = "Z:" + (folder.path() / "a b.json").string();
    std::string windowsFile = file;
    std::replace(windowsFile.begin(), windowsFile.end(), '/', '\\');
    for (const std::string& name : {file, windowsFile}) {
        EXPECT_THAT(run({"check", "--format", "sarif", name}).out,
                    HasSubstr("\"uri\": \"file:///Z:" + (folder.path() / "a%20b.json").string() + "\""));
    }
}

TEST_F(OnWindows, SaysThatGraphvizIsMissing) {
    const Outcome outcome = run({"deps", discharge, "catalogue", "--svg", "x.svg"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, "ostra-params: Cannot draw x.svg: Graphviz's program dot is missing or failed.\n");
}

/// Stands for Graphviz: writes its arguments into the file that the last one names, or to standard output.
const std::string dot = R"(#include <cstdio>
#include <cwchar>
int wmain(int count, wchar_t** arguments) {
    const bool isFile = std::wcscmp(arguments[count - 2], L"-o") == 0;
    std::FILE* file = isFile ? _wfopen(arguments[count - 1], L"wb") : stdout;
    if (file == nullptr || count != (isFile ? 5 : 3)) {
        return 1;
    }
    std::fprintf(file, "drawn");
    return std::fclose(file);
}
)";

TEST_F(OnWindows, RunsGraphviz) {
    folder.write("path/dot.cpp", dot);
    if (std::system(("cd '" + (folder.path() / "path").string() +
                     "' && x86_64-w64-mingw32-g++-posix -municode -static dot.cpp -o dot.exe 2> /dev/null")
                        .c_str()) != 0) {
        GTEST_SKIP() << "There is no compiler for Windows.";
    }
    ::setenv("WINEPATH", ("Z:" + (folder.path() / "path").string()).c_str(), 1);
    const Outcome toFile = run({"deps", discharge, "catalogue", "--svg", "pictures of \u65e5\u672c.svg"});
    const Outcome toOutput = run({"deps", discharge, "catalogue", "--svg", "-"});
    ::unsetenv("WINEPATH");
    EXPECT_EQ(toFile.err, "");
    EXPECT_EQ(folder.read("pictures of \u65e5\u672c.svg"), "drawn");
    EXPECT_EQ(toOutput.out, "drawn");
}

} // namespace
