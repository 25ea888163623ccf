#pragma once

#include "faults/Finding.h"

#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tool {

class Loader;

/// What the documents say of a code.
struct Rule {
    std::string_view code;
    std::string_view message; ///< With its insertions in angle brackets.
    std::string_view cause;
    std::string_view repair;
};

/// Returns the rules of the library and the tool, as the build found them in the documents.
std::span<const Rule> rules();

/// Something that is allowed and may yet be a mistake.
struct Lint {
    std::string_view code;
    bool isDefault; ///< Whether it is looked for unless something else is asked for.
};

/// Returns all that can be looked for.
std::span<const Lint> lints();

/// Returns where the sound objects of a catalogue have what the codes stand for, in the order of reading. Regular
/// expressions of more than 2000 bytes are passed over.
std::vector<Finding> lint(Loader& catalogue, const std::set<std::string, std::less<>>& codes);

} // namespace Tool
