#include "catalogue/Sections.h"
#include "edit/Syntax.h"
#include "language/Values.h"
#include "output/Text.h"
#include "server/Features.h"
#include "server/SchemaText.h"

#include <parameters/Kinds.h>

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <span>

namespace Tool::Lsp {

namespace {

/// What the protocol calls what it completes.
enum ItemKind { ModuleItem = 9, PropertyItem = 10, ValueItem = 12, ReferenceItem = 18, ConstantItem = 21 };

/// Returns a text as a snippet has it, in which some characters mean something else.
std::string plain(const std::string& text) {
    std::string result;
    for (const char byte : text) {
        result += byte == '$' || byte == '}' || byte == '\\' ? std::string("\\") + byte : std::string(1, byte);
    }
    return result;
}

/// Returns the JSON of a value as a snippet; what is to be filled in becomes a place for the cursor.
std::string snippetOf(const Json& json) {
    const std::string text = plain(json.dump(-1, ' ', false, Json::error_handler_t::replace));
    std::string snippet;
    int stop = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = text.substr(i, 2) == "\"<" ? text.find(">\"", i) : std::string_view::npos;
        if (end != std::string_view::npos) {
            snippet += fmt::format("\"${{{}:{}}}\"", ++stop, text.substr(i + 2, end - i - 2));
            i = end + 1;
        } else {
            snippet += text[i];
        }
    }
    return snippet;
}

/// Offers what may stand at a place in a schema.
class Completer {
public:
    Completer(Session& session, const File& file, const SchemaText& schema, std::size_t offset)
        : session_(session), lines_(*file.text, session.encoding), schema_(schema), outline_(schema.outline()),
          offset_(offset - schema.begin()) {
        const std::size_t leaf = outline_.leafAt(offset_);
        const std::size_t container = outline_.containerAt(offset_);
        begin_ = end_ = offset_;
        container_ = container;
        if (leaf == Outline::none) {
            isName_ = container != Outline::none && schema[container].type == Outline::Type::object && !isBehindColon();
            member_ = container != Outline::none && isBehindColon() ? lastMember(container) : Outline::none;
            return;
        }
        const Outline::Node& node = schema[leaf];
        isName_ = node.hasName() && offset_ <= node.nameEnd;
        container_ = node.parent;
        member_ = leaf;
        begin_ = isName_ ? node.nameBegin : node.begin;
        end_ = isName_ ? node.nameEnd : node.end;
        if (!isClosed()) { // what is behind the cursor may be anything
            end_ = offset_;
        }
        typed_ = lower(schema.text().substr(begin_, offset_ - begin_));
        typed_.erase(0, typed_.starts_with('"') ? 1 : 0);
    }

    Json complete() {
        if (container_ == Outline::none) {
            if (outline_.root() == Outline::none) {
                offerSchemas();
            }
        } else if (schema_[container_].type == Outline::Type::object) {
            isName_ ? offerNames() : offerValues();
        } else {
            offerElements();
        }
        return {{"isIncomplete", isCut_}, {"items", std::move(items_)}};
    }

private:
    bool isBehindColon() const {
        const std::size_t last =
            offset_ == 0 ? std::string_view::npos : schema_.text().find_last_not_of(blanks, offset_ - 1);
        return last != std::string_view::npos && schema_.text()[last] == ':';
    }
    bool isClosed() const {
        const std::string_view token = schema_.text().substr(begin_, end_ - begin_);
        return token.empty() || token.front() != '"' || (token.size() > 1 && token.back() == '"' && offset_ < end_);
    }
    std::size_t lastMember(std::size_t object) const {
        std::size_t last = Outline::none;
        for (const std::size_t member : schema_[object].children) {
            last = schema_[member].nameBegin < offset_ ? member : last;
        }
        return last;
    }
    std::string nameOf(std::size_t node) const { return node == Outline::none ? std::string() : outline_.nameOf(node); }
    std::size_t parentOf(std::size_t node) const {
        return node == Outline::none ? Outline::none : schema_[node].parent;
    }

    /// Adds an item that replaces what is typed; more of it is what the client shows besides.
    void add(const std::string& label, int kind, const std::string& text, std::string_view detail,
             const Json& more = Json::object(), const std::string& snippet = {}) {
        constexpr std::size_t most = 500;
        const std::string searched = lower(label + " " + std::string(detail));
        if (!typed_.empty() && searched.find(typed_) == std::string::npos) {
            return;
        }
        isCut_ = isCut_ || items_.size() >= most;
        if (items_.size() >= most) {
            return;
        }
        const bool isSnippet =
            !snippet.empty() && session_.can("/textDocument/completion/completionItem/snippetSupport");
        Json item{{"label", label},
                  {"kind", kind},
                  {"detail", detail},
                  // Clients compare this with all that is replaced, quotation marks too.
                  {"filterText", "\"" + label + " " + std::string(detail)},
                  {"sortText", fmt::format("{:04}", items_.size())},
                  {"insertTextFormat", isSnippet ? 2 : 1},
                  {"textEdit",
                   {{"range", rangeOf(lines_, schema_.begin() + begin_, schema_.begin() + end_)},
                    {"newText", isSnippet ? snippet : text}}}};
        item.update(more);
        items_.push_back(std::move(item));
    }

