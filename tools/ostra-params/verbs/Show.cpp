#include "catalogue/Catalogue.h"
#include "catalogue/Sheet.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace Tool {

namespace {

struct Options {
    std::string typeId;
    std::vector<std::string> paths;
    bool isSchema = false;
    bool isJson = false;
};

ExitCode show(const Options& options) {
    const Catalogue catalogue(options.paths);
    const Object& object = findObject(catalogue, options.typeId);
    print(options.isSchema ? readable(indented(catalogue.schemaOf(object))) + "\n"
          : options.isJson ? toText(jsonOf(catalogue, object))
                           : sheetOf(catalogue, object));
    return warnOfFaults(catalogue);
}

} // namespace

Action addShow(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("show", "Show one object: what it says, what it names and what names it");
    addTypeId(*verb, options->typeId);
    addPaths(*verb, options->paths, false);
    CLI::Option* schema =
        verb->add_flag("--schema", options->isSchema, "Print its schema as the library writes it, indented");
    verb->add_flag("--json", options->isJson, "Print a JSON object")->excludes(schema);
    return [options] { return show(*options); };
}

} // namespace Tool
