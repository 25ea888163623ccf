#pragma once

#include <units/Export.h>
#include <units/Fault.h>
#include <units/Unit.h>
#include <units/ValidationException.h>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Units {

/// A registry of units: unit schemas in, units out.
///
/// A schema is registered first, and counts as registered at once; its unit is handed out after the next
/// resolveSchemas. An operation that throws leaves the engine as it was. An engine takes no locks.
///
/// The text of a unit schema is a JSON object: "typeid", "inherits" with one base that contains
/// "norvex.unit:unit-1.", and the constants "name" (a non-empty string) and "symbol" (a string, empty by default).
/// @snippet own_unit.cpp units
class UNITS_EXPORT UnitsEngine {
public:
    /// Makes an engine without units.
    UnitsEngine();
    /// Makes an engine with the same units and registered schemas; independent afterwards. The units share their data.
    /// Costs time in proportion to their number.
    UnitsEngine(const UnitsEngine& other);
    /// Takes the other engine's units; it may only be assigned to or destroyed afterwards.
    UnitsEngine(UnitsEngine&& other) noexcept;
    /// Replaces everything in this engine by a copy of the other's units and registered schemas.
    UnitsEngine& operator=(const UnitsEngine& other);
    /// Takes the other engine's units; it may only be assigned to or destroyed afterwards, unless it is this one.
    UnitsEngine& operator=(UnitsEngine&& other) noexcept;
    /// Destroys the engine. What it has handed out stays as it is.
    ~UnitsEngine();

    /// True when a schema of that typeid is registered, resolved or not.
    bool isRegistered(std::string_view typeId) const;

    /// Registers one unit schema. Returns the typeids that it needs and that are missing: none, as units need nothing.
    /// @throws ValidationException if the text is no schema, or a constant is missing or of the wrong type.
    /// @throws ValidationException "Inheritance from an unrecognized base schema."
    /// @throws ValidationException "Schema with typeid T is already registered."
    std::set<std::string> registerSchema(const std::string& schemaText);

    /// Registers one unit schema unless something is wrong with it, and returns everything that is, and what in it is
    /// passed over, in the order in which the text is read. Costs what registerSchema does, and little more.
    std::vector<Fault> registerSoundSchema(const std::string& schemaText);

    /// Makes units of all registered schemas. Costs the same however many there are.
    void resolveSchemas();

    /// Returns the unit of that typeid. Costs one look-up.
    /// @throws ValidationException "Could not find unit with typeid T." if there is none, or its schema is not resolved
    ///         yet.
    Unit getUnit(const std::string& typeId) const;

    /// Returns the unit of that typeid, or nothing if there is none, or its schema is not resolved yet. Costs one
    /// look-up and no memory.
    [[nodiscard]] std::optional<Unit> findUnit(std::string_view typeId) const;

    /// Returns all units, by typeid in ascending byte order. Costs time in proportion to their number.
    std::map<std::string, Unit> getAllUnits() const;

    /// Returns the typeids that the unit names: none, as units need nothing.
    /// @throws ValidationException "Could not find unit with typeid T." as getUnit does.
    std::set<std::string> getDependencies(const std::string& typeId) const;

private:
    class Registry;
    std::unique_ptr<Registry> registry_;
};

} // namespace Units
