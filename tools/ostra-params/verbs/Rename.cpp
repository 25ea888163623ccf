#include "catalogue/Loader.h"
#include "edit/Edit.h"
#include "edit/FileChange.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <memory>

namespace Tool {

namespace {

struct Options {
    std::string oldTypeId;
    std::string newTypeId;
    std::vector<std::string> paths;
    bool isDryRun = false;
    bool isDiff = false;
};

constexpr const char* details = R"(Changes the typeid of a schema where it stands and wherever a schema names it,
and nothing else: all other bytes stay. All files are written aside before the
first one is replaced.

Exit codes:
  0  done, or with --dry-run and --diff, nothing is in the way
  2  wrong usage; no schema has the typeid, or something has the new one; a path
     that cannot be read or written, or a text that is no JSON and has the typeid
     in it)";

/// A typeid that cannot become another one.
struct Refusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void mustBeThere(const Loader& catalogue, const std::string& typeId) {
    if (catalogue.headings().find(typeId)) {
        return;
    }
    std::vector<std::string_view> known;
    for (const Heading& heading : catalogue.headings().all()) {
        known.emplace_back(heading.typeId);
    }
    throw NotFound(thereIsNo("schema with typeid", typeId, known));
}

void mustBeFree(const Loader& catalogue, const std::string& typeId) {
    if (const auto number = catalogue.headings().find(typeId)) {
        throw Refusal(fmt::format("{} is taken: it is the typeid of {}", printable(typeId),
                                  toString(beginningOf(catalogue.source(*number)))));
    }
    if (catalogue.engine().isTaken(typeId)) {
        throw Refusal(fmt::format("{} is reserved: it contains a built-in identifier", printable(typeId)));
    }
}

/// Nothing that may name a typeid must be left behind with the old one.
void mustBeSearchable(const Loader& catalogue, const std::string& typeId) {
    if (!catalogue.input().failures().empty()) {
        const Input::Failure& failure = catalogue.input().failures().front();
        throw InputError(fmt::format("Cannot read {}: {}.", printable(*failure.file), failure.reason));
    }
    for (const Finding& finding : catalogue.findings()) {
        const Source& source = catalogue.source(finding.source);
        if (finding.code == "json-syntax" && source.text->find(typeId) != std::string::npos) {
            throw Refusal(fmt::format("{} has {} in it, and is no JSON; \"ostra-params check\" tells more",
                                      toString(beginningOf(source)), printable(typeId)));
        }
    }
}

ExitCode rename(const Options& options) {
    mustBeFiles(options.paths);
    const Loader catalogue(options.paths);
    mustBeSearchable(catalogue, options.oldTypeId);
    mustBeThere(catalogue, options.oldTypeId);
    mustBeFree(catalogue, options.newTypeId);
    std::map<std::size_t, std::string> texts;
    std::size_t places = 0;
    for (std::size_t number = 0; number < catalogue.schemas(); ++number) {
        const std::string& text = *catalogue.source(number).text;
        const std::vector<Edit> edits = renamingsIn(text, options.oldTypeId, options.newTypeId);
        if (!edits.empty()) {
            places += edits.size();
            texts.emplace(number, edited(text, edits));
        }
    }
    const std::vector<FileChange> changes = changesOf(catalogue.input(), texts);
    if (!options.isDryRun && !options.isDiff) {
        apply(changes);
    }
    print(options.isDiff ? asDiff(changes)
                         : fmt::format("{} in {} {} {}\n", counted(places, "place"), counted(changes.size(), "file"),
                                       options.isDryRun ? "would name"
                                       : places == 1    ? "names"
                                                        : "name",
                                       printable(options.newTypeId)));
    return Good;
}

} // namespace

void addRename(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("rename", "Give a schema another typeid, wherever it is named");
    addRequired(verb, "OLD", options->oldTypeId, "The typeid of a schema, as a whole", "");
    addRequired(verb, "NEW", options->newTypeId, "Its new typeid, which nothing has", "");
    addPaths(verb, options->paths, true);
    const Argument dryRun =
        verb.addFlag("--dry-run", options->isDryRun, "Write nothing; tell how many places would change");
    verb.addFlag("--diff", options->isDiff, "Write nothing; print the changes, as patch takes them").excludes(dryRun);
    verb.footer(details);
    verb.does([options] { return rename(*options); });
}

} // namespace Tool
