#include "catalogue/Catalogue.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace Tool {

namespace {

struct Options {
    std::string typeId;
    std::vector<std::string> paths;
    bool isSchema = false;
};

/// Lines of a label and what it is about, the labels in a column of their own.
class Sheet {
public:
    void add(std::string_view label, std::string text) { lines_.push_back({std::string(label), std::move(text)}); }

    std::string text() const {
        std::size_t width = 0;
        for (const Line& line : lines_) {
            width = std::max(width, widthOf(line.label));
        }
        std::string text;
        for (const Line& line : lines_) {
            text += "  " + padded(line.label, width) + "  " + line.text + "\n";
        }
        return text;
    }

private:
    struct Line {
        std::string label;
        std::string text;
    };
    std::vector<Line> lines_;
};

std::string textOf(const Catalogue& catalogue, const Value& value) {
    if (value.typeId.empty()) {
        return printable(value.text);
    }
    const std::string name = value.text.empty() ? std::string() : printable(value.text) + "  ";
    return name + printable(value.typeId) + (catalogue.find(value.typeId) == nullptr ? "  (built in)" : "");
}

std::string properties(const Catalogue& catalogue, const Object& object) {
    Sheet sheet;
    for (const Property& property : object.properties) {
        std::string_view label = property.name;
        for (const Value& value : property.values) {
            sheet.add(label, textOf(catalogue, value));
            label = {}; // once for all values
        }
    }
    sheet.add("defined in", toString(beginningOf(catalogue.sourceOf(object))));
    return sheet.text();
}

std::string links(const Catalogue& catalogue, const std::vector<Link>& links) {
    Sheet sheet;
    for (const auto& [property, typeId] : links) {
        const std::string name = catalogue.nameOf(typeId);
        sheet.add(property, printable(typeId) + (name.empty() ? "" : "  " + printable(name)));
    }
    return sheet.text();
}

std::string sheetOf(const Catalogue& catalogue, const Object& object) {
    const std::vector<Link> dependencies = catalogue.dependencies(object);
    const std::vector<Link>& dependents = catalogue.dependents(object.typeId);
    std::string text = object.name.empty() ? std::string() : printable(object.name) + "\n";
    text += fmt::format("{}  {}\n\n{}", object.section->label, printable(object.typeId), properties(catalogue, object));
    text +=
        fmt::format("\ndepends on {}\n{}", dependencies.empty() ? "nothing" : counted(dependencies.size(), "object"),
                    links(catalogue, dependencies));
    text += fmt::format("\nnamed by {}\n{}", dependents.empty() ? "nothing" : counted(dependents.size(), "object"),
                        links(catalogue, dependents));
    return text;
}

ExitCode show(const Options& options) {
    const Catalogue catalogue(options.paths);
    const Object& object = findObject(catalogue, options.typeId);
    print(options.isSchema ? readable(indented(catalogue.schemaOf(object))) + "\n" : sheetOf(catalogue, object));
    return warnOfFaults(catalogue);
}

} // namespace

Action addShow(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("show", "Show one object: what it says, what it names and what names it");
    addTypeId(*verb, options->typeId);
    addOptionalPaths(*verb, options->paths);
    verb->add_flag("--schema", options->isSchema, "Print its schema as the library writes it, indented");
    return [options] { return show(*options); };
}

} // namespace Tool
