#include "edit/Layout.h"

#include "edit/Syntax.h"
#include "language/Language.h"
#include "output/Text.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <span>
#include <vector>

namespace Tool::Layout {

namespace {

constexpr std::size_t none = Syntax::none;
constexpr std::array<std::string_view, 4> schemaMembers{"typeid", "inherits", "constants", "properties"};
constexpr std::array<std::string_view, 3> definitionMembers{"id", "value", "typedValue"};
constexpr std::array<std::string_view, 3> typedValueMembers{"typeid", "value", "typedValue"};

/// Sorts what a container holds by the rank of each; those of one rank stay in their order.
void sortBy(Syntax& syntax, std::size_t node, const std::vector<std::size_t>& children,
            const std::vector<std::size_t>& ranks) {
    std::vector<std::size_t> order(children.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return ranks[a] < ranks[b]; });
    std::transform(order.begin(), order.end(), order.begin(), [&](std::size_t i) { return children[i]; });
    syntax.reorder(node, order);
}

/// Puts members with names that are known first, in the order of these.
void sortMembers(Syntax& syntax, std::size_t object, std::span<const std::string_view> known) {
    const std::vector<std::size_t> members = syntax.childrenOf(object);
    std::vector<std::size_t> ranks;
    for (const std::size_t member : members) {
        const auto isIt = [&](std::string_view name) { return syntax.isNamed(member, name); };
        ranks.push_back(static_cast<std::size_t>(std::find_if(known.begin(), known.end(), isIt) - known.begin()));
    }
    sortBy(syntax, object, members, ranks);
}

/// Returns the text of a string; "" where there is none.
std::string_view stringAt(const Syntax& syntax, std::size_t node) {
    return node != none && syntax[node].type == Syntax::Type::string ? syntax[node].text : R"("")";
}

/// Writes a syntax tree; without recursion, as it may be nested without limit.
class Writer {
public:
    Writer(const Syntax& syntax, bool isLine) : syntax_(syntax), isLine_(isLine), measures_(syntax.size()) {
        if (!isLine) {
            measure();
            measures_[Syntax::root].isBroken = isBreakable(Syntax::root);
            for (std::size_t node = 1; node < syntax.size(); ++node) { // after those that hold it
                breakUp(node);
            }
        }
    }

    std::string text() && {
        for (std::size_t node = Syntax::root; node != none;) {
            text_ += syntax_[node].name;
            text_ += syntax_[node].name.empty() ? "" : isLine_ ? ":" : ": ";
            if (isFilled(node)) {
                text_ += syntax_[node].text.front();
                separate(node, syntax_[node].type == Syntax::Type::object);
                node = syntax_[node].first;
                continue;
            }
            text_ += syntax_[node].isContainer() ? emptyOf(node) : syntax_[node].text;
            while (node != none && syntax_[node].next == none) {
                node = syntax_[node].parent;
                close(node);
            }
            if (node != none) {
                text_ += ',';
                separate(syntax_[node].parent, true);
                node = syntax_[node].next;
            }
        }
        return isLine_ ? std::move(text_) : std::move(text_) + "\n";
    }

private:
    static constexpr std::size_t lineWidth = 100;
    static constexpr std::size_t indentation = 2;
    static constexpr std::size_t deepest = 32;   // what is below is one line, or the blanks would be more than the rest
    static constexpr std::size_t mostLevels = 3; // in one line

    struct Measure {
        std::size_t width = 0; // in one line
        std::size_t height = 0;
        std::size_t depth = 0;
        bool isBroken = false;
    };

    bool isFilled(std::size_t node) const { return syntax_[node].first != none; }
    bool isBreakable(std::size_t node) const { return isFilled(node) && measures_[node].depth < deepest; }
    std::string_view emptyOf(std::size_t node) const {
        return syntax_[node].type == Syntax::Type::object ? "{}" : "[]";
    }

    /// Whether a container has a line for each part even if it is short: a schema, and a list of definitions.
    bool isAlwaysBroken(std::size_t node) const {
        const std::size_t parent = syntax_[node].parent;
        const bool isOfList = parent == Syntax::root && syntax_[parent].type == Syntax::Type::array;
        const bool isTable = syntax_.isNamed(node, "constants") || syntax_.isNamed(node, "properties");
        const bool isInSchema = parent == Syntax::root || syntax_[parent].parent == Syntax::root;
        return (isOfList && syntax_[node].type == Syntax::Type::object) ||
               (isTable && isInSchema && syntax_[syntax_[node].first].isContainer());
    }

    void measure() {
        for (std::size_t node = syntax_.size(); node-- > 0;) { // after what it holds
            Measure& own = measures_[node];
            const bool isObject = syntax_[node].type == Syntax::Type::object;
            own.width += !syntax_[node].isContainer() ? widthOf(syntax_[node].text)
                         : isFilled(node)             ? (isObject ? 2U : 0U) // blanks within; brackets and commas below
                                                      : 2U;
            own.height += syntax_[node].isContainer() ? 1 : 0;
            if (node != Syntax::root) {
                const std::string_view name = syntax_[node].name;
                Measure& outer = measures_[syntax_[node].parent];
                outer.width += own.width + (name.empty() ? 0 : widthOf(name) + 2) + 2; // of each a ", ", or brackets
                outer.height = std::max(outer.height, own.height);
            }
        }
    }

