#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// Where the parts of a well-formed JSON text stand in it.
class Outline {
public:
    enum class Type { object, array, string, other };

    struct Node {
        Type type;
        std::size_t begin;     ///< Offset of its first character.
        std::size_t end;       ///< Offset behind its last one.
        std::string name = {}; ///< As a member of an object.
        std::string text = {}; ///< Of a string.
        std::vector<std::size_t> children = {};
    };

    explicit Outline(const std::string& json);

    const Node& root() const { return nodes_.front(); }

    /// Returns the first member of that name; nullptr when the node has none, or is no object itself.
    const Node* member(const Node* node, std::string_view name) const;

    /// Returns the elements of an array or the members of an object, in order; none of a node that is not there.
    std::vector<const Node*> children(const Node* node) const;

    /// Returns whether a node, or anything in it, is a string of that text.
    bool mentions(const Node& node, std::string_view text) const;

private:
    friend class OutlineBuilder;

    std::vector<Node> nodes_; // in the order of the text
};

} // namespace Tool
