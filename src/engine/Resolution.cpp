#include "engine/Resolution.h"

#include "engine/AnyUnits.h"
#include "model/Access.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace Parameters::Internal {

namespace {

template <class K>
const void* addressOf(const Registry& registry, const Staging* staging, const Directory::Subject& subject) {
    if (subject.resolved) {
        return &registry.store<K>().objects[subject.place];
    }
    if (staging == nullptr || subject.place >= staging->of<K>().size()) {
        return nullptr;
    }
    return staging->of<K>()[subject.place].object();
}

using AddressOf = const void* (*)(const Registry& registry, const Staging* staging, const Directory::Subject& subject);

template <class... Ks>
constexpr std::array<AddressOf, sizeof...(Ks)> addressesOf(KindList<Ks...>) {
    return {&addressOf<Ks>...};
}

/// How an object of each kind is found by its entry in the directory.
constexpr auto addresses = addressesOf(StoreOrder{});

} // namespace

const void* RegistryFinder::lookUp(std::size_t kind, const Name& name) const {
    const Directory::Subject* subject = registry_.subjectOf(name);
    return subject != nullptr && subject->kind == kind ? addresses[kind](registry_, staging_, *subject) : nullptr;
}

std::optional<Units::Unit> RegistryFinder::findUnit(const std::string& typeId) const {
    if (binds()) {
        return AnyUnits::find(units_, typeId);
    }
    if (!allUnits_) {
        allUnits_ = units_.getAllUnits();
    }
    const auto found = allUnits_->find(typeId);
    return found != allUnits_->end() ? std::optional(found->second) : std::nullopt;
}

const Resolution::Faults& Resolution::run(Stop stop) {
    anyKind(ResolutionOrder{}, [this, stop]<class K>() {
        build<K>(stop);
        return isFaulty(stop);
    });
    return faults_;
}

template <class K>
void Resolution::build(Stop stop) {
    const auto& pending = registry_.store<K>().pending;
    staging_.of<K>() = Staging::AllOf<K>(pending.size());
    if constexpr (KindWithPasses<K>) {
        // Within a pass in ascending order too, since whether an object of this kind is there yet can now matter.
        std::vector<std::size_t> places(pending.size());
        std::iota(places.begin(), places.end(), std::size_t{0});
        std::sort(places.begin(), places.end(), [&pending](std::size_t a, std::size_t b) {
            const auto key = [&](std::size_t place) {
                return std::pair(K::passOf(pending[place].record), pending[place].typeId());
            };
            return key(a) < key(b);
        });
        int pass = 0;
        for (const std::size_t place : places) {
            if (K::passOf(pending[place].record) != pass && isFaulty(stop)) {
                return;
            }
            pass = K::passOf(pending[place].record);
            build<K>(place);
        }
    } else {
        for (std::size_t place = 0; place < pending.size(); ++place) {
            build<K>(place);
        }
    }
}

template <class K>
void Resolution::build(std::size_t place) {
    const auto& record = registry_.recordOf<K>(registry_.store<K>().pending[place]);
    staging_.of<K>()[place].make(record, finder_);
    if (finder_.hasUnresolved()) {
        takeFaults(record);
    }
}

} // namespace Parameters::Internal