    void breakUp(std::size_t node) {
        const Measure& outer = measures_[syntax_[node].parent];
        Measure& own = measures_[node];
        own.depth = outer.depth + 1;
        const std::string_view name = syntax_[node].name;
        const std::size_t before = own.depth * indentation + (name.empty() ? 0 : widthOf(name) + 2);
        const std::size_t comma = syntax_[node].next == none ? 0 : 1;
        const bool isLong = before + own.width + comma > lineWidth || own.height > mostLevels;
        own.isBroken = outer.isBroken && isBreakable(node) && (isLong || isAlwaysBroken(node));
    }

    /// Writes what stands between a container's bracket or comma and what follows.
    void separate(std::size_t container, bool hasBlank) {
        if (measures_[container].isBroken) {
            startLine(measures_[container].depth + 1);
        } else if (hasBlank && !isLine_) {
            text_ += ' ';
        }
    }
    void startLine(std::size_t depth) { text_.append("\n").append(depth * indentation, ' '); }

    void close(std::size_t container) {
        if (container == none) {
            return;
        }
        if (measures_[container].isBroken) {
            startLine(measures_[container].depth);
        } else if (!isLine_ && syntax_[container].type == Syntax::Type::object) {
            text_ += ' ';
        }
        text_ += syntax_[container].text.back();
    }

    const Syntax& syntax_;
    bool isLine_;
    std::vector<Measure> measures_;
    std::string text_;
};

/// Puts definitions, or the members of a range within a parameter, in the order in which the library reads them.
void sortDefinitions(Syntax& syntax, std::size_t container, std::span<const Language::Definition> known,
                     const std::vector<std::string_view>& ids) {
    std::vector<std::size_t> ranks;
    for (const std::string_view id : ids) {
        const auto isIt = [name = unquoted(id)](const Language::Definition& definition) {
            return !name.empty() && definition.id == name; // choices have none of their own, and stay in their order
        };
        ranks.push_back(static_cast<std::size_t>(std::find_if(known.begin(), known.end(), isIt) - known.begin()));
    }
    sortBy(syntax, container, syntax.childrenOf(container), ranks);
}

void orderTypedValue(Syntax& syntax, std::size_t typedValue) {
    const bool isList = syntax[typedValue].type == Syntax::Type::array;
    for (const std::size_t each : isList ? syntax.childrenOf(typedValue) : std::vector{typedValue}) {
        const std::size_t typeId = syntax.find(each, "typeid");
        if (typeId == none) {
            continue;
        }
        sortMembers(syntax, each, typedValueMembers);
        const std::size_t value = syntax.find(each, "value"); // of a range within a parameter
        const Language::Form* const form = Language::findFormOfBase(unquoted(stringAt(syntax, typeId)));
        if (value == none || syntax[value].type != Syntax::Type::object || form == nullptr) {
            continue;
        }
        std::vector<std::string_view> names;
        for (const std::size_t member : syntax.childrenOf(value)) {
            names.push_back(syntax[member].name);
        }
        sortDefinitions(syntax, value, form->constants, names);
    }
}

void orderDefinitions(Syntax& syntax, std::size_t table, std::span<const Language::Definition> known) {
    std::vector<std::string_view> ids;
    for (const std::size_t definition : syntax.childrenOf(table)) {
        const bool isObject = syntax[definition].type == Syntax::Type::object;
        if (isObject) {
            sortMembers(syntax, definition, definitionMembers);
        }
        for (const std::size_t member : isObject ? syntax.childrenOf(definition) : std::vector<std::size_t>()) {
            if (syntax.isNamed(member, "value") || syntax.isNamed(member, "typedValue")) {
                orderTypedValue(syntax, member);
            }
        }
        ids.push_back(stringAt(syntax, syntax.find(definition, "id")));
    }
    sortDefinitions(syntax, table, known, ids);
}

void orderSchema(Syntax& syntax, std::size_t schema) {
    sortMembers(syntax, schema, schemaMembers);
    const std::size_t inherits = syntax.find(schema, "inherits");
    const std::string_view base = stringAt(syntax, inherits == none ? none : syntax[inherits].first);
    const Language::Form* const form = Language::findFormOfBase(unquoted(base));
    for (const std::size_t member : syntax.childrenOf(schema)) {
        for (const std::string_view table : {"constants", "properties"}) {
            if (syntax.isNamed(member, table) && syntax[member].type == Syntax::Type::array) {
                orderDefinitions(syntax, member, Language::definitionsOf(form, table));
            }
        }
    }
}

/// Orders the schema, or those of a list.
void order(Syntax& syntax) {
    if (syntax[Syntax::root].type == Syntax::Type::object) {
        orderSchema(syntax, Syntax::root);
    }
    for (const std::size_t element : syntax.childrenOf(Syntax::root)) {
        if (syntax[Syntax::root].type == Syntax::Type::array && syntax[element].type == Syntax::Type::object) {
            orderSchema(syntax, element);
        }
    }
}

std::optional<std::string> laidOut(std::string_view text, bool isLine) {
    std::optional<Syntax> syntax = Syntax::read(text);
    if (!syntax) {
        return std::nullopt;
    }
    order(*syntax);
    return Writer(*syntax, isLine).text();
}

} // namespace

std::optional<std::string> ofFile(std::string_view text) { return laidOut(text, false); }

std::string ofJson(const Json& json) {
    const std::string text = toText(json);
    return Writer(Syntax::read(text).value(), false).text();
}

std::optional<std::string> ofLine(std::string_view text) { return laidOut(text, true); }

} // namespace Tool::Layout
