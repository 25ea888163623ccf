#pragma once

#include <compare>
#include <string>
#include <vector>

namespace Tool {

/// What depends on what.
struct Graph {
    struct Node {
        std::string typeId;
        std::string name;
        std::string kind;
        // NOLINTNEXTLINE(modernize-use-nullptr): the compiler compares with a null of its own
        std::strong_ordering operator<=>(const Node&) const = default;
    };
    struct Edge {
        std::string from;
        std::string to;
        std::string label;
        // NOLINTNEXTLINE(modernize-use-nullptr): the compiler compares with a null of its own
        std::strong_ordering operator<=>(const Edge&) const = default;
    };
    std::vector<Node> nodes;
    std::vector<Edge> edges;
};

/// Returns a graph in the language of Graphviz. Nodes and edges are sorted.
std::string toDot(Graph graph);

/// Draws a graph into a file; - stands for standard output.
/// @throws OutputError if Graphviz's program is not there or fails, or the file cannot be written.
void writeSvg(const Graph& graph, const std::string& file);

} // namespace Tool
