#pragma once

#include <string>

namespace Tool {

/// What a schema text says of itself.
struct Heading {
    std::string typeId;
    std::string base;
};

/// Returns the heading of a schema text; what the text does not say is empty.
Heading headingOf(const std::string& schemaText);

} // namespace Tool
