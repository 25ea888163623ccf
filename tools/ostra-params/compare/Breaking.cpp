#include "compare/Breaking.h"

#include "catalogue/Catalogue.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <unordered_set>
#include <utility>

namespace Tool::Compare {

namespace {

bool isFate(const Atom& atom, Fate fate) { return atom.constant == nullptr && atom.change->fate == fate; }

bool is(const Atom& atom, std::string_view id) { return atom.constant != nullptr && atom.constant->id == id; }

template <class T>
const T* before(const Atom& atom) {
    return std::get_if<T>(atom.element != nullptr ? &atom.element->before : &atom.constant->before);
}

template <class T>
const T* after(const Atom& atom) {
    return std::get_if<T>(atom.element != nullptr ? &atom.element->after : &atom.constant->after);
}

bool isRemoved(const Atom& atom) { return atom.element != nullptr && isNothing(atom.element->after); }
bool isAdded(const Atom& atom) { return atom.element != nullptr && isNothing(atom.element->before); }

bool isOfKind(const Atom& atom, std::string_view id) { return atom.change->object().section->id == id; }

bool isKindAnother(const Change& change) {
    return change.before != nullptr && change.after != nullptr && change.before->section != change.after->section;
}

bool isFollowing(const Atom& atom) {
    const bool isElement = atom.element != nullptr && !isRemoved(atom) && !isAdded(atom);
    return (isElement && before<Reference>(atom) != nullptr) ||
           (atom.constant != nullptr && atom.element == nullptr && atom.constant->isFollowing);
}

/// Of integers, what is not limited is limited by their type.
template <class Number>
Number limitOf(const Value& value, bool isBottom) {
    using Limits = std::numeric_limits<Number>;
    const Number unlimited = Limits::has_infinity ? Limits::infinity() : Limits::max();
    const Number lowest = Limits::has_infinity ? -Limits::infinity() : Limits::lowest();
    const Number* const number = std::get_if<Number>(&value);
    return number != nullptr ? *number : isBottom ? lowest : unlimited;
}

template <class Number>
bool isNarrower(const ConstantChange& limit) {
    const bool isBottom = limit.id == "bottomBoundary";
    const auto old = limitOf<Number>(limit.before, isBottom);
    const auto now = limitOf<Number>(limit.after, isBottom);
    return isBottom ? now > old : now < old;
}

bool isLimit(const Atom& atom) { return is(atom, "bottomBoundary") || is(atom, "topBoundary"); }

bool areTexts(const Atom& atom) { return is(atom, "allowedValues") || is(atom, "regex"); }

/// The library writes an empty expression for a range of any text.
bool allowsAll(const Value& texts) { return isNothing(texts) || texts == Value(std::string()); }

bool isNarrowed(const Atom& atom) {
    if (isLimit(atom)) {
        const bool isInteger = before<std::int64_t>(atom) != nullptr || after<std::int64_t>(atom) != nullptr;
        return isInteger ? isNarrower<std::int64_t>(*atom.constant) : isNarrower<double>(*atom.constant);
    }
    return areTexts(atom) && allowsAll(atom.constant->before) && !allowsAll(atom.constant->after);
}

bool isWidened(const Atom& atom) { return isLimit(atom) || (areTexts(atom) && allowsAll(atom.constant->after)); }

/// A set of texts gave way to a regular expression, or the other way round.
bool areTextsExchanged(const Atom& atom) {
    const auto& constants = atom.change->constants;
    const auto isExchanged = [&](std::string_view id) {
        return std::any_of(constants.begin(), constants.end(), [&](const ConstantChange& each) {
            return each.id == id && isNothing(each.before) != isNothing(each.after);
        });
    };
    return areTexts(atom) && isExchanged("allowedValues") && isExchanged("regex");
}

constexpr std::array rules{
    BreakingRule{"object-removed", Severity::documents, "An object is there no more.",
                 "Documents hold its typeid, and nothing answers to it.",
                 [](const Atom& atom) { return isFate(atom, Fate::removed); }},
    BreakingRule{"object-broken", Severity::documents, "The schema of an object has faults, or what it names has.",
                 "No application can load it, and documents hold its typeid.",
                 [](const Atom& atom) { return isFate(atom, Fate::broken); }},
    BreakingRule{"object-succeeded", Severity::documents, "A greater version of an object took its place.",
                 "Documents hold the typeid with the old version; both can stand side by side.",
                 [](const Atom& atom) { return isFate(atom, Fate::succeeded); }},
    BreakingRule{"object-renamed", Severity::documents, "An object has another typeid, and the same content.",
                 "Documents hold the old typeid, and nothing answers to it.",
                 [](const Atom& atom) { return isFate(atom, Fate::renamed); }},
    BreakingRule{"object-added", Severity::safe, "An object is new.", "Nothing relies on it yet.",
                 [](const Atom& atom) { return isFate(atom, Fate::added); }},
    BreakingRule{"object-mended", Severity::safe, "An object that had faults is sound.",
                 "No application could load it before.", [](const Atom& atom) { return isFate(atom, Fate::mended); }},
    BreakingRule{"kind-changed", Severity::documents, "An object is of another kind.",
                 "Values that documents hold are of another sort.",
                 [](const Atom& atom) { return is(atom, "inherits") && isKindAnother(*atom.change); }},
    BreakingRule{"ranged-changed", Severity::applications, "A reference parameter is ranged, or is so no more.",
                 "Applications treat the values of ranged parameters in another way.",
                 [](const Atom& atom) { return is(atom, "inherits") && isOfKind(atom, "reference-parameter"); }},
    BreakingRule{"base-changed", Severity::safe, "A schema has another base of the same kind.",
                 "What that changes is judged by itself.", [](const Atom& atom) { return is(atom, "inherits"); }},
    BreakingRule{"reference-followed", Severity::safe,
                 "An object is named by the new typeid that it has, or that its successor has.",
                 "What that breaks is told of the object itself.", isFollowing},
    BreakingRule{"spec-changed", Severity::applications, "A parameter has another spec.",
                 "Applications choose editors, units and formats by the spec.",
                 [](const Atom& atom) { return is(atom, "spec"); }},
    BreakingRule{"storage-unit-changed", Severity::documents, "Values are stored in another unit.",
                 "Numbers that documents hold mean other amounts.",
                 [](const Atom& atom) { return is(atom, "storageUnit"); }},
    BreakingRule{"applicable-unit-removed", Severity::applications, "Values may not be shown in a unit any more.",
                 "Views and templates may have chosen it.",
                 [](const Atom& atom) { return is(atom, "applicableUnits") && isRemoved(atom); }},
    BreakingRule{"applicable-unit-added", Severity::safe, "Values may be shown in one more unit.",
                 "Values are stored as before.",
                 [](const Atom& atom) { return is(atom, "applicableUnits") && isAdded(atom); }},
    BreakingRule{"enumeration-changed", Severity::applications, "A parameter has another enumeration.",
                 "Applications know choices by the enumeration that they are of.",
                 [](const Atom& atom) { return is(atom, "value"); }},
    BreakingRule{"choice-removed", Severity::documents, "A choice is there no more.", "Documents hold it as a value.",
                 [](const Atom& atom) { return is(atom, "choices") && isRemoved(atom); }},
    BreakingRule{"choice-integer-changed", Severity::documents, "A choice has another integer.",
                 "The integer that documents hold means something else, or nothing.",
                 [](const Atom& atom) {
                     const Choice* const old = is(atom, "choices") ? before<Choice>(atom) : nullptr;
                     return old != nullptr && after<Choice>(atom) != nullptr && old->id == after<Choice>(atom)->id;
                 }},
    BreakingRule{"choice-renamed", Severity::documents, "A choice has another id, and the same integer.",
                 "Documents and applications that know it by its id find nothing.",
                 [](const Atom& atom) { return is(atom, "choices") && before<Choice>(atom) != nullptr; }},
    BreakingRule{"choice-ambiguous", Severity::review, "A new choice has the integer of another one.",
                 "A value that is held as an integer can mean either.",
                 [](const Atom& atom) { return is(atom, "choices") && isAdded(atom) && atom.element->isAmbiguous; }},
    BreakingRule{"choice-added", Severity::safe, "There is one more choice.",
                 "Values that there are mean what they did.",
                 [](const Atom& atom) { return is(atom, "choices") && isAdded(atom); }},
    BreakingRule{"range-exchanged", Severity::safe, "A parameter names another range, or has its own.",
                 "Its limits and values are judged by themselves.", [](const Atom& atom) { return is(atom, "range"); }},
    BreakingRule{"limit-incomparable", Severity::review, "A limit changed along with the storage unit.",
                 "Numbers in two units cannot be compared.",
                 [](const Atom& atom) { return isLimit(atom) && atom.constant->isInOtherUnit; }},
    BreakingRule{"texts-exchanged", Severity::review,
                 "A regular expression took the place of a set, or a set that of one.",
                 "Only a person can tell whether it allows what was allowed.", areTextsExchanged},
    BreakingRule{"range-narrowed", Severity::documents, "Values that were allowed are not any more.",
                 "Documents may hold such values.", isNarrowed},
    BreakingRule{"range-widened", Severity::safe, "Values are allowed that were not.",
                 "Those that documents hold are allowed as before.", isWidened},
    BreakingRule{"allowed-value-removed", Severity::documents, "A text is allowed no more.",
                 "Documents may hold it as a value.",
                 [](const Atom& atom) { return is(atom, "allowedValues") && isRemoved(atom); }},
    BreakingRule{"allowed-value-added", Severity::safe, "One more text is allowed.",
                 "Those that documents hold are allowed as before.",
                 [](const Atom& atom) { return is(atom, "allowedValues") && isAdded(atom); }},
    BreakingRule{"regex-changed", Severity::review, "Texts must match another regular expression.",
                 "Only a person can tell whether it matches what matched.",
                 [](const Atom& atom) { return is(atom, "regex"); }},
    BreakingRule{"category-widened", Severity::safe, "References are limited to a category no more.",
                 "Those that documents hold are allowed as before.",
                 [](const Atom& atom) { return is(atom, "category") && after<Reference>(atom) == nullptr; }},
    BreakingRule{"category-changed", Severity::documents, "References are limited to another category.",
                 "Documents may hold references to what is of the old one.",
                 [](const Atom& atom) { return is(atom, "category"); }},
    BreakingRule{"parent-changed", Severity::applications,
                 "A category has another parent, has one now, or has none any more.",
                 "Applications find objects of a category through its parent.",
                 [](const Atom& atom) { return is(atom, "parent"); }},
    BreakingRule{"domain-changed", Severity::review, "A category belongs to another domain.",
                 "Applications may offer it elsewhere, or not at all.",
                 [](const Atom& atom) { return is(atom, "domain"); }},
    BreakingRule{"read-only-on", Severity::applications, "People may not change the value of a parameter any more.",
                 "Applications that set it are refused, and so are people who did.",
                 [](const Atom& atom) { return is(atom, "readOnly") && *after<bool>(atom); }},
    BreakingRule{"read-only-off", Severity::safe, "People may change the value of a parameter.",
                 "Values are read as before.", [](const Atom& atom) { return is(atom, "readOnly"); }},
    BreakingRule{"symbol-changed", Severity::review, "A unit has another symbol.",
                 "A corrected symbol is safe, but one of another unit makes another amount of each number shown.",
                 [](const Atom& atom) { return is(atom, "symbol"); }},
    BreakingRule{"name-changed", Severity::safe, "An object has another name.", "It is known by its typeid.",
                 [](const Atom& atom) { return is(atom, "name"); }},
    BreakingRule{"description-changed", Severity::safe, "A description changed.", "It is for people.",
                 [](const Atom& atom) { return is(atom, "description"); }},
    BreakingRule{"sample-text-changed", Severity::safe, "A sample of a value changed.", "It is for people.",
                 [](const Atom& atom) { return is(atom, "sampleText"); }},
    BreakingRule{"group-changed", Severity::safe, "A parameter is listed under another heading.",
                 "It is known by its typeid.", [](const Atom& atom) { return is(atom, "group"); }},
    BreakingRule{"discipline-changed", Severity::safe, "Others are responsible for a spec, or use a category.",
                 "It is known by its typeid.",
                 [](const Atom& atom) {
                     return is(atom, "discipline") || (is(atom, "disciplines") && atom.element != nullptr);
                 }},
    BreakingRule{"order-changed", Severity::safe, "A list has another order.", "What is in it is the same.",
                 [](const Atom& atom) { return atom.constant != nullptr && atom.constant->isReordered; }},
    BreakingRule{"constant-changed", Severity::review, "A constant changed of which no other rule knows.",
                 "Only a person can tell what relies on it.", [](const Atom&) { return true; }},
};

const BreakingRule& ruleFor(const Atom& atom) {
    return *std::find_if(rules.begin(), rules.end(), [&](const BreakingRule& rule) { return rule.applies(atom); });
}

/// Of two sides that both say of texts how they are limited, the new one speaks for both.
bool isSaidByOther(const Atom& atom) { return areTextsExchanged(atom) && isNothing(atom.constant->after); }

std::vector<Atom> atomsOf(const Change& change) {
    if (change.fate != Fate::changed) {
        return {{&change}};
    }
    std::vector<Atom> atoms;
    for (const ConstantChange& constant : change.constants) {
        if (isKindAnother(change) && constant.id != "inherits") {
            continue;
        }
        for (const ElementChange& element : constant.elements) {
            atoms.push_back({&change, &constant, &element});
        }
        const Atom whole{&change, &constant};
        if ((constant.elements.empty() || constant.isReordered) && !isSaidByOther(whole)) {
            atoms.push_back(whole);
        }
    }
    return atoms;
}

Place placeOf(const Atom& atom) {
    const Place& place = atom.element != nullptr    ? atom.element->placeAfter
                         : atom.constant != nullptr ? atom.constant->placeAfter
                                                    : atom.change->placeAfter;
    return place.file == nullptr ? atom.change->placeBefore : place;
}

} // namespace

std::string_view wordOf(Severity severity) {
    switch (severity) {
    case Severity::documents:
        return "breaks documents";
    case Severity::applications:
        return "breaks applications";
    case Severity::review:
        return "review";
    case Severity::safe:
        break;
    }
    return "safe";
}

std::span<const BreakingRule> breakingRules() { return rules; }

std::vector<Verdict> judge(const std::vector<Change>& changes, const Catalogue& before, const Catalogue& after,
                           const Accepted& accepted) {
    std::vector<Verdict> verdicts;
    for (const Change& change : changes) {
        Dependents dependents;
        bool isKnown = false;
        for (const Atom& atom : atomsOf(change)) {
            Verdict verdict{atom, &ruleFor(atom), placeOf(atom)};
            const std::string& typeId = change.object().typeId;
            const std::string& oldTypeId = (change.before != nullptr ? change.before : change.after)->typeId;
            const std::string_view code = verdict.rule->code;
            verdict.isAccepted = accepted.contains(code) || accepted.contains(fmt::format("{}:{}", code, typeId)) ||
                                 accepted.contains(fmt::format("{}:{}", code, oldTypeId));
            if (verdict.rule->severity != Severity::safe) {
                if (!std::exchange(isKnown, true)) {
                    dependents =
                        change.fate == Fate::changed ? dependentsOf(after, typeId) : dependentsOf(before, oldTypeId);
                }
                verdict.dependents = dependents;
            }
            verdicts.push_back(std::move(verdict));
        }
    }
    std::stable_sort(verdicts.begin(), verdicts.end(), [](const Verdict& one, const Verdict& other) {
        return one.rule->severity > other.rule->severity;
    });
    return verdicts;
}

Dependents dependentsOf(const Catalogue& catalogue, const std::string& typeId) {
    constexpr std::size_t mostDirect = 20;
    constexpr std::size_t most = 1000; // as many objects may each have as many
    Dependents dependents;
    std::unordered_set<std::string_view> seen{typeId};
    std::vector<std::string_view> found;
    std::string_view next = typeId;
    for (std::size_t place = 0; place <= found.size() && !dependents.isMore; ++place) {
        for (const Parameters::Identity& each : catalogue.engine().dependentsOf(next)) {
            if (found.size() == most) {
                dependents.isMore = true;
                break;
            }
            if (seen.insert(each.typeId).second) {
                found.push_back(each.typeId);
                if (place == 0 && dependents.direct.size() < mostDirect) {
                    dependents.direct.emplace_back(each.typeId);
                }
            }
        }
        next = place < found.size() ? found[place] : next;
    }
    dependents.total = found.size();
    return dependents;
}

} // namespace Tool::Compare
