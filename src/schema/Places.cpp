#include "schema/Places.h"

#include <algorithm>
#include <array>
#include <vector>

namespace Ostra {

namespace {

/// Members that every definition or typed value has: they tell nothing of what they belong to.
bool isStructure(std::string_view member) {
    constexpr std::array<std::string_view, 7> names{"typeid", "inherits", "constants", "properties",
                                                    "id",     "value",    "typedValue"};
    return std::find(names.begin(), names.end(), member) != names.end();
}

bool isTable(std::string_view member) { return member == "constants" || member == "properties"; }

/// Walks through a text, which is known to be JSON, and the values that were made of it side by side.
class Walk {
public:
    Walk(std::string_view text, Places& places) : text_(text), places_(places) {}

    void through(const JSONValue& root) {
        enter(root);
        while (!open_.empty()) {
            Container& container = open_.back();
            if (container.next == container.value->next()) {
                leave();
                continue;
            }
            if (container.value->isObject()) {
                skipString();
                container.name = container.next->string();
                container.next = container.next->next();
            }
            const JSONValue& value = *container.next;
            container.next = value.next();
            ++container.passed;
            enter(value);
        }
    }

private:
    struct Container {
        const JSONValue* value;
        const JSONValue* next;   // behind the one that is walked through
        Spot* spot;              // to be closed, if it is wanted
        std::size_t passed = 0;  // elements or members, with the one that is walked through
        std::string_view name{}; // of that, in an object
    };

    void enter(const JSONValue& value) {
        skipBetween();
        Spot* const spot = begin(value);
        if (value.isContainer()) {
            ++offset_;
            open_.push_back({&value, value.first(), spot});
            return;
        }
        if (value.isString()) {
            skipString();
        } else {
            offset_ = std::min(text_.find_first_of(",]} \t\n\r", offset_), text_.size());
        }
        end(spot);
    }

    void leave() {
        skipBetween();
        ++offset_;
        end(open_.back().spot);
        open_.pop_back();
    }

    Spot* begin(const JSONValue& value) {
        const auto wanted = places_.find(&value);
        if (wanted == places_.end()) {
            return nullptr;
        }
        Spot& spot = wanted->second;
        spot.begin = offset_;
        for (const Container& container : open_) {
            describeStep(container, spot);
        }
        return &spot;
    }

    void describeStep(const Container& container, Spot& spot) {
        spot.pointer += '/';
        if (container.value->isArray()) {
            spot.pointer += std::to_string(container.passed - 1);
            return;
        }
        for (const char character : container.name) {
            if (character == '~' || character == '/') {
                spot.pointer += character == '~' ? "~0" : "~1";
            } else {
                spot.pointer += character;
            }
        }
        if (&container == open_.data() && isTable(container.name) && open_.size() > 2) {
            labelByDefinition(*open_[2].value, spot);
        } else if (!isStructure(container.name)) {
            spot.label = container.name;
        }
    }

    /// Takes the id of a definition for the label of what lies in it.
    void labelByDefinition(const JSONValue& definition, Spot& spot) {
        if (&definition != definition_) { // its members are not searched for each value in it
            definition_ = &definition;
            id_ = nullptr;
            if (const JSONValue* const id = definition.find("id"); id != nullptr && id->isString()) {
                id_ = id;
            }
        }
        if (id_ != nullptr) {
            spot.label = id_->string();
        }
    }

    void end(Spot* spot) const {
        if (spot != nullptr) {
            spot->end = offset_;
        }
    }

    void skipBetween() { offset_ = std::min(text_.find_first_not_of(" \t\n\r,:", offset_), text_.size()); }

    void skipString() {
        skipBetween();
        ++offset_;
        while (text_[offset_] != '"') {
            offset_ += text_[offset_] == '\\' ? 2 : 1;
        }
        ++offset_;
    }

    std::string_view text_;
    Places& places_;
    std::size_t offset_ = 0;
    std::vector<Container> open_;
    const JSONValue* definition_ = nullptr; // the last one that gave a label
    const JSONValue* id_ = nullptr;         // of that, where it has one
};

} // namespace

void locate(std::string_view text, const JSONValue& root, Places& places) { Walk(text, places).through(root); }

} // namespace Ostra
