#include "compare/Comparison.h"

#include "catalogue/Catalogue.h"
#include "compare/Writing.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Tool::Compare {

namespace {

using Content = std::vector<Constant>;
using Objects = std::vector<const Object*>;

/// What objects are called now, by what they were called before.
using NewNames = std::unordered_map<std::string_view, std::string_view>;

bool isFollowed(const NewNames& names, const Reference& before, const Reference& after) {
    const auto found = names.find(before.typeId);
    return found != names.end() && found->second == after.typeId;
}

/// A typeid that ends in a hyphen and three numbers.
struct Version {
    std::string_view stem;
    std::array<std::uint64_t, 3> numbers;
};

std::optional<Version> versionOf(std::string_view typeId) {
    const std::size_t hyphen = typeId.find_last_not_of("0123456789.");
    if (hyphen == std::string_view::npos || typeId[hyphen] != '-') {
        return std::nullopt;
    }
    Version version{typeId.substr(0, hyphen), {}};
    const char* next = typeId.data() + hyphen;
    const char* const end = typeId.data() + typeId.size();
    for (std::uint64_t& number : version.numbers) {
        const bool isApart = next != end && (*next == '-' || *next == '.');
        const auto [behind, error] = std::from_chars(isApart ? next + 1 : end, end, number);
        if (error != std::errc()) {
            return std::nullopt;
        }
        next = behind;
    }
    return next == end ? std::optional(version) : std::nullopt;
}

/// Writes a value so that different ones differ.
struct Fingerprint {
    const NewNames& names;
    std::string text = {};

    void operator()(std::monostate) {}
    void operator()(bool value) { text += value ? '1' : '0'; }
    void operator()(std::int64_t value) { text += std::to_string(value); }
    void operator()(double value) { text += fmt::format("{}", value == 0 ? 0 : value); } // without the sign of -0
    void operator()(const std::string& value) { text += std::to_string(value.size()) + ':' + value; }
    void operator()(const Reference& value) {
        const auto found = names.find(value.typeId);
        (*this)(found == names.end() ? value.typeId : std::string(found->second));
    }
    void operator()(const Choice& value) {
        (*this)(value.id);
        (*this)(value.integer);
        text += ',';
    }
    template <class Element>
    void operator()(const std::vector<Element>& list) {
        std::for_each(list.begin(), list.end(), [this](const Element& each) { (*this)(each); });
    }
};

/// Returns what objects that were renamed have in common: all but the typeid.
std::string fingerprintOf(const Catalogue& catalogue, const Object& object, const NewNames& names) {
    Fingerprint print{names};
    for (const Constant& constant : contentOf(catalogue, object)) {
        if (constant.from.empty()) {
            print.text += std::to_string(constant.value.index()) + '=';
            std::visit(print, constant.value);
            print.text += ';';
        }
    }
    return std::move(print.text);
}

/// Finds what elements of lists became.
class Elements {
public:
    Elements(const NewNames& names, ConstantChange& change) : names_(names), change_(change) {}

    void operator()(const Texts& before, const Texts& after) { compareLists(before, after); }
    void operator()(const References& before, const References& after) { compareLists(before, after); }
    void operator()(const Choices& before, const Choices& after);
    void operator()(const auto&, const auto&) {}

private:
    static const std::string& keyOf(const std::string& text) { return text; }
    static const std::string& keyOf(const Reference& reference) { return reference.typeId; }
    static const std::string& keyOf(const Choice& choice) { return choice.id; }

    /// Returns what an element is called now.
    std::string_view nowOf(const std::string& text) const { return text; }
    std::string_view nowOf(const Choice& choice) const { return choice.id; }
    std::string_view nowOf(const Reference& reference) const {
        const auto found = names_.find(reference.typeId);
        return found == names_.end() ? std::string_view(reference.typeId) : found->second;
    }

    template <class List>
    void compareLists(const List& before, const List& after);
    template <class List>
    void findReordering(const List& before, const List& after);
    void add(const Value& before, const Value& after) { change_.elements.push_back({before, after}); }

