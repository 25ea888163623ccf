#include "catalogue/Catalogue.h"
#include "output/Graphviz.h"
#include "output/Json.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <memory>
#include <set>
#include <utility>

namespace Tool {

namespace {

struct Options {
    std::string typeId;
    std::vector<std::string> paths;
    bool isReverse = false;
    bool isDot = false;
    bool isJson = false;
    std::string svgFile;
};

/// What can be reached from an object along its dependencies, or against them: as a tree and as a graph.
class Walk {
public:
    Walk(const Catalogue& catalogue, const Object& root, bool isReverse)
        : catalogue_(catalogue), isReverse_(isReverse), tree_(labelOf(root.typeId) + "\n") {
        addBranches(root.typeId, "");
    }

    const std::string& tree() const { return tree_; }
    const Graph& graph() const { return graph_; }

    /// Returns the graph in the order of the walk: each object once, however many ways lead there.
    Json json() const {
        Json nodes = Json::array();
        for (const Graph::Node& node : graph_.nodes) {
            const Object* object = catalogue_.find(node.typeId);
            nodes.push_back({{"typeid", node.typeId},
                             {"kind", object == nullptr ? "" : object->section->id},
                             {"name", node.name},
                             {"builtIn", object == nullptr}});
        }
        Json edges = Json::array();
        for (const Graph::Edge& edge : graph_.edges) {
            edges.push_back({{"from", edge.from}, {"to", edge.to}, {"property", edge.label}});
        }
        return {{"root", graph_.nodes.front().typeId}, {"nodes", std::move(nodes)}, {"edges", std::move(edges)}};
    }

private:
    std::string labelOf(const std::string& typeId) const {
        const std::string name = catalogue_.nameOf(typeId);
        return printable(typeId) + (name.empty() ? "" : "  " + printable(name)) +
               (catalogue_.find(typeId) == nullptr ? "  (built in)" : "");
    }

    /// Catalogues are not deep: a parameter, its spec, a category, its parent, a domain.
    void addBranches(const std::string& typeId, const std::string& indentation) {
        const Object* object = catalogue_.find(typeId);
        const std::vector<Link> links = isReverse_          ? catalogue_.dependents(typeId)
                                        : object == nullptr ? std::vector<Link>()
                                                            : catalogue_.dependencies(*object);
        if (!seen_.insert(typeId).second) {
            tree_.insert(tree_.size() - 1, links.empty() ? "" : "  (see above)");
            return;
        }
        graph_.nodes.push_back(
            {typeId, catalogue_.nameOf(typeId), object == nullptr ? "built in" : std::string(object->section->label)});
        for (const Link& link : links) {
            const bool isLast = &link == &links.back();
            tree_ += indentation + (isLast ? "\u2514\u2500 " : "\u251C\u2500 ");
            tree_ += std::string(link.property) + ": " + labelOf(link.typeId) + "\n";
            graph_.edges.push_back(
                {isReverse_ ? link.typeId : typeId, isReverse_ ? typeId : link.typeId, std::string(link.property)});
            addBranches(link.typeId, indentation + (isLast ? "   " : "\u2502  "));
        }
    }

    const Catalogue& catalogue_;
    bool isReverse_;
    std::set<std::string> seen_;
    std::string tree_;
    Graph graph_;
};

ExitCode deps(const Options& options) {
    const Catalogue catalogue(options.paths);
    const Walk walk(catalogue, findObject(catalogue, options.typeId), options.isReverse);
    if (!options.svgFile.empty()) {
        writeSvg(walk.graph(), options.svgFile);
    } else {
        print(options.isJson ? toText(walk.json()) : options.isDot ? toDot(walk.graph()) : walk.tree());
    }
    return warnOfFaults(catalogue);
}

} // namespace

void addDeps(CommandLine& program) {
    const auto options = std::make_shared<Options>();
    const Verb verb = program.addVerb("deps", "Show what an object depends on, as a tree or a picture");
    addTypeId(verb, options->typeId);
    addPaths(verb, options->paths, false);
    verb.addFlag("--reverse", options->isReverse, "Show what depends on the object instead");
    const Argument dot = verb.addFlag("--dot", options->isDot, "Print a graph in the language of Graphviz");
    const Argument svg =
        verb.add("--svg", options->svgFile, "FILE",
                 "Draw the graph into a file, by Graphviz's program dot;\n- stands for standard output")
            .check(refuseEmpty)
            .excludes(dot);
    verb.addFlag("--json", options->isJson, "Print the graph as a JSON object: nodes and edges")
        .excludes(dot)
        .excludes(svg);
    verb.does([options] { return deps(*options); });
}

} // namespace Tool
