#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cstdio>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>

namespace {

constexpr const char* footer = R"("ostra-params VERB --help" tells of a verb and its options.

Exit codes:
  0  done
  1  the catalogue has faults (check and others), or the catalogues differ (diff)
  2  wrong usage, an input that cannot be read, or an output that cannot be
     written)";

constexpr std::array verbs{Tool::addCheck,  Tool::addList, Tool::addShow,  Tool::addDeps,
                           Tool::addExport, Tool::addDiff, Tool::addReport};

int run(int argc, char** argv) {
    CLI::App program{"Tools for people who write and review parameter catalogues", "ostra-params"};
    program.set_version_flag("--version", std::string("ostra-params ") + OSTRA_PARAMETERS_VERSION);
    program.footer(footer);
    program.require_subcommand(1);
    std::map<const CLI::App*, Tool::Action> actions;
    for (const auto& addVerb : verbs) {
        Tool::Action action = addVerb(program);
        actions.emplace(program.get_subcommands({}).back(), std::move(action));
    }

    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? Tool::Good : Tool::Unusable;
    }
    return actions.at(program.get_subcommands().front())();
}

} // namespace

int main(int argc, char** argv) {
    try {
        const int code = run(argc, argv);
        if (std::fflush(stdout) != 0) {
            throw std::runtime_error("Cannot write the result.");
        }
        return code;
    } catch (const std::exception& exception) {
        std::fputs((std::string("ostra-params: ") + exception.what() + "\n").c_str(), stderr);
        return Tool::Unusable;
    }
}
