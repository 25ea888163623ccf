#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

/// A stretch of a text that becomes another.
struct Edit {
    std::size_t begin;
    std::size_t end;
    std::string text;
};

/// Returns a text with edits made, which must not overlap. All else stays to the byte.
std::string edited(std::string_view text, std::vector<Edit> edits);

/// Returns the edits that let a schema have and name a typeid under another one: in its own typeid, and wherever a
/// member "typeid" in its constants and properties says so. There are none in what is no JSON.
std::vector<Edit> renamingsIn(std::string_view text, std::string_view oldTypeId, std::string_view newTypeId);

/// Returns the edit that spells a name or a string in another way, which stands at an offset or is the name of the
/// member whose value stands there; none when something else does.
std::vector<Edit> respellingsIn(std::string_view text, std::size_t offset, std::string_view oldName,
                                std::string_view newName);

} // namespace Tool
