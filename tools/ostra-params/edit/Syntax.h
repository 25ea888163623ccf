#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// A JSON text as it is written: what each value and each name looks like, byte for byte, and where it stands. Members
/// that are repeated are all there. The text must outlive it.
class Syntax {
public:
    enum class Type { object, array, string, other };

    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    /// A value. It is known by its index; those that it holds have greater ones.
    struct Node {
        Type type;
        std::size_t parent = none;
        std::string_view name = {}; ///< Of a member, with its quotation marks.
        std::string_view text = {}; ///< From its first byte to its last.
        std::size_t first = none;   ///< What it holds begins here, and goes on with what is next to that.
        std::size_t next = none;

        bool isContainer() const { return type == Type::object || type == Type::array; }
    };

    /// Reads a text, however deep it is nested; nothing when it is no JSON.
    static std::optional<Syntax> read(std::string_view text);

    static constexpr std::size_t root = 0;
    std::size_t size() const { return nodes_.size(); }
    const Node& operator[](std::size_t node) const { return nodes_[node]; }

    /// Returns what a container holds.
    std::vector<std::size_t> childrenOf(std::size_t node) const;
    /// Puts what a container holds, all of it, into another order.
    void reorder(std::size_t node, const std::vector<std::size_t>& children);

    /// Returns the first member of an object that has a name; none when there is no such member, or no such object.
    std::size_t find(std::size_t node, std::string_view name) const;
    /// Returns whether a node is a member of this name.
    bool isNamed(std::size_t node, std::string_view name) const;
    /// Returns what a string says; nothing when the node is no string, or none.
    std::optional<std::string> stringOf(std::size_t node) const;
    /// Returns the offset of what stands in the text.
    std::size_t offsetOf(std::string_view part) const { return static_cast<std::size_t>(part.data() - text_.data()); }

private:
    explicit Syntax(std::string_view text) : text_(text) {}

    struct Reader;

    std::string_view text_;
    std::vector<Node> nodes_;
};

/// Returns what a JSON string says, which is given with its quotation marks.
std::string unquoted(std::string_view string);

/// Returns a text as a JSON string, with its quotation marks.
std::string quoted(std::string_view text);

} // namespace Tool
