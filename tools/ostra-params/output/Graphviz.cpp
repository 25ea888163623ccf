#include "output/Graphviz.h"

#include "output/OutputFile.h"
#include "output/Text.h"
#include "system/System.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <iterator>
#include <optional>
#include <sstream>

namespace Tool {

namespace {

/// Quotes a text so that Graphviz takes none of it for an escape of its own.
std::string quoted(const std::string& text) { return (std::ostringstream() << std::quoted(printable(text))).str(); }

/// Joins the lines of a label.
std::string labelOf(const Graph::Node& node) {
    std::string lines;
    for (const std::string* line : {&node.name, &node.kind, &node.typeId}) {
        const std::string text = quoted(*line);
        if (!line->empty()) {
            lines += (lines.empty() ? "" : "\\n") + text.substr(1, text.size() - 2);
        }
    }
    return "\"" + lines + "\"";
}

} // namespace

std::string toDot(Graph graph) {
    std::sort(graph.nodes.begin(), graph.nodes.end());
    std::sort(graph.edges.begin(), graph.edges.end());
    std::string dot = "digraph dependencies {\n"
                      "    rankdir=LR\n"
                      "    node [shape=box, style=rounded, fontname=\"Helvetica\", fontsize=11]\n"
                      "    edge [fontname=\"Helvetica\", fontsize=9]\n";
    for (const Graph::Node& node : graph.nodes) {
        fmt::format_to(std::back_inserter(dot), "    {} [label={}]\n", quoted(node.typeId), labelOf(node));
    }
    for (const Graph::Edge& edge : graph.edges) {
        fmt::format_to(std::back_inserter(dot), "    {} -> {} [label={}]\n", quoted(edge.from), quoted(edge.to),
                       quoted(edge.label));
    }
    return dot + "}\n";
}

void writeSvg(const Graph& graph, const std::string& file) {
    const OutputFile dot(std::filesystem::temp_directory_path() / "ostra-params.dot");
    dot.write(toDot(graph));
    std::vector<std::string> arguments{"-Tsvg", System::textOf(dot.path())};
    std::optional<OutputFile> svg;
    if (file != "-") {
        svg.emplace(System::pathOf(file.front() == '-' ? "./" + file : file)); // no name is taken for an option
        arguments.insert(arguments.end(), {"-o", System::textOf(svg->path())});
    }
    if (!System::run("dot", arguments)) {
        throw OutputError(fmt::format("Cannot draw {}: Graphviz's program dot is missing or failed.", printable(file)));
    }
    if (svg) {
        svg->commit();
    }
}

} // namespace Tool
