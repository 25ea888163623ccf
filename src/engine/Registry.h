#pragma once

#include "engine/Directory.h"
#include "engine/Kinds.h"
#include "engine/SortedOrder.h"
#include "model/Access.h"

#include <algorithm>
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
        std::map<std::string, Object> result;
        for (const std::uint32_t place : order.of(static_cast<std::uint32_t>(objects.size()), less)) {
            result.emplace_hint(result.end(), typeIdOf(objects[place]), objects[place]);
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
    const Directory::Entry* find(std::string_view typeId) const noexcept { return directory_.find(typeId); }

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

    /// Files a record whose typeid is new. Changes nothing when it throws.
    template <class K>
    void addPending(typename K::Record&& record) {
        auto& pending = std::get<kindIndex<K>>(stores_).pending;
        directory_.reserveOne();
        pending.push_back({std::move(record), 0});
        pending.back().entry =
            directory_.add({pending.back().record.texts[0], static_cast<std::uint32_t>(pending.size() - 1),
                            static_cast<std::uint8_t>(kindIndex<K>), false});
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
                        static_cast<std::uint8_t>(kindIndex<K>), true});
    }

    /// Makes room for an object for each pending record, so that commit cannot throw.
    void reserveForPending() {
        forEachKind(StoreOrder{}, [this]<class K>() {
            auto& store = std::get<kindIndex<K>>(stores_);
            store.reserveObjects(store.pending.size());
        });
    }

    /// Puts the objects built for the pending records of a kind, in their order, in the records' place.
    template <class K, class Objects>
    void commit(const Objects& built) noexcept {
        auto& store = std::get<kindIndex<K>>(stores_);
        for (std::size_t place = 0; place < store.pending.size(); ++place) {
            Directory::Entry& entry = directory_[store.pending[place].entry];
            entry.place = static_cast<std::uint32_t>(store.objects.size());
            entry.resolved = true;
            store.objects.push_back(*built[place]);
            entry.typeId = typeIdOf(store.objects.back()); // the record, where it lived until now, goes
        }
        if (!store.pending.empty()) {
            store.order.grown();
            std::vector<typename Store<K>::Pending>().swap(store.pending);
        }
    }

private:
    template <class... Ks>
    static std::tuple<Store<Ks>...> storesOf(KindList<Ks...>);

    Directory directory_;
    decltype(storesOf(StoreOrder{})) stores_;
};

} // namespace Parameters::Internal
