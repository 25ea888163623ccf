#pragma once

#include "engine/Registry.h"
#include "engine/Staged.h"
#include "model/Finder.h"
#include "schema/Hash.h"

#include <units/Unit.h>
#include <units/UnitsEngine.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Parameters::Internal {

/// What is being made of pending records, place by place.
class Staging {
public:
    template <class K>
    using AllOf = std::vector<Staged<K>>;

    template <class K>
    AllOf<K>& of() noexcept {
        return std::get<kindIndex<K>>(staged_);
    }
    template <class K>
    const AllOf<K>& of() const noexcept {
        return std::get<kindIndex<K>>(staged_);
    }

private:
    template <class... Ks>
    static std::tuple<AllOf<Ks>...> allOf(KindList<Ks...>);

    decltype(allOf(StoreOrder{})) staged_;
};

/// Finds what is registered and, for resolution, what is staged.
class RegistryFinder final : public Finder {
public:
    /// For binding to what is registered.
    RegistryFinder(const Registry& registry, const Units::UnitsEngine& units)
        : Finder(Purpose::binding), registry_(registry), units_(units) {}
    /// For resolution beside what is staged.
    RegistryFinder(const Registry& registry, const Units::UnitsEngine& units, const Staging& staging)
        : Finder(Purpose::resolution), registry_(registry), units_(units), staging_(&staging) {}

private:
    const void* lookUp(std::size_t kind, const Name& name) const override;
    std::optional<Units::Unit> findUnit(const std::string& typeId) const override;

    const Registry& registry_;
    const Units::UnitsEngine& units_;
    const Staging* staging_ = nullptr;
    // For resolution all units at once, but only when one is asked for: most often none is.
    mutable std::optional<std::map<std::string, Units::Unit>> allUnits_;
};

/// Builds the objects of all pending records of a registry aside. The registry is not changed, and must not change
/// meanwhile.
class Resolution {
public:
    /// What keeps a record from being built. Its views are good as long as the record.
    struct Fault {
        std::string_view typeId; // of the record
        Unresolved cause;
        std::size_t occurrence; // of what is named, among equal ones that the record names, in the order of reading
    };
    /// In the order in which they were met; those of one record one after the other.
    using Faults = std::vector<Fault>;
    enum class Stop { afterFaultyKind, never };

    Resolution(const Registry& registry, const Units::UnitsEngine& units)
        : registry_(registry), finder_(registry, units, staging_) {}

    /// Builds kind by kind. What names a record that cannot be built cannot be built either.
    const Faults& run(Stop stop);

    /// Returns what would keep a record that is not pending from being built, after a run.
    template <class K>
    Faults check(const typename K::Record& record) {
        faults_.clear();
        Staged<K>().make(record, finder_);
        takeFaults(record);
        return std::exchange(faults_, {});
    }

    template <class K>
    Staging::AllOf<K>& built() noexcept {
        return staging_.of<K>();
    }

private:
    template <class K>
    void build(Stop stop);
    template <class K>
    void build(std::size_t place);
    template <class Record>
    void takeFaults(const Record& record);
    bool isFaulty(Stop stop) const { return stop == Stop::afterFaultyKind && !faults_.empty(); }

    const Registry& registry_;
    Staging staging_;
    RegistryFinder finder_;
    Faults faults_;
};

template <class Record>
void Resolution::takeFaults(const Record& record) {
    std::unordered_map<std::string_view, std::size_t, Ostra::TextHash> counts;
    std::unordered_map<const void*, std::size_t> occurrences; // of what stands there in the record
    forEachNamed(record, [&](const Name& name) {
        if (!name.typeId.empty()) { // which has no place of its own
            occurrences.emplace(name.place, counts[name.typeId]++);
        }
    });
    for (Unresolved& cause : finder_.takeUnresolved()) {
        const std::size_t occurrence = occurrences.at(cause.named.place);
        faults_.push_back({record.typeId(), std::move(cause), occurrence});
    }
}

} // namespace Parameters::Internal
