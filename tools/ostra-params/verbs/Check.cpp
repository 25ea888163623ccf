#include "catalogue/Loader.h"
#include "faults/Finding.h"
#include "faults/Rules.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/CheckFormats.h"
#include "verbs/Verb.h"

#include <algorithm>
#include <memory>
#include <set>

namespace Tool {

namespace {

using Codes = std::set<std::string, std::less<>>;

struct Options {
    std::vector<std::string> paths;
    std::string format = "text";
    std::string severity = "warning";
    Codes ignored;
    Codes only;
    Codes lints;
    bool isStrict = false;
    bool isAll = false;
    bool isQuiet = false;
};

constexpr const char* details = R"(Registers all schemas, those of units too, and resolves them. Prints a line
"file:line:column: message" for each fault and warning, then the number of
sound objects of each kind. What names a faulty schema is faulty, too, and is
folded into a line below the cause.

Exit codes:
  0  the catalogue is sound, or has warnings alone
  1  the catalogue has faults, or warnings and --strict is given
  2  wrong usage, or a path that is not there, is no schema file, or is a
     folder without schema files)";

std::string refuseUnknownCode(const std::string& code) {
    std::vector<std::string_view> known;
    for (const Rule& rule : rules()) {
        known.push_back(rule.code);
    }
    return std::find(known.begin(), known.end(), code) == known.end() ? thereIsNo("code", code, known) : std::string();
}

/// Returns what to look for beside faults: what is asked for or, as long as nothing alone is asked for, the default.
Codes lintsOf(const Options& options) {
    Codes codes;
    for (const Lint& lint : lints()) {
        const bool isWanted = options.only.empty() ? lint.isDefault || options.lints.contains(lint.code)
                                                   : options.only.contains(lint.code);
        if (isWanted && !options.ignored.contains(lint.code) && options.severity == "warning") {
            codes.emplace(lint.code);
        }
    }
    return codes;
}

ExitCode check(const Options& options) {
    Loader catalogue(options.paths);
    std::vector<Finding> findings = catalogue.findings();
    if (const Codes codes = lintsOf(options); !codes.empty()) {
        addTo(findings, lint(catalogue, codes));
    }
    std::erase_if(findings, [&](const Finding& finding) {
        return options.ignored.contains(finding.code) ||
               (!options.only.empty() && !options.only.contains(finding.code)) ||
               (options.severity == "error" && !finding.isError);
    });
    if (options.format == "json") {
        print(checkAsJson(catalogue, findings));
    } else if (options.format == "sarif") {
        print(findingsAsSarif(findings));
    } else if (options.format == "github") {
        print(findingsAsCommands(findings, options.isAll));
    } else {
        print(findingsAsText(findings, options.isAll) +
              (options.isQuiet ? std::string() : summaryAsText(catalogue, findings)));
    }
    const bool isBad = std::any_of(findings.begin(), findings.end(),
                                   [&](const Finding& finding) { return finding.isError || options.isStrict; });
    return isBad ? Bad : Good;
}

} // namespace

void addCheck(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("check", "Find every fault in the schemas of files and folders");
    addPaths(verb, options->paths, true);
    const auto addCodes = [&](const char* name, Codes& codes, const std::string& help) {
        return verb.add(name, codes, "CODE", help).separatedByCommas();
    };
    verb.add("--format", options->format, "FORMAT",
             "text (which is the default), json, sarif for code hosts,\nor github for the log of a workflow")
        .oneOf({"text", "json", "sarif", "github"});
    verb.add("--severity", options->severity, "SEVERITY", "error, or warning (which is the default) for both")
        .oneOf({"error", "warning"});
    addCodes("--ignore", options->ignored, "Leave these out; may be repeated").check(refuseUnknownCode);
    addCodes("--only", options->only, "Look for these alone; may be repeated").check(refuseUnknownCode);
    std::vector<std::string> codes;
    std::string more;
    for (const Lint& lint : lints()) {
        codes.emplace_back(lint.code);
        more += lint.isDefault ? "" : "\n" + codes.back();
    }
    addCodes("--lint", options->lints, "Look for these, too; may be repeated:" + more).oneOf(codes);
    verb.addFlag("--strict", options->isStrict, "Fail when there are warnings");
    verb.addFlag("--all", options->isAll, "Show each consequence, too");
    verb.addFlag("-q,--quiet", options->isQuiet, "Print the faults alone, and nothing when there are none");
    verb.footer(details);
    verb.does([options] { return check(*options); });
}

} // namespace Tool
