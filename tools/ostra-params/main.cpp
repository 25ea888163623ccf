#include "Check.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int sound = 0;
constexpr int faulty = 1;
constexpr int unusable = 2;

constexpr const char* checkDetails = R"(Registers all schemas, those of units too, and resolves them. Prints a line
"file:line: message" for each fault, then the number of sound objects of each
kind. What names a faulty schema is faulty, too.

)";

constexpr const char* exitCodes = R"(Exit codes:
  0  the catalogue is sound
  1  the catalogue has faults
  2  wrong usage, or a path that cannot be read, is no schema file, or is a
     folder without schema files)";

int run(int argc, char** argv) {
    CLI::App app{"Tools for authors of parameter catalogues", "ostra-params"};
    app.set_version_flag("--version", std::string("ostra-params ") + OSTRA_PARAMETERS_VERSION);
    app.footer(exitCodes);
    app.require_subcommand(1);

    std::vector<std::string> paths;
    CLI::App* check = app.add_subcommand("check", "Check the schemas in files and folders");
    check
        ->add_option("PATH", paths,
                     ".json files (one schema each), .ndjson files (one schema per\nline), and folders to be searched "
                     "for such files at all depths")
        ->required()
        ->type_name("");
    check->footer(std::string(checkDetails) + exitCodes);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? sound : unusable;
    }
    return Tool::check(paths) ? sound : faulty;
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
        return unusable;
    }
}
