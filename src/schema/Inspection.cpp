#include "schema/Inspection.h"

#include "schema/Hash.h"
#include "schema/Messages.h"
#include "schema/Spelling.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace Ostra {

void Inspection::begin(std::string_view text, const ParsedText& parsed, const JSONValue& root) {
    text_ = text;
    parsed_ = parsed;
    root_ = &root;
    marks_.assign(text.size() / 64 + 1, 0);
    markCount_ = 0;
    looks_.clear();
    references_.clear();
    kept_.clear();
    unread_.clear();
    passedOver_.clear();
    hasErrors_ = false;
    isReadWhole_ = false;
    isAllMarked_ = false;
}

void Inspection::handle(const Finding& finding) {
    std::string_view name = finding.message.subjectOf(finding.inserted);
    if (name.empty() && finding.lacking.size() > 0) {
        name = *finding.lacking.begin();
    }
    kept_.push_back({&finding.message, finding.message.with(finding.inserted), std::string(name), &finding.value,
                     finding.lacking, finding.other, finding.offset});
    hasErrors_ = hasErrors_ || finding.message.severity == Severity::error;
    if (finding.lacking.size() == 0) {
        passedOver_.insert(&finding.value); // what is in a value that is wrong as a whole is not looked at
    }
}

void Inspection::unread(const JSONValue& array, const JSONValue& definition, const JSONValue& id,
                        const Message& message) {
    unread_.push_back({&array, id.string(), &id, &message});
    passOver(definition);
}

std::vector<DocumentFault> Inspection::faults() {
    notesLooks_ = false;
    const bool isJSON = kept_.empty() || !kept_.front().offset;
    if (isJSON && (wantsLooks() || !kept_.empty())) {
        findUnread();
    }
    if (kept_.empty() && unread_.empty()) {
        return {};
    }
    dropRepeated();
    explainLacking();
    const std::size_t toldByReaders = kept_.size();
    if (isReadWhole_) {
        tellUnread();
    }
    Places places;
    for (const Kept& kept : kept_) {
        places.try_emplace(kept.value);
        if (kept.other != nullptr) {
            places.try_emplace(kept.other);
        }
    }
    if (isJSON) {
        locate(text_, *root_, places);
    }
    std::stable_sort(
        kept_.begin() + static_cast<std::ptrdiff_t>(toldByReaders), kept_.end(),
        [&](const Kept& one, const Kept& other) { return places.at(one.value).begin < places.at(other.value).begin; });
    std::vector<DocumentFault> faults;
    faults.reserve(kept_.size());
    for (Kept& kept : kept_) {
        faults.push_back(located(std::move(kept), places));
    }
    return faults;
}

std::vector<Spot> Inspection::placesOf(const std::vector<Reference>& references) const {
    std::unordered_map<std::string_view, std::vector<const JSONValue*>, TextHash> byTypeId;
    for (const JSONValue* const value : references_) {
        byTypeId[value->string()].push_back(value);
    }
    Places places;
    std::vector<const JSONValue*> values;
    for (const auto& [typeId, occurrence] : references) {
        const auto found = byTypeId.find(typeId);
        // A default that the text does not spell out may have been counted too.
        values.push_back(found != byTypeId.end() ? found->second[std::min(occurrence, found->second.size() - 1)]
                                                 : root_);
        places.try_emplace(values.back());
    }
    locate(text_, *root_, places);
    std::vector<Spot> spots;
    spots.reserve(values.size());
    for (const JSONValue* const value : values) {
        spots.push_back(places.at(value));
    }
    return spots;
}

Spot Inspection::placeOfTypeId() const {
    const JSONValue* const typeId = root_->find("typeid");
    Places places{{typeId != nullptr ? typeId : root_, {}}};
    locate(text_, *root_, places);
    return places.begin()->second;
}

void Inspection::findUnread() {
    if (!root_->isContainer()) {
        return;
    }
    toWalk_.assign(1, root_);
    while (!toWalk_.empty()) {
        const JSONValue& value = *toWalk_.back();
        toWalk_.pop_back();
        findUnreadIn(value);
    }
}

