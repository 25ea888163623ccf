#include "catalogue/Catalogue.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "report/Page.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

struct Options {
    std::vector<std::string> paths;
    std::string output;
};

Json dataOf(const Property& property) {
    Json values = Json::array();
    for (const Value& value : property.values) {
        values.push_back(value.typeId.empty() ? Json::array({value.text}) : Json::array({value.text, value.typeId}));
    }
    return Json::array({property.name, std::move(values), property.isOwn});
}

/// What the page's script reads. Objects are arrays, as there may be many of them.
Json dataOf(const Catalogue& catalogue) {
    Json data{{"kinds", Json::array()}, {"objects", Json::array()}, {"faults", Json::array()}};
    for (const Section& section : sections()) {
        data["kinds"].push_back({{"label", section.label}, {"plural", section.plural}});
    }
    for (const Object& object : catalogue.objects()) {
        Json properties = Json::array();
        for (const Property& property : object.properties) {
            properties.push_back(dataOf(property));
        }
        data["objects"].push_back(
            Json::array({object.typeId, indexOf(*object.section), object.name, std::move(properties),
                         toString(beginningOf(catalogue.sourceOf(object)))}));
    }
    for (const Fold& fold : fold(catalogue.findings())) {
        const Finding& finding = *fold.shown;
        data["faults"].push_back(Json::array({toString(finding.place), finding.message, finding.hint, summaryOf(fold),
                                              finding.isError, finding.typeId}));
    }
    data["leftOut"] = catalogue.leftOut();
    return data;
}

std::string pageOf(const Catalogue& catalogue) {
    std::string page(Page::html);
    const auto fill = [&](std::string_view mark, std::string_view text) {
        page.replace(page.find(mark), mark.size(), text);
    };
    fill("@STYLE@", Page::css);
    fill("@SCRIPT@", Page::js);
    fill("@DATA@", toTextInHtml(dataOf(catalogue))); // last, so that no mark is looked for in what schemas say
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
