#pragma once

#include <span>
#include <string_view>

namespace Tool {

/// What the documents say of a code.
struct Rule {
    std::string_view code;
    std::string_view message; ///< With its insertions in angle brackets.
    std::string_view cause;
    std::string_view repair;
};

/// Returns the rules of the library and the tool, as the build found them in the documents.
std::span<const Rule> rules();

} // namespace Tool
