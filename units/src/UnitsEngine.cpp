#include <units/UnitsEngine.h>

#include "Messages.h"
#include "UnitSchema.h"
#include "schema/ExceptionFactory.h"
#include "schema/Hash.h"
#include "schema/Inspection.h"
#include "schema/Schema.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <unordered_map>
#include <utility>

namespace Units {

namespace {

Fault::Place toPlace(Ostra::Spot&& spot) { return {std::move(spot.pointer), spot.begin, spot.end}; }

Fault toFault(Ostra::DocumentFault&& fault) {
    return {fault.message->code,
            fault.message->severity == Ostra::Severity::error,
            std::move(fault.sentence),
            std::move(fault.name),
            std::move(fault.nearest),
            toPlace(std::move(fault.place)),
            fault.other ? std::optional(toPlace(*std::move(fault.other))) : std::nullopt};
}

} // namespace

/// The units in the order in which they were registered. A unit is built when its schema is registered, and only handed
/// out later, so that resolving is one assignment, which cannot fail.
class UnitsEngine::Registry {
public:
    bool holds(std::string_view typeId) const { return entries_.contains(typeId); }

    /// Registers a schema that has no fault.
    void add(const Ostra::Schema& schema, const Ostra::Inspection* inspection = nullptr) {
        std::string typeId(schema.typeId());
        if (holds(typeId)) {
            schema.view().member("typeid")->report(Internal::messages("typeid-taken"), {typeId});
        }
        const auto unit = Internal::readUnit(schema);
        if (unit && (inspection == nullptr || !inspection->hasErrors())) {
            entries_.try_emplace(std::move(typeId), Entry{*unit, entries_.size()});
        }
    }

    void resolve() noexcept { resolved_ = entries_.size(); }

    const Unit& find(const std::string& typeId) const {
        const auto found = entries_.find(typeId);
        if (found == entries_.end() || !isResolved(found->second)) {
            throw ValidationException(Internal::messages("unit-unknown").with({typeId}));
        }
        return found->second.unit;
    }

    std::map<std::string, Unit> all() const {
        std::map<std::string, Unit> units;
        for (const auto& [typeId, entry] : entries_) {
            if (isResolved(entry)) {
                units.emplace(typeId, entry.unit);
            }
        }
        return units;
    }

private:
    struct Entry {
        Unit unit;
        std::size_t position;
    };

    bool isResolved(const Entry& entry) const { return entry.position < resolved_; }

    /// No catalogue can make a table of this hash degenerate. Not noexcept: the table then keeps the hashes.
    /// Transparent: it can be asked for a view.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view typeId) const { return Ostra::hashOf(typeId); }
    };

    std::unordered_map<std::string, Entry, Hash, std::equal_to<>> entries_;
    std::size_t resolved_ = 0;
};

UnitsEngine::UnitsEngine() : registry_(std::make_unique<Registry>()) {}

UnitsEngine::UnitsEngine(const UnitsEngine& other) : registry_(std::make_unique<Registry>(*other.registry_)) {}

UnitsEngine::UnitsEngine(UnitsEngine&&) noexcept = default;

UnitsEngine& UnitsEngine::operator=(const UnitsEngine& other) { return *this = UnitsEngine(other); }

UnitsEngine& UnitsEngine::operator=(UnitsEngine&&) noexcept = default;

UnitsEngine::~UnitsEngine() = default;

bool UnitsEngine::isRegistered(std::string_view typeId) const { return registry_->holds(typeId); }

std::set<std::string> UnitsEngine::registerSchema(const std::string& schemaText) {
    registry_->add(Ostra::Schema(schemaText, Ostra::ExceptionFactoryOf<ValidationException>::shared()));
    return {};
}

std::vector<Fault> UnitsEngine::registerSoundSchema(const std::string& schemaText) {
    Ostra::Inspection inspection;
    const Ostra::Schema schema(schemaText, inspection);
    if (schema.isReadable()) {
        registry_->add(schema, &inspection);
    }
    std::vector<Fault> faults;
    for (Ostra::DocumentFault& fault : inspection.faults()) {
        faults.push_back(toFault(std::move(fault)));
    }
    return faults;
}

void UnitsEngine::resolveSchemas() { registry_->resolve(); }

Unit UnitsEngine::getUnit(const std::string& typeId) const { return registry_->find(typeId); }

std::map<std::string, Unit> UnitsEngine::getAllUnits() const { return registry_->all(); }

std::set<std::string> UnitsEngine::getDependencies(const std::string& typeId) const {
    registry_->find(typeId);
    return {};
}

} // namespace Units
