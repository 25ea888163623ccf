#include "catalogue/Catalogue.h"
#include "faults/Losses.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "system/System.h"
#include "verbs/CheckFormats.h"
#include "verbs/Verb.h"

#include <fmt/format.h>

#include <filesystem>
#include <memory>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::string output;
    bool isStrict = false;
    bool isAll = false;
};

constexpr const char* details = R"(Each schema is written as the library writes it, without what equals a default,
sorted by kind and typeid, so that catalogues compare well in version control.
A folder is replaced as a whole; it must be new, empty, or an earlier export.
Nothing is written when the catalogue has faults: a schema that is left out
would be lost. What the library does not write of sound ones is told.

Exit codes:
  0  all schemas are written
  1  the catalogue has faults, or with --strict something would not be written
  2  wrong usage, or a path that cannot be read or written)";

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

/// Returns what would not be there any more once this is written.
std::vector<Finding> lossesOf(Catalogue& catalogue) {
    Catalogue written({KnownFile{"export.ndjson", std::make_shared<const std::string>(lines(catalogue))}});
    return lossesBetween(catalogue, written);
}

void printLosses(const std::vector<Finding>& losses, const Options& options) {
    printError(findingsAsText(losses, options.isAll));
    if (!losses.empty()) {
        const std::string count = counted(losses.size(), "detail");
        printError(options.isStrict ? fmt::format("ostra-params: Nothing is written, as {} would be lost.\n", count)
                                    : fmt::format("ostra-params: {} not written; --strict refuses that.\n", count));
    }
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
    Catalogue catalogue(options.paths);
    if (printFaults(catalogue, encodingInvalid)) {
        return Bad;
    }
    const std::vector<Finding> losses = lossesOf(catalogue);
    if (options.isStrict && !losses.empty()) {
        printLosses(losses, options);
        return Bad;
    }
    if (isFolder(options.output)) {
        replaceFolder(options.output, files(catalogue));
    } else {
        writeTo(options.output, lines(catalogue));
    }
    printLosses(losses, options);
    return Good;
}

} // namespace

void addExport(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("export", "Write the schemas of a catalogue in their normal form");
    addPaths(verb, options->paths, true);
    addRequired(verb, "-o,--output", options->output,
                "A file that ends in .ndjson gets one schema a line, -\nstands for standard output, and anything "
                "else is a folder\nthat gets one file each",
                "FILE|DIR");
    verb.addFlag("--strict", options->isStrict, "Write nothing when something would not be written as it is");
    verb.addFlag("--all", options->isAll, "Show each of many like losses, too");
    verb.footer(details);
    verb.does([options] { return exportCatalogue(*options); });
}

} // namespace Tool
