#include "catalogue/Catalogue.h"
#include "output/OutputFile.h"
#include "verbs/CheckFormats.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <map>
#include <memory>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::string format = "text";
    bool isQuiet = false;
};

constexpr const char* details = R"(Registers all schemas, those of units too, and resolves them. Prints a line
"file:line:column: message" for each fault, then the number of sound objects of
each kind. What names a faulty schema is faulty, too.

Exit codes:
  0  the catalogue is sound
  1  the catalogue has faults
  2  wrong usage, or a path that cannot be read, is no schema file, or is a
     folder without schema files)";

ExitCode check(const Options& options) {
    const Catalogue catalogue(options.paths);
    if (options.format == "json") {
        print(checkAsJson(catalogue));
    } else if (options.format == "sarif") {
        print(checkAsSarif(catalogue));
    } else {
        print(faultsAsText(catalogue) + (options.isQuiet ? std::string() : summaryAsText(catalogue)));
    }
    return catalogue.faults().empty() ? Good : Bad;
}

} // namespace

Action addCheck(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("check", "Find every fault in the schemas of files and folders");
    addPaths(*verb, options->paths);
    verb->add_option("--format", options->format, "text (which is the default), json, or sarif for code hosts")
        ->check(CLI::IsMember({"text", "json", "sarif"}))
        ->type_name("FORMAT");
    verb->add_flag("-q,--quiet", options->isQuiet, "Print the faults alone, and nothing when there are none");
    verb->footer(details);
    return [options] { return check(*options); };
}

} // namespace Tool