    void offerSchemas() {
        for (const Language::Form& form : Language::forms()) {
            const Json schema = Language::schemaOf(form, "<typeid>", [](const Language::Definition& definition) {
                return definition.isRequired ? std::optional(Language::placeholderOf(definition)) : std::nullopt;
            });
            add(std::string(form.label), ModuleItem, schema.dump(2), form.meaning, Json::object(), snippetOf(schema));
        }
    }

    /// Offers the names of members that are not there yet.
    void offerNames() {
        if (container_ == outline_.root()) {
            offerName("typeid", "\"\"", "The identifier of the schema and of its object.", "\"$1\"");
            offerName("inherits", "[]", "The base, which decides the kind.", "[$1]");
            offerName("constants", "[]", "The settings of the kind.", "[$1]");
            offerName("properties", "[]", "The choices of an enumeration, and the enumeration of its parameter.",
                      "[$1]");
            return;
        }
        const std::size_t definition = schema_.definitionOf(container_);
        const Language::Definition* const meaning = schema_.meaningOf(container_);
        if (definition == container_) {
            offerName("id", "\"\"", "Which constant or property this is.", "\"$1\"");
            const bool isTyped = meaning != nullptr && Language::isTyped(meaning->type);
            const Json placeholder = meaning == nullptr ? Json("") : Language::placeholderOf(*meaning);
            if (meaning == nullptr || !isTyped) {
                offerName("value", placeholder.dump(), "What it says.", snippetOf(placeholder));
            }
            if (meaning == nullptr || isTyped) {
                offerName("typedValue", isTyped ? placeholder.dump() : R"({"typeid": ""})", "Which object it names.",
                          isTyped ? snippetOf(placeholder) : R"({"typeid": "$1"})");
            }
        } else if (const Language::Form* const range = formOfRange()) {
            for (const Language::Definition& each : range->constants) {
                const Json placeholder = Language::placeholderOf(each);
                offerName(std::string(each.id), placeholder.dump(), each.meaning, snippetOf(placeholder));
            }
        } else if (definition != Outline::none) {
            offerName("typeid", "\"\"", "The typeid of the object.", "\"$1\"");
            if (meaning != nullptr && meaning->type == Language::Type::range) {
                offerName("value", "{}", "The limits of a range of its own.", "{$1}");
            }
        }
    }

    void offerName(const std::string& name, const std::string& text, std::string_view meaning,
                   const std::string& snippet) {
        const std::size_t there = outline_.find(container_, name);
        if (there != Outline::none && there != member_) {
            return;
        }
        const bool isReplaced =
            member_ != Outline::none && schema_[member_].type != Outline::Type::nothing; // which has a value
        const std::string head = Tool::quoted(name);
        add(name, PropertyItem, isReplaced ? head : head + ": " + text, meaning, Json::object(),
            isReplaced ? "" : plain(head) + ": " + snippet);
    }

    /// Returns the form of a range of a parameter's own, the limits of which are in the container; nullptr if it is
    /// none.
    const Language::Form* formOfRange() const {
        const std::size_t typedValue = parentOf(container_);
        const bool isLimits = nameOf(container_) == "value" && nameOf(typedValue) == "typedValue";
        return isLimits ? Language::findFormOfBase(outline_.stringOf(outline_.find(typedValue, "typeid"))) : nullptr;
    }

    void offerValues() {
        const std::string name = nameOf(member_);
        const std::size_t definition = schema_.definitionOf(container_);
        if (container_ == outline_.root()) {
            if (name == "inherits") {
                offerBases(true);
            }
        } else if (definition == container_ && name == "id") {
            offerIds();
        } else if (definition != Outline::none && definition != container_ && name == "typeid") {
            offerTypeIds();
        } else if (const Language::Definition* const known = definitionOfValue()) {
            if (known->type == Language::Type::boolean) {
                add("true", ValueItem, "true", known->meaning, {{"filterText", "true"}});
                add("false", ValueItem, "false", known->meaning, {{"filterText", "false"}});
            }
        }
    }

