#include "engine/Resolution.h"

#include <parameters/ValidationException.h>

#include <array>
#include <cstddef>

namespace Parameters::Internal {

namespace {

/// How to find an object of one kind by its entry in the directory.
struct KindLookUp {
    const char* tag;
    const void* (*address)(const Registry& registry, const Staging* staging, const Directory::Entry& entry);
};

template <class K>
const void* addressOf(const Registry& registry, const Staging* staging, const Directory::Entry& entry) {
    if (entry.resolved) {
        return &registry.store<K>().objects[entry.place];
    }
    if (staging == nullptr || entry.place >= staging->of<K>().size()) {
        return nullptr;
    }
    const auto& staged = staging->of<K>()[entry.place];
    return staged ? &*staged : nullptr;
}

template <class... Ks>
constexpr std::array<KindLookUp, sizeof...(Ks)> lookUpsOf(KindList<Ks...>) {
    return {KindLookUp{&kindTag<Ks>, &addressOf<Ks>}...};
}

constexpr auto lookUps = lookUpsOf(StoreOrder{});

} // namespace

const void* RegistryFinder::lookUp(const char* kind, std::string_view typeId) const {
    const Directory::Entry* entry = registry_.find(typeId);
    if (entry == nullptr || lookUps[entry->kind].tag != kind) {
        return nullptr;
    }
    return lookUps[entry->kind].address(registry_, staging_, *entry);
}

const Resolution::Faults& Resolution::run(Stop stop) {
    anyKind(ResolutionOrder{}, [this, stop]<class K>() {
        build<K>();
        return stop == Stop::afterFaultyKind && !faults_.empty();
    });
    return faults_;
}

template <class K>
void Resolution::build() {
    const auto& pending = registry_.store<K>().pending;
    auto& staged = staging_.of<K>();
    staged.resize(pending.size());
    for (std::size_t place = 0; place < pending.size(); ++place) {
        const auto& record = pending[place].record;
        try {
            staged[place].emplace(K::build(record, finder_));
        } catch (const ValidationException& fault) {
            faults_.emplace(record.texts[0], fault.what());
        }
    }
}

} // namespace Parameters::Internal
