#include "faults/Hints.h"

#include "catalogue/Sections.h"
#include "output/Text.h"

#include <fmt/format.h>

#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Tool {

namespace {

using Parameters::Fault;

/// What names something that is not there. Its name is that of the missing.
constexpr std::string_view missing = " dependency-missing unit-missing parent-not-major ";

/// Messages that say what is expected, but not where.
constexpr std::string_view nameless =
    " string-expected non-empty-string-expected boolean-expected integer-expected number-expected array-expected "
    "array-of-strings-expected array-of-unique-strings-expected array-of-typed-values-expected "
    "definition-value-missing typed-value-object-expected typed-value-typeid-only typed-value-typeid-missing "
    "typed-value-typeid-empty ";

bool isOneOf(std::string_view code, std::string_view codes) {
    return codes.find(fmt::format(" {} ", code)) != std::string_view::npos;
}

/// A question that offers the known names that may be meant by one; certain when there is one alone.
Hint offer(std::string_view misspelt, const std::vector<std::string_view>& near) {
    Hint hint{near.empty() ? std::string() : didYouMean(near)};
    if (near.size() == 1) {
        hint.misspelt = misspelt;
        hint.meant = near.front();
    }
    return hint;
}

/// Offers a known name: one nearly the same or, of a name without a version, the same with one.
Hint meant(std::string_view name, const std::vector<std::string_view>& known) {
    const std::vector<std::string_view> near = nearest(name, known);
    if (!near.empty()) {
        return offer(name, near);
    }
    std::set<std::string_view> versions;
    std::string_view first;
    for (const std::string_view each : known) {
        if (each.size() > name.size() && each[name.size()] == '-' && each.starts_with(name)) {
            first = versions.empty() ? each : first;
            versions.insert(each);
        }
    }
    Hint hint = versions.empty() ? Hint() : offer(name, {first});
    return versions.size() > 1 ? Hint{hint.text} : hint;
}

Hint forMisspelt(const Fault& fault) {
    if (!fault.isError()) {
        return offer(fault.name(), {fault.nearestName()});
    }
    // What is not defined may be so in an array that is misspelt itself.
    Hint hint = offer(fault.nearestName(),
                      nearest(fault.nearestName(), {fault.name(), "typedValue", "constants", "properties"}));
    const std::string question = hint.text.empty() ? fmt::format("did you mean {}?", fault.name()) : hint.text;
    hint.text = fmt::format("there is {}: {}", fault.nearestName(), question);
    return hint;
}

/// Says what may help to mend each fault.
class Hints {
public:
    Hints(const Input& input, const Headings& headings, const std::vector<Fault>& faults)
        : input_(input), headings_(headings) {
        std::unordered_set<std::string_view> faulty;
        for (const Fault& fault : faults) {
            if (isOneOf(fault.code(), missing)) {
                faulty.insert(fault.typeId());
            }
            if (fault.code() == "property-unknown") {
                properties_.insert(fault.place().text + fault.name());
            }
        }
        for (const Fault& fault : faults) {
            if (isOneOf(fault.code(), missing) && faulty.contains(fault.name())) {
                naming_.emplace(fault.typeId(), &fault);
            }
        }
    }

    Hint hintFor(const Fault& fault) {
        const std::size_t number = Input::numberOf(fault.place().text);
        const std::string& text = *input_.sources()[number].text;
        if (fault.code() == "json-syntax") {
            return {std::string(slipAt(text, fault.place().begin).hint)};
        }
        if (!fault.nearestName().empty()) {
            return forMisspelt(fault);
        }
        if (fault.code() == "constant-undefined" && properties_.contains(fault.place().text + fault.name())) {
            return {fmt::format("{} stands among the properties.", fault.name())};
        }
        if (fault.code() == "typeid-missing") {
            return {text[text.find_first_not_of(blanks)] == '[' ? "a text is one schema, no list of them."
                    : headings_.of(number).base.empty()         ? "this is no schema; it need not be here."
                                                                : ""};
        }
        if (fault.code() == "base-unrecognized") {
            return forBase(headings_.of(number).base);
        }
        if (fault.code() == "typeid-taken") {
            return {fault.otherPlace()
                        ? fmt::format("it is that of {}.", placeOf(Input::numberOf(fault.otherPlace()->text)))
                        : "it contains a built-in identifier."};
        }
        if (isOneOf(fault.code(), missing)) {
            return forMissing(fault);
        }
        if (isOneOf(fault.code(), nameless) && !fault.name().empty()) {
            return {fmt::format("this is about {}.", fault.name())};
        }
        return {};
    }

private:
    Hint forBase(const std::string& base) const {
        if (headings_.find(base)) {
            return {"only built-in bases can be inherited, and this is another schema."};
        }
        std::vector<std::string_view> bases;
        for (const Section& section : sections()) {
            bases.insert(bases.end(), section.bases.begin(), section.bases.end());
        }
        return meant(base, bases);
    }

