#include "catalogue/Catalogue.h"
#include "catalogue/Sheet.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

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

void addShow(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("show", "Show one object: what it says, what it names and what names it");
    addTypeId(verb, options->typeId);
    addPaths(verb, options->paths, false);
    const Argument schema =
        verb.addFlag("--schema", options->isSchema, "Print its schema as the library writes it, indented");
    verb.addFlag("--json", options->isJson, "Print a JSON object").excludes(schema);
    verb.does([options] { return show(*options); });
}

} // namespace Tool
