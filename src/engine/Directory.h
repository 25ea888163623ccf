#pragma once

#include "engine/Chunked.h"
#include "model/References.h"
#include "model/Texts.h"
#include "schema/Hash.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Parameters::Internal {

/// The typeids of all kinds in one hash table: is a typeid known, of which kind is it, and where in that kind's store.
/// What is pending may name typeids that are not known yet: they have entries as well, which are not found.
///
/// The typeids themselves live in the records and objects that the entries stand for; those of what is only named,
/// here.
class Directory {
public:
    using EntryId = decltype(Name::entry);

    /// What a typeid stands for.
    struct Subject {
        std::uint32_t place; // among the pending records or the objects of its kind
        std::uint8_t kind;
        bool resolved;
    };
    struct Entry {
        std::string_view typeId() const noexcept { return {bytes, size}; }
        void setTypeId(std::string_view typeId) noexcept {
            bytes = typeId.data();
            size = static_cast<std::uint32_t>(typeId.size()); // all strings of an object are less than 4 GiB
        }
        bool isOnlyNamed() const noexcept { return subject.kind == noKind; }

        const char* bytes;
        std::uint32_t size;
        std::uint32_t namings; // by what is pending
        Subject subject;
    };

    /// A typeid to look for, with its hash, so that who looks for it and then adds it works that out once.
    struct Key {
        template <std::convertible_to<std::string_view> Bytes>
        Key(const Bytes& bytes) noexcept // NOLINT(google-explicit-constructor): any typeid is a key
            : Key(bytes, static_cast<std::uint32_t>(Ostra::hashOf(bytes))) {}
        Key(std::string_view itsTypeId, std::uint32_t itsHash) noexcept : typeId(itsTypeId), hash(itsHash) {}

        std::string_view typeId;
        std::uint32_t hash;
    };

    /// Returns what a typeid stands for, or null.
    const Subject* find(const Key& key) const noexcept;
    const Subject* find(EntryId id) const noexcept {
        return entries_[id].isOnlyNamed() ? nullptr : &entries_[id].subject;
    }
    Entry& operator[](EntryId id) noexcept { return entries_[id]; }
    const Entry& operator[](EntryId id) const noexcept { return entries_[id]; }

    /// Makes room for so many entries more, so that adding them cannot throw.
    void reserve(std::size_t more);
    /// Adds a typeid of that hash that stands for nothing yet. There must be room for it.
    EntryId add(std::string_view typeId, std::uint32_t hash, Subject subject) noexcept;
    /// Removes a typeid that stands for something. What is named stays in the directory. Changes nothing when it
    /// throws.
    void remove(EntryId id);
    /// Returns the id of a typeid that stands for something.
    EntryId idOf(const Key& key) const noexcept { return slots_[search(key)].entry; }

    /// Counts one that names a typeid, which need not stand for anything. The id that is returned stays good until it
    /// is forgotten as often as it was named. There must be room for it. Changes nothing when it throws.
    EntryId name(const Key& key);
    /// Counts one less that names what has that id.
    void forget(EntryId id) noexcept;

private:
    struct Slot {
        std::uint32_t hash; // tells nearly all others apart, and spares looking at the typeids when the table grows
        EntryId entry;
    };
    /// A typeid that is only named. The place of its subject is that of this.
    struct Unknown {
        Texts typeId; // one
        EntryId entry;
    };
    static constexpr EntryId none = Name::noEntry;
    static constexpr std::uint8_t noKind = 0xFF;
    static constexpr std::size_t limit = std::size_t{1} << 31; // more would need more bits of hash

    void enlarge(std::size_t slotCount);
    void place(Slot slot) noexcept;
    std::size_t search(const Key& key) const noexcept;
    std::size_t slotOf(EntryId id) const noexcept;
    void vacate(std::size_t at) noexcept;
    Subject lastUnknown() const noexcept { return {static_cast<std::uint32_t>(unknown_.size() - 1), noKind, false}; }
    Texts takeUnknown(EntryId id) noexcept;
    void release(EntryId id) noexcept;

    Chunked<Entry> entries_;
    std::vector<Unknown> unknown_;
    EntryId free_ = none;     // an id that is free; the place of its entry is the next one
    std::vector<Slot> slots_; // a power of two of them, or none; collisions go to the next slot
};

} // namespace Parameters::Internal
