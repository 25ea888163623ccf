#pragma once

#include <string>

namespace Support {

/// A row of a table of refused texts.
struct Fault {
    const char* name;
    std::string text;
    std::string message;
};

} // namespace Support