    /// Returns what the language says of the value at the cursor; nullptr when it is none that it knows.
    const Language::Definition* definitionOfValue() const {
        if (const Language::Form* const range = formOfRange()) {
            const auto found =
                std::find_if(range->constants.begin(), range->constants.end(),
                             [&](const Language::Definition& each) { return each.id == nameOf(member_); });
            return found == range->constants.end() ? nullptr : &*found;
        }
        return nameOf(member_) == "value" && schema_.definitionOf(container_) == container_
                   ? schema_.meaningOf(container_)
                   : nullptr;
    }

    void offerElements() {
        if (container_ == schema_.tableOf(container_)) {
            offerDefinitions();
        } else if (nameOf(container_) == "inherits" && parentOf(container_) == outline_.root()) {
            offerBases(false);
        } else if (const Language::Definition* const known = schema_.meaningOf(container_);
                   known != nullptr && known->type == Language::Type::references) {
            begin_ == end_ ? offerTypeIds(true) : void();
        }
    }

    void offerBases(bool isWithBrackets) {
        for (const Language::Form& form : Language::forms()) {
            const std::string base = Tool::quoted(form.base);
            add(std::string(form.base), ModuleItem, isWithBrackets ? "[" + base + "]" : base, form.label,
                {{"documentation", form.meaning}});
        }
    }

    /// Returns the definitions of the table around the container that are not there yet.
    std::vector<const Language::Definition*> missing() const {
        const std::size_t table = schema_.tableOf(container_);
        const Language::Form* const form = schema_.form();
        std::set<std::string> there;
        for (const std::size_t definition : schema_[table].children) {
            if (definition != container_) {
                there.insert(outline_.stringOf(outline_.find(definition, "id")));
            }
        }
        std::vector<const Language::Definition*> definitions;
        for (const Language::Definition& each : Language::definitionsOf(form, nameOf(table))) {
            if (!there.contains(std::string(each.id))) {
                definitions.push_back(&each);
            }
        }
        return definitions;
    }

    void offerIds() {
        for (const Language::Definition* each : missing()) {
            if (!each->id.empty()) {
                add(std::string(each->id), ConstantItem, Tool::quoted(each->id), each->meaning,
                    {{"preselect", each->isRequired}});
            }
        }
    }

    void offerDefinitions() {
        for (const Language::Definition* each : missing()) {
            const Json definition = Language::withValue(*each, Language::placeholderOf(*each));
            const std::string label = each->id.empty() ? "choice" : std::string(each->id);
            add(label, ConstantItem, definition.dump(), each->meaning,
                {{"filterText", label}, {"preselect", each->isRequired}}, snippetOf(definition));
        }
    }

    /// Offers the objects of the kind that is expected, as such or each in an object that names it.
    void offerTypeIds(bool isWithBraces = false) {
        const Language::Definition* const known = schema_.meaningOf(container_);
        const auto textOf = [&](std::string_view typeId) {
            return isWithBraces ? "{\"typeid\": " + Tool::quoted(typeId) + "}" : Tool::quoted(typeId);
        };
        const Section* const expected = known == nullptr ? nullptr : findSection(&Section::id, known->named);
        if (expected != nullptr && known->type != Language::Type::references) {
            const auto kind = Parameters::findKindOfId(known->named);
            for (const std::string_view base : expected->bases) {
                const bool isOffered = kind && (kind->isRange() || !kind->builtInName().empty());
                if (isOffered) {
                    add(std::string(base), ReferenceItem, textOf(base),
                        kind->isRange() ? "a range of its own" : kind->builtInName());
                }
            }
        }
        const Catalogue& catalogue = session_.latest().catalogue();
        for (const Object& object : catalogue.objects()) {
            if (expected == nullptr || object.section == expected) {
                add(object.typeId, ReferenceItem, textOf(object.typeId), object.name,
                    expected == nullptr ? Json{{"documentation", object.section->label}} : Json::object());
            }
        }
    }

    Session& session_;
    Lines lines_;
    const SchemaText& schema_;
    const Outline& outline_;
    std::size_t offset_;
    std::size_t container_ = Outline::none;
    std::size_t member_ = Outline::none; ///< Or element, in which the cursor is or to which its value belongs.
    std::size_t begin_ = 0;              ///< Of what is replaced.
    std::size_t end_ = 0;
    bool isName_ = false;
    std::string typed_; ///< Before the cursor, in small letters.
    Json items_ = Json::array();
    bool isCut_ = false;
};

} // namespace

Json completion(Session& session, const Json& params) {
    const auto [file, offset] = session.placeIn(params);
    const SchemaText schema = schemaAt(file, offset).value_or(SchemaText({offset, {}}));
    return Completer(session, file, schema, offset).complete();
}

} // namespace Tool::Lsp
