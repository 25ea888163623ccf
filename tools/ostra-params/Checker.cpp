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
    places_.try_emplace(typeIdOf(source.text), Place{source.file, lineAt(source, offsetOfFault(source.text, {}))});
    return std::nullopt;
}

std::optional<Fault> Checker::resolve() {
    try {
        engine_.resolveSchemas();
    } catch (const std::logic_error& fault) {
        return Fault{placeNamedIn(fault.what()), fault.what()};
    }
    return std::nullopt;
}

std::optional<Place> Checker::placeNamedIn(const std::string& message) const {
    // Typeids may contain blanks and one another: the longest one that fits is the one that is meant.
    const std::pair<const std::string, Place>* named = nullptr;
    for (const auto& entry : places_) {
        const bool isLonger = named == nullptr || entry.first.size() > named->first.size();
        if (isLonger && message.find("chema " + entry.first + " ") != std::string::npos) {
            named = &entry;
        }
    }
    return named != nullptr ? std::optional(named->second) : std::nullopt;
}

} // namespace Tool
