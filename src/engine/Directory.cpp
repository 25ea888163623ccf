#include "engine/Directory.h"

#include "engine/Messages.h"
#include "schema/Bytes.h"

#include <algorithm>
#include <stdexcept>

namespace Parameters::Internal {

const Directory::Entry* Directory::find(const Key& key) const noexcept {
    const EntryId id = slots_.empty() ? none : slots_[search(key)].entry;
    return id != none ? &entries_[id] : nullptr;
}

/// Returns the place of the slot of a typeid, or that of the empty one where it would go.
std::size_t Directory::search(const Key& key) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = key.hash & mask;
    while (slots_[at].entry != none &&
           (slots_[at].hash != key.hash || !Ostra::isSame(entries_[slots_[at].entry].typeId, key.typeId))) {
        at = (at + 1) & mask;
    }
    return at;
}

void Directory::reserveOne() {
    if (free_ != none) {
        return;
    }
    if (entries_.size() >= limit) {
        throw std::length_error(EngineMessages::messages("engine-full").with({}));
    }
    entries_.reserveOne();
    // Three quarters full is where runs of taken slots begin to cost.
    if ((entries_.size() + 1) * 4 > slots_.size() * 3) {
        enlarge(std::max<std::size_t>(16, slots_.size() * 2));
    }
}

Directory::EntryId Directory::add(const Entry& entry, std::uint32_t hash) noexcept {
    auto id = free_;
    if (id != none) {
        free_ = entries_[id].place;
        entries_[id] = entry;
    } else {
        id = static_cast<EntryId>(entries_.size());
        entries_.add(entry);
    }
    place({hash, id});
    return id;
}

void Directory::remove(EntryId id) noexcept {
    vacate(slotOf(id));
    // The last entry could fill the gap, but to find its slot its typeid would be hashed, however long that is.
    entries_[id] = Entry{};
    entries_[id].place = free_;
    free_ = id;
}

std::size_t Directory::slotOf(EntryId id) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = Key(entries_[id].typeId).hash & mask;
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
