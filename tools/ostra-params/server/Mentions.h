#pragma once

#include "server/SchemaText.h"
#include "server/Session.h"

#include <optional>
#include <string>
#include <vector>

namespace Tool::Lsp {

/// A typeid in a file: that of a schema, or one that it names.
struct Mention {
    File file;
    std::string typeId;
    std::size_t begin; ///< With the quotation marks.
    std::size_t end;
    bool isOwn; ///< Of the schema itself.
};

/// Returns the typeid at an offset; nothing when there is none.
std::optional<Mention> mentionAt(const File& file, std::size_t offset);

/// Returns all places in which a typeid stands as such, half-typed texts included.
std::vector<Mention> mentionsOf(const Knowledge& knowledge, const std::string& typeId);

} // namespace Tool::Lsp
