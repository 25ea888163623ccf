#include "edit/FileChange.h"
#include "edit/Mending.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <fmt/format.h>

#include <memory>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    bool isDryRun = false;
};

constexpr const char* details = R"(Mends what "ostra-params check" has a hint for that offers one name alone: typeids,
bases, and names of members, constants and properties that are misspelt; before
that, slips of JSON's grammar where one thing alone can be meant. Prints the
changes as patch takes them. What would lead to more faults stays as it is.

Exit codes:
  0  no fault is left, or would be left
  1  faults are left; "ostra-params check" tells them
  2  wrong usage, or a path that cannot be read or written)";

ExitCode fix(const Options& options) {
    mustBeFiles(options.paths);
    const Mending mending(options.paths);
    const std::vector<FileChange> changes = changesOf(mending.input(), mending.texts());
    if (!options.isDryRun) {
        apply(changes);
    }
    print(asDiff(changes));
    const std::size_t left = mending.errors() + mending.input().failures().size();
    if (left > 0) {
        printError(fmt::format("ostra-params: {} left; \"ostra-params check\" tells more.\n", counted(left, "fault")));
    }
    return left > 0 ? Bad : Good;
}

} // namespace

void addFix(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("fix", "Mend what is plainly misspelt");
    addPaths(verb, options->paths, true);
    verb.addFlag("--dry-run", options->isDryRun, "Write nothing; print the changes alone");
    verb.footer(details);
    verb.does([options] { return fix(*options); });
}

} // namespace Tool
