#pragma once

#include "compare/Comparison.h"

#include <cstddef>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tool::Compare {

/// Whom a change breaks.
enum class Severity {
    safe,         ///< Nobody.
    review,       ///< Perhaps somebody, which only a person can tell.
    applications, ///< Programs that rely on what the catalogue said.
    documents     ///< Documents, which hold typeids, values and choices for good.
};

constexpr bool isBreaking(Severity severity) { return severity >= Severity::applications; }

/// Returns what a severity is called in words and in data: "breaks documents" and the like.
std::string_view wordOf(Severity severity);

/// One thing that changed, in its smallest part: an object, a constant of it, an element of a list.
struct Atom {
    const Change* change;
    const ConstantChange* constant = nullptr; ///< nullptr for what concerns the object as a whole.
    const ElementChange* element = nullptr;   ///< nullptr for what concerns the constant as a whole.
};

/// What is to be thought of changes of one sort. docs/breaking-changes.md lists all rules.
struct BreakingRule {
    std::string_view code; ///< Stays the same for good.
    Severity severity;
    std::string_view what; ///< In a sentence.
    std::string_view why;  ///< In a sentence.
    bool (*applies)(const Atom&);
};

/// Returns all rules. The first that applies to an atom counts.
std::span<const BreakingRule> breakingRules();

/// What names an object, itself or through others.
struct Dependents {
    std::vector<std::string_view> direct; ///< The first of them, by kind and typeid.
    std::size_t total = 0;                ///< How many there are, direct and indirect ones, up to a limit.
    bool isMore = false;                  ///< There are more than that.
};

/// The rule that applies to an atom.
struct Verdict {
    Atom atom;
    const BreakingRule* rule;
    /// Where the change is seen: on the new side or, of what is gone from there, where it was.
    Place place;
    Dependents dependents = {}; ///< Of the object, where the verdict is not that the change is safe.
    bool isAccepted = false;

    bool isBreaking() const { return Compare::isBreaking(rule->severity) && !isAccepted; }
};

/// What may break: codes, or codes of one object alone, as "code:typeid".
using Accepted = std::set<std::string, std::less<>>;

/// Judges changes, which must outlive the result as the catalogues must: first what breaks documents, then what breaks
/// applications, what is to be reviewed, and what is safe; each in the order of the changes.
///
/// Where the kind of an object changed, nothing else is judged: it is another thing now. Nor are the constants of
/// objects that were succeeded or renamed, as no document holds values under the new typeid.
std::vector<Verdict> judge(const std::vector<Change>& changes, const Catalogue& before, const Catalogue& after,
                           const Accepted& accepted = {});

/// Returns what depends on an object.
Dependents dependentsOf(const Catalogue& catalogue, const std::string& typeId);

} // namespace Tool::Compare
