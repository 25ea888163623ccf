#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool::Lsp {

/// What a JSON text seems to be as long as somebody types in it: brackets that are not closed, members without values
/// and missing commas stop nothing. The text must outlive it.
class Outline {
public:
    enum class Type {
        nothing, ///< A member that has no value yet.
        object,
        array,
        string,
        other ///< A number or a word.
    };

    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    /// A value, or a place for one. It is known by its index; those that it holds have greater ones.
    struct Node {
        Type type = Type::nothing;
        std::size_t parent = none;
        std::size_t nameBegin = 0; ///< Of a member, with its quotation marks; else both are the same.
        std::size_t nameEnd = 0;
        std::size_t begin = 0;
        std::size_t end = 0; ///< Of a container that is not closed, where the next thing begins that is not in it.
        std::vector<std::size_t> children = {};

        bool isContainer() const { return type == Type::object || type == Type::array; }
        bool hasName() const { return nameEnd > nameBegin; }
    };

    explicit Outline(std::string_view text);

    /// Returns the first value; none when there is none.
    std::size_t root() const { return nodes_.empty() ? none : 0; }
    std::size_t size() const { return nodes_.size(); }
    const Node& operator[](std::size_t node) const { return nodes_[node]; }

    /// Returns the first member of an object that has a name; none when there is no such member, or no such object.
    std::size_t find(std::size_t object, std::string_view name) const;
    /// Returns the name of a member; "" of what is none.
    std::string nameOf(std::size_t node) const;
    /// Returns what a string says; "" for what is none.
    std::string stringOf(std::size_t node) const;
    /// Returns the innermost container around an offset; none when there is none.
    std::size_t containerAt(std::size_t offset) const;
    /// Returns the value or member that has an offset in its name or, if it is no container, in its value; none when
    /// there is none.
    std::size_t leafAt(std::size_t offset) const;

private:
    class Reader;

    bool isClosed(std::size_t node) const;

    std::string_view text_;
    std::vector<Node> nodes_;
};

} // namespace Tool::Lsp
