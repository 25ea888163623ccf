#include "catalogue/Catalogue.h"
#include "output/OutputFile.h"
#include "report/Page.h"
#include "report/PageData.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::string output;
};

std::string pageOf(const Catalogue& catalogue) {
    std::string page(Page::html);
    const auto fill = [&](std::string_view mark, std::string_view text) {
        page.replace(page.find(mark), mark.size(), text);
    };
    fill("@STYLE@", Page::css);
    fill("@SCRIPT@", Page::js);
    fill("@DATA@", toTextInHtml(pageDataOf(catalogue))); // last, so that no mark is looked for in what schemas say
    return page;
}

ExitCode report(const Options& options) {
    const Catalogue catalogue(options.paths);
    writeTo(options.output, pageOf(catalogue));
    return warnOfFaults(catalogue);
}

} // namespace

Action addReport(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("report", "Write a page to browse a catalogue with, in one file");
    addPaths(*verb, options->paths, true);
    addRequired(*verb, "-o,--output", options->output, "The page, an HTML file; - stands for standard output", "FILE");
    verb->footer("The page needs no network. What is faulty is left out of it, and listed.");
    return [options] { return report(*options); };
}

} // namespace Tool
