#include "engine/Directory.h"

#include "engine/Messages.h"
#include "schema/Bytes.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Parameters::Internal {

const Directory::Subject* Directory::find(const Key& key) const noexcept {
    const EntryId id = slots_.empty() ? none : slots_[search(key)].entry;
    return id != none ? find(id) : nullptr;
}

/// Returns the place of the slot of a typeid, or that of the empty one where it would go.
std::size_t Directory::search(const Key& key) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = key.hash & mask;
    while (slots_[at].entry != none &&
           (slots_[at].hash != key.hash || !Ostra::isSame(entries_[slots_[at].entry].typeId(), key.typeId))) {
        at = (at + 1) & mask;
    }
    return at;
}

void Directory::reserve(std::size_t more) {
    const std::size_t needed = entries_.size() + more;
    if (needed > limit) {
        throw std::length_error(EngineMessages::messages("engine-full").with({}));
    }
    entries_.reserve(needed);
    // Three quarters full is where runs of taken slots begin to cost.
    while (needed * 4 > slots_.size() * 3) {
        enlarge(std::max<std::size_t>(16, slots_.size() * 2));
    }
}

Directory::EntryId Directory::add(std::string_view typeId, std::uint32_t hash, Subject subject) noexcept {
    EntryId id = slots_[search({typeId, hash})].entry;
    if (id != none) {
        takeUnknown(id);
    } else {
        if (free_ != none) {
            id = std::exchange(free_, entries_[free_].subject.place);
        } else {
            id = static_cast<EntryId>(entries_.size());
            entries_.add({});
        }
        place({hash, id});
    }
    entries_[id].setTypeId(typeId);
    entries_[id].subject = subject;
    return id;
}

void Directory::remove(EntryId id) {
    if (entries_[id].namings == 0) {
        release(id);
        return;
    }
    unknown_.push_back({Texts{entries_[id].typeId()}, id});
    entries_[id].setTypeId(unknown_.back().typeId[0]);
    entries_[id].subject = lastUnknown();
}

Directory::EntryId Directory::name(const Key& key) {
    EntryId id = slots_[search(key)].entry;
    if (id == none) {
        unknown_.push_back({Texts{key.typeId}, none});
        id = add(unknown_.back().typeId[0], key.hash, lastUnknown());
        unknown_.back().entry = id;
    }
    ++entries_[id].namings;
    return id;
}

void Directory::forget(EntryId id) noexcept {
    if (--entries_[id].namings > 0 || !entries_[id].isOnlyNamed()) {
        return;
    }
    const Texts typeId = takeUnknown(id); // which is read once more
    release(id);
    if (unknown_.empty()) {
        std::vector<Unknown>().swap(unknown_);
    }
}

/// Returns the typeid of an entry that is no longer one of those that are only named.
Texts Directory::takeUnknown(EntryId id) noexcept {
    const std::uint32_t place = entries_[id].subject.place;
    std::swap(unknown_[place], unknown_.back());
    entries_[unknown_[place].entry].subject.place = place;
    Texts typeId = std::move(unknown_.back().typeId);
    unknown_.pop_back();
    return typeId;
}

void Directory::release(EntryId id) noexcept {
    vacate(slotOf(id));
    // The last entry could fill the gap, but to find its slot its typeid would be hashed, however long that is.
    entries_[id] = {};
    entries_[id].subject.place = free_;
    free_ = id;
}

std::size_t Directory::slotOf(EntryId id) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = Key(entries_[id].typeId()).hash & mask;
    while (slots_[at].entry != id) {
        at = (at + 1) & mask;
    }
    return at;
}

/// Empties a slot and moves back what would no longer be found behind it.
void Directory::vacate(std::size_t at) noexcept {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t next = (at + 1) & mask; slots_[next].entry != none; next = (next + 1) & mask) {
        const std::size_t home = slots_[next].hash & mask;
        if (((next - home) & mask) >= ((next - at) & mask)) {
            slots_[at] = slots_[next];
            at = next;
        }
    }
    slots_[at].entry = none;
}

void Directory::enlarge(std::size_t slotCount) {
    std::vector<Slot> slots(slotCount, Slot{0, none});
    slots_.swap(slots);
    for (const Slot slot : slots) {
        if (slot.entry != none) {
            place(slot);
        }
    }
}

void Directory::place(Slot slot) noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = slot.hash & mask;
    while (slots_[at].entry != none) {
        at = (at + 1) & mask;
    }
    slots_[at] = slot;
}

} // namespace Parameters::Internal
