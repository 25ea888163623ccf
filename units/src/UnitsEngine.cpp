#include <units/UnitsEngine.h>

#include "Messages.h"
#include "UnitSchema.h"
#include "schema/CopyOnWrite.h"
#include "schema/ExceptionFactory.h"
#include "schema/Hash.h"
#include "schema/Inspection.h"
#include "schema/Schema.h"

#include <cstddef>
#include <cstdint>
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

std::vector<Fault> toFaults(std::vector<Ostra::DocumentFault>&& found) {
    std::vector<Fault> faults;
    faults.reserve(found.size());
    for (Ostra::DocumentFault& fault : found) {
        faults.push_back(toFault(std::move(fault)));
    }
    return faults;
}

} // namespace

/// The units in the order in which they were registered. A unit is built when its schema is registered, and only handed
/// out later, so that resolving is one assignment, which cannot fail. Copies share their units until one of them gets
/// another.
class UnitsEngine::Registry {
public:
    bool holds(std::string_view typeId) const {
        return (sizes_ & sizeBit(typeId)) != 0 && entries_.read().contains(typeId);
    }

    /// Reads a schema that is to be registered.
    std::optional<Unit> read(const Ostra::Schema& schema) const {
        if (holds(schema.typeId())) {
            schema.view().member("typeid")->report(Internal::messages("typeid-taken"), {schema.typeId()});
        }
        return Internal::readUnit(schema);
    }

    void add(const Ostra::Schema& schema, const Unit& unit) {
        Entries& entries = entries_.write();
        entries.try_emplace(std::string(schema.typeId()), Entry{unit, entries.size()});
        sizes_ |= sizeBit(schema.typeId());
    }

    void resolve() noexcept { resolved_ = entries_.read().size(); }

    /// Returns null for what is unknown or not resolved.
    const Unit* find(std::string_view typeId) const {
        const auto found = entries_.read().find(typeId);
        return found != entries_.read().end() && isResolved(found->second) ? &found->second.unit : nullptr;
    }

    const Unit& get(std::string_view typeId) const {
        if (const Unit* unit = find(typeId)) {
            return *unit;
        }
        throw ValidationException(Internal::messages("unit-unknown").with({typeId}));
    }

    std::map<std::string, Unit> all() const {
        std::map<std::string, Unit> units;
        for (const auto& [typeId, entry] : entries_.read()) {
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

    using Entries = std::unordered_map<std::string, Entry, Ostra::TextHash, std::equal_to<>>;

    bool isResolved(const Entry& entry) const { return entry.position < resolved_; }
    static std::uint64_t sizeBit(std::string_view typeId) { return std::uint64_t{1} << (typeId.size() % 64); }

    Ostra::CopyOnWrite<Entries> entries_;
    std::uint64_t sizes_ = 0; // a bit for each size of a typeid: other engines ask for many that are no unit's
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
    const Ostra::Schema schema(schemaText, Ostra::ExceptionFactoryOf<ValidationException>::shared());
    registry_->add(schema, *registry_->read(schema));
    return {};
}

std::vector<Fault> UnitsEngine::registerSoundSchema(const std::string& schemaText) {
    Ostra::Inspection inspection;
    const Ostra::Schema schema(schemaText, inspection);
    if (!schema.isReadable()) {
        return toFaults(inspection.faults());
    }
    const auto unit = registry_->read(schema);
    const bool isSound = !inspection.hasErrors();
    std::vector<Fault> faults;
    if (inspection.wantsLooks()) {
        inspection.noteLooks();
        const Ostra::Schema again(schemaText, inspection);
        static_cast<void>(registry_->read(again));
        faults = toFaults(inspection.faults());
    } else {
        faults = toFaults(inspection.faults());
    }
    if (unit && isSound) {
        registry_->add(schema, *unit);
    }
    return faults;
}

void UnitsEngine::resolveSchemas() { registry_->resolve(); }

Unit UnitsEngine::getUnit(const std::string& typeId) const { return registry_->get(typeId); }

std::optional<Unit> UnitsEngine::findUnit(std::string_view typeId) const {
    const Unit* unit = registry_->find(typeId);
    return unit != nullptr ? std::optional(*unit) : std::nullopt;
}

std::map<std::string, Unit> UnitsEngine::getAllUnits() const { return registry_->all(); }

std::set<std::string> UnitsEngine::getDependencies(const std::string& typeId) const {
    registry_->get(typeId);
    return {};
}

} // namespace Units
