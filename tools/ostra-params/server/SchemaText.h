#pragma once

#include "language/Language.h"
#include "server/Outline.h"
#include "server/Workspace.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tool::Lsp {

/// A schema as it stands in a file, perhaps half typed. Offsets count from the beginning of the file, the text of which
/// must outlive it.
class SchemaText {
public:
    explicit SchemaText(Part part) : part_(part), outline_(part.text) {}

    const Outline& outline() const { return outline_; }
    const Outline::Node& operator[](std::size_t node) const { return outline_[node]; }
    std::size_t begin() const { return part_.begin; }
    std::string_view text() const { return part_.text; }

    std::string typeId() const { return outline_.stringOf(typeIdNode()); }
    std::size_t typeIdNode() const { return outline_.find(outline_.root(), "typeid"); }
    /// Returns the first base; "" when there is none.
    std::string base() const;
    /// Returns what schemas of its base consist of; nullptr when it has none that is known.
    const Language::Form* form() const;

    /// Returns the array of a definition, "constants" or "properties", or within one the array of what a node is in;
    /// none when it is in neither.
    std::size_t tableOf(std::size_t node) const;
    /// Returns the definition that a node is or is in; none when it is in none.
    std::size_t definitionOf(std::size_t node) const;
    /// Returns what the language says of the definition that a node is or is in; nullptr when it says nothing.
    const Language::Definition* meaningOf(std::size_t node) const;

    /// Returns whether a node is a string that names an object.
    bool isMention(std::size_t node) const;
    /// Returns the strings that name an object of this typeid.
    std::vector<std::size_t> mentionsOf(std::string_view typeId) const;

private:
    Part part_;
    Outline outline_;
};

/// Returns the schema around an offset in a file; nothing when there is none.
std::optional<SchemaText> schemaAt(const File& file, std::size_t offset);

} // namespace Tool::Lsp
