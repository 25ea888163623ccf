#include "catalogue/Catalogue.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "system/System.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <filesystem>
#include <memory>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::string output;
};

constexpr const char* details = R"(Each schema is written as the library writes it, without what equals a default,
sorted by kind and typeid, so that catalogues compare well in version control.
A folder is replaced as a whole; it must be new, empty, or an earlier export.
Nothing is written when the catalogue has faults: a schema that is left out
would be lost.)";

std::string lines(const Catalogue& catalogue) {
    std::string text;
    for (const Object& object : catalogue.objects()) {
        text += catalogue.schemaOf(object) + "\n";
    }
    return text;
}

std::vector<FolderEntry> files(const Catalogue& catalogue) {
    std::vector<FolderEntry> entries;
    for (const Object& object : catalogue.objects()) {
        entries.push_back({std::string(object.section->id), object.typeId, catalogue.schemaOf(object) + "\n"});
    }
    return entries;
}

/// @throws OutputError for what is most likely meant to be a file and would be a folder.
bool isFolder(const std::string& output) {
    const std::filesystem::path path = System::pathOf(output);
    if (path.extension() == ".json" && !std::filesystem::is_directory(path)) {
        throw OutputError(fmt::format("Cannot write {}: a .json file holds one schema; .ndjson files hold many, and so "
                                      "do folders, of any other name.",
                                      printable(output)));
    }
    return output != standardOutput && path.extension() != ".ndjson";
}

ExitCode exportCatalogue(const Options& options) {
    const Catalogue catalogue(options.paths);
    if (printFaults(catalogue, encodingInvalid)) {
        return Bad;
    }
    if (isFolder(options.output)) {
        replaceFolder(options.output, files(catalogue));
    } else {
        writeTo(options.output, lines(catalogue));
    }
    return Good;
}

} // namespace

Action addExport(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("export", "Write the schemas of a catalogue in their normal form");
    addPaths(*verb, options->paths, true);
    addRequired(*verb, "-o,--output", options->output,
                "A file that ends in .ndjson gets one schema a line, -\nstands for standard output, and anything "
                "else is a folder\nthat gets one file each",
                "FILE|DIR");
    verb->footer(details);
    return [options] { return exportCatalogue(*options); };
}

} // namespace Tool