    Hint forMissing(const Fault& fault) {
        if (std::string circle = circleOf(fault); !circle.empty()) {
            return {circle};
        }
        const auto number = fault.otherPlace() ? std::optional(Input::numberOf(fault.otherPlace()->text))
                                               : headings_.find(fault.name());
        const bool isFaulty = number && (fault.root() || !headings_.isSound(*number));
        if (isFaulty) { // perhaps too faulty for the library
            return {fmt::format("it is in {}, and faulty.", placeOf(*number))};
        }
        const Section* expected = findSection(&Section::label, fault.expectedKind());
        const Section* actual = sectionOfBase(fault.otherPlace() ? headings_.of(*number).base : fault.name());
        if (expected == nullptr) {
            return {};
        }
        if (actual == nullptr || actual == expected) {
            return fault.otherPlace() ? Hint() : similarTo(fault.name(), *expected);
        }
        return {fault.otherPlace() ? fmt::format("{} is of the kind {}, and the kind {} is expected.", placeOf(*number),
                                                 actual->label, expected->label)
                                   : fmt::format("this is the base of the kind {}, and the kind {} is expected.",
                                                 actual->label, expected->label)};
    }

    std::string circleOf(const Fault& fault) const {
        constexpr std::size_t longest = 10;
        if (fault.name() == fault.typeId()) {
            return "the schema names itself.";
        }
        std::string circle = fault.typeId();
        const Fault* next = &fault;
        for (std::size_t i = 0; i < longest; ++i) {
            circle += ", " + next->name();
            const auto found = naming_.find(next->name());
            if (found == naming_.end()) {
                return {};
            }
            next = found->second;
            if (next->name() == fault.typeId()) {
                return "they name each other in a circle: " + circle + ".";
            }
        }
        return {};
    }

    Hint similarTo(const std::string& typeId, const Section& section) {
        constexpr std::size_t mostSearches = 200; // each goes through all typeids of a section
        const auto [similar, isNew] = similar_.try_emplace({&section, typeId});
        if (!isNew || similar_.size() > mostSearches) {
            return similar->second;
        }
        std::vector<std::string_view>& typeIds = typeIds_[&section];
        if (typeIds.empty()) {
            for (const Heading& heading : headings_.all()) {
                if (sectionOfBase(heading.base) == &section) {
                    typeIds.emplace_back(heading.typeId);
                }
            }
        }
        return similar->second = meant(typeId, typeIds);
    }

    std::string placeOf(std::size_t number) const { return toString(beginningOf(input_.sources()[number])); }

    const Input& input_;
    const Headings& headings_;
    std::unordered_map<std::string, const Fault*> naming_; // what names a faulty schema, by its typeid
    std::unordered_set<std::string> properties_;           // which nothing reads, behind the keys of their texts
    std::map<const Section*, std::vector<std::string_view>> typeIds_; // of each section that was asked for
    std::map<std::pair<const Section*, std::string>, Hint> similar_;  // what was found, as many may miss the same
};

} // namespace

std::vector<Hint> hintsFor(const Input& input, const Headings& headings, const std::vector<Fault>& faults) {
    Hints hints(input, headings, faults);
    std::vector<Hint> all;
    all.reserve(faults.size());
    for (const Fault& fault : faults) {
        all.push_back(hints.hintFor(fault));
    }
    return all;
}

} // namespace Tool
