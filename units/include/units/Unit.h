#pragma once

#include <units/Export.h>

#include <memory>
#include <string>

namespace Units {

/// A unit of measurement, such as the litre per second. Never changes after construction.
/// @ingroup values
class UNITS_EXPORT Unit {
public:
    /// Makes a unit from its typeid, its name and its symbol, which may be empty. Nothing is checked.
    Unit(std::string typeId, std::string name, std::string symbol);
    /// Copies share their data; moving copies.
    /// @{
    Unit(const Unit&) noexcept = default;
    Unit& operator=(const Unit&) noexcept = default;
    /// @}
    /// Lets go of the data.
    ~Unit();

    /// Returns a copy of the typeid, by which the unit is known.
    std::string getTypeId() const;
    /// Returns a copy of the name, such as "Litre per Second".
    std::string getName() const;
    /// Returns a copy of the symbol, such as "L/s"; empty for a unit without one.
    std::string getSymbol() const;

    /// True when the typeids are equal byte for byte; names and symbols take no part.
    bool operator==(const Unit& other) const noexcept;
    /// True when the typeids differ.
    bool operator!=(const Unit& other) const noexcept;
    /// True when this typeid comes first in byte order.
    bool operator<(const Unit& other) const noexcept;
    /// True when the units are neither equal nor in ascending order.
    bool operator>(const Unit& other) const noexcept;

private:
    struct Data;
    std::shared_ptr<const Data> data_;
};

} // namespace Units
