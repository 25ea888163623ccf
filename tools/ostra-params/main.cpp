#include "output/OutputFile.h"
#include "output/Text.h"
#include "system/System.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cstdio>
#include <exception>
#include <map>
#include <string>
#include <string_view>
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

/// Returns what to say of a verb that there is not; the library that reads the arguments takes it for a missing one.
std::string noVerb(const CLI::App& program, const std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.front().starts_with('-')) {
        return "a verb is required";
    }
    std::vector<std::string_view> names;
    for (const CLI::App* verb : program.get_subcommands([](const CLI::App*) { return true; })) {
        names.emplace_back(verb->get_name());
    }
    return Tool::thereIsNo("verb", arguments.front(), names);
}

/// Says what is wrong with the arguments.
void complain(const CLI::App& program, const CLI::ParseError& error, const std::vector<std::string>& arguments) {
    const std::vector<CLI::App*> chosen = program.get_subcommands();
    const bool isMissing = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr && chosen.empty();
    Tool::printError("ostra-params: " + (isMissing ? noVerb(program, arguments) : Tool::printable(error.what())) +
                     "\n\"ostra-params" + (chosen.empty() ? "" : " " + chosen.front()->get_name()) +
                     " --help\" tells more.\n");
}

int run(const std::vector<std::string>& arguments) {
    CLI::App program{"Tools for people who write and review parameter catalogues", "ostra-params"};
    program.allow_windows_style_options(false); // which paths may look like
    program.set_version_flag("--version", std::string("ostra-params ") + OSTRA_PARAMETERS_VERSION);
    program.footer(footer);
    program.get_formatter()->label("SUBCOMMAND", "VERB");
    program.get_formatter()->label("REQUIRED", "(required)");
    program.require_subcommand(1);
    std::map<const CLI::App*, Tool::Action> actions;
    for (const auto& addVerb : verbs) {
        Tool::Action action = addVerb(program);
        CLI::App* verb = program.get_subcommands({}).back();
        verb->group("Verbs");
        actions.emplace(verb, std::move(action));
    }

    try {
        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend())); // as it wants them
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) { // help, or the version
            return program.exit(error);
        }
        complain(program, error, arguments);
        return Tool::Unusable;
    }
    return actions.at(program.get_subcommands().front())();
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
