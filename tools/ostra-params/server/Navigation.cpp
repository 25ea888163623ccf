#include "catalogue/Sections.h"
#include "catalogue/Sheet.h"
#include "output/Text.h"
#include "server/Features.h"
#include "server/Mentions.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>

namespace Tool::Lsp {

namespace {

/// What the protocol calls the things that there are in programs; these come nearest.
enum SymbolKind {
    ClassSymbol = 5,
    PropertySymbol = 7,
    EnumSymbol = 10,
    ConstantSymbol = 14,
    ObjectSymbol = 19,
    StructSymbol = 23
};

SymbolKind symbolKindOf(const Section* section) {
    if (section == nullptr) {
        return ObjectSymbol;
    }
    return section->isParameter           ? ConstantSymbol
           : section->id == "enumeration" ? EnumSymbol
           : section->id == "unit"        ? StructSymbol
                                          : ClassSymbol;
}

/// Returns what a built-in object or a base is; "" when it is neither.
std::string builtIn(const std::string& typeId) {
    std::string text;
    Parameters::forEachKind([&](auto kind) {
        constexpr auto info = kind.info;
        for (const std::string_view base : info.bases()) {
            if (typeId.find(Language::prefixOf(base)) != std::string::npos &&
                (!info.builtInName().empty() || info.isRange())) {
                text = info.isRange() ? fmt::format("a {} of its own", info.word())
                                      : fmt::format("{}\n{}  {}  (built in)", info.builtInName(), info.word(), typeId);
            }
        }
    });
    return text;
}

std::string sheetOf(const Knowledge& knowledge, const std::string& typeId) {
    if (const Object* const found = knowledge.catalogue().find(typeId)) {
        return Tool::sheetOf(knowledge.catalogue(), *found);
    }
    return builtIn(typeId);
}

Json markdown(const std::string& text, const Lines& lines, std::size_t begin, std::size_t end) {
    return {{"contents", {{"kind", "markdown"}, {"value", text}}}, {"range", rangeOf(lines, begin, end)}};
}

/// Returns what the language says of what stands at a node: a definition, or a base.
std::string meaningAt(const SchemaText& schema, std::size_t node) {
    const Outline& outline = schema.outline();
    const std::size_t parent = schema[node].parent;
    if (parent != Outline::none && schema[parent].parent == outline.root() && outline.nameOf(parent) == "inherits") {
        const Language::Form* const form = Language::findFormOfBase(outline.stringOf(node));
        return form == nullptr ? std::string() : fmt::format("**{}**\n\n{}", form->label, form->meaning);
    }
    const bool isId = outline.nameOf(node) == "id" && schema[node].type == Outline::Type::string;
    if (const Language::Definition* const definition = isId ? schema.meaningOf(node) : nullptr) {
        return fmt::format("**{}**{}\n\n{}",
                           definition->id.empty() ? outline.stringOf(node) : std::string(definition->id),
                           definition->isRequired ? " (required)" : "", definition->meaning);
    }
    return {};
}

std::vector<Json> symbolsIn(const SchemaText& schema, const Lines& lines) {
    const Outline& outline = schema.outline();
    const auto rangeOfNode = [&](std::size_t node) {
        const Outline::Node& place = schema[node];
        return rangeOf(lines, schema.begin() + (place.hasName() ? place.nameBegin : place.begin),
                       schema.begin() + place.end);
    };
    const auto symbol = [&](const std::string& name, int kind, std::size_t node, std::size_t nameNode) {
        return Json{{"name", name.empty() ? "?" : name},
                    {"kind", kind},
                    {"range", rangeOfNode(node)},
                    {"selectionRange", rangeOfNode(nameNode)}};
    };
    const std::size_t root = outline.root();
    if (root == Outline::none || schema[root].type != Outline::Type::object || schema.typeIdNode() == Outline::none) {
        return {};
    }
    const Language::Form* const form = schema.form();
    Json all =
        symbol(schema.typeId(), symbolKindOf(form == nullptr ? nullptr : form->section), root, schema.typeIdNode());
    all["detail"] = form == nullptr ? "" : form->label;
    all["children"] = Json::array();
    for (const char* table : {"constants", "properties"}) {
        const std::size_t definitions = outline.find(root, table);
        for (const std::size_t definition :
             definitions == Outline::none ? std::vector<std::size_t>() : schema[definitions].children) {
            if (const std::size_t id = outline.find(definition, "id"); id != Outline::none) {
                all["children"].push_back(symbol(outline.stringOf(id), PropertySymbol, definition, id));
            }
        }
    }
    return {all};
}

/// Returns whether all characters of a query are in a text, in this order; case does not matter.
bool fits(const std::string& text, const std::string& query) {
    std::size_t found = 0;
    for (const char character : text) {
        found += found < query.size() && query[found] == character ? 1 : 0;
    }
    return found == query.size();
}

} // namespace

Json hover(Session& session, const Json& params) {
    const auto [file, offset] = session.placeIn(params);
    const Lines lines(*file.text, session.encoding);
    if (const std::optional<Mention> mention = mentionAt(file, offset)) {
        const std::string sheet = sheetOf(session.current(), mention->typeId);
        return sheet.empty() ? Json()
                             : markdown("```text\n" + sheet + (sheet.back() == '\n' ? "```" : "\n```"), lines,
                                        mention->begin, mention->end);
    }
    const std::optional<SchemaText> schema = schemaAt(file, offset);
    const std::size_t node = schema ? schema->outline().leafAt(offset - schema->begin()) : Outline::none;
    const std::string meaning = node == Outline::none ? std::string() : meaningAt(*schema, node);
    return meaning.empty() ? Json()
                           : markdown(meaning, lines, schema->begin() + (*schema)[node].begin,
                                      schema->begin() + (*schema)[node].end);
}

Json definition(Session& session, const Json& params) {
    const auto [file, offset] = session.placeIn(params);
    const std::optional<Mention> mention = mentionAt(file, offset);
    Locations at(session.encoding);
    Json locations = Json::array();
    for (const Mention& each : mention ? mentionsOf(session.current(), mention->typeId) : std::vector<Mention>()) {
        if (each.isOwn) {
            locations.push_back(at.of(each.file, each.begin, each.end));
        }
    }
    return locations;
}

Json references(Session& session, const Json& params) {
    const auto [file, offset] = session.placeIn(params);
    const std::optional<Mention> mention = mentionAt(file, offset);
    const bool isWithOwn = params.contains("context") && params.at("context").value("includeDeclaration", false);
    Locations at(session.encoding);
    Json locations = Json::array();
    for (const Mention& each : mention ? mentionsOf(session.current(), mention->typeId) : std::vector<Mention>()) {
        if (!each.isOwn || isWithOwn) {
            locations.push_back(at.of(each.file, each.begin, each.end));
        }
    }
    return locations;
}

Json documentSymbol(Session& session, const Json& params) {
    const File file = session.fileIn(params);
    const Lines lines(*file.text, session.encoding);
    Json symbols = Json::array();
    for (const Part& part : partsOf(file.name, *file.text)) {
        for (Json& symbol : symbolsIn(SchemaText(part), lines)) {
            symbols.push_back(std::move(symbol));
        }
    }
    return symbols;
}

Json workspaceSymbol(Session& session, const Json& params) {
    constexpr std::size_t most = 500;
    const std::string query = lower(params.at("query").get<std::string>());
    const Knowledge& knowledge = session.current();
    Locations at(session.encoding);
    Json symbols = Json::array();
    for (const Object& each : knowledge.catalogue().objects()) {
        if (symbols.size() == most) {
            break;
        }
        if (!fits(lower(each.name + " " + each.typeId), query)) {
            continue;
        }
        const Source& source = knowledge.catalogue().sourceOf(each);
        const File* const file = knowledge.find(*source.file);
        // If its file is half typed, it may have moved: its line is near.
        std::size_t begin = 0;
        for (std::size_t line = 1; line < source.line && begin < file->text->size(); ++line) {
            begin = std::min(file->text->find('\n', begin), file->text->size() - 1) + 1;
        }
        symbols.push_back({{"name", each.typeId},
                           {"kind", symbolKindOf(each.section)},
                           {"containerName", each.name},
                           {"location", at.of(*file, begin, begin)}});
    }
    return symbols;
}

} // namespace Tool::Lsp
