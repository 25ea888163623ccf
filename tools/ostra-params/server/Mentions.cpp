#include "server/Mentions.h"

namespace Tool::Lsp {

namespace {

Mention mentionOf(const File& file, const SchemaText& schema, std::size_t node) {
    const Outline::Node& place = schema[node];
    return {file, schema.outline().stringOf(node), schema.begin() + place.begin, schema.begin() + place.end,
            node == schema.typeIdNode()};
}

/// Returns whether the typeid may be in a text, be it with escapes.
bool mayHave(std::string_view text, const std::string& typeId) {
    return text.find(typeId) != std::string_view::npos || text.find('\\') != std::string_view::npos;
}

} // namespace

std::optional<Mention> mentionAt(const File& file, std::size_t offset) {
    const std::optional<SchemaText> schema = schemaAt(file, offset);
    const std::size_t node = schema ? schema->outline().leafAt(offset - schema->begin()) : Outline::none;
    if (node == Outline::none || offset - schema->begin() < (*schema)[node].begin) { // in the name
        return std::nullopt;
    }
    const bool isTypeId =
        (*schema)[node].type == Outline::Type::string && (node == schema->typeIdNode() || schema->isMention(node));
    return isTypeId ? std::optional(mentionOf(file, *schema, node)) : std::nullopt;
}

std::vector<Mention> mentionsOf(const Knowledge& knowledge, const std::string& typeId) {
    std::vector<Mention> mentions;
    for (const File& file : knowledge.files()) {
        if (!mayHave(*file.text, typeId)) {
            continue;
        }
        for (const Part& part : partsOf(file.name, *file.text)) {
            if (!mayHave(part.text, typeId)) {
                continue;
            }
            const SchemaText schema(part);
            if (schema.typeId() == typeId) {
                mentions.push_back(mentionOf(file, schema, schema.typeIdNode()));
            }
            for (const std::size_t node : schema.mentionsOf(typeId)) {
                mentions.push_back(mentionOf(file, schema, node));
            }
        }
    }
    return mentions;
}

} // namespace Tool::Lsp