    const NewNames& names_;
    ConstantChange& change_;
};

template <class List>
void Elements::compareLists(const List& before, const List& after) {
    std::unordered_map<std::string_view, const typename List::value_type*> now;
    for (const auto& each : after) {
        now.emplace(keyOf(each), &each);
    }
    std::unordered_set<std::string_view> known;
    for (const auto& each : before) {
        const auto same = now.find(keyOf(each));
        const auto found = same == now.end() ? now.find(nowOf(each)) : same;
        if (found == now.end()) {
            add(each, {});
        } else {
            known.insert(found->first);
            if (!(*found->second == each)) {
                add(each, *found->second);
            }
        }
    }
    for (const auto& each : after) {
        if (!known.contains(keyOf(each))) {
            add({}, each);
        }
    }
    findReordering(before, after);
}

template <class List>
void Elements::findReordering(const List& before, const List& after) {
    std::unordered_set<std::string_view> now;
    for (const auto& each : after) {
        now.insert(keyOf(each));
    }
    std::vector<std::string_view> common;
    for (const auto& each : before) {
        const std::string_view key = now.contains(keyOf(each)) ? std::string_view(keyOf(each)) : nowOf(each);
        if (now.contains(key)) {
            common.push_back(key);
        }
    }
    const std::unordered_set<std::string_view> kept(common.begin(), common.end());
    std::vector<std::string_view> commonNow;
    for (const auto& each : after) {
        if (kept.contains(keyOf(each))) {
            commonNow.emplace_back(keyOf(each));
        }
    }
    change_.isReordered = common != commonNow;
}

/// A choice that was removed and one that was added are one when they alone have its integer.
void Elements::operator()(const Choices& before, const Choices& after) {
    compareLists(before, after);
    change_.isReordered = false; // which choices of texts have none of
    std::map<std::int64_t, std::pair<std::deque<ElementChange*>, std::deque<ElementChange*>>> byInteger;
    for (ElementChange& element : change_.elements) {
        if (isNothing(element.after)) {
            byInteger[std::get<Choice>(element.before).integer].first.push_back(&element);
        } else if (isNothing(element.before)) {
            byInteger[std::get<Choice>(element.after).integer].second.push_back(&element);
        }
    }
    for (const auto& [integer, elements] : byInteger) {
        const auto& [removed, added] = elements;
        if (removed.size() == 1 && added.size() == 1) {
            removed.front()->after = std::exchange(added.front()->after, {});
        }
    }
    std::erase_if(change_.elements,
                  [](const ElementChange& each) { return isNothing(each.before) && isNothing(each.after); });
    std::map<std::int64_t, std::size_t> uses;
    for (const Choice& each : after) {
        ++uses[each.integer];
    }
    for (ElementChange& element : change_.elements) {
        const Choice* const now = std::get_if<Choice>(&element.after);
        element.isAmbiguous = now != nullptr && uses[now->integer] > 1;
    }
}

/// Returns the places of a list's elements, by their keys.
class ListPlaces {
public:
    ListPlaces(Writing& writing, const Constant& list) : writing_(writing), list_(list) {
        const auto number = [&](const auto& elements, const auto& keyOf) {
            for (std::size_t place = 0; place < elements.size(); ++place) {
                numbers_.emplace(keyOf(elements[place]), place);
            }
        };
        if (const auto* texts = std::get_if<Texts>(&list.value)) {
            number(*texts, [](const std::string& each) { return std::string_view(each); });
        } else if (const auto* references = std::get_if<References>(&list.value)) {
            number(*references, [](const Reference& each) { return std::string_view(each.typeId); });
        }
    }

    Place of(const Value& element) {
        if (const auto* choice = std::get_if<Choice>(&element)) {
            return writing_.ofChoice(list_, choice->id);
        }
        const auto* text = std::get_if<std::string>(&element);
        const auto* reference = std::get_if<Reference>(&element);
        return text != nullptr        ? writing_.ofElement(list_, numbers_.at(*text))
               : reference != nullptr ? writing_.ofElement(list_, numbers_.at(reference->typeId))
                                      : writing_.of(list_);
    }

private:
    Writing& writing_;
    const Constant& list_;
    std::unordered_map<std::string_view, std::size_t> numbers_;
};

/// Compares two catalogues.
class Comparer {
public:
    Comparer(const Catalogue& before, const Catalogue& after) : before_(before), after_(after) {}

    std::vector<Change> changes() {
        findByTypeId();
        findSuccessors();
        findRenamed();
        for (const Object* object : gone_) {
            add(Fate::removed, object, nullptr);
        }
        for (const Object* object : come_) {
            add(Fate::added, nullptr, object);
        }
        for (Change& change : changes_) { // now that all names are known
            if (change.fate == Fate::succeeded) {
                compareContents(change);
            }
        }
        for (const auto& [before, after] : same_) {
            addIfChanged(*before, *after);
        }
        // Those of one fate lie all in one catalogue, in its order.
        std::sort(changes_.begin(), changes_.end(), [](const Change& one, const Change& other) {
            return one.fate != other.fate ? one.fate < other.fate : std::less<>()(&one.object(), &other.object());
        });
        return std::move(changes_);
    }

private:
    void findByTypeId();
    void findSuccessors();
    void findRenamed();
    bool findRenamedOnce();
    void pair(Fate fate, const Object& before, const Object& after);
    void forgetPaired();
    void add(Fate fate, const Object* before, const Object* after, Place placeBefore = {}, Place placeAfter = {});
    void addIfChanged(const Object& before, const Object& after);
    void compareContents(Change& change);

