#include "catalogue/Catalogue.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

namespace Tool {

namespace {

struct Options {
    std::string typeId;
    std::vector<std::string> paths;
    bool isSchema = false;
};

/// Rows of a label and what it is about.
using Rows = std::vector<std::vector<std::string>>;

std::string sheetOf(const Rows& rows) {
    std::string text;
    for (const std::string& line : aligned(rows)) {
        text += "  " + line + "\n";
    }
    return text;
}

std::string textOf(const Catalogue& catalogue, const Value& value) {
    if (value.typeId.empty()) {
        return printable(value.text);
    }
    const std::string name = value.text.empty() ? std::string() : printable(value.text) + "  ";
    return name + printable(value.typeId) + (catalogue.find(value.typeId) == nullptr ? "  (built in)" : "");
}

std::string properties(const Catalogue& catalogue, const Object& object) {
    Rows rows;
    for (const Property& property : object.properties) {
        std::string_view label = property.name;
        for (const Value& value : property.values) {
            rows.push_back({std::string(label), textOf(catalogue, value)});
            label = {}; // once for all values
        }
    }
    rows.push_back({"defined in", toString(beginningOf(catalogue.sourceOf(object)))});
    return sheetOf(rows);
}

std::string links(const Catalogue& catalogue, std::string_view relation, const std::vector<Link>& links) {
    Rows rows;
    for (const auto& [property, typeId] : links) {
        const std::string name = catalogue.nameOf(typeId);
        rows.push_back({std::string(property), printable(typeId) + (name.empty() ? "" : "  " + printable(name))});
    }
    return fmt::format("\n{} {}\n{}", relation, links.empty() ? "nothing" : counted(links.size(), "object"),
                       sheetOf(rows));
}

std::string sheetOf(const Catalogue& catalogue, const Object& object) {
    return fmt::format("{}{}{}  {}\n\n{}{}{}", printable(object.name), object.name.empty() ? "" : "\n",
                       object.section->label, printable(object.typeId), properties(catalogue, object),
                       links(catalogue, "depends on", catalogue.dependencies(object)),
                       links(catalogue, "named by", catalogue.dependents(object.typeId)));
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
    addPaths(*verb, options->paths, false);
    verb->add_flag("--schema", options->isSchema, "Print its schema as the library writes it, indented");
    return [options] { return show(*options); };
}

} // namespace Tool
