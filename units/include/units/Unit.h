#pragma once

#include <units/Export.h>

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace Units {

/// A unit of measurement, such as the litre per second. Never changes after construction.
///
/// What begins with "get" hands out a copy. The same name without it is a view, which costs nothing and is good as long
/// as the unit or a copy of it.
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

    /// Returns the typeid.
    [[nodiscard]] std::string_view typeId() const noexcept;
    /// Returns the name.
    [[nodiscard]] std::string_view name() const noexcept;
    /// Returns the symbol; empty for a unit without one.
    [[nodiscard]] std::string_view symbol() const noexcept;

    /// True when the typeids are equal byte for byte; names and symbols take no part.
    bool operator==(const Unit& other) const noexcept;
    /// True when the typeids differ.
    bool operator!=(const Unit& other) const noexcept;
    /// True when this typeid comes first in byte order.
    bool operator<(const Unit& other) const noexcept;
    /// True when the units are neither equal nor in ascending order.
    bool operator>(const Unit& other) const noexcept;

    /// Exchanges two units without counting copies, which moving does.
    friend void swap(Unit& one, Unit& other) noexcept { one.data_.swap(other.data_); }

    /// Prints the typeid.
    template <class Traits>
    friend std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& stream, const Unit& unit) {
        return stream << std::basic_string_view<char, Traits>(unit.typeId().data(), unit.typeId().size());
    }

private:
    struct Data;
    std::shared_ptr<const Data> data_;
};

} // namespace Units

/// Hashes what == compares.
template <>
struct std::hash<Units::Unit> {
    /// Returns a hash of the typeid.
    [[nodiscard]] std::size_t operator()(const Units::Unit& unit) const noexcept {
        return std::hash<std::string_view>()(unit.typeId());
    }
};
