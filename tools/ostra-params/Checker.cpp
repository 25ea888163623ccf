#include "Checker.h"

#include "TypeId.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace Tool {

namespace {

void registerWith(Parameters::ParametersEngine& engine, const std::string& text) {
    try {
        engine.registerSchema(text);
    } catch (const Parameters::ValidationException& exception) {
        // What is none of the engine's kinds may be a unit; the units engine knows its own base.
        if (exception.what() != std::string_view("Inheritance from an unrecognized base schema.")) {
            throw;
        }
        engine.getUnitsEngine().registerSchema(text);
    }
}

/// Returns the offset of a parse error, or of the first character of the text for all else.
std::size_t offsetOfFault(const std::string& text, std::string_view message) {
    constexpr std::string_view parseError = "JSON parsing error at offset ";
    std::size_t offset = text.find_first_not_of(" \t\r\n");
    if (message.substr(0, parseError.size()) == parseError) {
        std::from_chars(message.data() + parseError.size(), message.data() + message.size(), offset);
    }
    return std::min(offset, text.size());
}

std::size_t lineAt(const Source& source, std::size_t offset) {
    const auto end = source.text.begin() + static_cast<std::ptrdiff_t>(offset);
    return source.line + static_cast<std::size_t>(std::count(source.text.begin(), end, '\n'));
}

} // namespace

std::optional<Fault> Checker::add(const Source& source) {
    try {
        registerWith(engine_, source.text);
    } catch (const std::logic_error& fault) {
        const std::string message = fault.what();
        return Fault{Place{source.file, lineAt(source, offsetOfFault(source.text, message))}, message};
    }
    const Place place{source.file, lineAt(source, offsetOfFault(source.text, {}))};
    added_.try_emplace(typeIdOf(source.text), Added{place, added_.size()});
    return std::nullopt;
}

std::vector<Fault> Checker::resolve() {
    try {
        std::map<std::size_t, Fault> faults; // by the number of the schema
        for (const auto& [typeId, message] : engine_.findUnresolvable()) {
            const Added& added = added_.at(typeId);
            faults.emplace(added.number, Fault{added.place, message});
            engine_.discardPending(typeId);
        }
        engine_.resolveSchemas();
        std::vector<Fault> inOrder;
        for (auto& [number, fault] : faults) {
            inOrder.push_back(std::move(fault));
        }
        return inOrder;
    } catch (const std::logic_error& fault) { // of the units engine, which may have faults of its own
        return {Fault{std::nullopt, fault.what()}};
    }
}

} // namespace Tool