void Inspection::findUnreadIn(const JSONValue& value) {
    const bool isPassedOver = !passedOver_.empty() && &value != root_ && passedOver_.contains(&value);
    const auto walkLater = [&](const JSONValue& part) {
        if (!isPassedOver && part.isContainer()) {
            toWalk_.push_back(&part);
        }
    };
    const JSONValue* const end = value.next();
    for (const JSONValue* part = value.first(); part != end; part = part->next()) {
        if (value.isArray()) {
            walkLater(*part);
            continue;
        }
        const JSONValue& name = *part;
        part = part->next();
        if (isMarked(name)) {
            walkLater(*part);
        } else {
            unread_.push_back({&value, name.string(), part, &messages("member-unknown"), isPassedOver});
        }
    }
}

void Inspection::dropRepeated() {
    std::set<std::tuple<const Message*, const JSONValue*, std::string_view>> told;
    std::erase_if(kept_, [&told](const Kept& kept) {
        const std::string_view lacking = kept.lacking.empty() ? std::string_view() : kept.lacking.front();
        return !told.emplace(kept.message, kept.value, lacking).second;
    });
}

void Inspection::explainLacking() {
    UnreadByHolder byHolder;
    for (Unread& unread : unread_) {
        byHolder[unread.holder].push_back(&unread);
    }
    for (Kept& kept : kept_) {
        if (Unread* const found = kept.lacking.empty() ? nullptr : misspelt(kept, byHolder)) {
            kept.value = found->place;
            kept.nearest = found->name;
            found->isTold = true;
        }
    }
}

/// Returns what seems to be meant by something that is lacking: what stands in its place under a name that is near, or
/// alone where a typeid belongs, or under its own name in the other array of definitions.
Inspection::Unread* Inspection::misspelt(const Kept& kept, const UnreadByHolder& unread) {
    if (const auto beside = unread.find(kept.value); beside != unread.end()) {
        for (const std::string_view lacking : kept.lacking) {
            for (Unread* const candidate : beside->second) {
                const bool isAlone = lacking == "typeid" && kept.value->size() == 1 && kept.value != root_;
                if (isAlone || !nearest(candidate->name, {lacking}).empty()) {
                    return candidate;
                }
            }
        }
    }
    if (!kept.value->isArray()) {
        return nullptr;
    }
    const auto elsewhere = std::find_if(unread_.begin(), unread_.end(), [&kept](const Unread& candidate) {
        return candidate.holder->isArray() && candidate.name == kept.lacking.front();
    });
    return elsewhere != unread_.end() ? &*elsewhere : nullptr;
}

void Inspection::tellUnread() {
    if (std::all_of(unread_.begin(), unread_.end(), [](const Unread& unread) { return unread.isTold; })) {
        return;
    }
    LooksByHolder looks;
    for (const Look& look : looks_) {
        looks[look.holder].push_back(&look);
    }
    for (const Unread& unread : unread_) {
        if (!unread.isTold) {
            kept_.push_back(faultOf(unread, looks[unread.holder]));
        }
    }
}

Inspection::Kept Inspection::faultOf(const Unread& unread, const std::vector<const Look*>& looks) const {
    Kept fault{unread.message, {}, std::string(unread.name), unread.place, {}, nullptr, std::nullopt};
    std::vector<std::string_view> known;
    for (const Look* const look : looks) {
        known.push_back(look->name);
        if (unread.holder->isArray() || look->found == nullptr) {
            continue;
        }
        if (look->name == unread.name) {
            fault.message = &messages("member-duplicate");
            fault.value = look->found;
            fault.other = unread.place;
        } else if ((unread.name == "value" && look->name == "typedValue") ||
                   (unread.name == "typedValue" && look->name == "value")) {
            fault.message = &messages("value-ignored");
        }
    }
    fault.sentence = fault.message->with({unread.name});
    if (fault.other == nullptr) {
        const auto near = nearest(unread.name, known);
        fault.nearest = near.empty() ? std::string_view() : near.front();
    }
    return fault;
}

DocumentFault Inspection::located(Kept&& kept, const Places& places) const {
    if (kept.offset) {
        return {kept.message, std::move(kept.sentence), {}, {}, {"", *kept.offset, text_.size()}, std::nullopt};
    }
    const Spot& place = places.at(kept.value);
    DocumentFault fault{kept.message, std::move(kept.sentence), std::move(kept.name), std::move(kept.nearest), place,
                        std::nullopt};
    if (fault.name.empty() && place.pointer.starts_with("/inherits/") && kept.value->isString()) {
        fault.name = kept.value->string();
    } else if (fault.name.empty()) {
        fault.name = place.label;
    }
    if (kept.other != nullptr) {
        fault.other = places.at(kept.other);
    }
    return fault;
}

} // namespace Ostra
