#pragma once

#include "engine/Directory.h"
#include "engine/Kinds.h"
#include "engine/SortedOrder.h"
#include "model/Access.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace Parameters::Internal {

/// What one kind has: schemas that are read and not yet resolved, and objects.
template <class K>
struct Store {
    using Object = typename K::Object;
    struct Pending {
        typename K::Record record;
        Directory::EntryId entry;
    };

    std::vector<Pending> pending;
    std::vector<Object> objects;
    SortedOrder order;

    /// Returns all objects by typeid.
    std::map<std::string, Object> all() const {
        const auto less = [this](std::uint32_t a, std::uint32_t b) {
            return typeIdOf(objects[a]) < typeIdOf(objects[b]);
        };
        const auto& places = order.of(static_cast<std::uint32_t>(objects.size()), less);
        std::map<std::string, Object> result;
        constexpr std::size_t ahead = 16; // objects lie anywhere: waiting for several at a time is waiting once
        std::array<std::string_view, ahead> typeIds;
        for (std::size_t begin = 0; begin < places.size(); begin += ahead) {
            const std::size_t count = std::min(ahead, places.size() - begin);
            for (std::size_t i = 0; i < count; ++i) {
                typeIds[i] = typeIdOf(objects[places[begin + i]]);
            }
            for (std::size_t i = 0; i < count; ++i) {
                result.emplace_hint(result.end(), typeIds[i], objects[places[begin + i]]);
            }
        }
        return result;
    }

    /// Makes room for so many objects more, so that adding them cannot throw.
    void reserveObjects(std::size_t more) {
        const std::size_t needed = objects.size() + more;
        if (needed > objects.capacity()) {
            objects.reserve(std::max(needed, objects.size() + objects.size() / 2)); // room for one at a time, too
        }
    }
};

/// All that an engine has of its own: the stores of the kinds and the directory over them, always in step.
class Registry {
public:
    template <class K>
    const Store<K>& store() const noexcept {
        return std::get<kindIndex<K>>(stores_);
    }
    const Directory::Entry* find(const Directory::Key& key) const noexcept { return directory_.find(key); }

    /// Returns the object of that kind and typeid, or null.
    template <class K>
    const typename K::Object* findObject(std::string_view typeId) const noexcept {
        const Directory::Entry* entry = find(typeId);
        return entry != nullptr && entry->resolved && entry->kind == kindIndex<K> ? &store<K>().objects[entry->place]
                                                                                  : nullptr;
    }

    bool isPending(std::string_view typeId) const noexcept {
        const Directory::Entry* entry = find(typeId);
        return entry != nullptr && !entry->resolved;
    }

    /// Calls visit.operator()<K>(object) with the object of that typeid, whatever its kind; returns whether there is
    /// one.
    template <class Visitor>
    bool visitObject(std::string_view typeId, Visitor&& visit) const {
        const Directory::Entry* entry = find(typeId);
        if (entry == nullptr || !entry->resolved) {
            return false;
        }
        withKind(entry->kind, [&]<class K>() { visit.template operator()<K>(store<K>().objects[entry->place]); });
        return true;
    }

    /// Files a record whose typeid, the key, is new. Changes nothing when it throws.
    template <class K>
    void addPending(typename K::Record&& record, const Directory::Key& key) {
        auto& pending = std::get<kindIndex<K>>(stores_).pending;
        directory_.reserveOne();
        pending.push_back({std::move(record), 0});
        pending.back().entry =
            directory_.add({pending.back().record.texts[0], static_cast<std::uint32_t>(pending.size() - 1),
                            static_cast<std::uint8_t>(kindIndex<K>), false},
                           key.hash);
    }

    /// Withdraws a record that is pending.
    void discardPending(std::string_view typeId) noexcept {
        const Directory::EntryId id = directory_.idOf(*find(typeId));
        withKind(directory_[id].kind, [&]<class K>() {
            auto& pending = std::get<kindIndex<K>>(stores_).pending;
            const std::uint32_t place = directory_[id].place;
            std::swap(pending[place], pending.back());
            directory_[pending[place].entry].place = place;
            directory_.remove(id); // while the record still holds the typeid
            pending.pop_back();
        });
        if (id < directory_.size() && !directory_[id].resolved) { // another entry has taken the id
            withKind(directory_[id].kind,
                     [&]<class K>() { std::get<kindIndex<K>>(stores_).pending[directory_[id].place].entry = id; });
        }
    }

    /// Stores an object whose typeid is new. Changes nothing when it throws.
    template <class K>
    void addObject(const typename K::Object& object) {
        auto& store = std::get<kindIndex<K>>(stores_);
        directory_.reserveOne();
        store.objects.push_back(object);
        store.order.grown();
        directory_.add({typeIdOf(object), static_cast<std::uint32_t>(store.objects.size() - 1),
                        static_cast<std::uint8_t>(kindIndex<K>), true},
                       Directory::Key(typeIdOf(object)).hash);
    }

    /// Gives back the room for pending records that was made ahead.
    void shrinkPending() {
        forEachKind(StoreOrder{}, [this]<class K>() { std::get<kindIndex<K>>(stores_).pending.shrink_to_fit(); });
    }

    /// Makes room for an object for each pending record, so that commit cannot throw.
    void reserveForPending() {
        forEachKind(StoreOrder{}, [this]<class K>() {
            auto& store = std::get<kindIndex<K>>(stores_);
            if (!store.objects.empty()) {
                store.reserveObjects(store.pending.size());
            }
        });
    }

    /// Puts the objects built for the pending records of a kind, in their order, in the records' place.
    template <class K>
    void commit(std::vector<typename K::Object>& built) noexcept {
        auto& store = std::get<kindIndex<K>>(stores_);
        if (store.pending.empty()) {
            return;
        }
        auto place = static_cast<std::uint32_t>(store.objects.size());
        if (store.objects.empty()) {
            store.objects.swap(built);
        } else {
            store.objects.insert(store.objects.end(), built.begin(), built.end());
        }
        for (const auto& pending : store.pending) {
            Directory::Entry& entry = directory_[pending.entry];
            assert(entry.typeId.data() == typeIdOf(store.objects[place]).data()); // which stays: the texts are shared
            entry.place = place++;
            entry.resolved = true;
        }
        store.order.grown();
        std::vector<typename Store<K>::Pending>().swap(store.pending);
    }

private:
    template <class... Ks>
    static std::tuple<Store<Ks>...> storesOf(KindList<Ks...>);

    Directory directory_;
    decltype(storesOf(StoreOrder{})) stores_;
};

} // namespace Parameters::Internal
