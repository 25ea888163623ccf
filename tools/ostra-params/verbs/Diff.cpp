#include "catalogue/Catalogue.h"
#include "catalogue/Input.h"
#include "catalogue/Revision.h"
#include "compare/Breaking.h"
#include "compare/Comparison.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"
#include "verbs/DiffFormats.h"
#include "verbs/Verb.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tool {

namespace {

struct Options {
    std::string oldPath;
    std::string newPath;
    std::vector<std::string> paths; ///< What comes behind these two.
    std::string revision;
    std::string format = "text";
    Compare::Accepted accepted;
    bool isJson = false;
    bool isBreaking = false;
    bool isAll = false;
    bool isStrict = false;
};

constexpr const char* details = R"(Lists what was added (+), removed (-), succeeded by a greater version (^),
renamed (=) and changed (~), by object and by property, and which schemas
became faulty (!) or sound (*). Objects are known by their typeids. What is
faulty is left out on both sides and told on standard error.

With --breaking, tells what breaks documents and applications, and why.

Exit codes:
  0  the catalogues are equal; with --breaking, nothing breaks but what is
     accepted
  1  they differ; with --breaking, something breaks
  2  one of them cannot be read, or has faults and --strict is given)";

std::string refuseUnknownCode(const std::string& accepted) {
    std::vector<std::string_view> known;
    for (const Compare::BreakingRule& rule : Compare::breakingRules()) {
        known.push_back(rule.code);
    }
    const std::string code = accepted.substr(0, accepted.find(':'));
    return std::find(known.begin(), known.end(), code) == known.end() ? thereIsNo("code", code, known) : std::string();
}

/// Prints the faults of one side, of a revision under its name; returns whether there are any.
bool printFaultsOf(const Catalogue& catalogue, const std::string& revision) {
    if (!revision.empty() && catalogue.leftOut() != 0) {
        printError(fmt::format("ostra-params: {} has faults:\n", printable(revision)));
    }
    return printFaults(catalogue);
}

std::string verdictsAs(const Options& options, const std::vector<Compare::Change>& changes,
                       const std::vector<Compare::Verdict>& verdicts) {
    if (options.format == "json" || options.isJson) {
        return changesAsJson(changes, &verdicts);
    }
    if (options.format == "github") {
        return findingsAsCommands(findingsOf(verdicts), true);
    }
    if (options.format == "sarif") {
        std::vector<Rule> rules;
        for (const Compare::BreakingRule& rule : Compare::breakingRules()) {
            rules.push_back({rule.code, rule.what, rule.why, wordOf(rule.severity)});
        }
        return findingsAsSarif(findingsOf(verdicts), rules);
    }
    return verdictsAsText(verdicts, options.isAll);
}

ExitCode diff(const Options& options, const Catalogue& before, const Catalogue& after) {
    const bool isOldFaulty = printFaultsOf(before, options.revision);
    if ((printFaultsOf(after, "") || isOldFaulty) && options.isStrict) {
        return Unusable;
    }
    const std::vector<Compare::Change> changes = Compare::compare(before, after);
    if (options.isBreaking) {
        const std::vector<Compare::Verdict> verdicts = Compare::judge(changes, before, after, options.accepted);
        print(verdictsAs(options, changes, verdicts));
        return std::any_of(verdicts.begin(), verdicts.end(), std::mem_fn(&Compare::Verdict::isBreaking)) ? Bad : Good;
    }
    print(options.isJson || options.format == "json" ? changesAsJson(changes) : changesAsText(changes));
    return changes.empty() ? Good : Bad;
}

ExitCode diff(const Options& options) {
    if (!options.revision.empty()) {
        std::vector<std::string> paths = options.paths;
        for (const std::string* path : {&options.newPath, &options.oldPath}) {
            if (!path->empty()) {
                paths.insert(paths.begin(), *path);
            }
        }
        if (paths.empty()) {
            paths.emplace_back(".");
        }
        const Catalogue after(paths);
        return diff(options, Catalogue(filesOfRevision(options.revision, paths)), after);
    }
    if (options.oldPath == standardInput && options.newPath == standardInput) {
        throw InputError("Standard input can be only one of the two catalogues.");
    }
    const Catalogue before({options.oldPath});
    return diff(options, before, Catalogue({options.newPath}));
}

/// Refuses what does not go together: two catalogues there must be, unless one is a revision.
void mustFit(const Options& options) {
    if (options.revision.empty() && options.oldPath.empty()) {
        refuseWithout("OLD");
    }
    if (options.revision.empty() && options.newPath.empty()) {
        refuseWithout("NEW");
    }
    if (options.revision.empty() && !options.paths.empty()) {
        refuseExtra(options.paths);
    }
    for (const auto& [isGiven, name] :
         {std::pair(options.format == "github" || options.format == "sarif", "--format"),
          std::pair(!options.accepted.empty(), "--accept"), std::pair(options.isAll, "--all")}) {
        if (isGiven && !options.isBreaking) {
            refuseWithout("--breaking", name == std::string_view("--format") ? "--format " + options.format : name);
        }
    }
}

} // namespace

void addDiff(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("diff", "Tell what changed from one catalogue to another");
    const auto addPath = [&](const char* name, auto& value, const char* help) {
        verb.add(name, value, "", help).check(refuseEmpty);
    };
    addPath("OLD", options->oldPath, "The one catalogue: a file, a folder, or - for standard input");
    addPath("NEW", options->newPath, "The other one");
    addPath("PATH", options->paths,
            "With --against, any number of paths may be given instead;\nthe working folder when none is");
    verb.add("--against", options->revision, "REV",
             "Compare a revision of the paths with what they are now;\ngit is asked for it")
        .check(refuseEmpty);
    verb.addFlag("--breaking", options->isBreaking, "Tell whom the changes break, and fail if they do");
    verb.add("--accept", options->accepted, "RULE",
             "Let this break, everywhere or in the one object\nCODE:TYPEID; may be repeated")
        .separatedByCommas()
        .check(refuseUnknownCode);
    verb.addFlag("--all", options->isAll, "Show what is safe or accepted, too");
    verb.add("--format", options->format, "FORMAT",
             "text (which is the default), json; with --breaking, sarif\nfor code hosts, or github for the log "
             "of a workflow")
        .oneOf({"text", "json", "sarif", "github"});
    verb.addFlag("--json", options->isJson, "Print a JSON object, as --format json does");
    verb.addFlag("--strict", options->isStrict, "Refuse catalogues with faults");
    verb.footer(details);
    verb.afterReading([options] { mustFit(*options); });
    verb.does([options] { return diff(*options); });
}

} // namespace Tool
