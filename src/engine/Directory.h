#pragma once

#include "engine/Chunked.h"
#include "schema/Hash.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

/// The typeids of all kinds in one hash table: is a typeid known, of which kind is it, and where in that kind's store.
///
/// The typeids themselves live in the records and objects that the entries stand for.
class Directory {
public:
    using EntryId = std::uint32_t;

    struct Entry {
        std::string_view typeId;
        std::uint32_t place; // among the pending records or the objects of its kind
        std::uint8_t kind;
        bool resolved;
    };

    /// A typeid to look for, with its hash, so that who looks for it and then adds it works that out once.
    struct Key {
        template <std::convertible_to<std::string_view> Bytes>
        Key(const Bytes& bytes) noexcept // NOLINT(google-explicit-constructor): any typeid is a key
            : typeId(bytes), hash(static_cast<std::uint32_t>(Ostra::hashOf(typeId))) {}

        std::string_view typeId;
        std::uint32_t hash;
    };

    /// Returns the entry of a typeid, or null.
    const Entry* find(const Key& key) const noexcept;
    Entry& operator[](EntryId id) noexcept { return entries_[id]; }
    const Entry& operator[](EntryId id) const noexcept { return entries_[id]; }

    /// Makes room for one entry more, so that the next add cannot throw.
    void reserveOne();
    /// Adds an entry for a typeid of that hash that has none, after reserveOne.
    EntryId add(const Entry& entry, std::uint32_t hash) noexcept;
    /// Removes an entry. The next one that is added takes its id.
    void remove(EntryId id) noexcept;
    /// Returns the id of a typeid that has an entry.
    EntryId idOf(const Key& key) const noexcept { return slots_[search(key)].entry; }

private:
    struct Slot {
        std::uint32_t hash; // tells nearly all others apart, and spares looking at the typeids when the table grows
        EntryId entry;
    };
    static constexpr EntryId none = 0xFFFFFFFF;
    static constexpr std::size_t limit = std::size_t{1} << 31; // more would need more bits of hash

    void enlarge(std::size_t slotCount);
    void place(Slot slot) noexcept;
    std::size_t search(const Key& key) const noexcept;
    std::size_t slotOf(EntryId id) const noexcept;
    void vacate(std::size_t at) noexcept;

    Chunked<Entry> entries_;
    EntryId free_ = none;     // an id that is free; the place of its entry is the next one
    std::vector<Slot> slots_; // a power of two of them, or none; collisions go to the next slot
};

} // namespace Parameters::Internal
