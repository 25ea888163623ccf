#pragma once

#include <ostream>
#include <string>

namespace Support {

/// A row of a table of refused texts.
struct Fault {
    const char* name;
    std::string text;
    std::string message;

    friend void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.name; }
};

} // namespace Support
