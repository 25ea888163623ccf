#include "compare/Writing.h"

#include "language/Language.h"

#include <algorithm>
#include <span>
#include <string>

namespace Tool::Compare {

namespace {

/// Returns a name as a JSON Pointer has it.
std::string escaped(const std::string& name) {
    std::string result;
    for (const char character : name) {
        result += character == '~' ? "~0" : character == '/' ? "~1" : std::string(1, character);
    }
    return result;
}

/// Says that a limit is there, and may be all that is written of it.
std::string_view flagOf(std::string_view limit) {
    return limit == "bottomBoundary" ? "fromBottom" : limit == "topBoundary" ? "fromTop" : "";
}

bool isIn(std::span<const Language::Definition> definitions, std::string_view id) {
    return std::any_of(definitions.begin(), definitions.end(), [id](const auto& each) { return each.id == id; });
}

} // namespace

Writing::Writing(const Source& source)
    : source_(source), syntax_(*Syntax::read(*source.text)), numbers_(syntax_.size()) {
    const std::size_t bases = syntax_.find(Syntax::root, "inherits");
    form_ = Language::findFormOfBase(syntax_.stringOf(syntax_[bases].first).value_or(""));
    typeId_ = syntax_.find(Syntax::root, "typeid");
    for (std::size_t node = 0; node < syntax_.size(); ++node) {
        std::size_t number = 0;
        for (std::size_t child = syntax_[node].first; child != none; child = syntax_[child].next) {
            numbers_[child] = number++;
        }
    }
}

std::string Writing::pointerOf(std::size_t node) const {
    std::string pointer;
    for (; node != Syntax::root; node = syntax_[node].parent) {
        const std::string_view name = syntax_[node].name;
        pointer.insert(0, name.empty() ? std::to_string(numbers_[node]) : escaped(unquoted(name))).insert(0, 1, '/');
    }
    return pointer;
}

/// Returns what a table, "constants" or "properties", has under an id; none when it has nothing.
std::size_t Writing::definition(std::string_view table, std::string_view id) const {
    const std::size_t all = syntax_.find(Syntax::root, table);
    std::size_t each = all == none ? none : syntax_[all].first;
    while (each != none && syntax_.stringOf(syntax_.find(each, "id")) != id) {
        each = syntax_[each].next;
    }
    return each;
}

/// Returns the value of a definition; of "value" and "typedValue" the one that counts when both are there.
std::size_t Writing::valueOf(std::string_view table, std::string_view id) const {
    const std::size_t all = definition(table, id);
    const bool isTypedFirst = id == "spec" || table == "properties";
    const std::size_t first = syntax_.find(all, isTypedFirst ? "typedValue" : "value");
    return first != none ? first : syntax_.find(all, isTypedFirst ? "value" : "typedValue");
}

/// Returns what stands within the range or the spec of a parameter, beside its typeid.
std::size_t Writing::within(std::string_view id) const {
    for (const char* outer : {"range", "spec"}) {
        const std::size_t typed = valueOf("constants", outer);
        for (const char* inner : {"value", "typedValue"}) {
            if (const std::size_t found = syntax_.find(syntax_.find(typed, inner), id); found != none) {
                return found;
            }
        }
    }
    return none;
}

std::size_t Writing::nodeOf(const Constant& constant) const {
    const auto find = [&](std::string_view id) {
        return id.empty()                    ? none
               : isIn(form_->constants, id)  ? valueOf("constants", id)
               : isIn(form_->properties, id) ? valueOf("properties", id)
                                             : within(id);
    };
    if (constant.id == "inherits") {
        return syntax_[syntax_.find(Syntax::root, "inherits")].first;
    }
    if (constant.from.empty() && constant.id == "choices") {
        return syntax_.find(Syntax::root, "properties");
    }
    const std::size_t node = find(constant.from.empty() ? constant.id : constant.from);
    return node != none || !constant.from.empty() ? node : find(flagOf(constant.id));
}

Place Writing::ofElement(const Constant& list, std::size_t number) {
    const std::size_t node = nodeOf(list);
    if (!list.from.empty() || node == none) {
        return placeOf(node);
    }
    if (node != list_) {
        list_ = node;
        elements_ = syntax_.childrenOf(node);
    }
    return placeOf(elements_[number]);
}

Place Writing::ofChoice(const Constant& list, const std::string& id) {
    if (!list.from.empty()) {
        return of(list);
    }
    if (choices_.empty()) {
        for (const std::size_t each : syntax_.childrenOf(syntax_.find(Syntax::root, "properties"))) {
            choices_.emplace(syntax_.stringOf(syntax_.find(each, "id")).value_or(""), each);
        }
    }
    return placeOf(choices_.at(id));
}

Place Writing::placeOf(std::size_t node) {
    const Syntax::Node& found = syntax_[node == none ? typeId_ : node];
    const std::size_t begin = syntax_.offsetOf(found.text);
    Place place = positions_.placeOf(source_, begin, begin + found.text.size());
    place.pointer = pointerOf(node == none ? typeId_ : node);
    return place;
}

} // namespace Tool::Compare
