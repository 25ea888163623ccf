#pragma once

#include "engine/Dependents.h"
#include "engine/Directory.h"
#include "engine/Kinds.h"
#include "engine/Lazy.h"
#include "engine/SortedOrder.h"
#include "engine/Staged.h"
#include "model/Access.h"

#include <algorithm>
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
class Store {
public:
    using Object = typename K::Object;
    struct Pending {
        typename K::Record record;
        Directory::EntryId entry;
    };

    std::vector<Pending> pending;
    std::vector<Object> objects;

    /// Returns the places of all objects in the order of their typeids, good until the store grows.
    const SortedOrder::Order& order() const {
        return order_.of(static_cast<std::uint32_t>(objects.size()),
                         [this](std::uint32_t place) { return typeIdOf(objects[place]); });
    }

    /// Returns all objects by typeid.
    std::map<std::string, Object> all() const {
        return list_.get([this] { return makeList(); }); // copying a map costs half of making one
    }

    /// Returns all objects in the order of their typeids, good until the store grows.
    const std::vector<Object>& sorted() const {
        return sorted_.get([this] {
            std::vector<Object> sorted;
            sorted.reserve(objects.size());
            for (const std::uint32_t place : order()) {
                sorted.push_back(objects[place]);
            }
            return sorted;
        });
    }

    /// Says that there are more objects.
    void grown() noexcept {
        order_.grown();
        sorted_.take();
        list_.take();
    }

    /// Makes room for so many objects more, so that adding them cannot throw.
    void reserveObjects(std::size_t more) {
        const std::size_t needed = objects.size() + more;
        if (needed > objects.capacity()) {
            objects.reserve(std::max(needed, objects.size() + objects.size() / 2)); // room for one at a time, too
        }
    }

private:
    std::map<std::string, Object> makeList() const {
        std::map<std::string, Object> list;
        for (const std::uint32_t place : order()) {
            list.emplace_hint(list.end(), typeIdOf(objects[place]), objects[place]);
        }
        return list;
    }

    SortedOrder order_;
    Lazy<std::vector<Object>> sorted_;
    Lazy<std::map<std::string, Object>> list_;
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

    /// Returns what names the object of that typeid, good until an object is added.
    ArrayView<Identity> dependentsOf(std::string_view typeId) const {
        return dependents_.get([this] { return Dependents(*this); }).of(typeId);
    }

    bool isPending(std::string_view typeId) const noexcept {
        const Directory::Entry* entry = find(typeId);
        return entry != nullptr && !entry->resolved;
    }

    bool hasPending() const noexcept {
        return anyKind(StoreOrder{}, [this]<class K>() { return !store<K>().pending.empty(); });
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
            directory_.add({pending.back().record.typeId(), static_cast<std::uint32_t>(pending.size() - 1),
                            static_cast<std::uint8_t>(kindIndex<K>), false},
                           key.hash);
    }

    /// Withdraws a record that is pending.
    void discardPending(std::string_view typeId) noexcept {
        const Directory::EntryId id = directory_.idOf(typeId);
        withKind(directory_[id].kind, [&]<class K>() {
            auto& pending = std::get<kindIndex<K>>(stores_).pending;
            const std::uint32_t place = directory_[id].place;
            std::swap(pending[place], pending.back());
            directory_[pending[place].entry].place = place;
            directory_.remove(id); // while the record still holds the typeid
            pending.pop_back();
        });
    }

    /// Stores an object whose typeid is new. Changes nothing when it throws.
    template <class K>
    void addObject(const typename K::Object& object) {
        auto& store = std::get<kindIndex<K>>(stores_);
        directory_.reserveOne();
        store.objects.push_back(object);
        store.grown();
        dependents_.take();
        directory_.add({typeIdOf(object), static_cast<std::uint32_t>(store.objects.size() - 1),
                        static_cast<std::uint8_t>(kindIndex<K>), true},
                       Directory::Key(typeIdOf(object)).hash);
    }

    /// Gives back the room for pending records that was made ahead.
    void shrinkPending() {
        forEachKind(StoreOrder{}, [this]<class K>() { std::get<kindIndex<K>>(stores_).pending.shrink_to_fit(); });
    }

    /// Makes room for an object for each pending record, and what is made of them already this registry's alone, so
    /// that commit cannot throw and changes nothing that another registry has.
    void prepareCommit() {
        forEachKind(StoreOrder{}, [this]<class K>() {
            auto& store = std::get<kindIndex<K>>(stores_);
            store.reserveObjects(store.pending.size());
            if constexpr (LinkedKind<K>) {
                for (auto& [record, entry] : store.pending) {
                    if (record.makeSole()) {
                        directory_[entry].typeId = record.typeId();
                    }
                }
            }
        });
    }

    /// Puts what was made of the pending records of a kind, in their order, in the records' place. Records of which
    /// nothing was made stay pending.
    template <class K>
    void commit(std::vector<Staged<K>>& staged) noexcept {
        auto& store = std::get<kindIndex<K>>(stores_);
        if (store.pending.empty()) {
            return;
        }
        std::size_t left = 0;
        for (std::size_t place = 0; place < staged.size(); ++place) {
            auto& pending = store.pending[place];
            Directory::Entry& entry = directory_[pending.entry];
            if (staged[place].isNone()) {
                entry.place = static_cast<std::uint32_t>(left);
                moveDown(store.pending, place, left++);
            } else {
                entry.place = static_cast<std::uint32_t>(store.objects.size());
                entry.resolved = true;
                store.objects.push_back(staged[place].finish(std::move(pending.record)));
                assert(entry.typeId.data() == typeIdOf(store.objects.back()).data()); // which stays
            }
        }
        store.pending.erase(store.pending.begin() + static_cast<std::ptrdiff_t>(left), store.pending.end());
        if (left == 0) {
            std::vector<typename Store<K>::Pending>().swap(store.pending);
        }
        store.grown();
        dependents_.take();
    }

private:
    template <class... Ks>
    static std::tuple<Store<Ks>...> storesOf(KindList<Ks...>);

    template <class T>
    static void moveDown(std::vector<T>& elements, std::size_t from, std::size_t to) noexcept {
        if (from != to) {
            elements[to] = std::move(elements[from]);
        }
    }

    Directory directory_;
    decltype(storesOf(StoreOrder{})) stores_;
    Lazy<Dependents> dependents_;
};

} // namespace Parameters::Internal
