#pragma once

#include "engine/Dependents.h"
#include "engine/Directory.h"
#include "engine/Kinds.h"
#include "engine/Lazy.h"
#include "engine/SortedOrder.h"
#include "engine/Staged.h"
#include "model/Access.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace Parameters::Internal {

/// A schema that is read and not yet resolved.
template <class K>
struct Pending {
    typename K::Record record;
    Directory::EntryId entry{};

    explicit Pending(typename K::Record&& itsRecord) : record(std::move(itsRecord)) {}

    std::string_view typeId() const { return record.typeId(); }
};

/// Of a linked kind, whose records are not good for longer than their schemas, it holds what it names by their entries.
template <LinkedKind K>
struct Pending<K> {
    Ref<const typename K::Data> data;
    std::array<Directory::EntryId, References::most> named; // as many as it names, then none
    Directory::EntryId entry{};

    explicit Pending(Ref<const typename K::Data>&& itsData) : data(std::move(itsData)) { named.fill(Name::noEntry); }

    std::string_view typeId() const { return data->typeId(); }
};

/// What is pending of a linked kind, as resolution reads it.
template <LinkedKind K>
struct LinkedRecord {
    const typename K::Data* data;
    References references;

    std::string_view typeId() const { return data->typeId(); }
};

/// What one kind has: schemas that are pending, and objects.
template <class K>
class Store {
public:
    using Object = typename K::Object;

    std::vector<Pending<K>> pending;
    std::vector<Object> objects;

    /// Returns the places of all objects in the order of their typeids, good until the store grows.
    const SortedOrder::Order& order() const {
        return order_.of(static_cast<std::uint32_t>(objects.size()),
                         [this](std::uint32_t place) { return typeIdOf(objects[place]); });
    }

