#include "server/SchemaText.h"

namespace Tool::Lsp {

std::string SchemaText::base() const {
    const std::size_t bases = outline_.find(outline_.root(), "inherits");
    return bases == Outline::none || outline_[bases].children.empty()
               ? std::string()
               : outline_.stringOf(outline_[bases].children.front());
}

const Language::Form* SchemaText::form() const { return Language::findFormOfBase(base()); }

std::size_t SchemaText::tableOf(std::size_t node) const {
    while (node != Outline::none && node != outline_.root()) {
        const std::size_t parent = outline_[node].parent;
        const std::string name = parent == outline_.root() ? outline_.nameOf(node) : std::string();
        if (name == "constants" || name == "properties") {
            return node;
        }
        node = parent;
    }
    return Outline::none;
}

std::size_t SchemaText::definitionOf(std::size_t node) const {
    const std::size_t table = tableOf(node);
    if (table == Outline::none || node == table) {
        return Outline::none;
    }
    while (outline_[node].parent != table) {
        node = outline_[node].parent;
    }
    return node;
}

const Language::Definition* SchemaText::meaningOf(std::size_t node) const {
    const std::size_t definition = definitionOf(node);
    const Language::Form* const known = form();
    if (definition == Outline::none || known == nullptr) {
        return nullptr;
    }
    const std::string id = outline_.stringOf(outline_.find(definition, "id"));
    for (const Language::Definition& each : Language::definitionsOf(known, outline_.nameOf(tableOf(node)))) {
        if (each.id == id || each.id.empty()) { // a choice has any
            return &each;
        }
    }
    return nullptr;
}

bool SchemaText::isMention(std::size_t node) const {
    return outline_[node].type == Outline::Type::string && outline_.nameOf(node) == "typeid" &&
           tableOf(node) != Outline::none && definitionOf(node) != node;
}

std::vector<std::size_t> SchemaText::mentionsOf(std::string_view typeId) const {
    std::vector<std::size_t> mentions;
    for (std::size_t node = 0; node < outline_.size(); ++node) {
        if (isMention(node) && outline_.stringOf(node) == typeId) {
            mentions.push_back(node);
        }
    }
    return mentions;
}

std::optional<SchemaText> schemaAt(const File& file, std::size_t offset) {
    for (const Part& part : partsOf(file.name, *file.text)) {
        if (part.begin <= offset && offset <= part.begin + part.text.size()) {
            return SchemaText(part);
        }
    }
    return std::nullopt;
}

} // namespace Tool::Lsp
