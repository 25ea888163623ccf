#include "faults/ReadingOrder.h"

#include "catalogue/Registration.h"

#include <initializer_list>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace Tool {

namespace {

using Definition = Outline::Node;

std::string messageFor(const std::string& text) {
    try {
        Parameters::ParametersEngine engine;
        registerWith(engine, text);
        return {};
    } catch (const std::logic_error& fault) {
        return fault.what();
    }
}

/// Two ways to spoil a definition; the library refuses either where it is read, with messages that differ.
enum class Spoiling { withoutValue, withNull };

struct Spoilt {
    const Definition* definition;
    Spoiling how;
};

class Trial {
public:
    Trial(const Outline& outline, const std::string& text) : outline_(outline), text_(text) {}

    /// Returns what the library says when definitions are spoilt, which must be in the order of the text.
    std::string messageWith(std::initializer_list<Spoilt> spoilt) const {
        std::string trial;
        std::size_t copied = 0;
        for (const auto& [definition, how] : spoilt) {
            const Outline::Node& id = *outline_.member(definition, "id");
            trial.append(text_, copied, definition->begin - copied);
            trial.append(R"({"id":)").append(text_, id.begin, id.end - id.begin);
            trial += how == Spoiling::withoutValue ? "}" : R"(,"value":null})";
            copied = definition->end;
        }
        return messageFor(trial.append(text_, copied));
    }

private:
    const Outline& outline_;
    const std::string& text_;
};

} // namespace

const Outline::Node* lastDefinitionRead(const Outline& outline, const std::string& text, const std::string& message) {
    const Trial trial(outline, text);
    const Definition* last = nullptr;
    for (const char* array : {"constants", "properties"}) {
        for (const Definition* next : outline.children(outline.member(&outline.root(), array))) {
            const std::string refusal = trial.messageWith({{next, Spoiling::withoutValue}});
            if (refusal == message) {
                continue; // not reached
            }
            // Of two that are reached, the one read first is the one that is refused.
            if (last == nullptr ||
                trial.messageWith({{last, Spoiling::withNull}, {next, Spoiling::withoutValue}}) != refusal) {
                last = next;
            }
        }
    }
    return last;
}

} // namespace Tool
