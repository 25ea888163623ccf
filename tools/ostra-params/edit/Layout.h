#pragma once

#include "edit/ReadingOrder.h"

#include <optional>
#include <string>
#include <string_view>

namespace Tool {

class Syntax;

/// Lays schemas out in the one way in which a catalogue is kept. Nothing is lost but the order of members and of
/// definitions, and blanks: names, numbers and strings are as they were written, what is repeated stays in its order.
class Layout {
public:
    /// Returns a text as a file of its own has it, with a line for each part that is not short.
    /// Nothing is returned when it is no JSON.
    std::optional<std::string> ofFile(std::string_view text);

    /// Returns a text as one line of a file, without blanks. Nothing is returned when it is no JSON.
    std::optional<std::string> ofLine(std::string_view text);

private:
    void order(Syntax& syntax);
    void orderSchema(Syntax& syntax, std::size_t schema);
    void orderDefinitions(Syntax& syntax, std::size_t table, std::string_view base);
    void orderTypedValue(Syntax& syntax, std::size_t typedValue);

    ReadingOrder readingOrder_;
};

} // namespace Tool
