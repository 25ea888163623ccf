#include "catalogue/Catalogue.h"
#include "catalogue/Input.h"
#include "output/OutputFile.h"
#include "report/Page.h"
#include "report/PageData.h"
#include "report/ReviewData.h"
#include "verbs/Verb.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::string output;
    std::string against;
};

std::string pageOf(const Json& data) {
    std::string page = Page::html();
    const auto fill = [&](std::string_view mark, std::string_view text) {
        page.replace(page.find(mark), mark.size(), text);
    };
    fill("@STYLE@", Page::css());
    fill("@SCRIPT@", Page::js());
    fill("@DATA@", toTextInHtml(data)); // last, so that no mark is looked for in what schemas say
    return page;
}

ExitCode report(const Options& options) {
    if (options.against == standardInput &&
        std::find(options.paths.begin(), options.paths.end(), standardInput) != options.paths.end()) {
        throw InputError("Standard input can be only one of the two catalogues.");
    }
    const Catalogue catalogue(options.paths);
    Json data = pageDataOf(catalogue);
    if (!options.against.empty()) {
        data["review"] = reviewDataOf(Catalogue({options.against}), catalogue, nameOf(options.against));
    }
    writeTo(options.output, pageOf(data));
    return warnOfFaults(catalogue);
}

} // namespace

void addReport(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("report", "Write a page to browse a catalogue with, in one file");
    addPaths(verb, options->paths, true);
    addRequired(verb, "-o,--output", options->output, "The page, an HTML file; - stands for standard output", "FILE");
    verb.add("--against", options->against, "OLD",
             "An earlier catalogue: a file, a folder, or - for standard input.\nThe page tells what changed "
             "since then, and whom it breaks")
        .check(refuseEmpty);
    verb.footer("The page needs no network. What is faulty is left out of it, and listed.");
    verb.does([options] { return report(*options); });
}

} // namespace Tool
