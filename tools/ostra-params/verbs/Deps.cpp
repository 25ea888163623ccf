#include "catalogue/Catalogue.h"
#include "output/Graphviz.h"
#include "output/OutputFile.h"
#include "output/Text.h"
#include "verbs/Verb.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <set>

namespace Tool {

namespace {

struct Options {
    std::string typeId;
    std::vector<std::string> paths;
    bool isReverse = false;
    bool isDot = false;
    std::string svgFile;
};

/// What can be reached from an object along its dependencies, or against them.
class Walk {
public:
    Walk(const Catalogue& catalogue, bool isReverse) : catalogue_(catalogue), isReverse_(isReverse) {}

    std::string tree(const Object& root) {
        text_ = labelOf(root.typeId) + "\n";
        addBranches(root.typeId, "");
        return text_;
    }

    Graph graph(const Object& root) {
        std::vector<std::string> open{root.typeId};
        while (!open.empty()) {
            const std::string typeId = std::move(open.back());
            open.pop_back();
            if (!seen_.insert(typeId).second) {
                continue;
            }
            const Object* object = catalogue_.find(typeId);
            graph_.nodes.push_back({typeId, object == nullptr ? "" : object->name,
                                    object == nullptr ? "built in" : std::string(object->section->label)});
            for (const auto& [property, other] : linksOf(typeId)) {
                graph_.edges.push_back(
                    {isReverse_ ? other : typeId, isReverse_ ? typeId : other, std::string(property)});
                open.push_back(other);
            }
        }
        return std::move(graph_);
    }

private:
    std::vector<Link> linksOf(const std::string& typeId) const {
        const Object* object = catalogue_.find(typeId);
        if (isReverse_) {
            return catalogue_.dependents(typeId);
        }
        return object == nullptr ? std::vector<Link>() : catalogue_.dependencies(*object);
    }

    std::string labelOf(const std::string& typeId) const {
        const std::string name = catalogue_.nameOf(typeId);
        return printable(typeId) + (name.empty() ? "" : "  " + printable(name)) +
               (catalogue_.find(typeId) == nullptr ? "  (built in)" : "");
    }

    /// Catalogues are not deep: a parameter, its spec, a category, its parent, a domain.
    void addBranches(const std::string& typeId, const std::string& indentation) {
        const std::vector<Link> links = linksOf(typeId);
        const bool isRepeated = !seen_.insert(typeId).second && !links.empty();
        if (isRepeated) {
            text_.insert(text_.size() - 1, "  (see above)");
            return;
        }
        for (const Link& link : links) {
            const bool isLast = &link == &links.back();
            text_ += indentation + (isLast ? "\u2514\u2500 " : "\u251C\u2500 ");
            text_ += std::string(link.property) + ": " + labelOf(link.typeId) + "\n";
            addBranches(link.typeId, indentation + (isLast ? "   " : "\u2502  "));
        }
    }

    const Catalogue& catalogue_;
    bool isReverse_;
    std::set<std::string> seen_;
    std::string text_;
    Graph graph_;
};

ExitCode deps(const Options& options) {
    const Catalogue catalogue(options.paths);
    const Object& object = findObject(catalogue, options.typeId);
    Walk walk(catalogue, options.isReverse);
    if (!options.svgFile.empty()) {
        writeSvg(walk.graph(object), options.svgFile);
    } else {
        print(options.isDot ? toDot(walk.graph(object)) : walk.tree(object));
    }
    return warnOfFaults(catalogue);
}

} // namespace

Action addDeps(CLI::App& program) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = program.add_subcommand("deps", "Show what an object depends on, as a tree or a picture");
    addTypeId(*verb, options->typeId);
    addOptionalPaths(*verb, options->paths);
    verb->add_flag("--reverse", options->isReverse, "Show what depends on the object instead");
    CLI::Option* dot = verb->add_flag("--dot", options->isDot, "Print a graph in the language of Graphviz");
    verb->add_option("--svg", options->svgFile,
                     "Draw the graph into a file, by Graphviz's program dot;\n- stands for standard output")
        ->check(refuseEmpty)
        ->type_name("FILE")
        ->excludes(dot);
    return [options] { return deps(*options); };
}

} // namespace Tool