    /// Returns all objects by typeid.
    std::map<std::string, Object> all() const {
        return list_.copy([this] { return makeList(); }); // copying a map costs half of making one
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
    const Directory::Subject* find(const Directory::Key& key) const noexcept { return directory_.find(key); }

    /// Returns the object of that kind and typeid, or null.
    template <class K>
    const typename K::Object* findObject(std::string_view typeId) const noexcept {
        const Directory::Subject* subject = find(typeId);
        const bool isThat = subject != nullptr && subject->resolved && subject->kind == kindIndex<K>;
        return isThat ? &store<K>().objects[subject->place] : nullptr;
    }

    /// Returns what names the object of that typeid, good until an object is added.
    ArrayView<Identity> dependentsOf(std::string_view typeId) const {
        return dependents_.get([this] { return Dependents(*this); }).of(typeId);
    }

    bool isPending(std::string_view typeId) const noexcept {
        const Directory::Subject* subject = find(typeId);
        return subject != nullptr && !subject->resolved;
    }

    bool hasPending() const noexcept {
        return anyKind(StoreOrder{}, [this]<class K>() { return !store<K>().pending.empty(); });
    }

    /// Calls visit.operator()<K>(object) with the object of that typeid, whatever its kind; returns whether there is
    /// one.
    template <class Visitor>
    bool visitObject(std::string_view typeId, Visitor&& visit) const {
        const Directory::Subject* subject = find(typeId);
        if (subject == nullptr || !subject->resolved) {
            return false;
        }
        withKind(subject->kind, [&]<class K>() { visit.template operator()<K>(store<K>().objects[subject->place]); });
        return true;
    }

    /// Returns what a name stands for, or null.
    const Directory::Subject* subjectOf(const Name& name) const noexcept {
        return name.entry != Name::noEntry ? directory_.find(name.entry) : directory_.find(name.typeId);
    }

    /// Returns the record of a schema that is pending, good as long as that stays where it is.
    template <class K>
    static const typename K::Record& recordOf(const Pending<K>& pending) noexcept {
        return pending.record;
    }
    template <LinkedKind K>
    LinkedRecord<K> recordOf(const Pending<K>& pending) const noexcept {
        const auto nameAt = [&](std::size_t at) {
            return Name(directory_[pending.named[at]].typeId(), &pending.named[at], pending.named[at]);
        };
        const bool namesMore = pending.named[2] != Name::noEntry;
        return {&*pending.data, {nameAt(0), nameAt(1), namesMore ? std::optional(nameAt(2)) : std::nullopt}};
    }

    /// Files a record whose typeid, the key, is new; before, calls check(record) with the record as it will be. Changes
    /// nothing when it throws.
    template <class K, class Check>
    void addPending(typename K::Record&& record, const Directory::Key& key, Check check) {
        auto& pending = std::get<kindIndex<K>>(stores_).pending;
        directory_.reserve(1 + References::most);
        if constexpr (LinkedKind<K>) {
            pending.push_back(Pending<K>(std::move(record.data)));
        } else {
            pending.push_back(Pending<K>(std::move(record)));
        }
        try {
            if constexpr (LinkedKind<K>) {
                std::transform(record.references.begin(), record.references.end(), pending.back().named.begin(),
                               [this](const Name& name) { return directory_.name(name.typeId); });
            }
            check(recordOf<K>(pending.back()));
        } catch (...) {
            forgetNamed(pending.back());
            pending.pop_back();
            throw;
        }
        const auto place = static_cast<std::uint32_t>(pending.size() - 1);
        pending.back().entry = directory_.add(pending.back().typeId(), key.hash, {place, number<K>, false});
    }

    /// Withdraws a record that is pending. Changes nothing when it throws.
    void discardPending(std::string_view typeId) {
        const Directory::EntryId id = directory_.idOf(typeId);
        withKind(directory_[id].subject.kind, [&]<class K>() {
            auto& pending = std::get<kindIndex<K>>(stores_).pending;
            const std::uint32_t place = directory_[id].subject.place;
            directory_.remove(id); // while the record still holds the typeid
            forgetNamed(pending[place]);
            if (place + 1 < pending.size()) {
                pending[place] = std::move(pending.back());
                directory_[pending[place].entry].subject.place = place;
            }
            pending.pop_back();
        });
    }

    /// Stores an object whose typeid is new. Changes nothing when it throws.
    template <class K>
    void addObject(const typename K::Object& object) {
        auto& store = std::get<kindIndex<K>>(stores_);
        directory_.reserve(1);
        store.objects.push_back(object);
        store.grown();
        dependents_.take();
        const auto place = static_cast<std::uint32_t>(store.objects.size() - 1);
        directory_.add(typeIdOf(object), Directory::Key(typeIdOf(object)).hash, {place, number<K>, true});
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
                for (auto& pending : store.pending) {
                    if (K::makeSole(pending.data)) {
                        directory_[pending.entry].setTypeId(pending.typeId());
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
            Directory::Subject& subject = directory_[pending.entry].subject;
            if (staged[place].isNone()) {
                subject.place = static_cast<std::uint32_t>(left);
                moveDown(store.pending, place, left++);
            } else {
                subject.place = static_cast<std::uint32_t>(store.objects.size());
                subject.resolved = true;
                forgetNamed(pending);
                store.objects.push_back(staged[place].finish(std::move(pending)));
                // The typeid stays where it is.
                assert(directory_[pending.entry].bytes == typeIdOf(store.objects.back()).data());
            }
        }
        store.pending.erase(store.pending.begin() + static_cast<std::ptrdiff_t>(left), store.pending.end());
        if (left == 0) {
            std::vector<Pending<K>>().swap(store.pending);
        }
        store.grown();
        dependents_.take();
    }

private:
    template <class K>
    static constexpr auto number = static_cast<std::uint8_t>(kindIndex<K>);

    template <class... Ks>
    static std::tuple<Store<Ks>...> storesOf(KindList<Ks...>);

    template <class T>
    static void moveDown(std::vector<T>& elements, std::size_t from, std::size_t to) noexcept {
        if (from != to) {
            elements[to] = std::move(elements[from]);
        }
    }

    template <class K>
    void forgetNamed(const Pending<K>& pending) noexcept {
        if constexpr (LinkedKind<K>) {
            for (const Directory::EntryId named : pending.named) {
                if (named != Name::noEntry) {
                    directory_.forget(named);
                }
            }
        }
    }

    Directory directory_;
    decltype(storesOf(StoreOrder{})) stores_;
    Lazy<Dependents> dependents_;
};

} // namespace Parameters::Internal