    const Catalogue& before_;
    const Catalogue& after_;
    Objects gone_;
    Objects come_;
    std::vector<std::pair<const Object*, const Object*>> same_;
    NewNames names_;
    std::unordered_set<const Object*> paired_;
    std::vector<Change> changes_;
};

/// Returns the place of an object's typeid.
Place placeOf(const Catalogue& catalogue, const Object* object) {
    return object == nullptr ? Place() : Writing(catalogue.sourceOf(*object)).ofTypeId();
}

/// Returns where the faulty text of a typeid begins; nothing when there is none.
std::optional<Place> faultyPlaceOf(const Catalogue& catalogue, const std::string& typeId) {
    const auto number = catalogue.headings().find(typeId);
    return number ? std::optional(beginningOf(catalogue.source(*number))) : std::nullopt;
}

void Comparer::findByTypeId() {
    for (const Object& object : before_.objects()) {
        if (after_.find(object.typeId) == nullptr) {
            if (const auto place = faultyPlaceOf(after_, object.typeId)) {
                add(Fate::broken, &object, nullptr, {}, *place);
            } else {
                gone_.push_back(&object);
            }
        }
    }
    for (const Object& object : after_.objects()) {
        if (const Object* old = before_.find(object.typeId)) {
            same_.emplace_back(old, &object);
        } else if (const auto place = faultyPlaceOf(before_, object.typeId)) {
            add(Fate::mended, nullptr, &object, *place);
        } else {
            come_.push_back(&object);
        }
    }
}

void Comparer::pair(Fate fate, const Object& before, const Object& after) {
    names_.emplace(before.typeId, after.typeId);
    paired_.insert({&before, &after});
    add(fate, &before, &after);
}

void Comparer::forgetPaired() {
    for (Objects* objects : {&gone_, &come_}) {
        std::erase_if(*objects, [&](const Object* object) { return paired_.contains(object); });
    }
}

/// Pairs the greatest version that is gone with the greatest that came, if that is greater, and so on.
void Comparer::findSuccessors() {
    using Versions = std::map<std::array<std::uint64_t, 3>, const Object*>;
    std::map<std::string_view, std::pair<Versions, Versions>> stems;
    for (const Object* object : gone_) {
        if (const auto version = versionOf(object->typeId)) {
            stems[version->stem].first.emplace(version->numbers, object);
        }
    }
    for (const Object* object : come_) {
        if (const auto version = versionOf(object->typeId); version && stems.contains(version->stem)) {
            stems[version->stem].second.emplace(version->numbers, object);
        }
    }
    std::unordered_map<const Object*, const Object*> oldOf;
    for (const auto& [stem, versions] : stems) {
        const auto& [gone, come] = versions;
        auto next = come.rbegin();
        for (auto old = gone.rbegin(); old != gone.rend() && next != come.rend(); ++old) {
            if (old->first < next->first) {
                oldOf.emplace(next->second, old->second);
                ++next;
            }
        }
    }
    for (const Object* object : come_) {
        if (const auto old = oldOf.find(object); old != oldOf.end()) {
            pair(Fate::succeeded, *old->second, *object);
        }
    }
    forgetPaired();
}

/// What was renamed may be named by what was renamed, which is seen when that is known.
void Comparer::findRenamed() {
    while (!gone_.empty() && !come_.empty() && findRenamedOnce()) {
    }
}

bool Comparer::findRenamedOnce() {
    std::map<std::string, std::deque<const Object*>> gone;
    for (const Object* object : gone_) {
        gone[fingerprintOf(before_, *object, names_)].push_back(object);
    }
    std::vector<std::pair<const Object*, const Object*>> found;
    const NewNames asTheyAre;
    for (const Object* object : come_) {
        const auto old = gone.find(fingerprintOf(after_, *object, asTheyAre));
        if (old != gone.end() && !old->second.empty()) {
            found.emplace_back(old->second.front(), object);
            old->second.pop_front();
        }
    }
    for (const auto& [before, after] : found) {
        pair(Fate::renamed, *before, *after);
    }
    forgetPaired();
    return !found.empty();
}

void Comparer::add(Fate fate, const Object* before, const Object* after, Place placeBefore, Place placeAfter) {
    changes_.push_back({fate, before, after, std::move(placeBefore), std::move(placeAfter)});
    Change& change = changes_.back();
    if (before != nullptr) {
        change.placeBefore = placeOf(before_, before);
    }
    if (after != nullptr) {
        change.placeAfter = placeOf(after_, after);
    }
}

void Comparer::addIfChanged(const Object& before, const Object& after) {
    if (*before_.sourceOf(before).text == *after_.sourceOf(after).text) {
        return; // which is what most objects are
    }
    Change change{Fate::changed, &before, &after};
    compareContents(change);
    if (!change.constants.empty()) {
        changes_.push_back(std::move(change));
    }
}

bool sayTheSame(const Content& before, const Content& after, std::string_view id) {
    const Constant* const old = find(before, id);
    const Constant* const now = find(after, id);
    return old != nullptr && now != nullptr && old->value == now->value;
}

bool isLimit(std::string_view id) { return id == "bottomBoundary" || id == "topBoundary"; }

void Comparer::compareContents(Change& change) {
    const Content before = contentOf(before_, *change.before);
    const Content after = contentOf(after_, *change.after);
    const Constant nothing{};
    std::vector<std::pair<const Constant*, const Constant*>> differing;
    const auto addPair = [&](const Constant& old, const Constant& now) {
        // What is said elsewhere changes there, unless another object says it now.
        const bool isElsewhere = !old.from.empty() && old.from == now.from && sayTheSame(before, after, old.from);
        if (!(old.value == now.value) && !isElsewhere) {
            differing.emplace_back(&old, &now);
        }
    };
    for (const Constant& now : after) {
        const Constant* const old = find(before, now.id);
        addPair(old == nullptr ? nothing : *old, now);
    }
    for (const Constant& old : before) {
        if (find(after, old.id) == nullptr) {
            addPair(old, nothing);
        }
    }
    if (differing.empty()) {
        return;
    }
    Writing oldWriting(before_.sourceOf(*change.before));
    Writing newWriting(after_.sourceOf(*change.after));
    change.placeBefore = oldWriting.ofTypeId();
    change.placeAfter = newWriting.ofTypeId();
    const Constant* const oldUnit = find(before, "storageUnit");
    const Constant* const newUnit = find(after, "storageUnit");
    const bool isUnitAnother =
        oldUnit != nullptr && newUnit != nullptr && !(oldUnit->value == newUnit->value) &&
        !isFollowed(names_, std::get<Reference>(oldUnit->value), std::get<Reference>(newUnit->value));
    for (const auto& [old, now] : differing) {
        const auto placeIn = [](Writing& writing, const Constant& constant) {
            return constant.id.empty() ? writing.ofTypeId() : writing.of(constant);
        };
        ConstantChange constant{now->id.empty() ? old->id : now->id,
                                now->from.empty() ? old->from : now->from,
                                old->value,
                                now->value,
                                placeIn(oldWriting, *old),
                                placeIn(newWriting, *now)};
        const auto* const oldReference = std::get_if<Reference>(&old->value);
        const auto* const newReference = std::get_if<Reference>(&now->value);
        constant.isFollowing =
            oldReference != nullptr && newReference != nullptr && isFollowed(names_, *oldReference, *newReference);
        constant.isInOtherUnit = isLimit(constant.id) && isUnitAnother;
        std::visit(Elements(names_, constant), old->value, now->value);
        if (!constant.elements.empty()) {
            ListPlaces oldPlaces(oldWriting, *old);
            ListPlaces newPlaces(newWriting, *now);
            for (ElementChange& element : constant.elements) {
                element.placeBefore = oldPlaces.of(element.before);
                element.placeAfter = newPlaces.of(element.after);
            }
        }
        change.constants.push_back(std::move(constant));
    }
}

} // namespace

std::string_view wordOf(Fate fate) {
    switch (fate) {
    case Fate::removed:
        return "removed";
    case Fate::added:
        return "added";
    case Fate::succeeded:
        return "succeeded";
    case Fate::renamed:
        return "renamed";
    case Fate::changed:
        return "changed";
    case Fate::broken:
        return "broken";
    case Fate::mended:
        break;
    }
    return "mended";
}

std::size_t count(const std::vector<Change>& changes, Fate fate) {
    return static_cast<std::size_t>(
        std::count_if(changes.begin(), changes.end(), [fate](const Change& change) { return change.fate == fate; }));
}

std::vector<Change> compare(const Catalogue& before, const Catalogue& after) {
    return Comparer(before, after).changes();
}

} // namespace Tool::Compare
