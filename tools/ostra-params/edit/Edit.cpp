#include "edit/Edit.h"

#include "edit/Syntax.h"

#include <algorithm>

namespace Tool {

namespace {

Edit replacing(const Syntax& syntax, std::string_view part, std::string_view text) {
    const std::size_t begin = syntax.offsetOf(part);
    return {begin, begin + part.size(), quoted(text)};
}

} // namespace

std::string edited(std::string_view text, std::vector<Edit> edits) {
    std::sort(edits.begin(), edits.end(), [](const Edit& one, const Edit& other) { return one.begin < other.begin; });
    std::string result;
    std::size_t copied = 0;
    for (const Edit& edit : edits) {
        result.append(text, copied, edit.begin - copied).append(edit.text);
        copied = edit.end;
    }
    return result.append(text, copied);
}

std::vector<Edit> renamingsIn(std::string_view text, std::string_view oldTypeId, std::string_view newTypeId) {
    const auto syntax = Syntax::read(text);
    std::vector<Edit> edits;
    if (!syntax) {
        return edits;
    }
    std::vector<bool> isInTable(syntax->size()); // or is one
    for (std::size_t node = 1; node < syntax->size(); ++node) {
        const std::size_t parent = (*syntax)[node].parent;
        const bool isOfSchema = parent == Syntax::root;
        isInTable[node] = isInTable[parent] ||
                          (isOfSchema && (syntax->isNamed(node, "constants") || syntax->isNamed(node, "properties")));
        if ((isOfSchema || isInTable[parent]) && syntax->isNamed(node, "typeid") &&
            syntax->stringOf(node) == oldTypeId) {
            edits.push_back(replacing(*syntax, (*syntax)[node].text, newTypeId));
        }
    }
    return edits;
}

std::vector<Edit> respellingsIn(std::string_view text, std::size_t offset, std::string_view oldName,
                                std::string_view newName) {
    const auto syntax = Syntax::read(text);
    for (std::size_t node = 0; syntax && node < syntax->size(); ++node) {
        if (syntax->offsetOf((*syntax)[node].text) != offset) {
            continue;
        }
        if (syntax->isNamed(node, oldName)) {
            return {replacing(*syntax, (*syntax)[node].name, newName)};
        }
        if (syntax->stringOf(node) == oldName) {
            return {replacing(*syntax, (*syntax)[node].text, newName)};
        }
    }
    return {};
}

} // namespace Tool
