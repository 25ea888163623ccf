#include "output/OutputFile.h"
#include "system/System.h"
#include "verbs/Verb.h"

#include <array>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

constexpr const char* footer = R"("ostra-params VERB --help" tells of a verb and its options.

Exit codes:
  0  done
  1  the catalogue has faults (check and others), the catalogues differ (diff),
     or a file is not laid out (fmt)
  2  wrong usage, an input that cannot be read, or an output that cannot be
     written)";

constexpr std::array verbs{Tool::addCheck, Tool::addList,       Tool::addShow,       Tool::addDeps,   Tool::addExport,
                           Tool::addDiff,  Tool::addReport,     Tool::addNew,        Tool::addFormat, Tool::addRename,
                           Tool::addFix,   Tool::addJsonSchema, Tool::addCompletion, Tool::addLsp};

Tool::ExitCode run(const std::vector<std::string>& arguments) {
    Tool::CommandLine program("Tools for people who write and review parameter catalogues", footer);
    for (const auto& addVerb : verbs) {
        addVerb(program);
    }
    return program.run(arguments);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const int code = run(Tool::System::begin(argc, argv));
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
            throw Tool::OutputError("Cannot write the result.");
        }
        return code;
    } catch (const std::exception& exception) {
        Tool::printError(std::string("ostra-params: ") + exception.what() + "\n");
        return Tool::Unusable;
    }
}
