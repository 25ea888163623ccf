#include "engine/Directory.h"

#include "engine/Hash.h"

#include <algorithm>
#include <stdexcept>

namespace Parameters::Internal {

namespace {

std::uint32_t shortHashOf(std::string_view typeId) noexcept { return static_cast<std::uint32_t>(hashOf(typeId)); }

} // namespace

const Directory::Entry* Directory::find(std::string_view typeId) const noexcept {
    if (slots_.empty()) {
        return nullptr;
    }
    const std::size_t mask = slots_.size() - 1;
    const std::uint32_t hash = shortHashOf(typeId);
    for (std::size_t at = hash & mask; slots_[at].entry != none; at = (at + 1) & mask) {
        if (slots_[at].hash == hash) {
            const Entry& entry = entries_[slots_[at].entry];
            if (entry.typeId == typeId) {
                return &entry;
            }
        }
    }
    return nullptr;
}

void Directory::reserveOne() {
    if (entries_.size() >= limit) {
        throw std::length_error("An engine holds at most 2^31 objects.");
    }
    if (entries_.size() == entries_.capacity()) {
        entries_.reserve(std::max<std::size_t>(8, entries_.capacity() * 2));
    }
    // Three quarters full is where runs of taken slots begin to cost.
    if ((entries_.size() + 1) * 4 > slots_.size() * 3) {
        enlarge(std::max<std::size_t>(16, slots_.size() * 2));
    }
}

Directory::EntryId Directory::add(const Entry& entry) noexcept {
    const auto id = static_cast<EntryId>(entries_.size());
    entries_.push_back(entry);
    place({shortHashOf(entry.typeId), id});
    return id;
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
